/// @file commandmap.h
/// Commands and their state in message maps.
///
/// @code
/// BEGIN_MESSAGE_MAP_E(CMyDlg, CDialog_E)
///     ON_BN_CLICKED_E(IDC_APPLY, &CMyDlg::OnApply)               // void OnApply()
///     ON_COMMAND_E(ID_ZOOM, &CMyDlg::OnZoom)                     // void OnZoom()
///     ON_UPDATE_COMMAND_UI_E(ID_ZOOM, &CMyDlg::OnUpdateZoom)     // void OnUpdateZoom(CCmdUI_E*)
/// END_MESSAGE_MAP_E()
/// @endcode
///
/// An id stands for the QAction or QAbstractButton that has its name in the calling plug-in's id
/// map and is below the window, or shown there by a menu or a tool button; where there are both,
/// ON_BN_CLICKED_E takes the button and the others the action. What does not exist yet is looked
/// for again when the event loop is idle, ten times a second at most. A command is handled when the
/// action is triggered or the button is clicked, the state is set at idle time.
///
/// Differs from MFC: commands do not travel; the window whose map names one handles it. One handler
/// per id and window, the last one registered; it replaces what a dialog's OK and Cancel buttons do
/// by themselves, but not Escape and the close button, which call OnCancel(). An update handler
/// that lets out an exception is not called again.
#pragma once

#include <VxMFCEmu/wnd/messagemap.h>
#include <VxMFCEmu/wnd/resourceids.h>

class CCmdUI_E;

/// What an entry of a command map is for.
enum class VxCommandEntry_E
{
    Command,      ///< triggered() or clicked(), of the action if there is one
    Click,        ///< the same, of the button if there is one
    RangeCommand, ///< as Command, to a handler that takes the id
    Update        ///< the state, set at idle time
};

#define VXMFC_ON_COMMAND(nID, entry, memberFn, ...)                                                \
    this->AddCmdMapEntry(ToStringId(static_cast<UINT>(nID)), VxCommandEntry_E::entry,              \
                         vx::detail::eraseHandler<ThisClass_E, __VA_ARGS__>(memberFn));

/// @{
/// One entry of a message map: a command or a click to `void OnApply()`, an update to
/// `void OnUpdateApply(CCmdUI_E*)`.
#define ON_COMMAND_E(nID, memberFn) VXMFC_ON_COMMAND(nID, Command, memberFn, void())
#define ON_BN_CLICKED_E(nID, memberFn) VXMFC_ON_COMMAND(nID, Click, memberFn, void())
#define ON_UPDATE_COMMAND_UI_E(nID, memberFn)                                                      \
    VXMFC_ON_COMMAND(nID, Update, memberFn, void(CCmdUI_E*))
/// @}

#define VXMFC_ON_RANGE(nFirst, nLast, entry, memberFn, ...)                                        \
    this->AddCmdMapRange(static_cast<UINT>(nFirst), static_cast<UINT>(nLast),                      \
                         VxCommandEntry_E::entry,                                                  \
                         vx::detail::eraseHandler<ThisClass_E, __VA_ARGS__>(memberFn));
/// @{
/// One handler for all ids of a range, both ends included: `void OnPick(UINT nID)` and
/// `void OnUpdatePick(CCmdUI_E*)`.
#define ON_COMMAND_RANGE_E(nFirst, nLast, memberFn)                                                \
    VXMFC_ON_RANGE(nFirst, nLast, RangeCommand, memberFn, void(UINT))
#define ON_UPDATE_COMMAND_UI_RANGE_E(nFirst, nLast, memberFn)                                      \
    VXMFC_ON_RANGE(nFirst, nLast, Update, memberFn, void(CCmdUI_E*))
/// @}
