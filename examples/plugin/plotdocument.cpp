#include "plotdocument.h"

#include <algorithm>
#include <cmath>

namespace {

// Both ways, so that they cannot differ.
template <typename T>
void exchange(CArchive_E& ar, T& value)
{
    if (ar.IsStoring())
        ar << value;
    else
        ar >> value;
}

void exchange(CArchive_E& ar, CPoint_E& point)
{
    exchange(ar, point.x);
    exchange(ar, point.y);
}

void exchange(CArchive_E& ar, PlotItem::Kind& kind)
{
    auto by = static_cast<BYTE>(kind);
    exchange(ar, by);
    if (by > static_cast<BYTE>(PlotItem::Kind::Text))
        AfxThrowArchiveException_E(CArchiveException_E::badClass, ar.m_strFileName);
    kind = static_cast<PlotItem::Kind>(by);
}

template <typename T>
void exchange(CArchive_E& ar, std::vector<T>& elements);

/// Whether an item of a file that may be damaged can be drawn without leaving the range of numbers.
bool isDrawable(const PlotItem& item)
{
    constexpr LONG kFarthest = 1 << 28;
    const auto isNear = [](LONG n) { return n > -kFarthest && n < kFarthest; };
    const auto isSmall = [](double d) { return std::abs(d) < 1e8; }; // not for what is no number
    // Arcs and texts are where their first point is.
    return !item.points.empty() && isSmall(item.radius) && isSmall(item.start) &&
           isSmall(item.sweep) && isSmall(item.height) &&
           std::all_of(item.points.begin(), item.points.end(),
                       [&](const CPoint_E& point) { return isNear(point.x) && isNear(point.y); });
}

void exchange(CArchive_E& ar, PlotItem& item)
{
    exchange(ar, item.kind);
    exchange(ar, item.pen);
    exchange(ar, item.lineType);
    exchange(ar, item.points);
    exchange(ar, item.radius);
    exchange(ar, item.start);
    exchange(ar, item.sweep);
    exchange(ar, item.hatch);
    exchange(ar, item.height);
    exchange(ar, item.text);
    if (ar.IsLoading() && !isDrawable(item))
        AfxThrowArchiveException_E(CArchiveException_E::badIndex, ar.m_strFileName);
}

template <typename T>
void exchange(CArchive_E& ar, std::vector<T>& elements)
{
    if (ar.IsStoring()) {
        ar.WriteCount(elements.size());
        for (T& element : elements)
            exchange(ar, element);
        return;
    }
    // One by one: what the file says of their number is not to be trusted with memory.
    elements.clear();
    for (DWORD_PTR n = ar.ReadCount(); n != 0; --n)
        exchange(ar, elements.emplace_back());
}

} // namespace

IMPLEMENT_SERIAL_E(CPlotDocument, CObject_E, 1)

void CPlotDocument::Serialize(CArchive_E& ar)
{
    exchange(ar, m_items);
    exchange(ar, m_ptCentre);
    exchange(ar, m_dZoom);
    // Where nothing of the plot can be in view.
    if (ar.IsLoading() && (std::abs(static_cast<double>(m_ptCentre.x)) > 1e8 ||
                           std::abs(static_cast<double>(m_ptCentre.y)) > 1e8))
        AfxThrowArchiveException_E(CArchiveException_E::badIndex, ar.m_strFileName);
}

void SaveDocument(const CPlotDocument& document, const wchar_t* lpszPath)
{
    // Beside it first: a good document is not lost to a full disk.
    const CString_E strNew = CString_E(lpszPath) + L".new";
    CFile_E file(strNew, CFile_E::modeCreate | CFile_E::modeWrite | CFile_E::shareExclusive);
    CArchive_E ar(&file, CArchive_E::store);
    ar << &document;
    ar.Close();
    file.Close();
    if (!MoveFileEx_E(strNew, lpszPath, MOVEFILE_REPLACE_EXISTING))
        CFileException_E::ThrowOsError(static_cast<LONG>(GetLastError()), lpszPath);
}

std::unique_ptr<CPlotDocument> OpenDocument(const wchar_t* lpszPath)
{
    CFile_E file(lpszPath, CFile_E::modeRead | CFile_E::shareDenyWrite);
    CArchive_E ar(&file, CArchive_E::load);
    CPlotDocument* pDocument = nullptr;
    ar >> pDocument;
    return std::unique_ptr<CPlotDocument>(pDocument);
}
