// Making edit controls, their text, selection and state.
#include <VxMFCEmu/ctrl/edit.h>

#include "ctrl/vxedit_p.h"
#include "ctrl/vxlineselection_p.h"
#include "wnd/vxtextbuffer_p.h"

#include <VxMFCEmu/wnd/windowgeometry.h>
#include <VxMFCEmu/wnd/windowtext.h>

#include <VxCustomUI.h>

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <climits>

IMPLEMENT_DYNCREATE_LIST_E(CEdit_E, CWnd_E, QLineEdit, &QLineEdit::staticMetaObject,
                           &QTextEdit::staticMetaObject)

using namespace vx::detail;

namespace {

constexpr char kPasswordProperty[] = "vxPasswordChar";

Qt::Alignment alignmentOf(DWORD dwStyle)
{
    return dwStyle & ES_CENTER  ? Qt::AlignHCenter
           : dwStyle & ES_RIGHT ? Qt::AlignRight
                                : Qt::AlignLeft;
}

constexpr DWORD withStyle(DWORD dwStyle, DWORD bit, bool bSet)
{
    return bSet ? dwStyle | bit : dwStyle & ~bit;
}

void hideBar(QTextEdit& text, QScrollBar& bar,
             void (QAbstractScrollArea::*setPolicy)(Qt::ScrollBarPolicy))
{
    bar.setEnabled(false);
    (text.*setPolicy)(Qt::ScrollBarAlwaysOff);
}

void selectIn(QTextEdit& text, int nStart, int nEnd)
{
    QTextCursor cursor = text.textCursor();
    const int nLength = lengthOf(text);
    if (nStart < 0 || nStart >= nLength) {
        cursor.movePosition(QTextCursor::End);
    } else {
        cursor.setPosition(nStart);
        cursor.setPosition(nEnd == -1 ? nLength : std::clamp(nEnd, 0, nLength),
                           QTextCursor::KeepAnchor);
    }
    text.setTextCursor(cursor);
}

/// Makes a change that gives a single line its text anew, and so its cursor and state.
template <typename Change>
void keepState(QLineEdit& line, Change change)
{
    const QPointer<QLineEdit> pAlive(&line); // slots may delete it
    const bool bModified = line.isModified();
    const int nCursor = line.cursorPosition();
    const int nStart = line.selectionStart();
    const int nLength = line.selectionLength();
    change();
    if (pAlive)
        line.setModified(bModified);
    if (pAlive)
        line.setCursorPosition(nCursor);
    if (!pAlive)
        return;
    if (nLength > 0 && nCursor == nStart)
        line.setSelection(nStart + nLength, -nLength);
    else if (nLength > 0)
        line.setSelection(nStart, nLength);
}

} // namespace

BOOL CEdit_E::AttachDefault(QWidget* pParent)
{
    if (!(m_dwStyle & ES_MULTILINE)) {
        auto* const pLine = new VxCUILineEdit(pParent);
        pLine->setAlignment(alignmentOf(m_dwStyle) | Qt::AlignVCenter);
        pLine->setReadOnly((m_dwStyle & ES_READONLY) != 0);
        pLine->setEchoMode(m_dwStyle & ES_PASSWORD ? QLineEdit::Password : QLineEdit::Normal);
        limitCharacters(*pLine, m_dwStyle);
        return Attach(pLine, pParent, false);
    }
    auto* const pText = new VxCUITextEdit(pParent);
    QTextOption option = pText->document()->defaultTextOption();
    option.setAlignment(alignmentOf(m_dwStyle));
    pText->document()->setDefaultTextOption(option);
    pText->setReadOnly((m_dwStyle & ES_READONLY) != 0);
    return Attach(pText, pParent, false);
}

BOOL CEdit_E::OnAttach()
{
    // Before OnCreate() for what is made here alone: a form's widgets keep what they are.
    if (IsExternalImpObj())
        m_dwStyle &= ~ES_MULTILINE;
    if (!CWnd_E::OnAttach())
        return FALSE;
    if (widgetOf<QTextEdit>(*this))
        m_dwStyle |= ES_MULTILINE;
    useEdit(*this, [this](auto& widget) {
        m_dwStyle = withStyle(m_dwStyle, ES_READONLY, widget.isReadOnly());
    });
    if (const auto* const pLine = widgetOf<QLineEdit>(*this))
        m_dwStyle = withStyle(m_dwStyle, ES_PASSWORD, pLine->echoMode() == QLineEdit::Password);
    return TRUE;
}

int CEdit_E::OnCreate(tagCREATESTRUCTW*)
{
    auto* const pText = widgetOf<QTextEdit>(*this);
    if (pText && m_dwStyle & ES_MULTILINE) {
        pText->setLineWrapMode(QTextEdit::NoWrap);
        pText->setContextMenuPolicy(Qt::NoContextMenu);
        hideBar(*pText, *pText->verticalScrollBar(), &QTextEdit::setVerticalScrollBarPolicy);
        hideBar(*pText, *pText->horizontalScrollBar(), &QTextEdit::setHorizontalScrollBarPolicy);
    }
    return 0;
}

BOOL CEdit_E::Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent)
{
    if (!CWnd_E::Create(dwStyle, rect, pParent))
        return FALSE;
    if (auto* const pText = widgetOf<QTextEdit>(*this))
        joinScrollBars(*pText);
    return TRUE;
}

BOOL CEdit_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return Create(dwStyle, rect, pWidget); });
}

void CEdit_E::SetWindowText(const wchar_t* lpszString)
{
    // Intended: a text that looks like HTML is one.
    if (auto* const pText = widgetOf<QTextEdit>(*this))
        pText->setText(VxQString(lpszString));
    else
        CWnd_E::SetWindowText(lpszString);
}

void CEdit_E::ReplaceSel(LPCWSTR lpszNewText, BOOL)
{
    const VxQString strText(lpszNewText);
    askEdit(
        *this, false, [&](auto& line) { return line.insert(strText), true; },
        [&](auto& text) { return text.insertPlainText(strText), true; });
}

BOOL CEdit_E::SetCueBanner(LPCWSTR lpszText, BOOL)
{
    return useEdit(*this, [&](auto& widget) { widget.setPlaceholderText(VxQString(lpszText)); });
}

BOOL CEdit_E::GetCueBanner(LPWSTR lpszText, int cchText) const
{
    if (!lpszText || cchText <= 0)
        return FALSE;
    return useEdit(*this, [&](auto& widget) {
        copyTerminated(CString_E(widget.placeholderText()), lpszText, cchText);
    });
}

CString_E CEdit_E::GetCueBanner() const
{
    CString_E strText;
    useEdit(*this, [&](auto& widget) { strText = widget.placeholderText(); });
    return strText;
}

void CEdit_E::SetLimitText(UINT nMax)
{
    const int nLimit = nMax == 0 || nMax > INT_MAX ? INT_MAX : static_cast<int>(nMax);
    if (auto* const pText = widgetOf<QTextEdit>(*this))
        limitText(*pText, nLimit);
    else if (auto* const pLine = widgetOf<QLineEdit>(*this))
        keepState(*pLine, [&] { SetEditLimitText_E(pLine, nLimit); });
}

UINT CEdit_E::GetLimitText() const
{
    return askEdit(
        *this, 0U, [](auto& line) { return line.maxLength(); },
        [](auto& text) { return textLimit(text); });
}

void CEdit_E::SetPasswordChar(TCHAR ch)
{
    if (auto* const pLine = widgetOf<QLineEdit>(*this)) {
        pLine->setEchoMode(ch ? QLineEdit::Password : QLineEdit::Normal);
        pLine->setProperty(kPasswordProperty, ch ? QVariant(static_cast<uint>(ch)) : QVariant());
        m_dwStyle = withStyle(m_dwStyle, ES_PASSWORD, ch != 0);
    }
}

TCHAR CEdit_E::GetPasswordChar() const
{
    return askWidget<QLineEdit>(*this, L'\0', [](auto& line) -> uint {
        if (line.echoMode() == QLineEdit::Normal)
            return 0;
        const QVariant ch = line.property(kPasswordProperty);
        return ch.isValid() ? ch.toUInt()
                            : static_cast<uint>(line.style()->styleHint(
                                  QStyle::SH_LineEdit_PasswordCharacter, nullptr, &line));
    });
}

void CEdit_E::GetSel(int& nStartChar, int& nEndChar) const
{
    getLineSelection(widgetOf<QLineEdit>(*this), nStartChar, nEndChar);
    if (const auto* const pText = widgetOf<QTextEdit>(*this)) {
        nStartChar = pText->textCursor().selectionStart();
        nEndChar = pText->textCursor().selectionEnd();
    }
}

DWORD CEdit_E::GetSel() const
{
    int nStart = 0;
    int nEnd = 0;
    GetSel(nStart, nEnd);
    return MAKELONG(nStart, nEnd);
}

void CEdit_E::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    setLineSelection(widgetOf<QLineEdit>(*this), m_dwStyle, nStartChar, nEndChar);
    auto* const pText = widgetOf<QTextEdit>(*this);
    if (!pText || (!(m_dwStyle & ES_NOHIDESEL) && !pText->hasFocus()))
        return;
    const int nTop = pText->verticalScrollBar()->value();
    const int nLeft = pText->horizontalScrollBar()->value();
    selectIn(*pText, nStartChar, nEndChar);
    if (bNoScroll) {
        pText->verticalScrollBar()->setValue(nTop);
        pText->horizontalScrollBar()->setValue(nLeft);
    }
}

void CEdit_E::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(lowWord(dwSelection), highWord(dwSelection), bNoScroll);
}

BOOL CEdit_E::GetModify() const
{
    return askEdit(
        *this, FALSE, [](auto& line) { return line.isModified(); },
        [](auto& text) { return text.document()->isModified(); });
}

void CEdit_E::SetModify(BOOL bModified)
{
    if (auto* const pLine = widgetOf<QLineEdit>(*this))
        pLine->setModified(bModified != 0);
    else if (auto* const pText = widgetOf<QTextEdit>(*this))
        pText->document()->setModified(bModified != 0);
}

BOOL CEdit_E::SetReadOnly(BOOL bReadOnly)
{
    if (!useEdit(*this, [=](auto& widget) { widget.setReadOnly(bReadOnly != 0); }))
        return FALSE;
    m_dwStyle = withStyle(m_dwStyle, ES_READONLY, bReadOnly != FALSE);
    return TRUE;
}

BOOL CEdit_E::CanUndo() const
{
    return askEdit(
        *this, FALSE, [](auto& line) { return line.isUndoAvailable(); },
        [](auto& text) { return text.document()->isUndoAvailable(); });
}

BOOL CEdit_E::Undo()
{
    const BOOL bDone = CanUndo() || widgetOf<QLineEdit>(*this);
    useEdit(*this, [](auto& widget) { widget.undo(); }); // a slot may delete this edit
    return bDone;
}

void CEdit_E::EmptyUndoBuffer()
{
    if (auto* const pLine = widgetOf<QLineEdit>(*this)) {
        const QSignalBlocker quiet(pLine); // a text that is set anew has no history
        keepState(*pLine, [&] { pLine->setText(pLine->text()); });
    } else if (auto* const pText = widgetOf<QTextEdit>(*this)) {
        pText->document()->clearUndoRedoStacks();
    }
}

// Intended: the whole text, not only what is selected.
void CEdit_E::Clear()
{
    useEdit(*this, [](auto& widget) { widget.clear(); });
}

void CEdit_E::Copy()
{
    useEdit(*this, [](auto& widget) { widget.copy(); });
}

void CEdit_E::Cut()
{
    useEdit(*this, [](auto& widget) { widget.cut(); });
}

void CEdit_E::Paste()
{
    useEdit(*this, [](auto& widget) { widget.paste(); });
}

BOOL CEdit_E::ShowBalloonTip(const tagEDITBALLOONTIP* pTip)
{
    return pTip && ShowBalloonTip(pTip->pszTitle, pTip->pszText, pTip->ttiIcon);
}

BOOL CEdit_E::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT)
{
    return useEdit(*this, [&](QWidget& widget) {
        const QString strTip =
            QStringLiteral("<b>%1</b><br>%2")
                .arg(VxQString(lpszTitle).toHtmlEscaped(), VxQString(lpszText).toHtmlEscaped());
        QToolTip::showText(widget.mapToGlobal(QPoint(0, widget.height())), strTip, &widget);
    });
}

BOOL CEdit_E::HideBalloonTip()
{
    return useEdit(*this, [](auto&) { QToolTip::hideText(); });
}
