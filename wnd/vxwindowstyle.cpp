#include <VxMFCEmu/wnd/windowstyle.h>

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

namespace {

/// Intended: a name is also found inside a longer one.
class StyleText
{
public:
    explicit StyleText(const QString& strStyle) : m_strStyle(strStyle) {}
    bool has(const char* pszName) const { return m_strStyle.contains(QLatin1String(pszName)); }

private:
    const QString& m_strStyle;
};

void addFlags(QWidget* pWidget, Qt::WindowFlags flags)
{
    pWidget->setWindowFlags(pWidget->windowFlags() | flags);
}

void centreOn(QWidget* pWidget, const QRect& area)
{
    const QSize frame = pWidget->frameGeometry().size();
    pWidget->move((area.left() + area.right()) / 2 - frame.width() / 2,
                  (area.top() + area.bottom()) / 2 - frame.height() / 2);
}

void applyState(QWidget* pWidget, const StyleText& style)
{
    if (style.has("WS_DISABLED"))
        pWidget->setDisabled(true);
    if (style.has("WS_VISIBLE"))
        pWidget->setVisible(true);
    if (style.has("WS_MAXIMIZE"))
        pWidget->setWindowState(Qt::WindowMaximized);
    if (style.has("WS_MINIMIZE") || style.has("WS_ICONIC"))
        pWidget->setWindowState(Qt::WindowMinimized);
}

void applyFrame(QWidget* pWidget, const StyleText& style)
{
    const bool bChild = style.has("WS_CHILD");
    const bool bPopup = style.has("WS_POPUP");
    if (style.has("WS_MAXIMIZEBOX"))
        addFlags(pWidget, Qt::WindowMaximizeButtonHint);
    if (style.has("WS_MINIMIZEBOX"))
        addFlags(pWidget, Qt::WindowMinimizeButtonHint);
    if (style.has("WS_BORDER"))
        pWidget->setStyleSheet(QStringLiteral("border: 1px solid black;"));
    if (style.has("WS_THICKFRAME") || style.has("WS_SIZEBOX"))
        addFlags(pWidget, Qt::Window);
    if (bChild && !bPopup)
        addFlags(pWidget, Qt::SubWindow);
    if (style.has("WS_DLGFRAME"))
        addFlags(pWidget, Qt::Window);
    if (bPopup && !bChild && !style.has("WS_CAPTION"))
        addFlags(pWidget, Qt::FramelessWindowHint);
    if (style.has("WS_POPUPWINDOW"))
        addFlags(pWidget, Qt::Dialog | Qt::WindowSystemMenuHint);
}

void applyProperty(QWidget* pWidget)
{
    const QVariant style = pWidget->property("mfcStyle");
    if (!style.isValid())
        return;
    const QPointer<QWidget> pAlive(pWidget);
    setupDialogStyleData(pWidget, style.toString());
    if (pAlive)
        setupWindowStyleData(pWidget, style.toString());
}

} // namespace

void setupDialogStyleData(QWidget* pWidget, const QString& strStyle)
{
    if (!pWidget)
        return;
    const StyleText style(strStyle);
    if (style.has("DS_MODALFRAME"))
        pWidget->setWindowModality(Qt::ApplicationModal);
    if (!style.has("DS_CENTER"))
        return;
    if (const QWidget* const pParent = pWidget->parentWidget())
        centreOn(pWidget, pParent->geometry());
    else if (const QScreen* const pScreen = QGuiApplication::screenAt(pWidget->pos()))
        centreOn(pWidget, pScreen->geometry());
}

void setupWindowStyleData(QWidget* pWidget, const QString& strStyle)
{
    if (!pWidget)
        return;
    const StyleText style(strStyle);
    const QPointer<QWidget> pAlive(pWidget);
    applyState(pWidget, style);
    if (pAlive)
        applyFrame(pWidget, style);
}

void setupStyle(QWidget* pWidget)
{
    if (!pWidget)
        return;
    const QPointer<QWidget> pAlive(pWidget);
    applyProperty(pWidget);
    if (!pAlive)
        return;
    // Changed window flags reorder the list of children.
    QList<QPointer<QWidget>> children;
    for (QObject* const pChild : pWidget->children()) {
        if (pChild->isWidgetType())
            children.append(static_cast<QWidget*>(pChild));
    }
    for (const QPointer<QWidget>& pChild : qAsConst(children)) {
        if (pChild)
            applyProperty(pChild);
    }
}
