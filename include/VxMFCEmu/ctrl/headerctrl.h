/// @file headerctrl.h
/// CHeaderCtrl_E: the header of a list or a table.
///
/// Differs from MFC: the items are the sections of the header's model; they are made there, or by
/// the view that the header belongs to.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

/// A header.
class VXMFC_EXPORT CHeaderCtrl_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CHeaderCtrl_E)

    /// Makes a horizontal header.
    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// Makes the header below @p pParent, at @p rect in its coordinates.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);

    /// The number of items; -1 without a widget.
    int GetItemCount() const;
};
