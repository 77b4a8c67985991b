/// @file log.h
/// The host application's log file and the folders around its executable.
///
/// Threads: any; lines of different threads never interleave.
#pragma once

#include <VxMFCEmu/text/cstring.h>

/// Appends one line, "[yyyy-MM-dd hh:mm:ss ddd] message", in UTF-8, to "Common/Plok.log" below
/// GetMainDirectory(). The file is opened for each line, so that one that was rotated away is made
/// anew; its folder is never made, and without it the line is lost. Formats as CString_E::Format()
/// does.
VXMFC_EXPORT void vxLogPrintf(const wchar_t* lpszFormat, ...);

/// The executable's folder, without a trailing separator; the argument is ignored.
VXMFC_EXPORT CString_E GetApplicationDirectory(void* hModule);
/// The parent of the executable's folder; empty when there is none.
VXMFC_EXPORT CString_E GetMainDirectory();
