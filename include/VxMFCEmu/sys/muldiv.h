/// @file muldiv.h
/// Multiplying and dividing with a product of 64 bits.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// @p nNumber times @p nNumerator, divided by @p nDenominator; -1 for a result above 0x7FFFFFFF.
///
/// Differs from Win32: the result is cut off towards zero, not rounded; one below the range of int
/// keeps its low 32 bits; and a denominator of 0 raises the processor's divide fault (SIGFPE).
VXMFC_EXPORT int MulDiv_E(int nNumber, int nNumerator, int nDenominator);
