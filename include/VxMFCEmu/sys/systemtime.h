/// @file systemtime.h
/// A date and time of day by their parts, under its Win32 name.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

/// A date and a time of day.
struct _SYSTEMTIME
{
    WORD wYear;         ///< all digits
    WORD wMonth;        ///< 1 is January
    WORD wDayOfWeek;    ///< 0 is Sunday
    WORD wDay;          ///< from 1
    WORD wHour;         ///< 0 to 23
    WORD wMinute;       ///< 0 to 59
    WORD wSecond;       ///< 0 to 59
    WORD wMilliseconds; ///< 0 to 999
};
using SYSTEMTIME = _SYSTEMTIME;    ///< its usual name
using LPSYSTEMTIME = _SYSTEMTIME*; ///< a pointer to one
