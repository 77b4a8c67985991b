/// @file drawtext.h
/// Drawing text without the members of a device context.
///
/// Threads: GUI thread only; ToQtTextFlag() any.
#pragma once

#include <VxMFCEmu/types.h>

class CDC_E;

/// As CDC_E::DrawText() with a count, but the pen is CDC_E::GetTextColor() in any case. 0 for a
/// null device context.
VXMFC_EXPORT int DrawTextA(CDC_E* pDC, const wchar_t* lpszString, int nCount, tagRECT* pRect,
                           UINT nFormat);
/// The same without looking at the count.
VXMFC_EXPORT int DrawTextW(CDC_E* pDC, const wchar_t* lpszString, int nCount, tagRECT* pRect,
                           UINT nFormat);
/// The Qt alignment and text flags of DT_* flags. Differs from Win32: DT_CENTER centres vertically
/// too; DT_BOTTOM, DT_NOCLIP, DT_CALCRECT and the ellipses give nothing.
VXMFC_EXPORT int ToQtTextFlag(UINT nFormat);
