/// @file button.h
/// CButton_E: a push button, check box, radio button or group box.
///
/// The style word's BS_TYPEMASK part chooses the widget of a button that is made here. A widget
/// that a form has already gives the style its type: BS_AUTOCHECKBOX, BS_RADIOBUTTON, BS_GROUPBOX.
/// Check boxes have a third state only as BS_3STATE and BS_AUTO3STATE (intended).
///
/// Differs from MFC: images are Qt's icons and pixmaps; GetState() tells the focus alone and
/// SetState() moves it; a check or radio button follows the user's clicks by itself, whether its
/// type is an automatic one or not. Checking from code sends no BN_CLICKED, as in MFC; the widget
/// emits toggled(). A button of another class and one without a widget give 0 and change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

QT_BEGIN_NAMESPACE
class QIcon;
class QPixmap;
QT_END_NAMESPACE

/// A push button, check box, radio button or group box.
class VXMFC_EXPORT CButton_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CButton_E)

    /// Makes the widget that the style asks for; see the file's head.
    BOOL AttachDefault(QWidget* pParent) override;
    /// Gives the style the type of the widget.
    BOOL OnAttach() override;
    using CWnd_E::Create;
    /// @{
    /// Makes the button below @p pParent, at @p rect in its coordinates, with a text; null is
    /// empty.
    BOOL Create(LPCWSTR lpszCaption, DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(LPCWSTR lpszCaption, DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    /// BST_UNCHECKED, BST_CHECKED or, of a button with three states, BST_INDETERMINATE.
    int GetCheck() const;
    /// Sets one of the three states; other values are ignored. A button with two states is checked
    /// by any value but 0; 0 leaves the checked radio button of a group as it is.
    void SetCheck(int nCheck);
    /// BST_FOCUS when the button has the focus, else 0.
    UINT GetState() const;
    /// Gives the button the focus, or takes it away.
    void SetState(BOOL bHighlight);
    /// Clicks the button as the user would, signals included; a disabled one does nothing.
    void Click();

    /// The lower half of the style word.
    UINT GetButtonStyle() const;
    /// Changes the lower half of the style word. A type that needs another kind of widget is
    /// ignored, the rest of the style taken.
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);

    /// Sets the icon and returns the previous one.
    QIcon SetIcon(const QIcon& icon);
    /// The icon; empty when there is none.
    QIcon GetIcon() const;
    /// Shows @p bitmap in its own size as the icon and returns what was shown.
    QPixmap SetBitmap(const QPixmap& bitmap);
    /// The icon in the size in which it is shown.
    QPixmap GetBitmap() const;
    /// The size that the button wants for what it shows; FALSE for null.
    BOOL GetIdealSize(tagSIZE* pSize) const;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
