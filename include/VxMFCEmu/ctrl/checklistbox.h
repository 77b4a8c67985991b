/// @file checklistbox.h
/// CCheckListBox_E: a list box whose items have a check box.
///
/// Differs from MFC: the style of the check boxes and the checks belong to the widget; an item of a
/// list that came from a form shows its box once it has been given a check or the list a style.
/// Check marks the user sets are heard through the widget's itemChanged(), which SetCheck() and
/// Enable() emit too.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/ctrl/listbox.h>

/// A list box whose items have check marks.
class VXMFC_EXPORT CCheckListBox_E : public CListBox_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CCheckListBox_E)

    /// BS_CHECKBOX, BS_AUTOCHECKBOX, BS_3STATE or BS_AUTO3STATE: whether the user can change the
    /// checks, to the third state as well.
    void SetCheckStyle(UINT nStyle);
    /// BS_AUTOCHECKBOX at first; 0 without a widget.
    UINT GetCheckStyle() const;
    /// Sets a check: 0 off, 1 on, any other value the third state.
    void SetCheck(int nIndex, int nCheck);
    /// An item's check; 2 without that item and without a widget.
    int GetCheck(int nIndex) const;
    /// Lets the user select and check an item, or not.
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    /// Whether the user can select and check an item.
    BOOL IsEnabled(int nIndex) const;

protected:
    QListWidgetItem* MakeItem(const QString& strText) const override;
};
