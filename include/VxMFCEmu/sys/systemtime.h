/// @file systemtime.h
/// A date and time of day by their parts, under its Win32 name.
///
/// Threads: any.
#pragma once

#include <VxMFCEmu/types.h>

struct _SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;     ///< 1 is January
    WORD wDayOfWeek; ///< 0 is Sunday
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using SYSTEMTIME = _SYSTEMTIME;
using LPSYSTEMTIME = _SYSTEMTIME*;
