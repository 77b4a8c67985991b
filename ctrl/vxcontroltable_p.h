// Not part of the public interface. What the control classes share: their widgets, their texts and
// their tables of messages.
#pragma once

#include <VxMFCEmu/text/vxqstring.h>
#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/window.h>
#include <VxMFCEmu/wnd/windowtext.h>

#include <QtWidgets/QWidget>

#include <algorithm>

namespace vx::detail {

/// The control's widget as a @p Widget; null for one of another class and without one.
template <typename Widget>
Widget* widgetOf(const CWnd_E& control)
{
    return qobject_cast<Widget*>(control.GetSafeHwnd());
}

/// The result of @p ask for the control's widget, @p failure when it is of another class.
template <typename Widget, typename Result, typename Ask>
Result askWidget(const CWnd_E& control, Result failure, Ask ask)
{
    auto* const pWidget = widgetOf<Widget>(control);
    return pWidget ? static_cast<Result>(ask(*pWidget)) : failure;
}

/// Attaches a new @p Widget below @p pParent, which the control owns.
template <typename Widget>
BOOL attachNew(CWnd_E& control, QWidget* pParent)
{
    return control.Attach(new Widget(pParent), pParent, false);
}

/// CWnd_E's Create() with a text; TRUE once the control is there.
inline BOOL createWithText(CWnd_E& control, LPCWSTR lpszText, DWORD dwStyle, const tagRECT& rect,
                           QWidget* pParent)
{
    if (!control.CWnd_E::Create(dwStyle, rect, pParent))
        return FALSE;
    SetWindowText_E(control.GetSafeHwnd(), lpszText);
    return TRUE;
}

/// Has @p create make the control below a window, and gives it the name of its id.
template <typename Create>
BOOL createWithId(CWnd_E& control, const CWnd_E* pParent, UINT nID, Create create)
{
    const BOOL bCreated = create(pParent ? pParent->GetSafeHwnd() : nullptr);
    if (bCreated)
        control.SetDlgCtrlID(static_cast<int>(nID));
    return bCreated;
}

/// How a control of class @p Control answers one message.
template <typename Control>
struct ControlMessage
{
    UINT message;
    LRESULT (*answer)(Control&, WPARAM, LPARAM);
};

/// Answers by the row of a table; FALSE when there is none.
template <typename Control, std::size_t Count>
BOOL answerFromTable(const ControlMessage<Control> (&table)[Count], Control& control, UINT message,
                     WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const auto* const pRow =
        std::find_if(std::begin(table), std::end(table),
                     [message](const auto& row) { return row.message == message; });
    if (pRow == std::end(table))
        return FALSE;
    const LRESULT result = pRow->answer(control, wParam, lParam);
    if (pResult)
        *pResult = result;
    return TRUE;
}

/// Parameters of messages
template <typename T>
T* pointerIn(LPARAM lParam)
{
    return reinterpret_cast<T*>(static_cast<std::intptr_t>(lParam));
}
template <typename T>
T* pointerIn(WPARAM wParam)
{
    return pointerIn<T>(static_cast<LPARAM>(wParam));
}
inline int intIn(WPARAM wParam) { return static_cast<int>(wParam); }
inline int intIn(LPARAM lParam) { return static_cast<int>(lParam); }
inline short lowWord(LPARAM lParam) { return static_cast<short>(lParam & 0xFFFF); }
inline short highWord(LPARAM lParam) { return static_cast<short>((lParam >> 16) & 0xFFFF); }

} // namespace vx::detail
