/// @file syscolors.h
/// The system colours.
///
/// Differs from Win32: the colours are fixed; an index without a colour of its own gives 0 (black).
#pragma once

#include <VxMFCEmu/types.h>

/// @{
/// The index of a system colour.
inline constexpr int COLOR_SCROLLBAR = 0;
inline constexpr int COLOR_BACKGROUND = 1;
inline constexpr int COLOR_DESKTOP = 1;
inline constexpr int COLOR_ACTIVECAPTION = 2;
inline constexpr int COLOR_INACTIVECAPTION = 3;
inline constexpr int COLOR_MENU = 4;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWFRAME = 6;
inline constexpr int COLOR_MENUTEXT = 7;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_CAPTIONTEXT = 9;
inline constexpr int COLOR_ACTIVEBORDER = 10;
inline constexpr int COLOR_INACTIVEBORDER = 11;
inline constexpr int COLOR_APPWORKSPACE = 12;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_3DFACE = 15;
inline constexpr int COLOR_BTNSHADOW = 16;
inline constexpr int COLOR_3DSHADOW = 16;
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_INACTIVECAPTIONTEXT = 19;
inline constexpr int COLOR_BTNHIGHLIGHT = 20;
inline constexpr int COLOR_BTNHILIGHT = 20;
inline constexpr int COLOR_3DHIGHLIGHT = 20;
inline constexpr int COLOR_3DHILIGHT = 20;
inline constexpr int COLOR_3DDKSHADOW = 21;
inline constexpr int COLOR_3DLIGHT = 22;
inline constexpr int COLOR_INFOTEXT = 23;
inline constexpr int COLOR_INFOBK = 24;
inline constexpr int COLOR_HOTLIGHT = 26;
inline constexpr int COLOR_GRADIENTACTIVECAPTION = 27;
inline constexpr int COLOR_GRADIENTINACTIVECAPTION = 28;
inline constexpr int COLOR_MENUHILIGHT = 29;
inline constexpr int COLOR_MENUBAR = 30;
/// @}

/// The system colour of @p nIndex; 0 for an index that has none.
VXMFC_EXPORT COLORREF GetSysColor_E(int nIndex);
