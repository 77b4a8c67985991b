#include <VxMFCEmu/coll/archive.h>

#include "coll/vxarchivetables_p.h"
#include "text/vxtranscode_p.h"

#include <VxMFCEmu/core/exceptions.h>

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

constexpr BYTE kByteMark = 0xFF;
constexpr WORD kWordMark = 0xFFFF;
constexpr DWORD kDwordMark = 0xFFFFFFFF;
constexpr WORD kWideMark = 0xFFFE;
constexpr std::size_t kChunk = 512;

constexpr bool isHighSurrogate(WORD unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isLowSurrogate(WORD unit) { return (unit & 0xFC00) == 0xDC00; }

constexpr wchar_t combine(WORD high, WORD low)
{
    return static_cast<wchar_t>(0x10000 + ((high & 0x3FF) << 10) + (low & 0x3FF));
}

constexpr bool isSupplementary(wchar_t ch) { return static_cast<UINT>(ch) - 0x10000 < 0x100000; }

/// Writes up to four bytes at p and returns their end.
BYTE* putUnits(BYTE* p, wchar_t ch)
{
    if (isSupplementary(ch)) {
        const UINT offset = static_cast<UINT>(ch) - 0x10000;
        const UINT pair = 0xDC00D800U | (offset & 0x3FF) << 16 | offset >> 10;
        std::memcpy(p, &pair, sizeof pair);
        return p + sizeof pair;
    }
    const WORD unit = static_cast<UINT>(ch) < 0x10000 ? static_cast<WORD>(ch) : WORD{0xFFFD};
    std::memcpy(p, &unit, sizeof unit);
    return p + sizeof unit;
}

WORD unitAt(const BYTE* p)
{
    WORD unit;
    std::memcpy(&unit, p, sizeof unit);
    return unit;
}

std::wstring decodeNarrow(const std::string& bytes)
{
    try {
        return vx::detail::utf8ToWide(bytes);
    } catch (const std::range_error&) {
        std::wstring text(bytes.size(), L'\0');
        std::transform(bytes.begin(), bytes.end(), text.begin(),
                       [](char ch) { return static_cast<wchar_t>(static_cast<BYTE>(ch)); });
        return text;
    }
}

} // namespace

void CArchive_E::WriteCount(DWORD_PTR dwCount)
{
    if (dwCount < kWordMark)
        Put(static_cast<WORD>(dwCount));
    else if (dwCount < kDwordMark)
        Put(kWordMark).Put(static_cast<DWORD>(dwCount));
    else
        Put(kWordMark).Put(kDwordMark).Put(dwCount);
}

DWORD_PTR CArchive_E::ReadCount()
{
    if (const WORD w = Get<WORD>(); w != kWordMark)
        return w;
    if (const DWORD dw = Get<DWORD>(); dw != kDwordMark)
        return dw;
    return Get<DWORD_PTR>();
}

CArchive_E& CArchive_E::PutSupplementary(wchar_t ch)
{
    PutUnits(&ch, 1);
    return *this;
}

CArchive_E& CArchive_E::operator>>(wchar_t& ch)
{
    const WORD unit = Get<WORD>();
    ch = unit;
    if (isHighSurrogate(unit) && (BytesLeft() >= sizeof unit || Fill(sizeof unit)) &&
        isLowSurrogate(unitAt(m_pRead))) {
        ch = combine(unit, unitAt(m_pRead));
        m_pRead += sizeof unit;
    }
    return *this;
}

CArchive_E& CArchive_E::operator<<(const CString_E& str)
{
    const auto nLength = static_cast<std::size_t>(str.GetLength());
    const wchar_t* const pText = str.GetString();
    const std::size_t nUnits =
        nLength + static_cast<std::size_t>(std::count_if(pText, pText + nLength, isSupplementary));
    Put(kByteMark).Put(kWideMark);
    if (nUnits < kByteMark)
        Put(static_cast<BYTE>(nUnits));
    else if (nUnits < kWideMark)
        Put(kByteMark).Put(static_cast<WORD>(nUnits));
    else if (nUnits < kDwordMark)
        Put(kByteMark).Put(kWordMark).Put(static_cast<DWORD>(nUnits));
    else
        Put(kByteMark).Put(kWordMark).Put(kDwordMark).Put(static_cast<ULONGLONG>(nUnits));
    PutUnits(pText, nLength);
    return *this;
}

void CArchive_E::PutUnits(const wchar_t* pText, std::size_t nLength)
{
    while (nLength != 0) {
        // Each character takes four bytes at most.
        if (m_pWriteEnd - m_pWrite < 4)
            MakeRoom();
        const std::size_t nPart =
            std::min(nLength, static_cast<std::size_t>(m_pWriteEnd - m_pWrite) / 4);
        BYTE* pWrite = m_pWrite;
        for (const wchar_t* const pEnd = pText + nPart; pText != pEnd; ++pText)
            pWrite = putUnits(pWrite, *pText);
        m_pWrite = pWrite;
        nLength -= nPart;
    }
}

/// The length in bytes or, with bWide, in UTF-16 code units.
ULONGLONG CArchive_E::GetStringLength(bool& bWide)
{
    bWide = false;
    if (const BYTE by = Get<BYTE>(); by != kByteMark)
        return by;
    WORD w = Get<WORD>();
    if (w == kWideMark) {
        bWide = true;
        if (const BYTE by = Get<BYTE>(); by != kByteMark)
            return by;
        w = Get<WORD>();
    }
    if (w != kWordMark)
        return w;
    if (const DWORD dw = Get<DWORD>(); dw != kDwordMark)
        return dw;
    return Get<ULONGLONG>();
}

CArchive_E& CArchive_E::operator>>(CString_E& str)
{
    bool bWide;
    const ULONGLONG nLength = GetStringLength(bWide);
    if (nLength > static_cast<ULONGLONG>(std::numeric_limits<int>::max()))
        Throw(CArchiveException_E::genericException);
    str.Empty();
    if (bWide)
        GetUnits(str, nLength);
    else
        GetNarrow(str, nLength);
    return *this;
}

void CArchive_E::GetUnits(CString_E& str, std::size_t nUnits)
{
    wchar_t chunk[kChunk];
    while (nUnits != 0) {
        if (BytesLeft() < sizeof(WORD))
            Require(sizeof(WORD));
        std::size_t nPart = std::min({nUnits, BytesLeft() / sizeof(WORD), kChunk});
        // A pair is not taken apart.
        if (nPart < nUnits && isHighSurrogate(unitAt(m_pRead + (nPart - 1) * sizeof(WORD)))) {
            if (nPart > 1) {
                --nPart;
            } else {
                Require(2 * sizeof(WORD));
                nPart = 2;
            }
        }
        const BYTE* const pUnits = m_pRead;
        std::size_t nLength = 0;
        for (std::size_t i = 0; i < nPart; ++i) {
            const WORD unit = unitAt(pUnits + i * sizeof unit);
            chunk[nLength] = unit;
            if (isLowSurrogate(unit) && i != 0 &&
                isHighSurrogate(unitAt(pUnits + (i - 1) * sizeof unit)))
                chunk[nLength - 1] = combine(static_cast<WORD>(chunk[nLength - 1]), unit);
            else
                ++nLength;
        }
        vx::detail::concatenate(str, {chunk, nLength}, {});
        m_pRead += nPart * sizeof(WORD);
        nUnits -= nPart;
    }
}

void CArchive_E::GetNarrow(CString_E& str, std::size_t nBytes)
{
    std::string bytes;
    while (bytes.size() != nBytes) {
        if (BytesLeft() == 0)
            Require(1);
        const std::size_t nPart = std::min(nBytes - bytes.size(), BytesLeft());
        bytes.append(reinterpret_cast<const char*>(m_pRead), nPart);
        m_pRead += nPart;
    }
    vx::detail::concatenate(str, decodeNarrow(bytes), {});
}

void CArchive_E::WriteString(const wchar_t* lpsz)
{
    CheckStoring();
    if (!lpsz)
        AfxThrowInvalidArgException_E();
    PutUnits(lpsz, std::char_traits<wchar_t>::length(lpsz));
}

/// False at the end of the line, which is taken, and at that of the file.
bool CArchive_E::GetLineCharacter(wchar_t& ch)
{
    if (BytesLeft() < sizeof(WORD) && !Fill(sizeof(WORD)))
        return false;
    *this >> ch;
    if (ch == L'\r' && (BytesLeft() >= sizeof(WORD) || Fill(sizeof(WORD))) &&
        unitAt(m_pRead) == L'\n')
        m_pRead += sizeof(WORD);
    return ch != L'\n' && ch != L'\r';
}

wchar_t* CArchive_E::ReadString(wchar_t* lpsz, UINT nMax)
{
    CheckLoading();
    if (!lpsz)
        return nullptr;
    if (nMax != 0 && BytesLeft() < sizeof(WORD) && !Fill(sizeof(WORD))) {
        *lpsz = L'\0';
        return nullptr;
    }
    UINT n = 0;
    for (wchar_t ch; n < nMax && GetLineCharacter(ch); ++n)
        lpsz[n] = ch;
    lpsz[n] = L'\0';
    return lpsz;
}

BOOL CArchive_E::ReadString(CString_E& rString)
{
    CheckLoading();
    rString.Empty();
    if (BytesLeft() < sizeof(WORD) && !Fill(sizeof(WORD)))
        return FALSE;
    for (wchar_t ch; GetLineCharacter(ch);)
        rString += ch;
    return TRUE;
}
