#include "dlg/vxdialogform_p.h"

#include <VxMFCEmu/wnd/windowstyle.h>

#include <QtCore/QFile>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QDialog>
#include <QtWidgets/QVBoxLayout>

#include <VxCustomUI.h>

#include <memory>

namespace vx::detail {
namespace {

struct CustomWidget
{
    const char* pszClass;
    QWidget* (*make)(QWidget*);
};

template <typename Widget>
QWidget* make(QWidget* pParent)
{
    return new Widget(pParent);
}

constexpr CustomWidget kCustomWidgets[] = {
    {"VxCUILineEdit", make<VxCUILineEdit>}, {"VxCUITextEdit", make<VxCUITextEdit>},
    {"VxCUISpinBox", make<VxCUISpinBox>},   {"VxCUIDoubleSpinBox", make<VxCUIDoubleSpinBox>},
    {"VxCUIComboBox", make<VxCUIComboBox>}, {"VxCUILabel", make<VxCUILabel>},
};

// Makes the widgets of the companion library too; classes nobody knows become what they extend.
class FormLoader : public QUiLoader
{
public:
    QWidget* createWidget(const QString& strClass, QWidget* pParent,
                          const QString& strName) override
    {
        for (const CustomWidget& row : kCustomWidgets) {
            if (strClass != QLatin1String(row.pszClass))
                continue;
            QWidget* const pWidget = row.make(pParent);
            pWidget->setObjectName(strName);
            return pWidget;
        }
        return QUiLoader::createWidget(strClass, pParent, strName);
    }
};

QDialog* aroundContent(std::unique_ptr<QWidget> pContent, QWidget* pParent)
{
    auto* const pDialog = new QDialog(pParent);
    pDialog->setWindowTitle(pContent->windowTitle());
    pDialog->setProperty("mfcStyle", pContent->property("mfcStyle"));
    pContent->setProperty("mfcStyle", QVariant());
    setupStyle(pContent.get()); // its controls'
    pDialog->resize(pContent->size());
    auto* const pLayout = new QVBoxLayout(pDialog);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pContent.release());
    return pDialog;
}

QDialog* loadForm(const QString& strForm, QWidget* pParent)
{
    QFile file(strForm);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    std::unique_ptr<QWidget> pForm(FormLoader().load(&file, pParent));
    if (!pForm)
        return nullptr;
    if (auto* const pDialog = qobject_cast<QDialog*>(pForm.get())) {
        static_cast<void>(pForm.release());
        return pDialog;
    }
    return aroundContent(std::move(pForm), pParent);
}

// A style may show the dialog, but it is to be seen only when it has been initialised.
bool applyStyles(QDialog* pDialog)
{
    pDialog->setAttribute(Qt::WA_DontShowOnScreen);
    setupStyle(pDialog);
    const bool bShow = pDialog->isVisible();
    pDialog->hide();
    pDialog->setAttribute(Qt::WA_DontShowOnScreen, false);
    return bShow;
}

} // namespace

BuiltDialog buildDialog(const QString& strForm, QWidget* pParent)
{
    if (strForm.isEmpty() || !QFile::exists(strForm))
        return {new QDialog(pParent), false};
    QDialog* const pDialog = loadForm(strForm, pParent);
    return {pDialog, pDialog && applyStyles(pDialog)};
}

} // namespace vx::detail
