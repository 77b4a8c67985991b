// What lies along a window's edges: its scroll bars and its menu bar.
#include <VxMFCEmu/wnd/window.h>

#include <VxMFCEmu/wnd/menu.h>

#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollBar>

#include <utility>

namespace {

// Lays a window's edges out again when its widget changes size. A filter of its own, since a
// window's OnSize() handler may consume the event.
class EdgeLayout : public QObject
{
public:
    EdgeLayout(QWidget* pEdge, QWidget* pWidget, CWnd_E* pWindow)
        : QObject(pEdge), m_window(pWindow)
    {
        pWidget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* e) override
    {
        if (e->type() == QEvent::Resize && m_window)
            m_window->RecalcLayout();
        return QObject::eventFilter(watched, e);
    }

private:
    QPointer<CWnd_E> m_window;
};

constexpr struct
{
    QAbstractSlider::SliderAction action;
    int scrollCode;
} kScrollCodes[] = {
    {QAbstractSlider::SliderSingleStepAdd, SB_LINEDOWN},
    {QAbstractSlider::SliderSingleStepSub, SB_LINEUP},
    {QAbstractSlider::SliderPageStepAdd, SB_PAGEDOWN},
    {QAbstractSlider::SliderPageStepSub, SB_PAGEUP},
    {QAbstractSlider::SliderToMinimum, SB_TOP},
    {QAbstractSlider::SliderToMaximum, SB_BOTTOM},
    {QAbstractSlider::SliderMove, SB_THUMBTRACK},
};

int scrollCode(int action)
{
    const auto it = std::find_if(std::begin(kScrollCodes), std::end(kScrollCodes),
                                 [action](const auto& row) { return row.action == action; });
    return it == std::end(kScrollCodes) ? -1 : it->scrollCode;
}

void sendScroll(CWnd_E* pWindow, UINT message, int nCode, QScrollBar* pBar)
{
    pWindow->SendMessage(message, MAKEWPARAM(nCode, pBar->sliderPosition()),
                         reinterpret_cast<LPARAM>(static_cast<QWidget*>(pBar)));
}

} // namespace

QScrollBar* CWnd_E::OwnScrollBar(int nBar) const
{
    return nBar == SB_HORZ   ? m_pHScrollBar.data()
           : nBar == SB_VERT ? m_pVScrollBar.data()
                             : nullptr;
}

QScrollBar* CWnd_E::MakeScrollBar(int nBar)
{
    const bool bVertical = nBar == SB_VERT;
    auto* const pBar = new QScrollBar(bVertical ? Qt::Vertical : Qt::Horizontal, GetSafeHwnd());
    new EdgeLayout(pBar, GetSafeHwnd(), this);
    const UINT message = bVertical ? WM_VSCROLL : WM_HSCROLL;
    connect(pBar, &QScrollBar::actionTriggered, this, [this, message, pBar](int action) {
        if (const int nCode = scrollCode(action); nCode >= 0)
            sendScroll(this, message, nCode, pBar);
    });
    connect(pBar, &QScrollBar::sliderReleased, this,
            [this, message, pBar] { sendScroll(this, message, SB_THUMBPOSITION, pBar); });
    return pBar;
}

void CWnd_E::ShowScrollBar(UINT nBar, BOOL bShow)
{
    if (!GetSafeHwnd())
        return;
    const auto show = [&](int nOne, QPointer<QScrollBar>& bar) {
        if (nBar != static_cast<UINT>(nOne) && nBar != static_cast<UINT>(SB_BOTH))
            return;
        if (!bar && bShow)
            bar = MakeScrollBar(nOne);
        if (bar)
            bar->setVisible(bShow != 0);
    };
    show(SB_HORZ, m_pHScrollBar);
    show(SB_VERT, m_pVScrollBar);
    RecalcLayout();
}

// The bar is out of the window at once and deleted a little later: this may be running inside one
// of its own signals, when a handler destroys the window.
void CWnd_E::DropEdge(QWidget* pBar)
{
    if (!pBar)
        return;
    pBar->hide();
    pBar->setParent(nullptr);
    pBar->deleteLater();
}

void CWnd_E::RecalcLayout()
{
    QWidget* const pWidget = GetSafeHwnd();
    if (!pWidget)
        return;
    QRect area = pWidget->rect();
    if (m_pMenuBar && !m_pMenuBar->isHidden()) {
        const int nHeight = m_pMenuBar->heightForWidth(area.width());
        m_pMenuBar->setGeometry(area.left(), area.top(), area.width(), nHeight);
        area.setTop(area.top() + nHeight);
    }
    const bool bH = m_pHScrollBar && !m_pHScrollBar->isHidden();
    const bool bV = m_pVScrollBar && !m_pVScrollBar->isHidden();
    const int nHeight = bH ? m_pHScrollBar->sizeHint().height() : 0;
    const int nWidth = bV ? m_pVScrollBar->sizeHint().width() : 0;
    if (bH)
        m_pHScrollBar->setGeometry(area.left(), area.bottom() + 1 - nHeight, area.width() - nWidth,
                                   nHeight);
    if (bV)
        m_pVScrollBar->setGeometry(area.right() + 1 - nWidth, area.top(), nWidth,
                                   area.height() - nHeight);
}

CScrollBar_E* CWnd_E::GetScrollBarCtrl(int) const { return nullptr; }

BOOL CWnd_E::EnableScrollBar(int nBar, UINT nArrowFlags)
{
    BOOL bFound = FALSE;
    for (const int nOne : {SB_HORZ, SB_VERT}) {
        QScrollBar* const pBar = nBar == nOne || nBar == SB_BOTH ? OwnScrollBar(nOne) : nullptr;
        if (!pBar)
            continue;
        pBar->setEnabled(nArrowFlags == ESB_ENABLE_BOTH);
        bFound = TRUE;
    }
    return bFound;
}

void CWnd_E::SetScrollRange(int nBar, int nMin, int nMax, BOOL)
{
    if (QScrollBar* const pBar = OwnScrollBar(nBar)) {
        const QSignalBlocker quiet(pBar);
        pBar->setRange(nMin, nMax);
    }
}

void CWnd_E::GetScrollRange(int nBar, int* pMin, int* pMax) const
{
    const QScrollBar* const pBar = OwnScrollBar(nBar);
    if (pMin)
        *pMin = pBar ? pBar->minimum() : 0;
    if (pMax)
        *pMax = pBar ? pBar->maximum() : 0;
}

int CWnd_E::SetScrollPos(int nBar, int nPos, BOOL)
{
    QScrollBar* const pBar = OwnScrollBar(nBar);
    if (!pBar)
        return 0;
    const QSignalBlocker quiet(pBar);
    const int nPrevious = pBar->value();
    pBar->setValue(nPos);
    return nPrevious;
}

int CWnd_E::GetScrollPos(int nBar) const
{
    const QScrollBar* const pBar = OwnScrollBar(nBar);
    return pBar ? pBar->value() : 0;
}

QMenuBar* CWnd_E::MakeMenuBar()
{
    if (!m_pMenuBar) {
        m_pMenuBar = new QMenuBar(GetSafeHwnd());
        m_pMenuBar->setNativeMenuBar(false);
        new EdgeLayout(m_pMenuBar, GetSafeHwnd(), this);
    }
    m_pMenuBar->clear();
    return m_pMenuBar;
}

BOOL CWnd_E::SetMenu(CMenu_E* pMenu)
{
    if (!GetSafeHwnd())
        return FALSE;
    if (!pMenu || !pMenu->GetSafeHmenu()) {
        RemoveEdge(m_pMenuBar);
    } else {
        QMenuBar* const pBar = MakeMenuBar();
        pBar->addActions(pMenu->GetSafeHmenu()->actions());
        pBar->show();
    }
    RecalcLayout();
    return TRUE;
}

BOOL CWnd_E::SetMenu(QList<CMenu_E*> menus)
{
    if (!GetSafeHwnd())
        return FALSE;
    if (menus.isEmpty()) {
        RemoveEdge(m_pMenuBar);
    } else {
        QMenuBar* const pBar = MakeMenuBar();
        for (const CMenu_E* pMenu : qAsConst(menus)) {
            if (pMenu && pMenu->GetSafeHmenu())
                pBar->addMenu(pMenu->GetSafeHmenu());
        }
        pBar->show();
    }
    RecalcLayout();
    return TRUE;
}
