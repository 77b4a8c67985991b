#include <VxMFCEmu/ctrl/listbox.h>

#include "ctrl/vxitems_p.h"

namespace {

using namespace vx::detail;

using List = CListBox_E;
using Row = ControlMessage<List>;

LRESULT getText(List& list, WPARAM wParam, LPARAM lParam)
{
    return list.GetText(intIn(wParam), pointerIn<wchar_t>(lParam));
}

LRESULT resetContent(List& list, WPARAM, LPARAM)
{
    list.ResetContent();
    return LB_OKAY;
}

/// From the lower to the higher index selects, the other way round the items are let go.
LRESULT selectRangeEx(List& list, WPARAM wParam, LPARAM lParam)
{
    const int nFirst = intIn(wParam);
    const int nLast = intIn(lParam);
    return list.SelItemRange(nFirst <= nLast, std::min(nFirst, nLast), std::max(nFirst, nLast));
}

LRESULT itemFromPoint(List& list, WPARAM, LPARAM lParam)
{
    BOOL bOutside = FALSE;
    const int nRow = list.ItemFromPoint(CPoint_E(lParam), bOutside);
    return MAKELONG(nRow, bOutside);
}

// clang-format off
constexpr Row kMessages[] = {
    {LB_ADDSTRING,       answerText<&List::AddString, List>},
    {LB_INSERTSTRING,    answerIndexText<&List::InsertString, List>},
    {LB_DELETESTRING,    [](List& list, WPARAM w, LPARAM) -> LRESULT { return list.DeleteString(static_cast<UINT>(w)); }},
    {LB_SELITEMRANGEEX,  selectRangeEx},
    {LB_RESETCONTENT,    resetContent},
    {LB_SETSEL,          [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.SetSel(intIn(l), w != 0); }},
    {LB_SETCURSEL,       answerIndex<&List::SetCurSel, List>},
    {LB_GETSEL,          answerIndex<&List::GetSel, List>},
    {LB_GETCURSEL,       answerPlain<&List::GetCurSel, List>},
    {LB_GETTEXT,         getText},
    {LB_GETTEXTLEN,      answerIndex<&List::GetTextLen, List>},
    {LB_GETCOUNT,        answerPlain<&List::GetCount, List>},
    {LB_SELECTSTRING,    answerIndexText<&List::SelectString, List>},
    {LB_GETTOPINDEX,     answerPlain<&List::GetTopIndex, List>},
    {LB_FINDSTRING,      answerIndexText<&List::FindString, List>},
    {LB_GETSELCOUNT,     answerPlain<&List::GetSelCount, List>},
    {LB_GETSELITEMS,     [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.GetSelItems(intIn(w), pointerIn<int>(l)); }},
    {LB_SETTABSTOPS,     [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.SetTabStops(intIn(w), pointerIn<int>(l)); }},
    {LB_SETHORIZONTALEXTENT, [](List& list, WPARAM w, LPARAM) -> LRESULT { return list.SetHorizontalExtent(intIn(w)), 0; }},
    {LB_GETLISTBOXINFO,  answerPlain<&List::GetListBoxInfo, List>},
    {LB_GETHORIZONTALEXTENT, answerPlain<&List::GetHorizontalExtent, List>},
    {LB_SETTOPINDEX,     answerIndex<&List::SetTopIndex, List>},
    {LB_GETITEMRECT,     [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.GetItemRect(intIn(w), pointerIn<tagRECT>(l)); }},
    {LB_GETITEMDATA,     answerIndex<&List::GetItemData, List>},
    {LB_SETITEMDATA,     answerIndexData<&List::SetItemData, List>},
    {LB_SELITEMRANGE,    [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.SelItemRange(w != 0, lowWord(l), highWord(l)); }},
    {LB_SETCARETINDEX,   [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.SetCaretIndex(intIn(w), l == 0); }},
    {LB_GETCARETINDEX,   answerPlain<&List::GetCaretIndex, List>},
    {LB_SETITEMHEIGHT,   [](List& list, WPARAM w, LPARAM l) -> LRESULT { return list.SetItemHeight(intIn(w), static_cast<UINT>(l)); }},
    {LB_GETITEMHEIGHT,   answerIndex<&List::GetItemHeight, List>},
    {LB_FINDSTRINGEXACT, answerIndexText<&List::FindStringExact, List>},
    {LB_INITSTORAGE,     [](List& list, WPARAM w, LPARAM) -> LRESULT { return list.InitStorage(intIn(w), 0); }},
    {LB_ITEMFROMPOINT,   itemFromPoint},
};
// clang-format on

} // namespace

BOOL CListBox_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
