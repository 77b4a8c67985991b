#include "wnd/vxcontrolproc_p.h"

#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/messageevent.h>
#include <VxMFCEmu/wnd/sendmessage.h>
#include <VxMFCEmu/wnd/window.h>
#include <VxMFCEmu/wnd/windowtext.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>

#include <algorithm>
#include <climits>
#include <limits>

namespace vx::detail {
namespace {

// Widgets take every event of a user's type for theirs: that somebody answered shows in the result.
constexpr LRESULT kUnanswered = std::numeric_limits<LRESULT>::min() + 1;

VxCreateObjectFn controlFactory(const QWidget* pWidget)
{
    if (qobject_cast<const QDialog*>(pWidget)) // has a class too, but is no control
        return nullptr;
    for (const QMetaObject* pMeta = pWidget->metaObject(); pMeta; pMeta = pMeta->superClass()) {
        if (const auto it = g_mapCreateMethod.find(pMeta); it != g_mapCreateMethod.end())
            return it->second == &CWnd_E::CreateObject ? nullptr : it->second;
    }
    return nullptr;
}

/// A posted message on its way to a control.
class ControlMessageEvent : public QEvent
{
public:
    static constexpr Type EventType = static_cast<Type>(User + 130);

    ControlMessageEvent(QWidget* pWidget, const VxWinMsgEvent& message)
        : QEvent(EventType), m_widget(pWidget), m_message(message)
    {
    }

    void deliver() const
    {
        if (m_widget)
            SendMessage_E(m_widget, m_message.message, m_message.wParam, m_message.lParam);
    }

private:
    QPointer<QWidget> m_widget;
    VxWinMsgEvent m_message;
};

/// Takes the messages that are posted to controls: the widget itself would drop them.
class ControlCourier : public QObject
{
public:
    ControlCourier() { moveToThread(QCoreApplication::instance()->thread()); }

    bool event(QEvent* e) override
    {
        if (e->type() != ControlMessageEvent::EventType)
            return QObject::event(e);
        static_cast<ControlMessageEvent*>(e)->deliver();
        return true;
    }
};

} // namespace

bool answerAsControl(QWidget* pWidget, VxWinMsgEvent& e)
{
    const VxCreateObjectFn pfnCreate = pWidget ? controlFactory(pWidget) : nullptr;
    if (!pfnCreate)
        return false;
    const std::unique_ptr<CObject_E> pObject(pfnCreate());
    auto* const pControl = qobject_cast<CWnd_E*>(pObject.get());
    if (!pControl)
        return false;
    // Not attached: the widget keeps the window, the filters and the connections that it has.
    pControl->SetImpQObject(pWidget);
    QObject::connect(pWidget, &QObject::destroyed, pControl, &CObject_E::OnImpDestroy);
    const BOOL bAnswered = pControl->OnControlMessage(e.message, e.wParam, e.lParam, &e.result);
    pControl->SetImpQObject(nullptr);
    return bAnswered;
}

bool answerTextMessage(QWidget* pWidget, VxWinMsgEvent& e)
{
    switch (e.message) {
    case WM_SETTEXT: {
        const BOOL bSet = SetWindowText_E(pWidget, reinterpret_cast<LPCWSTR>(e.lParam));
        e.result = bSet || !qobject_cast<QComboBox*>(pWidget) ? bSet : CB_ERR;
        return true;
    }
    case WM_GETTEXT: {
        const auto nMax = static_cast<int>(std::min<WPARAM>(e.wParam, INT_MAX));
        e.result = GetWindowText_E(pWidget, reinterpret_cast<LPWSTR>(e.lParam), nMax);
        return true;
    }
    case WM_GETTEXTLENGTH:
        e.result = GetWindowTextLength_E(pWidget);
        return true;
    default:
        return false;
    }
}

bool sendToUnbound(QWidget* pWidget, VxWinMsgEvent& e)
{
    const bool bControl = isControlMessage(e.message) && controlFactory(pWidget);
    if (CObject_E::GetOwner(pWidget) || (!bControl && !isTextMessage(e.message)))
        return false;
    const QPointer<QWidget> alive(pWidget);
    e.result = kUnanswered;
    QCoreApplication::sendEvent(pWidget, &e);
    if (e.result == kUnanswered) {
        e.result = 0;
        if (!answerTextMessage(alive, e))
            answerAsControl(alive, e);
    }
    return true;
}

bool postToControl(QWidget* pWidget, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!isControlMessage(message) || !controlFactory(pWidget) || !QCoreApplication::instance())
        return false;
    static ControlCourier courier;
    QCoreApplication::postEvent(
        &courier, new ControlMessageEvent(pWidget, VxWinMsgEvent(message, wParam, lParam)));
    return true;
}

} // namespace vx::detail
