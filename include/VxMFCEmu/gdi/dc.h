/// @file dc.h
/// The device context: a thin layer over one painter.
///
/// A member forwards to a painter call or does one of the conventions of Win32. Colours are
/// COLORREF values or `QColor`s (VxColor takes both). A `tagRECT`, whose right and bottom are
/// exclusive, is drawn as the `QRect` whose inclusive corners are (left, top) and (right - 1,
/// bottom - 1). Members that are not drawn for want of a device, of an object or of a handle do
/// nothing and give the stated failure value; nothing throws or logs, but Qt warns of a painter
/// that is not active.
///
/// Differs from Win32: results that look odd are meant, each is named where it is declared. An
/// outline lies, as Qt draws it, on the right and bottom edges, one pixel beyond what a fill
/// covers. A device context begins with Qt's attributes: a black pen of width 1 (of a widget the
/// colour and the font of its palette), no brush, a transparent background.
///
/// A device context over a widget draws on it at once while the widget is being painted. At any
/// other time it draws on a copy of what the window shows; when the context is destroyed, the
/// pixels that changed go to the window at once, and stay until the widget paints that place again,
/// as on Win32. What a hidden widget is drawn is lost.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/gdi/dccodes.h>
#include <VxMFCEmu/gdi/palette.h>
#include <VxMFCEmu/gdi/rgn.h>
#include <VxMFCEmu/gdi/selectedobject.h>
#include <VxMFCEmu/gdi/vxcolor.h>
#include <VxMFCEmu/wnd/geometry.h>

#include <QtCore/QVector>
#include <QtGui/QPainter>

#include <memory>
#include <vector>

class CBitmap_E;
class CBrush_E;
class CFont_E;
class CHandleMap_E;
class CPen_E;
class CString_E;
class CWnd_E;
struct tagTEXTMETRICW;

namespace vx::detail {
class DcDevice;
class MemoryDevice;
} // namespace vx::detail

/// A device context. Has no meta object and no class record of its own.
class VXMFC_EXPORT CDC_E : public CObject_E
{
public:
    /// An inactive painter, an empty colour table, no handle. The device comes with
    /// CreateCompatibleDC(), or by beginning the painter.
    CDC_E();
    /// Draws on @p pImage, which the caller owns; null gives an inactive painter. The image of a
    /// bitmap may go first. Any other image must outlive the device context or be let go with
    /// DeleteDC(): a painter has no way to learn that it is gone, and using or destroying the
    /// device context after it is undefined behaviour.
    explicit CDC_E(QImage* pImage);
    /// Draws on @p pWidget, see above; null gives an inactive painter. A widget that is destroyed
    /// first leaves an inactive painter.
    explicit CDC_E(QWidget* pWidget);
    /// Detaches the handle and ends the painter; selected objects stay as they are.
    ~CDC_E() override;

    // Handles

    /// Sets the attribute handle. Attach() calls it with the new handle, when m_hDC has it already.
    virtual void SetAttribDC(HDC hDC);
    /// Clears the attribute handle. Detach() calls it while m_hDC is still the old handle.
    virtual void ReleaseAttribDC();

    // Attributes. Virtual operations first, in the order of their slots.

    /// Sets a brush (0 to 4) or pen (6, 7) of the stock; other numbers, NULL_BRUSH among them,
    /// change nothing. Always null.
    virtual CGdiObject_E* SelectStockObject(int nIndex);
    /// Puts the attributes of the painter, and the modes that the Set...Mode() members and
    /// SetTextAlign() set, on a stack; not the text colour and the current position. Always 0.
    virtual int SaveDC();
    /// Takes the attributes put there last; the argument is ignored. Always 1.
    virtual BOOL RestoreDC(int nSavedDC);

    /// GetSafeHdc().
    operator HDC() const { return GetSafeHdc(); }
    /// The handle; null when there is none, also for a null object pointer.
    HDC GetSafeHdc() const;
    /// The object of @p hDC: the one it is attached to, or else a temporary one that lives until
    /// DeleteTempMap(). Null for null.
    static CDC_E* FromHandle(HDC hDC);
    /// Binds @p hDC to this object, as attribute handle too; FALSE for null.
    BOOL Attach(HDC hDC);
    /// Lets the handles go and returns the first.
    HDC Detach();
    /// Destroys the temporary objects.
    static void DeleteTempMap();
    /// Makes this a memory device context of 1 x 1 pixel, to select a bitmap into; @p pDC may be
    /// null. FALSE while the painter is active on something else.
    BOOL CreateCompatibleDC(CDC_E* pDC);
    /// Ends the painter; FALSE when it was not active.
    BOOL DeleteDC();

    /// Sets the font and returns the previous one; null changes nothing.
    QFont SelectObject(CFont_E* pFont);
    /// @{
    /// By value: sets it and returns the previous one.
    QFont SelectObject(const QFont& font);
    QPen SelectObject(const QPen& pen);
    QBrush SelectObject(const QBrush& brush);
    /// @}
    /// Sets the pen, unless it is null or empty, and returns an object that holds the previous one:
    /// the one selected then, if it still holds it, or else a temporary one that lives until the
    /// next idle time. Never null.
    CPen_E* SelectObject(CPen_E* pPen);
    /// The same of the brush.
    CBrush_E* SelectObject(CBrush_E* pBrush);
    /// Replaces the clip by the region. 0; 0xFFFFFFFF when it is null or empty.
    UINT SelectObject(CRgn_E* pRgn);
    /// Lets a memory device context draw on a bitmap, with the attributes it has, and returns the
    /// bitmap it drew on, at first a 1 x 1 one that belongs to the device context. Null, changing
    /// nothing, for other device contexts and for a null or empty bitmap. Null as well for a bitmap
    /// that another device context draws on and for one of 4 bits a pixel. The bitmap is drawn on
    /// in place and may be looked at meanwhile; destroying it is harmless. What SaveDC() has saved
    /// is kept, what has been saved on m_painter itself ends with this.
    CBitmap_E* SelectObject(CBitmap_E* pBitmap);
    /// The same by the class of the object: pen, brush, bitmap, font or region. Null for a font and
    /// a region, whose previous ones are no objects, and for null and other classes, which select
    /// nothing.
    CGdiObject_E* SelectObject(CGdiObject_E* pObject);
    /// Replaces the colour table by the entries of @p pPalette, padded with white to 256, or by the
    /// default ones for null, and returns the address of m_palette.
    CPalette_E* SelectPalette(CPalette_E* pPalette, BOOL bForceBackground);
    /// Nothing.
    void RealizePalette();

    /// The colour of the background brush.
    VxColorResult GetBkColor() const;
    /// Makes the background brush a solid one and returns the previous colour.
    VxColorResult SetBkColor(COLORREF crColor);
    /// The same with a colour-table entry; an index outside 0 to 255 changes nothing.
    VxColorResult SetBkColor(int nIndex);
    /// @{
    /// The same with any colour.
    VxColorResult SetBkColor(const QColor& color);
    VxColorResult SetBkColor(Qt::GlobalColor color) { return SetBkColor(QColor(color)); }
    VxColorResult SetBkColor(unsigned long crColor)
    {
        return SetBkColor(static_cast<COLORREF>(crColor));
    }
    /// @}
    /// The text colour, or the pen's colour while none is set.
    VxColorResult GetTextColor() const;
    /// Sets the text colour and returns the previous one; 0xFFFFFFFF sets none.
    VxColorResult SetTextColor(COLORREF crColor);
    /// The same with a colour-table entry; an index outside 0 to 255 changes nothing.
    VxColorResult SetTextColor(int nIndex);
    /// @{
    /// The same with any colour.
    VxColorResult SetTextColor(const QColor& color);
    VxColorResult SetTextColor(Qt::GlobalColor color) { return SetTextColor(QColor(color)); }
    VxColorResult SetTextColor(unsigned long crColor)
    {
        return SetTextColor(static_cast<COLORREF>(crColor));
    }
    /// @}
    /// The `Qt::BGMode`: 0 transparent, 1 opaque.
    int GetBkMode() const;
    /// Sets the mode, TRANSPARENT or with any other value opaque. Differs from Win32: the result is
    /// the previous `Qt::BGMode` (0 or 1).
    int SetBkMode(int nBkMode);
    /// The R2_* value of the painter's composition mode; R2_COPYPEN for a mode without one.
    int GetROP2() const;
    /// Sets how colours mix with what is there; an unknown mode changes nothing. Returns the
    /// previous mode.
    int SetROP2(int nDrawMode);
    /// The mode that SetPolyFillMode() has set, at first ALTERNATE.
    int GetPolyFillMode() const { return m_modes.polyFill; }
    /// ALTERNATE or WINDING; returns the previous mode, 0 for an unknown one.
    int SetPolyFillMode(int nPolyFillMode);
    /// The mode that SetStretchBltMode() has set, at first BLACKONWHITE.
    int GetStretchBltMode() const { return m_modes.stretch; }
    /// HALFTONE smooths stretched images, the other modes do not. Returns the previous mode, 0 for
    /// an unknown one.
    int SetStretchBltMode(int nStretchMode);
    /// What SetArcDirection() has set, at first AD_COUNTERCLOCKWISE.
    int GetArcDirection() const { return m_modes.arc; }
    /// AD_COUNTERCLOCKWISE or AD_CLOCKWISE; returns the previous one, 0 for an unknown one.
    int SetArcDirection(int nArcDirection);
    /// The flags that SetTextAlign() has set, at first TA_LEFT.
    UINT GetTextAlign() const { return m_modes.textAlign; }
    /// TA_* flags for TextOut(); returns the previous ones.
    UINT SetTextAlign(UINT nFlags);
    /// @{
    /// Where the brush's pattern begins; setting it gives the previous place.
    CPoint_E GetBrushOrg() const;
    CPoint_E SetBrushOrg(int x, int y);
    /// @}

    // Lines and shapes. 1 means drawn. FALSE for a null rectangle, too few or null points, and,
    // except where it is always 1, without a device; Rectangle() and Ellipse() give 1 then.

    /// Where LineTo() and its kin begin.
    CPoint_E GetCurrentPosition() const { return {m_x, m_y}; }
    /// @{
    /// Sets the current position. Always 1.
    BOOL MoveTo(int x, int y)
    {
        m_x = x;
        m_y = y;
        return 1;
    }
    BOOL MoveTo(tagPOINT point) { return MoveTo(point.x, point.y); }
    /// @}
    /// @{
    /// Draws a line to a point, which it includes, and moves there. Always 1.
    BOOL LineTo(int x, int y)
    {
        m_painter.drawLine(m_x, m_y, x, y);
        return MoveTo(x, y);
    }
    BOOL LineTo(tagPOINT point) { return LineTo(point.x, point.y); }
    /// @}
    /// Lines from point to point.
    BOOL Polyline(const tagPOINT* pPoints, int nCount);
    /// From the current position, which moves to the last point.
    BOOL PolylineTo(const tagPOINT* pPoints, int nCount);
    /// Curves through points 0, 3, 6, ...; the others are control points.
    BOOL PolyBezier(const tagPOINT* pPoints, int nCount);
    /// The same from the current position, which moves to the last point.
    BOOL PolyBezierTo(const tagPOINT* pPoints, int nCount);
    /// Closed, and filled as SetPolyFillMode() says.
    BOOL Polygon(const tagPOINT* pPoints, int nCount);
    /// Outlined with the pen and filled with the brush.
    BOOL Rectangle(int l, int t, int r, int b);
    /// FALSE for null.
    BOOL Rectangle(const tagRECT* pRect);
    /// The ellipse in a rectangle.
    BOOL Ellipse(const tagRECT* pRect);
    /// Differs from Win32 and from Rectangle(): the third and fourth arguments are the width and
    /// the height.
    BOOL Ellipse(int x, int y, int cx, int cy);
    /// @{
    /// The corners are ellipses of @p cx by @p cy.
    BOOL RoundRect(int l, int t, int r, int b, int cx, int cy);
    BOOL RoundRect(const tagRECT* pRect, tagPOINT point);
    /// @}
    /// @{
    /// Part of the ellipse in the rectangle, between the rays from its centre through two points,
    /// all of it when the rays are one. FALSE when the rectangle is empty.
    BOOL Arc(int l, int t, int r, int b, int xStart, int yStart, int xEnd, int yEnd);
    BOOL Arc(const tagRECT* pRect, tagPOINT start, tagPOINT end);
    /// @}
    /// @{
    /// The same with the rays, or with a line between their ends, and filled.
    BOOL Pie(int l, int t, int r, int b, int xStart, int yStart, int xEnd, int yEnd);
    BOOL Pie(const tagRECT* pRect, tagPOINT start, tagPOINT end);
    BOOL Chord(int l, int t, int r, int b, int xStart, int yStart, int xEnd, int yEnd);
    BOOL Chord(const tagRECT* pRect, tagPOINT start, tagPOINT end);
    /// @}
    /// @{
    /// Draws one point and leaves a plain pen of the previous pen's colour. Returns @p color.
    VxColorResult SetPixel(int x, int y, const VxColor& color);
    VxColorResult SetPixel(tagPOINT point, const VxColor& color)
    {
        return SetPixel(point.x, point.y, color);
    }
    /// @}
    /// @{
    /// The colour of a pixel of an image or a widget; 0xFFFFFFFF outside of the clip and on other
    /// devices.
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(tagPOINT point) const { return GetPixel(point.x, point.y); }
    /// @}

    // Fills

    /// @{
    /// Without an outline.
    void FillSolidRect(int x, int y, int cx, int cy, const VxColor& color);
    void FillSolidRect(const tagRECT* pRect, const VxColor& color);
    /// @}
    /// Nothing for an empty brush.
    void FillRect(const tagRECT* pRect, CBrush_E* pBrush);
    /// @{
    /// A frame one pixel wide, whose left and top sides have one colour and whose others another.
    void Draw3dRect(int x, int y, int cx, int cy, const VxColor& topLeft,
                    const VxColor& bottomRight);
    void Draw3dRect(const tagRECT* pRect, const VxColor& topLeft, const VxColor& bottomRight);
    /// @}
    /// See DrawEdge_E().
    BOOL DrawEdge(tagRECT* pRect, UINT nEdge, UINT nFlags);
    /// Inverts a dotted frame: drawn twice, it is gone.
    void DrawFocusRect(const tagRECT* pRect);
    /// Selects the brush, which stays selected, and draws Rectangle(). Differs from Win32: the
    /// rectangle is filled, and its outline is that of the current pen. Nothing for an empty brush.
    void FrameRect(const tagRECT* pRect, CBrush_E* pBrush);
    /// Inverts the colours of a rectangle, which is changed: converted to device coordinates.
    /// Nothing on devices other than images and widgets.
    void InvertRect(tagRECT* pRect);
    /// Draws a rectangle, outlined by the pen: BLACKNESS, WHITENESS, DSTINVERT, PATINVERT, and with
    /// the current brush for any other operation. Always 1.
    BOOL PatBlt(int x, int y, int cx, int cy, DWORD dwRop);
    /// 1; 0 if either object is null or empty.
    BOOL FillRgn(CRgn_E* pRgn, CBrush_E* pBrush);
    /// The same with the current brush.
    BOOL PaintRgn(CRgn_E* pRgn);
    /// Fills a frame around the region's bounding rectangle, on its outside. Differs from Win32:
    /// the region's own outline is not followed.
    BOOL FrameRgn(CRgn_E* pRgn, CBrush_E* pBrush, int nWidth, int nHeight);
    /// Fills the region with inverted black. Differs from Win32: nothing of what is there shows,
    /// the region stays in the clip and the operation stays on. Always 0.
    BOOL InvertRgn(CRgn_E* pRgn);

    // Text

    /// @{
    /// The advance and the height of one line, in pixels.
    CSize_E GetOutputTextExtent(const CString_E& str) const;
    CSize_E GetOutputTextExtent(const wchar_t* lpszString, int nCount) const;
    CSize_E GetTextExtent(const CString_E& str) const { return GetOutputTextExtent(str); }
    CSize_E GetTextExtent(const wchar_t* lpszString, int nCount) const
    {
        return GetOutputTextExtent(lpszString, nCount);
    }
    /// @}
    /// @{
    /// FALSE for null.
    BOOL GetTextMetrics(tagTEXTMETRICW* pMetrics) const;
    BOOL GetOutputTextMetrics(tagTEXTMETRICW* pMetrics) const { return GetTextMetrics(pMetrics); }
    /// @}
    /// Draws text in a rectangle and returns the height of one line. Differs from Win32: @p nFormat
    /// holds Qt flags (see ToQtTextFlag()), the rectangle never changes, and the pen is a plain one
    /// of its colour afterwards.
    int DrawText(const CString_E& str, tagRECT* pRect, int nFormat);
    /// The same with the first @p nCount characters; all of them when negative.
    int DrawText(const wchar_t* lpszString, int nCount, tagRECT* pRect, int nFormat);
    /// @{
    /// Draws text at a point as SetTextAlign() says, in the text colour.
    BOOL TextOut(int x, int y, const CString_E& str);
    BOOL TextOut(int x, int y, const wchar_t* lpszString, int nCount);
    /// @}
    /// @{
    /// The same, with the rectangle filled in the background colour (ETO_OPAQUE) or as a clip
    /// (ETO_CLIPPED); @p pDxWidths are distances from character to character.
    BOOL ExtTextOut(int x, int y, UINT nOptions, const tagRECT* pRect, const wchar_t* lpszString,
                    UINT nCount, const int* pDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, const tagRECT* pRect, const CString_E& str,
                    const int* pDxWidths);
    /// @}

    // Clip

    /// Replaces the clip, or takes it away for a null or empty region. Always 0.
    int SelectClipRgn(CRgn_E* pRgn);
    /// Sets the clip as the `Qt::ClipOperation` @p nMode says: 0 none, 1 replace, 2 intersect.
    /// 0; 0xFFFFFFFF when the region is null or empty.
    UINT SelectClipRgn(CRgn_E* pRgn, int nMode);
    /// @{
    /// Differs from Win32: the clip is intersected with the rectangle. Always 0.
    int ExcludeClipRect(int l, int t, int r, int b);
    int ExcludeClipRect(const tagRECT* pRect);
    /// @}
    /// @{
    /// Intersects the clip with the rectangle, whose right and bottom edges are outside. Always 0.
    int IntersectClipRect(int l, int t, int r, int b);
    int IntersectClipRect(const tagRECT* pRect);
    /// @}
    /// @{
    /// Differs from Win32: moves all drawing that follows, not only the clip. Always 0.
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(tagSIZE size) { return OffsetClipRgn(size.cx, size.cy); }
    /// @}
    /// Takes the rectangle of a window's widget, in its parent's coordinates, out of the clip, or
    /// out of the whole device without one. Always 0.
    int ExcludeUpdateRgn(CWnd_E* pWnd);
    /// The bounds of the clip, of the device without one. 1 when it is empty, 2 for a rectangle, 3
    /// for more; 0 for null and without a device.
    int GetClipBox(tagRECT* pRect) const;
    /// @{
    /// Whether a point, or part of a rectangle, is inside of the clip.
    BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(tagPOINT point) const { return PtVisible(point.x, point.y); }
    BOOL RectVisible(const tagRECT* pRect) const;
    /// @}

    // Coordinates. Origins and extents end at 2^27 in either direction. Where an axis runs against
    // that of the device (MM_LOMETRIC and kin, extents of different sign), text and icons stand
    // upright at their point all the same, and images are mirrored as their extents on the devices
    // of source and target say. The extents count in the modes MM_ISOTROPIC and MM_ANISOTROPIC
    // only, and begin as the size of the device.

    /// The MM_* mode, at first MM_TEXT.
    int GetMapMode() const { return m_modes.map; }
    /// Returns the previous mode, 0 for an unknown one.
    int SetMapMode(int nMapMode);
    /// Where the origin lies on the device.
    CPoint_E GetViewportOrg() const;
    /// @{
    /// Moves the viewport and returns where it was.
    CPoint_E SetViewportOrg(int x, int y);
    CPoint_E SetViewportOrg(tagPOINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint_E OffsetViewportOrg(int x, int y);
    /// @}
    /// @{
    /// The extent of the viewport; setting it gives the previous one.
    CSize_E GetViewportExt() const;
    CSize_E SetViewportExt(int cx, int cy);
    CSize_E SetViewportExt(tagSIZE size) { return SetViewportExt(size.cx, size.cy); }
    /// @}
    /// @{
    /// Which point lies at the origin of the viewport; setting and moving it give the previous one.
    CPoint_E GetWindowOrg() const;
    CPoint_E SetWindowOrg(int x, int y);
    CPoint_E SetWindowOrg(tagPOINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint_E OffsetWindowOrg(int x, int y);
    /// @}
    /// @{
    /// The extent of the window; setting it gives the previous one.
    CSize_E GetWindowExt() const;
    CSize_E SetWindowExt(int cx, int cy);
    CSize_E SetWindowExt(tagSIZE size) { return SetWindowExt(size.cx, size.cy); }
    /// @}
    /// @{
    /// Each point mapped by the painter's device transform; nothing for null.
    void LPtoDP(tagPOINT* pPoints, int nCount = 1) const;
    void LPtoDP(tagRECT* pRect) const;
    /// @}
    /// The size is mapped as if it were a point.
    void LPtoDP(tagSIZE* pSize) const;
    /// @{
    /// LPtoDP() the other way round.
    void DPtoLP(tagPOINT* pPoints, int nCount = 1) const;
    void DPtoLP(tagRECT* pRect) const;
    void DPtoLP(tagSIZE* pSize) const;
    /// @}
    /// A capability of the device: TECHNOLOGY (always DT_RASDISPLAY), HORZSIZE and VERTSIZE in
    /// millimetres, HORZRES and VERTRES in pixels, BITSPIXEL, PLANES (1), LOGPIXELSX and LOGPIXELSY
    /// in dots per inch. 0 for others and without a device.
    int GetDeviceCaps(int nIndex) const;

    // Images. FALSE when the source is needed and is no image or widget, or this has no device.

    /// Copies pixels, combined with what is there and with the brush as @p dwRop says; FALSE for an
    /// operation without a name. Source and target may be the same device context.
    BOOL BitBlt(int x, int y, int cx, int cy, CDC_E* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    /// The same with another size; extents of different sign mirror the image. An empty source
    /// draws nothing.
    BOOL StretchBlt(int x, int y, int cx, int cy, CDC_E* pSrcDC, int xSrc, int ySrc, int cxSrc,
                    int cySrc, DWORD dwRop);
    /// The same for those pixels that have not the colour @p crTransparent.
    BOOL TransparentBlt(int x, int y, int cx, int cy, CDC_E* pSrcDC, int xSrc, int ySrc, int cxSrc,
                        int cySrc, COLORREF crTransparent);
    /// @{
    /// Draws an icon, a `QIcon*`, in 32 x 32 pixels; FALSE for null.
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(tagPOINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    /// @}

private:
    struct Modes
    {
        int map = MM_TEXT;
        int polyFill = ALTERNATE;
        int stretch = BLACKONWHITE;
        int arc = AD_COUNTERCLOCKWISE;
        UINT textAlign = TA_LEFT;
    };
    enum class ArcKind
    {
        Arc,
        Pie,
        Chord
    };

    BOOL DrawArcKind(ArcKind kind, const tagRECT* pRect, tagPOINT start, tagPOINT end);
    int DrawTextInRect(const QString& str, const tagRECT* pRect, int nFormat);
    BOOL TextOutAt(int x, int y, const QString& str, const int* pDxWidths);
    void MoveOnto(vx::detail::MemoryDevice* pMemory, HBITMAP hBitmap);
    void SetScale(const QSize& window, const QSize& viewport);

public:
    QPainter m_painter; ///< active from construction on, or from when the caller begins it

private:
    int m_x = 0;
    int m_y = 0;

public:
    HDC m_hDC = nullptr;       ///< the handle
    HDC m_hAttribDC = nullptr; ///< the attribute handle
    CPalette_E m_palette;      ///< the colours by index

private:
    QVector<tagPALETTEENTRY> m_colorTable;
    COLORREF m_textColor = 0xFFFFFFFF;
    Modes m_modes;
    std::vector<Modes> m_savedModes;
    vx::detail::SelectedPen m_selectedPen;
    vx::detail::SelectedBrush m_selectedBrush;
    std::unique_ptr<vx::detail::DcDevice> m_pDevice;
};

/// The map of device contexts, made when @p bCreate is set; null while there is none.
VXMFC_EXPORT CHandleMap_E* afxMapHDC_E(BOOL bCreate = FALSE);

/// Always null: a device context is made by constructing one.
VXMFC_EXPORT HDC GetDC_E(HWND hWnd);
/// Always 0.
VXMFC_EXPORT int ReleaseDC_E(HWND hWnd, HDC hDC);
/// Always 0; see CDC_E::GetDeviceCaps().
VXMFC_EXPORT int GetDeviceCaps_E(HDC hDC, int nIndex);
/// Draws the sides of a rectangle that the BF_* flags name as lines in the current pen, right and
/// bottom included; @p nEdge is ignored. 1; 0 for a null device context or rectangle.
VXMFC_EXPORT BOOL DrawEdge_E(CDC_E* pDC, tagRECT* pRect, UINT nEdge, UINT nFlags);
