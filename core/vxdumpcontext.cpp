#include <VxMFCEmu/core/dumpcontext.h>
#include <VxMFCEmu/core/exceptions.h>

// Dumps go into a file; this is where the runtime core meets the file classes.
#include <VxMFCEmu/coll/file.h>

#include <cstdlib>
#include <cwchar>

namespace {

constexpr std::size_t kLongestNarrowText = 512;

} // namespace

void CDumpContext_E::Flush()
{
    if (m_pFile)
        m_pFile->Flush();
}

void CDumpContext_E::OutputString(const wchar_t* lpsz)
{
    if (!m_pFile)
        return;
    if (!lpsz)
        AfxThrowUserException_E();
    m_pFile->Write(lpsz, static_cast<UINT>(std::wcslen(lpsz) * sizeof(wchar_t)));
}

void CDumpContext_E::HexDump(const wchar_t* lpszLine, BYTE* pby, int nBytes, int nWidth)
{
    if (nBytes < 1 || nWidth < 1 || !lpszLine || !pby)
        AfxThrowInvalidArgException_E();
    for (int i = 0; i < nBytes; ++i) {
        if (i % nWidth == 0)
            Print(lpszLine, static_cast<const void*>(pby + i));
        Print(L" %02X", pby[i]);
        if ((i + 1) % nWidth == 0 || i + 1 == nBytes)
            OutputString(L"\n");
    }
}

template <typename Value>
CDumpContext_E& CDumpContext_E::Print(const wchar_t* lpszFormat, Value value)
{
    if (m_pFile) {
        CString_E str;
        str.Format(lpszFormat, value);
        OutputString(str.GetString());
    }
    return *this;
}

CDumpContext_E& CDumpContext_E::operator<<(const wchar_t* lpsz)
{
    OutputString(lpsz ? lpsz : L"NULL");
    return *this;
}

CDumpContext_E& CDumpContext_E::operator<<(const char* lpsz)
{
    if (!lpsz)
        return *this << L"(NULL)";
    // Zeroed, so that the part before a byte sequence that does not convert is still written.
    wchar_t text[kLongestNarrowText + 1] = {};
    std::mbstowcs(text, lpsz, kLongestNarrowText);
    return *this << text;
}

CDumpContext_E& CDumpContext_E::operator<<(const CObject_E* pOb)
{
    // Intended: the object's own Dump() is not called.
    return *this << (pOb ? L"Unable to dump object in static release builds" : L"NULL");
}

CDumpContext_E& CDumpContext_E::operator<<(const void* p) { return Print(L"$%p", p); }
CDumpContext_E& CDumpContext_E::operator<<(unsigned char value) { return Print(L"%u", value); }
CDumpContext_E& CDumpContext_E::operator<<(unsigned short value) { return Print(L"%u", value); }
CDumpContext_E& CDumpContext_E::operator<<(unsigned int value) { return Print(L"%u", value); }
CDumpContext_E& CDumpContext_E::operator<<(int value) { return Print(L"%d", value); }
CDumpContext_E& CDumpContext_E::operator<<(long long value) { return Print(L"%I64d", value); }
CDumpContext_E& CDumpContext_E::operator<<(unsigned long long value)
{
    return Print(L"%I64u", value);
}
CDumpContext_E& CDumpContext_E::operator<<(float value) { return Print(L"%.6f", value); }
CDumpContext_E& CDumpContext_E::operator<<(double value) { return Print(L"%.15f", value); }

CDumpContext_E& CDumpContext_E::DumpAsHex(unsigned char value) { return Print(L"0x%02x", value); }
CDumpContext_E& CDumpContext_E::DumpAsHex(unsigned short value) { return Print(L"0x%04x", value); }
CDumpContext_E& CDumpContext_E::DumpAsHex(int value) { return Print(L"0x%08x", value); }
CDumpContext_E& CDumpContext_E::DumpAsHex(unsigned int value) { return Print(L"0x%08x", value); }
CDumpContext_E& CDumpContext_E::DumpAsHex(long long value) { return Print(L"0x%016I64x", value); }
CDumpContext_E& CDumpContext_E::DumpAsHex(unsigned long long value)
{
    return Print(L"0x%016I64x", value);
}

void CObject_E::Dump(CDumpContext_E& dc) const
{
    dc << L"a " << GetClassName() << L" at " << static_cast<const void*>(this);
}
