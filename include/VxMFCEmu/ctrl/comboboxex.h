/// @file comboboxex.h
/// CComboBoxEx_E: a combo box whose items have images, from an image list.
///
/// Differs from MFC: the box is one widget, so that the combo box inside is the control itself; an
/// item shows its image only, its other images and its indentation are kept; text and images are
/// never asked for by call-back; the extended styles are not there. A widget found in a form is a
/// CComboBox_E unless it is bound otherwise.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/ctrl/combobox.h>

class CImageList_E;

/// An item, or the text that can be typed into. What `mask` leaves out counts for nothing.
struct tagCOMBOBOXEXITEMW
{
    UINT mask;          ///< CBEIF_* of the members that count
    INT_PTR iItem;      ///< -1 for the text that can be typed into, when inserting the end
    wchar_t* pszText;   ///< owned by the caller
    int cchTextMax;     ///< size of pszText when it receives a text
    int iImage;         ///< index in the image list
    int iSelectedImage; ///< kept only
    int iOverlay;       ///< kept only
    int iIndent;        ///< kept only
    LPARAM lParam;      ///< the same as the item's data
};
using COMBOBOXEXITEM = tagCOMBOBOXEXITEMW;   ///< its usual name
using COMBOBOXEXITEMW = tagCOMBOBOXEXITEMW;  ///< its usual name
using PCOMBOBOXEXITEM = tagCOMBOBOXEXITEMW*; ///< a pointer to one

/// @{
/// A member of an item that counts.
inline constexpr UINT CBEIF_TEXT = 0x0001;
inline constexpr UINT CBEIF_IMAGE = 0x0002;
inline constexpr UINT CBEIF_SELECTEDIMAGE = 0x0004;
inline constexpr UINT CBEIF_OVERLAY = 0x0008;
inline constexpr UINT CBEIF_INDENT = 0x0010;
inline constexpr UINT CBEIF_LPARAM = 0x0020;
/// @}

/// @{
/// A message to a combo box with images.
inline constexpr UINT CBEM_SETIMAGELIST = 0x0402;
inline constexpr UINT CBEM_GETIMAGELIST = 0x0403;
inline constexpr UINT CBEM_DELETEITEM = CB_DELETESTRING;
inline constexpr UINT CBEM_GETCOMBOCONTROL = 0x0406;
inline constexpr UINT CBEM_GETEDITCONTROL = 0x0407;
inline constexpr UINT CBEM_HASEDITCHANGED = 0x040A;
inline constexpr UINT CBEM_INSERTITEM = 0x040B;
inline constexpr UINT CBEM_SETITEM = 0x040C;
inline constexpr UINT CBEM_GETITEM = 0x040D;
/// @}

/// A combo box with images.
class VXMFC_EXPORT CComboBoxEx_E : public CComboBox_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CComboBoxEx_E)

    /// Inserts an item and returns its index; -1 for null and beyond the end.
    int InsertItem(const COMBOBOXEXITEM* pCBItem);
    /// Changes what the mask names; FALSE for null and without that item.
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem);
    /// Fills in what the mask names; FALSE for null and without that item. The text that can be
    /// typed into has the images and the data of the selected item.
    BOOL GetItem(COMBOBOXEXITEM* pCBItem) const;
    /// Returns the number of items left; CB_ERR without that item.
    int DeleteItem(UINT iIndex);
    /// Takes the images from @p pImageList, owned by the caller, as it is now, and returns the list
    /// before. Null shows none.
    CImageList_E* SetImageList(CImageList_E* pImageList);
    /// Null once the list has been destroyed.
    CImageList_E* GetImageList() const;
    /// Whether the user has typed since the text was set.
    BOOL HasEditChanged() const;
    /// The control itself.
    CComboBox_E* GetComboBoxCtrl() { return this; }

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
