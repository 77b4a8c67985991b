#include <VxMFCEmu/ctrl/headerctrl.h>

#include "ctrl/vxcontroltable_p.h"

#include <QtWidgets/QHeaderView>

IMPLEMENT_DYNCREATE_E(CHeaderCtrl_E, CWnd_E, QHeaderView)

using namespace vx::detail;

BOOL CHeaderCtrl_E::AttachDefault(QWidget* pParent)
{
    return Attach(new QHeaderView(Qt::Horizontal, pParent), pParent, false);
}

BOOL CHeaderCtrl_E::Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID)
{
    return createWithId(*this, pParent, nID,
                        [&](QWidget* pWidget) { return CWnd_E::Create(dwStyle, rect, pWidget); });
}

int CHeaderCtrl_E::GetItemCount() const
{
    return askWidget<QHeaderView>(*this, -1, [](auto& header) { return header.count(); });
}
