// Formatting and string resources.
#include <VxMFCEmu/text/cstring.h>

#include "text/vxformat_p.h"
#include "text/vxstringtable_p.h"
#include "text/vxtranscode_p.h"

using vx::detail::TextSink;

void CString_E::FormatV(const wchar_t* lpszFormat, va_list args)
{
    TextSink sink;
    vx::detail::formatText(sink, vx::detail::orEmpty(lpszFormat), args);
    m_text.assign(sink.data(), sink.size());
}

void CString_E::AppendFormatV(const wchar_t* lpszFormat, va_list args)
{
    TextSink sink;
    vx::detail::formatText(sink, vx::detail::orEmpty(lpszFormat), args);
    m_text.append(sink.data(), sink.size());
}

void CString_E::Format(const wchar_t* lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    FormatV(lpszFormat, args);
    va_end(args);
}

void CString_E::AppendFormat(const wchar_t* lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    AppendFormatV(lpszFormat, args);
    va_end(args);
}

void CString_E::Format(UINT nFormatID, ...)
{
    CString_E format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(format.GetString(), args);
    va_end(args);
}

void CString_E::AppendFormat(UINT nFormatID, ...)
{
    CString_E format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    AppendFormatV(format.GetString(), args);
    va_end(args);
}

BOOL CString_E::LoadString(UINT nID)
{
    const auto found = vx::detail::findTableString(nID);
    m_text = found ? vx::detail::qStringToWide(*found) : std::wstring();
    return found ? TRUE : FALSE;
}

BOOL CString_E::LoadString(HINSTANCE, UINT nID) { return LoadString(nID); }

BOOL CString_E::LoadString(HINSTANCE, UINT nID, WORD) { return LoadString(nID); }
