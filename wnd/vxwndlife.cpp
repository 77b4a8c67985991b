// Making and destroying windows.
#include <VxMFCEmu/wnd/window.h>

#include <VxMFCEmu/wnd/hostwindows.h>
#include <VxMFCEmu/wnd/windowfunctions.h>

#include <QtGui/QWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollBar>

namespace {

// A window's destruction, while it lasts. A handler that destroys the same window again, or one
// around it, would otherwise never come back.
class Destruction
{
public:
    explicit Destruction(QWidget* pWidget)
        : m_widget(pWidget), m_pOuter(std::exchange(s_pInnermost, this))
    {
    }
    ~Destruction() { s_pInnermost = m_pOuter; }
    Destruction(const Destruction&) = delete;
    Destruction& operator=(const Destruction&) = delete;

    bool IsNested() const
    {
        const Destruction* pOther = m_pOuter;
        while (pOther && pOther->m_widget != m_widget)
            pOther = pOther->m_pOuter;
        return pOther != nullptr;
    }

private:
    const QPointer<QWidget> m_widget;
    Destruction* const m_pOuter;
    static inline Destruction* s_pInnermost = nullptr;
};

// Qt keeps the native window under a pressed button and does not forget it when it is deleted
// hidden, as it is here. So it goes now, before a press that is on its way can reach it.
void closeNativeWindow(const QWidget& widget)
{
    if (QWindow* const pWindow = widget.windowHandle())
        pWindow->destroy();
}

} // namespace

BOOL CWnd_E::AttachDefault(QWidget* pParent)
{
    auto* const pWidget = new QWidget(pParent);
    pWidget->setAttribute(Qt::WA_Hover);
    pWidget->setAttribute(Qt::WA_MouseTracking);
    return Attach(pWidget, pParent, false);
}

void CWnd_E::SetupUI() {}

BOOL CWnd_E::Create(QWidget* pParent)
{
    return AttachDefault(pParent ? pParent : TolmGetMainFrame());
}

BOOL CWnd_E::Create(UINT dwStyle, QWidget* pParent)
{
    m_dwStyle = dwStyle;
    if (!AttachDefault(pParent ? pParent : TolmGetMainFrame()))
        return FALSE;
    ShowAsStyled();
    return TRUE;
}

BOOL CWnd_E::Create(UINT dwStyle, const tagRECT& rect, QWidget* pParent)
{
    m_dwStyle = dwStyle;
    if (const BOOL bCreated = Create(pParent); !bCreated)
        return bCreated;
    MoveWindow(&rect, FALSE);
    ShowAsStyled();
    return TRUE;
}

void CWnd_E::ShowAsStyled()
{
    const QPointer<CWnd_E> self(this); // showing runs handlers
    if (m_dwStyle & WS_VISIBLE)
        ShowWindow(SW_SHOW);
    if (self && m_dwStyle & WS_VSCROLL)
        ShowScrollBar(SB_VERT, TRUE);
    if (self && m_dwStyle & WS_HSCROLL)
        ShowScrollBar(SB_HORZ, TRUE);
}

int CWnd_E::OnCreate(tagCREATESTRUCTW*) { return 0; }

BOOL CWnd_E::DestroyWindow() { return DestroyWindow_E(GetSafeHwnd()); }

void CWnd_E::OnClose() { DestroyWindow(); }

void CWnd_E::OnDestroy()
{
    RemoveEdge(m_pHScrollBar);
    RemoveEdge(m_pVScrollBar);
    RemoveEdge(m_pMenuBar);
}

void CWnd_E::OnNcDestroy()
{
    if (const QWidget* const pWidget = GetSafeHwnd(); pWidget && !IsExternalImpObj())
        closeNativeWindow(*pWidget);
    Detach();
    PostNcDestroy();
}

void CWnd_E::PostNcDestroy() {}

BOOL DestroyWindow_E(QWidget* pWidget)
{
    if (!pWidget)
        return FALSE;
    const Destruction destruction(pWidget);
    if (destruction.IsNested())
        return TRUE;
    // Handlers may delete the window, the widget or any child.
    const QPointer<QWidget> widget(pWidget);
    widget->hide();
    const QPointer<CWnd_E> window(CWnd_E::FromHandlePermanent(widget));
    if (window)
        window->SendMessage(WM_DESTROY);
    if (widget) {
        const QObjectList children = widget->children();
        const std::vector<QPointer<QObject>> childObjects(children.cbegin(), children.cend());
        for (const QPointer<QObject>& child : childObjects)
            DestroyWindow_E(qobject_cast<QWidget*>(child));
    }
    if (window && widget && window->GetSafeHwnd() == widget)
        window->SendMessage(WM_NCDESTROY);
    return TRUE;
}
