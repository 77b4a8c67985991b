/// @file ddv.h
/// DDV_ functions: each checks the value that the exchange function before it moved.
///
/// They act when saving; a value that does not pass ends the exchange with a message (see
/// CDataExchange_E::Fail()). A minimum above the maximum checks nothing.
///
/// Differs from MFC: nothing is reported while values are loaded.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/dlg/dataexchange.h>

#include <QtCore/QDateTime>

/// At most @p nChars characters; 0 and less is no limit. In both directions the control takes no
/// more from then on.
VXMFC_EXPORT void DDV_MaxChars(CDataExchange_E* pDX, const CString_E& value, int nChars);

#define VXMFC_DDV_MINMAX(name, Type)                                                               \
    VXMFC_EXPORT void name(CDataExchange_E* pDX, Type value, Type minVal, Type maxVal);

// clang-format off
/// @{
/// Between two values, both included.
VXMFC_DDV_MINMAX(DDV_MinMaxByte, BYTE)
VXMFC_DDV_MINMAX(DDV_MinMaxShort, short)
VXMFC_DDV_MINMAX(DDV_MinMaxInt, int)
VXMFC_DDV_MINMAX(DDV_MinMaxLong, long)
VXMFC_DDV_MINMAX(DDV_MinMaxUInt, UINT)
VXMFC_DDV_MINMAX(DDV_MinMaxDWord, DWORD)
VXMFC_DDV_MINMAX(DDV_MinMaxLongLong, LONGLONG)
VXMFC_DDV_MINMAX(DDV_MinMaxULongLong, ULONGLONG)
VXMFC_DDV_MINMAX(DDV_MinMaxFloat, float)
// clang-format on
VXMFC_EXPORT void DDV_MinMaxDouble(CDataExchange_E* pDX, const double& value, double minVal,
                                   double maxVal);
/// @}

/// Sets the range of the slider that was exchanged last, in both directions, and checks the value.
VXMFC_EXPORT void DDV_MinMaxSlider(CDataExchange_E* pDX, DWORD value, DWORD minVal, DWORD maxVal);

/// @{
/// Between two moments or days; a null limit is none. Both directions set the range of the control.
VXMFC_EXPORT void DDV_MinMaxDateTime(CDataExchange_E* pDX, const QDateTime& value,
                                     const QDateTime* pMin, const QDateTime* pMax);
VXMFC_EXPORT void DDV_MinMaxMonth(CDataExchange_E* pDX, const QDate& value, const QDate* pMin,
                                  const QDate* pMax);
/// @}
