#include <VxMFCEmu/wnd/windowtree.h>

#include "core/vxqtinternals_p.h"
#include "wnd/vxlivewidgets_p.h"

#include <VxMFCEmu/wnd/resourceids.h>

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

#include <cstdint>

namespace {

constexpr char kParentProperty[] = "parent";

bool isInside(const QWidget* pInner, const QWidget* pOuter)
{
    while (pInner && pInner != pOuter)
        pInner = pInner->parentWidget();
    return pInner != nullptr;
}

} // namespace

HWND GetParent_E(HWND hWnd)
{
    if (!hWnd)
        return nullptr;
    QWidget* const pQtParent = hWnd->parentWidget();
    const QVariant stored = hWnd->property(kParentProperty);
    const auto address = static_cast<std::intptr_t>(stored.toLongLong());
    const void* const pStored = reinterpret_cast<const void*>(address);
    if (!pStored || pStored == pQtParent)
        return pQtParent;
    // Nothing clears the property when the stored parent dies.
    QWidget* const pLive = vx::detail::liveWidgetAt(pStored);
    return pLive ? pLive : pQtParent;
}

HWND SetParent_E(HWND hWndChild, HWND hWndNewParent)
{
    if (!hWndChild || isInside(hWndNewParent, hWndChild))
        return nullptr;
    const QPointer<QWidget> pPrevious(GetParent_E(hWndChild));
    if (hWndChild->property(kParentProperty).isValid()) {
        const auto address = reinterpret_cast<std::intptr_t>(hWndNewParent);
        hWndChild->setProperty(kParentProperty, QVariant(static_cast<qlonglong>(address)));
    }
    if (hWndChild->parentWidget() != hWndNewParent) {
        // Qt hides a widget that changes its parent and moves it to the corner.
        const bool bShown = !hWndChild->isHidden();
        const QPoint pos = hWndChild->pos();
        const QPointer<QWidget> pChild(hWndChild);
        hWndChild->setParent(hWndNewParent);
        if (pChild)
            pChild->move(pos);
        if (pChild && bShown)
            pChild->show();
    }
    return pPrevious;
}

HWND GetTopWindow_E(HWND hWnd)
{
    if (!hWnd)
        return nullptr;
    const QObjectList& children = hWnd->children();
    for (auto it = children.rbegin(); it != children.rend(); ++it) {
        auto* const pChild = qobject_cast<QWidget*>(*it);
        if (pChild && !pChild->isWindow())
            return pChild;
    }
    return nullptr;
}

BOOL IsChild_E(HWND hWndParent, HWND hWnd)
{
    return hWndParent && hWnd && hWndParent != hWnd && hWndParent->isAncestorOf(hWnd);
}

HWND GetDlgItem_E(HWND hDlg, int nID)
{
    if (!hDlg)
        return nullptr;
    const QString strName = ToStringId(static_cast<UINT>(nID));
    // Qt's search takes an empty name for any child.
    return strName.isEmpty() ? nullptr : vx::detail::findChildWidget(hDlg, strName);
}

int GetDlgCtrlID_E(HWND hWnd) { return hWnd ? static_cast<int>(ToCtrlId(hWnd->objectName())) : 0; }
