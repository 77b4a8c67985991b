#include <VxMFCEmu/dlg/messagebox.h>

#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <array>

namespace {

struct ButtonSet
{
    UINT type;
    std::array<int, 3> ids; // left to right; 0 where there is no button
    int escapeId;           // what Escape answers; 0 where it does nothing
};

constexpr ButtonSet kButtonSets[] = {
    {MB_OK, {IDOK}, IDOK},
    {MB_OKCANCEL, {IDOK, IDCANCEL}, IDCANCEL},
    {MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}, 0},
    {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}, IDCANCEL},
    {MB_YESNO, {IDYES, IDNO}, 0},
    {MB_RETRYCANCEL, {IDRETRY, IDCANCEL}, IDCANCEL},
    {MB_CANCELTRYCONTINUE, {IDCANCEL, IDTRYAGAIN, IDCONTINUE}, IDCANCEL},
};

struct ButtonText
{
    int id;
    const char* text;
};

constexpr ButtonText kButtonTexts[] = {
    {IDOK, "OK"},        {IDCANCEL, "Cancel"},       {IDABORT, "&Abort"},
    {IDRETRY, "&Retry"}, {IDIGNORE, "&Ignore"},      {IDYES, "&Yes"},
    {IDNO, "&No"},       {IDTRYAGAIN, "&Try Again"}, {IDCONTINUE, "&Continue"},
};

const ButtonSet* findButtonSet(UINT type)
{
    for (const ButtonSet& set : kButtonSets) {
        if (set.type == (type & MB_TYPEMASK))
            return &set;
    }
    return nullptr;
}

QString buttonText(int id)
{
    for (const ButtonText& row : kButtonTexts) {
        if (row.id == id)
            return QApplication::translate("VxMessageBox", row.text);
    }
    return {};
}

QMessageBox::Icon iconOf(UINT type)
{
    switch (type & MB_ICONMASK) {
    case MB_ICONHAND:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONEXCLAMATION:
        return QMessageBox::Warning;
    case MB_ICONASTERISK:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

constexpr char kIdProperty[] = "vxButtonId";

void addButtons(QMessageBox& box, const ButtonSet& set, UINT type)
{
    const std::size_t wanted = (type & MB_DEFMASK) / MB_DEFBUTTON2;
    for (std::size_t i = 0; i < set.ids.size() && set.ids[i] != 0; ++i) {
        // One role for all of them: by their real roles a desktop would put them in its own order.
        QPushButton* const pButton = box.addButton(buttonText(set.ids[i]), QMessageBox::ActionRole);
        pButton->setProperty(kIdProperty, set.ids[i]);
        if (i == 0 || i == wanted)
            box.setDefaultButton(pButton);
        if (set.ids[i] == set.escapeId)
            box.setEscapeButton(pButton);
    }
    // Some desktops turn a row of equal roles around.
    box.setStyleSheet(QStringLiteral("* { button-layout: 0 }"));
}

bool canShow()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QThread::currentThread() == QCoreApplication::instance()->thread();
}

int show(QWidget* pOwner, const QString& text, const QString& caption, UINT type)
{
    const ButtonSet* const pSet = findButtonSet(type);
    if (!pSet || !canShow())
        return 0;
    // The owner takes the box along if it dies before the box is closed.
    const QPointer<QMessageBox> pBox(new QMessageBox(pOwner));
    pBox->setWindowTitle(caption);
    pBox->setTextFormat(Qt::PlainText);
    pBox->setText(text);
    pBox->setIcon(iconOf(type));
    pBox->setWindowFlag(Qt::WindowStaysOnTopHint,
                        (type & MB_TOPMOST) != 0 || (type & MB_MODEMASK) == MB_SYSTEMMODAL);
    addButtons(*pBox, *pSet, type);
    pBox->exec();
    if (!pBox)
        return 0;
    const QAbstractButton* const pClicked = pBox->clickedButton();
    const int id = pClicked ? pClicked->property(kIdProperty).toInt() : 0;
    delete pBox;
    return id;
}

UINT withSuggestedIcon(UINT type)
{
    if ((type & MB_ICONMASK) != 0)
        return type;
    const UINT buttons = type & MB_TYPEMASK;
    if (buttons == MB_YESNO || buttons == MB_YESNOCANCEL)
        return type | MB_ICONQUESTION;
    return type | MB_ICONEXCLAMATION;
}

} // namespace

int MessageBox_E(QWidget* hWnd, const wchar_t* lpText, const wchar_t* lpCaption, UINT uType)
{
    return show(hWnd, VxQString(CString_E(lpText).ToUnixReturn()),
                VxQString(lpCaption ? lpCaption : L"Error"), uType);
}

int AfxMessageBox_E(const wchar_t* lpszText, UINT nType, UINT)
{
    if (!canShow())
        return 0;
    const CString_E strCaption(QApplication::applicationDisplayName());
    return MessageBox_E(QApplication::activeWindow(), lpszText, strCaption.GetString(),
                        withSuggestedIcon(nType));
}

int AfxMessageBox_E(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString_E strText;
    if (!strText.LoadString(nIDPrompt))
        strText.Format(L"#%u", nIDPrompt);
    return AfxMessageBox_E(strText.GetString(), nType, nIDHelp);
}
