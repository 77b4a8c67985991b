/// @file static.h
/// CStatic_E: a label that shows a text, an image or a line.
///
/// The SS_* style of a label that is made here sets its alignment, wrapping and frame.
///
/// Differs from MFC: images are Qt's pixmaps and icons; SetIcon() sets the icon of the widget as a
/// window, which a label does not show; a text that looks like HTML is shown as such; an ampersand
/// is shown. A control of another class and one without a widget give empty results and change
/// nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

QT_BEGIN_NAMESPACE
class QIcon;
class QPixmap;
QT_END_NAMESPACE

/// A label.
class VXMFC_EXPORT CStatic_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CStatic_E)

    BOOL AttachDefault(QWidget* pParent) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the label below @p pParent, at @p rect in its coordinates, with a text; null is empty.
    BOOL Create(LPCWSTR lpszText, DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(LPCWSTR lpszText, DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}
    /// The same for a label without an id of its own. A null parent is taken for a widget.
    template <typename Window, std::enable_if_t<std::is_base_of_v<CWnd_E, Window>, int> = 0>
    BOOL Create(LPCWSTR lpszText, DWORD dwStyle, const tagRECT& rect, Window* pParent)
    {
        return Create(lpszText, dwStyle, rect, pParent, 0xFFFFU);
    }

    /// Shows @p bitmap instead of the text and returns the previous one.
    QPixmap SetBitmap(const QPixmap& bitmap);
    /// The image that is shown; empty when there is none.
    QPixmap GetBitmap() const;
    /// Sets the window icon of the widget and returns the previous one.
    QIcon SetIcon(const QIcon& icon);
    /// The window icon of the widget.
    QIcon GetIcon() const;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
