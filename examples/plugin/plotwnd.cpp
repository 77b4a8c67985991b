#include "plotwnd.h"

#include "trackerwnd.h"

#include <algorithm>
#include <cmath>

namespace {

struct Paper
{
    COLORREF colour;
    COLORREF grid;
};
constexpr Paper kPapers[] = {{RGB(33, 40, 48), RGB(56, 66, 78)},
                             {RGB(16, 46, 92), RGB(40, 76, 130)},
                             {RGB(0, 0, 0), RGB(52, 52, 52)}};

constexpr LONG kUnitsPerMillimetre = 40;
constexpr double kMargin = 1.06;
constexpr double kMinZoom = 0.2;
constexpr double kMaxZoom = 50;
constexpr int kPenStyles[] = {PS_DOT,     PS_DOT,     PS_DASH,      PS_DASH,
                              PS_DASHDOT, PS_DASHDOT, PS_DASHDOTDOT};
constexpr double kDegree = 3.14159265358979323846 / 180;

CPoint_E onCircle(CPoint_E centre, double radius, double degrees)
{
    return {centre.x + static_cast<LONG>(std::lround(radius * std::cos(degrees * kDegree))),
            centre.y - static_cast<LONG>(std::lround(radius * std::sin(degrees * kDegree)))};
}

// The device context knows the colours by their numbers in its palette.
COLORREF paletteColour(CDC_E& dc, int nIndex)
{
    const QColor previous = dc.SetTextColor(nIndex);
    const QColor colour = dc.SetTextColor(previous);
    return RGB(colour.red(), colour.green(), colour.blue());
}

} // namespace

IMPLEMENT_DYNAMIC_E(CPlotWnd, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CPlotWnd, CWnd_E)
ON_WM_PAINT_E()
ON_WM_ERASEBKGND_E()
ON_WM_MOUSEWHEEL_E()
ON_WM_LBUTTONDOWN_E()
ON_WM_RBUTTONDOWN_E()
ON_WM_MOUSEMOVE_E()
END_MESSAGE_MAP_E()

bool CPlotWnd::Open(int nPlot)
{
    CString_E strKey;
    strKey.Format(L"File%d", nPlot);
    const bool loaded = m_plot.Load(BesidePlugin(ProfileText(L"Plot", strKey, L"")));
    m_nPlot = nPlot;
    m_rcBounds = m_plot.Bounds();
    Fit();
    return loaded;
}

void CPlotWnd::Store(CPlotDocument& document) const
{
    document.m_items = m_plot.Items();
    document.m_ptCentre = m_ptCentre;
    document.m_dZoom = m_dZoom;
}

void CPlotWnd::Show(const CPlotDocument& document)
{
    m_plot.SetItems(document.m_items);
    m_rcBounds = m_plot.Bounds();
    m_ptCentre = document.m_ptCentre;
    // Also of a damaged file, where it may be no number at all.
    m_dZoom = std::min(std::max(kMinZoom, document.m_dZoom), kMaxZoom);
    Invalidate();
}

void CPlotWnd::SetLook(const PlotLook& look)
{
    m_look = look;
    m_pens.clear();
    Invalidate();
}

void CPlotWnd::Fit()
{
    m_ptCentre = m_rcBounds.CenterPoint();
    m_dZoom = 1;
    Invalidate();
}

int CPlotWnd::ZoomPercent() const { return static_cast<int>(std::lround(m_dZoom * 100)); }

void CPlotWnd::ReportZoom()
{
    CString_E strLine;
    strLine.Format(L"plot of %d items at %d %%", ItemCount(), ZoomPercent());
    SendReport(*this, strLine);
}

double CPlotWnd::FittingScale() const
{
    CRect_E rect;
    GetClientRect(&rect);
    if (m_rcBounds.IsRectEmpty() || rect.IsRectEmpty())
        return 1;
    return std::min(rect.Width() / (kMargin * m_rcBounds.Width()),
                    rect.Height() / (kMargin * m_rcBounds.Height()));
}

CPoint_E CPlotWnd::ToWindow(CPoint_E point) const
{
    CRect_E rect;
    GetClientRect(&rect);
    const CPoint_E middle = rect.CenterPoint();
    const double scale = Scale();
    return {middle.x + static_cast<LONG>(std::lround((point.x - m_ptCentre.x) * scale)),
            middle.y - static_cast<LONG>(std::lround((point.y - m_ptCentre.y) * scale))};
}

BOOL CPlotWnd::OnEraseBkgnd(CDC_E* pDC)
{
    CRect_E rect;
    GetClientRect(&rect);
    pDC->FillSolidRect(0, 0, rect.Width() + 1, rect.Height() + 1, kPapers[m_look.nPaper].colour);
    return TRUE;
}

void CPlotWnd::OnPaint()
{
    CPaintDC_E dc(this);
    dc.SetBkMode(TRANSPARENT);
    DrawGrid(dc);
    for (const PlotItem& item : m_plot.Items())
        DrawItem(dc, item);
    DrawTitle(dc);
    CRect_E rect;
    GetClientRect(&rect);
    rect.DeflateRect(0, 0, 1, 1);
    dc.SelectObject(Pen(dc, 8, -1));
    dc.DrawEdge(&rect, EDGE_SUNKEN, BF_RECT);
}

CPen_E* CPlotWnd::Pen(CDC_E& dc, int nIndex, int nLineType)
{
    std::unique_ptr<CPen_E>& pen = m_pens[{nIndex, nLineType}];
    if (!pen) {
        const bool known = nLineType >= 0 && nLineType < static_cast<int>(std::size(kPenStyles));
        const int nStyle = known ? kPenStyles[nLineType] : PS_SOLID;
        pen = std::make_unique<CPen_E>(nStyle, 1 + m_look.nLines, paletteColour(dc, nIndex));
    }
    return pen.get();
}

void CPlotWnd::DrawGrid(CDC_E& dc) const
{
    constexpr int nNarrowest = 4; // in pixels
    const LONG step = m_look.nSpacing * kUnitsPerMillimetre;
    if (!m_look.bGrid || step * Scale() < nNarrowest)
        return;
    CPen_E pen(PS_SOLID, 1, kPapers[m_look.nPaper].grid);
    dc.SelectObject(&pen);
    const auto drawLine = [&](LONG x1, LONG y1, LONG x2, LONG y2) {
        dc.MoveTo(ToWindow({x1, y1}));
        dc.LineTo(ToWindow({x2, y2}));
    };
    const CRect_E& sheet = m_rcBounds;
    for (LONG x = sheet.left; x <= sheet.right; x += step)
        drawLine(x, sheet.top, x, sheet.bottom);
    for (LONG y = sheet.top; y <= sheet.bottom; y += step)
        drawLine(sheet.left, y, sheet.right, y);
}

void CPlotWnd::DrawTitle(CDC_E& dc) const
{
    CFont_E font;
    font.CreateFont(-16, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"DejaVu Sans");
    dc.SelectObject(&font);
    dc.SetTextColor(7);
    dc.SetTextAlign(TA_TOP | TA_LEFT);
    const CPoint_E corner = ToWindow({m_rcBounds.left, m_rcBounds.bottom});
    dc.TextOut(corner.x + 14, corner.y + 10, m_look.strTitle);
}

void CPlotWnd::DrawItem(CDC_E& dc, const PlotItem& item)
{
    std::vector<CPoint_E> points;
    points.reserve(item.points.size());
    for (const CPoint_E& point : item.points)
        points.push_back(ToWindow(point));
    dc.SelectObject(Pen(dc, item.pen, item.lineType));
    switch (item.kind) {
    case PlotItem::Kind::Line:
        dc.Polyline(points.data(), static_cast<int>(points.size()));
        break;
    case PlotItem::Kind::Region:
        DrawRegion(dc, item, points);
        break;
    case PlotItem::Kind::Arc:
        DrawArc(dc, item);
        break;
    case PlotItem::Kind::Text:
        if (m_look.bLabels)
            DrawLabel(dc, item);
        break;
    }
}

void CPlotWnd::DrawRegion(CDC_E& dc, const PlotItem& item,
                          const std::vector<CPoint_E>& corners) const
{
    std::vector<tagPOINT> points(corners.begin(), corners.end());
    CRgn_E region;
    region.CreatePolygonRgn(points.data(), static_cast<int>(points.size()), ALTERNATE);
    CBrush_E brush(item.hatch, paletteColour(dc, item.pen));
    dc.FillRgn(&region, &brush);
}

void CPlotWnd::DrawArc(CDC_E& dc, const PlotItem& item) const
{
    const CPoint_E centre = ToWindow(item.points.front());
    const double radius = item.radius * Scale();
    const auto r = static_cast<LONG>(std::lround(radius));
    const CRect_E box(centre.x - r, centre.y - r, centre.x + r, centre.y + r);
    const double end = item.start + item.sweep;
    // Far from the centre, so that the rays lose nothing in rounding.
    const double reach = std::max(radius, 1000.0);
    dc.Arc(&box, onCircle(centre, reach, std::min(item.start, end)),
           onCircle(centre, reach, std::max(item.start, end)));
}

void CPlotWnd::DrawLabel(CDC_E& dc, const PlotItem& item) const
{
    constexpr double kCellToCapital = 1.4;
    const int nHeight = static_cast<int>(std::lround(item.height * kCellToCapital * Scale()));
    if (nHeight < 2)
        return;
    CFont_E font;
    font.CreateFont(-nHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                    L"DejaVu Sans");
    dc.SelectObject(&font);
    dc.SetTextColor(item.pen);
    dc.SetTextAlign(TA_BASELINE | TA_LEFT);
    const CPoint_E at = ToWindow(item.points.front());
    dc.TextOut(at.x, at.y, item.text);
}

BOOL CPlotWnd::OnMouseWheel(UINT, short zDelta, CPoint_E point)
{
    CRect_E rect;
    GetClientRect(&rect);
    const CSize_E fromMiddle = point - rect.CenterPoint();
    const double before = Scale();
    m_dZoom = std::clamp(m_dZoom * std::pow(1.25, zDelta / 120.0), kMinZoom, kMaxZoom);
    const double change = 1 / before - 1 / Scale();
    m_ptCentre.x += static_cast<LONG>(std::lround(fromMiddle.cx * change));
    m_ptCentre.y -= static_cast<LONG>(std::lround(fromMiddle.cy * change));
    Invalidate();
    ReportZoom();
    return TRUE;
}

void CPlotWnd::OnRButtonDown(UINT, CPoint_E)
{
    Open((m_nPlot + 1) % std::max(1, ProfileNumber(L"Plot", L"Count")));
    ReportZoom();
}

void CPlotWnd::OnLButtonDown(UINT, CPoint_E point) { m_ptDragged = point; }

void CPlotWnd::OnMouseMove(UINT nFlags, CPoint_E point)
{
    if (!(nFlags & MK_LBUTTON))
        return;
    const double scale = Scale();
    m_ptCentre.x -= static_cast<LONG>(std::lround((point.x - m_ptDragged.x) / scale));
    m_ptCentre.y += static_cast<LONG>(std::lround((point.y - m_ptDragged.y) / scale));
    m_ptDragged = point;
    Invalidate();
}
