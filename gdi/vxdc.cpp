// Making, binding and ending device contexts.
#include "gdi/vxdc_p.h"

#include "gdi/vxdcdevice_p.h"
#include "gdi/vxdefaultpalette_p.h"
#include "gdi/vxhandleobject_p.h"

#include <VxMFCEmu/core/modulestate.h>

#include <utility>

using namespace vx::detail;

namespace {

/// The default colour table; all device contexts share one until they get another.
const QVector<PALETTEENTRY>& defaultColorTable()
{
    static const QVector<PALETTEENTRY> table(std::begin(kDefaultPalette),
                                             std::end(kDefaultPalette));
    return table;
}

} // namespace

CDC_E::CDC_E() = default;

CDC_E::CDC_E(QImage* pImage) : m_colorTable(defaultColorTable())
{
    if (pImage)
        m_painter.begin(pImage);
}

CDC_E::CDC_E(QWidget* pWidget) : m_colorTable(defaultColorTable())
{
    if (!pWidget)
        return;
    if (canPaintOn(*pWidget) && m_painter.begin(pWidget)) {
        m_pDevice = std::make_unique<PaintedWidget>(pWidget, m_painter);
        return;
    }
    auto surface = std::make_unique<ClientSurface>(pWidget);
    m_painter.begin(&surface->image());
    m_painter.setPen(pWidget->palette().color(pWidget->foregroundRole()));
    m_painter.setBackground(pWidget->palette().brush(pWidget->backgroundRole()));
    m_painter.setFont(pWidget->font());
    m_pDevice = std::move(surface);
}

CDC_E::~CDC_E()
{
    detachHandle(this, &CDC_E::m_hDC, &afxMapHDC_E);
    DeleteDC();
}

BOOL CDC_E::CreateCompatibleDC(CDC_E*)
{
    if (m_painter.isActive())
        return FALSE;
    auto device = std::make_unique<MemoryDevice>();
    if (!m_painter.begin(&device->image()))
        return FALSE;
    m_pDevice = std::move(device);
    if (m_colorTable.isEmpty())
        m_colorTable = defaultColorTable();
    return TRUE;
}

BOOL CDC_E::DeleteDC()
{
    const bool active = m_painter.isActive() && m_painter.end();
    m_savedModes.clear(); // as the painter forgets its own
    m_pDevice.reset();
    freeOrphans();
    return active ? TRUE : FALSE;
}

CBitmap_E* CDC_E::SelectObject(CBitmap_E* pBitmap)
{
    auto* const pMemory = dynamic_cast<MemoryDevice*>(m_pDevice.get());
    const auto* const pImage = valueOf<QImage>(pBitmap);
    // Qt does not paint on images of this format.
    if (!pMemory || !pImage || pImage->isNull() || pImage->format() == QImage::Format_Indexed8)
        return nullptr;
    CBitmap_E* const pPrevious = pMemory->selected();
    if (pImage == &pMemory->image() && m_painter.isActive())
        return pPrevious;
    if (pImage->paintingActive()) // as on Win32, by one device context at a time
        return nullptr;
    MoveOnto(pMemory, pBitmap->GetSafeHandle());
    return pPrevious;
}

CPalette_E* CDC_E::SelectPalette(CPalette_E* pPalette, BOOL)
{
    m_colorTable = defaultColorTable();
    if (pPalette) {
        const std::vector<PALETTEENTRY>& entries = pPalette->Entries();
        m_colorTable = QVector<PALETTEENTRY>(entries.cbegin(), entries.cend());
        while (m_colorTable.size() < static_cast<int>(kDefaultPalette.size()))
            m_colorTable.append({255, 255, 255, 0});
    }
    return &m_palette;
}

void CDC_E::RealizePalette() {}

void CDC_E::SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }

void CDC_E::ReleaseAttribDC() { m_hAttribDC = nullptr; }

HDC CDC_E::GetSafeHdc() const { return safeHandle(this, &CDC_E::m_hDC); }

CDC_E* CDC_E::FromHandle(HDC hDC)
{
    return static_cast<CDC_E*>(objectOf(hDC, afxMapHDC_E(TRUE), &CDC_E::DeleteTempMap));
}

BOOL CDC_E::Attach(HDC hDC)
{
    if (!attachHandle(this, &CDC_E::m_hDC, hDC, &afxMapHDC_E))
        return FALSE;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC_E::Detach()
{
    const HDC hDC = detachHandle(this, &CDC_E::m_hDC, &afxMapHDC_E);
    m_hDC = hDC; // an override may ask what is released
    ReleaseAttribDC();
    return std::exchange(m_hDC, nullptr);
}

void CDC_E::DeleteTempMap() { deleteTemp(afxMapHDC_E(FALSE)); }

CHandleMap_E* afxMapHDC_E(BOOL bCreate)
{
    // The record is that of CObject_E, a smaller class: the blocks are sized by CDC_E.
    static_assert(sizeof(CDC_E) > sizeof(CObject_E));
    CHandleMap_E*& pMap = AfxGetModuleThreadState_E()->m_pmapHDC;
    if (!pMap && bCreate)
        pMap = makeHandleMap<CDC_E>(RUNTIME_CLASS_E(CObject_E), &CDC_E::m_hDC, 2);
    return pMap;
}

HDC GetDC_E(HWND) { return nullptr; }

int ReleaseDC_E(HWND, HDC) { return 0; }

int GetDeviceCaps_E(HDC, int) { return 0; }
