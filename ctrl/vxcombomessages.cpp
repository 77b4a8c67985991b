#include <VxMFCEmu/ctrl/combobox.h>

#include "ctrl/vxitems_p.h"

namespace {

using namespace vx::detail;

using Box = CComboBox_E;
using Row = ControlMessage<Box>;

LRESULT getEditSel(Box& box, WPARAM wParam, LPARAM lParam)
{
    const DWORD dwSel = box.GetEditSel();
    if (static_cast<int>(dwSel) == CB_ERR)
        return CB_ERR;
    if (auto* const pStart = pointerIn<DWORD>(static_cast<LPARAM>(wParam)))
        *pStart = LOWORD(dwSel);
    if (auto* const pEnd = pointerIn<DWORD>(lParam))
        *pEnd = HIWORD(dwSel);
    return dwSel;
}

LRESULT getText(Box& box, WPARAM wParam, LPARAM lParam)
{
    return box.GetLBText(intIn(wParam), pointerIn<wchar_t>(lParam));
}

LRESULT resetContent(Box& box, WPARAM, LPARAM)
{
    box.ResetContent();
    return CB_OKAY;
}

LRESULT limitText(Box& box, WPARAM wParam, LPARAM)
{
    box.LimitText(intIn(wParam));
    return TRUE;
}

LRESULT getDroppedRect(Box& box, WPARAM, LPARAM lParam)
{
    box.GetDroppedControlRect(pointerIn<tagRECT>(lParam));
    return lParam != 0;
}

// clang-format off
constexpr Row kMessages[] = {
    {CB_GETEDITSEL,      getEditSel},
    {CB_LIMITTEXT,       limitText},
    {CB_SETEDITSEL,      [](Box& box, WPARAM, LPARAM l) -> LRESULT { return box.SetEditSel(lowWord(l), highWord(l)); }},
    {CB_ADDSTRING,       answerText<&Box::AddString, Box>},
    {CB_DELETESTRING,    [](Box& box, WPARAM w, LPARAM) -> LRESULT { return box.DeleteString(static_cast<UINT>(w)); }},
    {CB_GETCOUNT,        answerPlain<&Box::GetCount, Box>},
    {CB_GETCURSEL,       answerPlain<&Box::GetCurSel, Box>},
    {CB_GETLBTEXT,       getText},
    {CB_GETLBTEXTLEN,    answerIndex<&Box::GetLBTextLen, Box>},
    {CB_INSERTSTRING,    answerIndexText<&Box::InsertString, Box>},
    {CB_RESETCONTENT,    resetContent},
    {CB_FINDSTRING,      answerIndexText<&Box::FindString, Box>},
    {CB_SELECTSTRING,    answerIndexText<&Box::SelectString, Box>},
    {CB_SETCURSEL,       answerIndex<&Box::SetCurSel, Box>},
    {CB_SHOWDROPDOWN,    [](Box& box, WPARAM w, LPARAM) -> LRESULT { return box.ShowDropDown(w != 0), TRUE; }},
    {CB_GETITEMDATA,     answerIndex<&Box::GetItemData, Box>},
    {CB_SETITEMDATA,     answerIndexData<&Box::SetItemData, Box>},
    {CB_GETDROPPEDCONTROLRECT, getDroppedRect},
    {CB_SETITEMHEIGHT,   [](Box& box, WPARAM w, LPARAM l) -> LRESULT { return box.SetItemHeight(intIn(w), static_cast<UINT>(l)); }},
    {CB_GETITEMHEIGHT,   answerIndex<&Box::GetItemHeight, Box>},
    {CB_GETDROPPEDSTATE, answerPlain<&Box::GetDroppedState, Box>},
    {CB_FINDSTRINGEXACT, answerIndexText<&Box::FindStringExact, Box>},
    {CB_GETTOPINDEX,     answerPlain<&Box::GetTopIndex, Box>},
    {CB_SETTOPINDEX,     answerIndex<&Box::SetTopIndex, Box>},
    {CB_GETDROPPEDWIDTH, answerPlain<&Box::GetDroppedWidth, Box>},
    {CB_SETDROPPEDWIDTH, [](Box& box, WPARAM w, LPARAM) -> LRESULT { return box.SetDroppedWidth(static_cast<UINT>(w)); }},
    {CB_INITSTORAGE,     [](Box& box, WPARAM w, LPARAM) -> LRESULT { return box.InitStorage(intIn(w), 0); }},
    {CB_GETCOMBOBOXINFO, [](Box& box, WPARAM, LPARAM l) -> LRESULT { return box.GetComboBoxInfo(pointerIn<COMBOBOXINFO>(l)); }},
    {CB_SETMINVISIBLE,   answerIndex<&Box::SetMinVisibleItems, Box>},
    {CB_GETMINVISIBLE,   answerPlain<&Box::GetMinVisible, Box>},
    {CB_SETCUEBANNER,    answerText<&Box::SetCueBanner, Box>},
    {CB_GETCUEBANNER,    [](Box& box, WPARAM w, LPARAM l) -> LRESULT {
         return box.GetCueBanner(pointerIn<wchar_t>(static_cast<LPARAM>(w)), intIn(l)); }},
};
// clang-format on

} // namespace

BOOL CComboBox_E::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return answerFromTable(kMessages, *this, message, wParam, lParam, pResult);
}
