// What an edit control answers to messages.
#include <VxMFCEmu/ctrl/edit.h>

#include "ctrl/vxedit_p.h"

#include <VxMFCEmu/wnd/wincodes.h>

#include <QtWidgets/QScrollBar>

using namespace vx::detail;

namespace {

using Row = ControlMessage<CEdit_E>;

/// Two numbers in the halves of the result; -1 when one does not fit.
LRESULT getSel(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    int nStart = 0;
    int nEnd = 0;
    edit.GetSel(nStart, nEnd);
    if (auto* const pStart = reinterpret_cast<DWORD*>(wParam))
        *pStart = static_cast<DWORD>(nStart);
    if (auto* const pEnd = pointerIn<DWORD>(lParam))
        *pEnd = static_cast<DWORD>(nEnd);
    return nEnd > 0xFFFF ? -1 : static_cast<LRESULT>(MAKELONG(nStart, nEnd));
}

LRESULT posFromChar(CEdit_E& edit, WPARAM wParam, LPARAM)
{
    const CPoint_E pt = edit.PosFromChar(static_cast<UINT>(wParam));
    return pt.x == -1 && pt.y == -1 ? -1 : MAKELPARAM(pt.x, pt.y);
}

LRESULT lineScroll(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    edit.LineScroll(intIn(lParam), intIn(wParam));
    return widgetOf<QTextEdit>(edit) != nullptr;
}

/// The lines scrolled and TRUE in the halves of the result.
LRESULT scroll(CEdit_E& edit, WPARAM wParam, LPARAM)
{
    const auto* const pText = widgetOf<QTextEdit>(edit);
    const int nCode = intIn(wParam);
    if (!pText || nCode < SB_LINEUP || nCode > SB_PAGEDOWN)
        return FALSE;
    const bool bPage = nCode == SB_PAGEUP || nCode == SB_PAGEDOWN;
    const int nPage = pText->viewport()->height() / pText->fontMetrics().lineSpacing();
    const int nLines = bPage ? std::max(nPage, 1) : 1;
    const int nBefore = edit.GetFirstVisibleLine();
    edit.LineScroll(nCode == SB_LINEUP || nCode == SB_PAGEUP ? -nLines : nLines);
    return MAKELONG(edit.GetFirstVisibleLine() - nBefore, TRUE);
}

LRESULT scrollCaret(CEdit_E& edit, WPARAM, LPARAM)
{
    return askWidget<QTextEdit>(edit, TRUE,
                                [](auto& text) { return text.ensureCursorVisible(), TRUE; });
}

LRESULT setMargins(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    const auto both = static_cast<std::uint64_t>(lParam);
    if (wParam == EC_USEFONTINFO) {
        edit.SetMargins(EC_USEFONTINFO, EC_USEFONTINFO);
    } else {
        const DWORD old = edit.GetMargins();
        edit.SetMargins(wParam & EC_LEFTMARGIN ? LOWORD(both) : LOWORD(old),
                        wParam & EC_RIGHTMARGIN ? HIWORD(both) : HIWORD(old));
    }
    return 0;
}

LRESULT replaceSel(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    edit.ReplaceSel(pointerIn<const wchar_t>(lParam), wParam != 0);
    return 0;
}

LRESULT setTabStops(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    return edit.SetTabStops(intIn(wParam), pointerIn<const int>(lParam));
}

LRESULT setCueBanner(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    return edit.SetCueBanner(pointerIn<const wchar_t>(lParam), wParam != 0);
}

LRESULT getCueBanner(CEdit_E& edit, WPARAM wParam, LPARAM lParam)
{
    return edit.GetCueBanner(reinterpret_cast<wchar_t*>(wParam), intIn(lParam));
}

LRESULT getThumb(CEdit_E& edit, WPARAM, LPARAM)
{
    return askWidget<QTextEdit>(edit, 0,
                                [](auto& text) { return text.verticalScrollBar()->value(); });
}

// clang-format off
constexpr Row kMessages[] = {
    {EM_GETSEL,              getSel},
    {EM_SETSEL,              [](auto& edit, WPARAM w, LPARAM l) -> LRESULT { return edit.SetSel(intIn(w), intIn(l)), 0; }},
    {EM_GETRECT,             [](auto& edit, WPARAM, LPARAM l) -> LRESULT { return edit.GetRect(pointerIn<tagRECT>(l)), 0; }},
    {EM_SETRECT,             [](auto& edit, WPARAM, LPARAM l) -> LRESULT { return edit.SetRect(pointerIn<const tagRECT>(l)), 0; }},
    {EM_SETRECTNP,           [](auto& edit, WPARAM, LPARAM l) -> LRESULT { return edit.SetRectNP(pointerIn<const tagRECT>(l)), 0; }},
    {EM_SCROLL,              scroll},
    {EM_LINESCROLL,          lineScroll},
    {EM_SCROLLCARET,         scrollCaret},
    {EM_GETMODIFY,           [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.GetModify(); }},
    {EM_SETMODIFY,           [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.SetModify(w != 0), 0; }},
    {EM_GETLINECOUNT,        [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.GetLineCount(); }},
    {EM_LINEINDEX,           [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.LineIndex(intIn(w)); }},
    {EM_GETTHUMB,            getThumb},
    {EM_LINELENGTH,          [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.LineLength(intIn(w)); }},
    {EM_REPLACESEL,          replaceSel},
    {EM_GETLINE,             [](auto& edit, WPARAM w, LPARAM l) -> LRESULT { return edit.GetLine(intIn(w), pointerIn<wchar_t>(l)); }},
    {EM_SETLIMITTEXT,        [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.SetLimitText(static_cast<UINT>(w)), 0; }},
    {EM_GETLIMITTEXT,        [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.GetLimitText(); }},
    {EM_CANUNDO,             [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.CanUndo(); }},
    {EM_UNDO,                [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.Undo(); }},
    {EM_EMPTYUNDOBUFFER,     [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.EmptyUndoBuffer(), 0; }},
    {EM_FMTLINES,            [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.FmtLines(w != 0); }},
    {EM_LINEFROMCHAR,        [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.LineFromChar(intIn(w)); }},
    {EM_GETFIRSTVISIBLELINE, [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.GetFirstVisibleLine(); }},
    {EM_SETTABSTOPS,         setTabStops},
    {EM_SETPASSWORDCHAR,     [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.SetPasswordChar(static_cast<wchar_t>(w)), 0; }},
    {EM_GETPASSWORDCHAR,     [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.GetPasswordChar(); }},
    {EM_SETREADONLY,         [](auto& edit, WPARAM w, LPARAM) -> LRESULT { return edit.SetReadOnly(w != 0); }},
    {EM_SETMARGINS,          setMargins},
    {EM_GETMARGINS,          [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.GetMargins(); }},
    {EM_POSFROMCHAR,         posFromChar},
    {EM_CHARFROMPOS,         [](auto& edit, WPARAM, LPARAM l) -> LRESULT { return edit.CharFromPos(CPoint_E(l)); }},
    {EM_SETCUEBANNER,        setCueBanner},
    {EM_GETCUEBANNER,        getCueBanner},
    {EM_SHOWBALLOONTIP,      [](auto& edit, WPARAM, LPARAM l) -> LRESULT { return edit.ShowBalloonTip(pointerIn<const tagEDITBALLOONTIP>(l)); }},
    {EM_HIDEBALLOONTIP,      [](auto& edit, WPARAM, LPARAM) -> LRESULT { return edit.HideBalloonTip(); }},
};
// clang-format on

} // namespace

BOOL CEdit_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
