#include <VxMFCEmu/gdi/syscolors.h>

#include <VxMFCEmu/gdi/colorref.h>

#include <algorithm>
#include <iterator>

namespace {

struct SysColor
{
    int nIndex;
    COLORREF color;
};

constexpr SysColor kSysColors[] = {
    {COLOR_MENU, RGB(240, 240, 240)},         {COLOR_WINDOW, RGB(255, 255, 255)},
    {COLOR_MENUTEXT, RGB(0, 0, 0)},           {COLOR_WINDOWTEXT, RGB(0, 0, 0)},
    {COLOR_HIGHLIGHT, RGB(0, 120, 215)},      {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 255)},
    {COLOR_BTNFACE, RGB(240, 240, 240)},      {COLOR_BTNSHADOW, RGB(160, 160, 160)},
    {COLOR_GRAYTEXT, RGB(109, 109, 109)},     {COLOR_BTNTEXT, RGB(0, 0, 0)},
    {COLOR_BTNHIGHLIGHT, RGB(255, 255, 255)}, {COLOR_INFOTEXT, RGB(0, 0, 0)},
    {COLOR_INFOBK, RGB(255, 255, 225)},
};
static_assert(std::size(kSysColors) == 13);

} // namespace

COLORREF GetSysColor_E(int nIndex)
{
    const auto* const pRow =
        std::find_if(std::begin(kSysColors), std::end(kSysColors),
                     [nIndex](const SysColor& row) { return row.nIndex == nIndex; });
    return pRow == std::end(kSysColors) ? 0 : pRow->color;
}
