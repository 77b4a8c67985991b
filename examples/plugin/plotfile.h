#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

#include <vector>

/// One thing that a plotter draws, in plotter units (40 a millimetre, y upwards).
struct PlotItem
{
    enum class Kind
    {
        Line,   ///< through all points
        Region, ///< the points are its corners; hatched
        Arc,    ///< around points[0]
        Text    ///< with its baseline's start at points[0]
    };
    Kind kind = Kind::Line;
    int pen = 1;
    int lineType = -1; ///< of HPGL's LT; -1 is a solid line
    std::vector<CPoint_E> points;
    double radius = 0;
    double start = 0; ///< degrees, counterclockwise from the x axis
    double sweep = 0;
    int hatch = HS_BDIAGONAL;
    double height = 0; ///< of capital letters
    CString_E text;
};

/// A plot file in HPGL, the pen plotters' language. Understood are IN, SP, LT, PU, PD, PA, PR, CI,
/// AA, AR, SI, LB, FT, PM, FP, EP and RA; other instructions are passed over.
class CPlotFile
{
public:
    /// False when the file cannot be read; what was loaded before is gone in any case.
    bool Load(const wchar_t* lpszPath);

    const std::vector<PlotItem>& Items() const { return m_items; }
    void SetItems(std::vector<PlotItem> items) { m_items = std::move(items); }
    /// The smallest rectangle around all points, bottom above top.
    CRect_E Bounds() const;

private:
    std::vector<PlotItem> m_items;
};
