#pragma once

#include "plotfile.h"

#include <memory>

/// A drawing as it is shown: what is drawn, and which part of it is in view.
class CPlotDocument : public CObject_E
{
    Q_OBJECT
    DECLARE_SERIAL_E(CPlotDocument)

    void Serialize(CArchive_E& ar) override;

    std::vector<PlotItem> m_items;
    CPoint_E m_ptCentre; ///< in plotter units, shown in the middle
    double m_dZoom = 1;
};

/// Writes a document to a file; throws what the file or the archive throws.
void SaveDocument(const CPlotDocument& document, const wchar_t* lpszPath);
/// Reads one; throws what the file or the archive throws.
std::unique_ptr<CPlotDocument> OpenDocument(const wchar_t* lpszPath);
