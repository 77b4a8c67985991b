#include <VxMFCEmu/coll/stdiofile.h>

#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include "coll/vxfileio_p.h"
#include "coll/vxoserror_p.h"
#include "coll/vxutf8_p.h"
#include "text/vxtranscode_p.h"

#include <QtCore/QFile>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>
#include <utility>

#include <fcntl.h>
#include <stdio_ext.h>

IMPLEMENT_DYNAMIC_E(CStdioFile_E, CFile_E, QFile)

using namespace vx::detail;

namespace {

constexpr std::size_t kBufferSize = 0x4000; // the C library's own is a quarter of it
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

const char* streamMode(int fd)
{
    static constexpr const char* modes[] = {"r", "w", "r+", "r+"};
    return modes[::fcntl(fd, F_GETFL) & O_ACCMODE];
}

/// Writes a text, for which there is room, and returns the place behind it.
char* encode(std::wstring_view text, char* out)
{
    while (!text.empty()) {
        const std::size_t nPlain = narrowAscii(text, out);
        out += nPlain;
        text.remove_prefix(nPlain);
        // The number is rounded down to this.
        const std::wstring_view next = text.substr(0, 16);
        for (const wchar_t character : next)
            out = encodeCharacter(out, static_cast<char32_t>(character));
        text.remove_prefix(next.size());
    }
    return out;
}

} // namespace

CStdioFile_E::CStdioFile_E() = default;

CStdioFile_E::CStdioFile_E(std::FILE* pOpenStream)
{
    if (!pOpenStream)
        AfxThrowFileException_E(CFileException_E::invalidFile, ERROR_INVALID_HANDLE);
    m_pStream = pOpenStream;
    if (const int fd = ::fileno(pOpenStream); fd >= 0)
        Adopt(fd, false);
}

CStdioFile_E::CStdioFile_E(const wchar_t* lpszFileName, UINT nOpenFlags) : CStdioFile_E()
{
    CFileException_E error;
    if (!CStdioFile_E::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException_E(error.m_cause, error.m_lOsError, lpszFileName);
}

CStdioFile_E::~CStdioFile_E()
{
    if (m_pStream && m_bCloseOnDelete)
        CStdioFile_E::Abort();
    std::free(m_pLine);
}

BOOL CStdioFile_E::Open(const wchar_t* lpszFileName, UINT nOpenFlags, CFileException_E* pError)
{
    if (m_bCloseOnDelete)
        CStdioFile_E::Abort();
    m_pStream = nullptr;
    if (!CFile_E::Open(lpszFileName, nOpenFlags, pError))
        return FALSE;
    const auto fd = static_cast<int>(m_hFile);
    m_pStream = ::fdopen(fd, streamMode(fd));
    if (!m_pStream) {
        const LONG error = osErrorOf(errno);
        ReleaseFile(true);
        return ReportOpen(error, lpszFileName, pError);
    }
    ::__fsetlocking(m_pStream, FSETLOCKING_BYCALLER);
    if (!m_pBuffer)
        m_pBuffer.reset(new char[kBufferSize]);
    std::setvbuf(m_pStream, m_pBuffer.get(), _IOFBF, kBufferSize);
    m_use = Use::None;
    m_bText = (nOpenFlags & typeBinary) == 0;
    m_bAtStart = true;
    return TRUE;
}

void CStdioFile_E::Close()
{
    if (!m_pStream)
        return;
    const CString_E strFileName = m_strFileName;
    CFileException_E::ThrowOsError(osErrorOf(CloseStream()), strFileName.GetString());
}

void CStdioFile_E::Abort() { CloseStream(); }

/// Closes the stream, whatever happens, and gives the first error.
int CStdioFile_E::CloseStream()
{
    // Written before others may open the file.
    const int flushed = !m_pStream || std::fflush(m_pStream) == 0 ? 0 : errno;
    ReleaseLocks();
    ReleaseFile(false);
    const int closed =
        !m_pStream || std::fclose(std::exchange(m_pStream, nullptr)) == 0 ? 0 : errno;
    return flushed != 0 ? flushed : closed;
}

std::FILE& CStdioFile_E::Stream() const
{
    if (!m_pStream)
        Descriptor(); // throws
    return *m_pStream;
}

/// The C library wants the position set between reading and writing.
std::FILE& CStdioFile_E::StreamFor(Use use)
{
    std::FILE& stream = Stream();
    if (!m_bCloseOnDelete) // the caller's stream, which it may have used itself
        m_use = ::__fwriting(&stream) != 0   ? Use::Writing
                : ::__freading(&stream) != 0 ? Use::Reading
                                             : Use::None;
    if (m_use != use && m_use != Use::None)
        CheckStream(::fseeko(&stream, 0, SEEK_CUR) == 0);
    m_use = use;
    return stream;
}

/// The stream for reading text, behind the byte order mark.
std::FILE& CStdioFile_E::TextStream()
{
    std::FILE& stream = StreamFor(Use::Reading);
    if (!std::exchange(m_bAtStart, false))
        return stream;
    int seen = 0;
    int byte = 0;
    while (seen < 3 && (byte = ::getc_unlocked(&stream)) == static_cast<BYTE>(kByteOrderMark[seen]))
        ++seen;
    if (seen < 3) {
        std::ungetc(byte, &stream);
        while (seen > 0)
            std::ungetc(static_cast<BYTE>(kByteOrderMark[--seen]), &stream);
        m_bAtStart = byte == EOF && ::feof_unlocked(&stream); // the file is empty as yet
    }
    return stream;
}

void CStdioFile_E::CheckStream(bool bGood) const
{
    if (bGood)
        return;
    const int error = errno;
    std::clearerr(m_pStream);
    Check(m_use == Use::None ? osErrorOf(error)
                             : errorOfUse(static_cast<int>(m_hFile), error,
                                          m_use == Use::Reading ? O_RDONLY : O_WRONLY));
}

/// The end of the file must not stick to the stream: more may be written.
void CStdioFile_E::CheckRead(bool bGood)
{
    CheckStream(bGood && !::ferror_unlocked(m_pStream));
    ::clearerr_unlocked(m_pStream);
}

UINT CStdioFile_E::Read(void* lpBuf, UINT nCount)
{
    std::FILE& stream = StreamFor(Use::Reading);
    if (nCount == 0)
        return 0;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    m_bAtStart = false;
    auto* const pBytes = static_cast<char*>(lpBuf);
    std::size_t done = 0;
    if (!m_bText) {
        done = ::fread_unlocked(pBytes, 1, nCount, &stream);
    } else {
        for (int byte; done < nCount && (byte = NextByte()) != EOF;)
            pBytes[done++] = static_cast<char>(byte);
    }
    CheckRead(true);
    return static_cast<UINT>(done);
}

void CStdioFile_E::Write(const void* lpBuf, UINT nCount)
{
    StreamFor(Use::Writing);
    if (nCount == 0)
        return;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    const auto* p = static_cast<const char*>(lpBuf);
    std::size_t left = nCount;
    while (m_bText) {
        const auto* const newLine = static_cast<const char*>(std::memchr(p, '\n', left));
        if (!newLine)
            break;
        WriteBytes(p, static_cast<std::size_t>(newLine - p));
        WriteBytes("\r\n", 2);
        left -= static_cast<std::size_t>(newLine + 1 - p);
        p = newLine + 1;
    }
    WriteBytes(p, left);
}

void CStdioFile_E::WriteBytes(const char* pBytes, std::size_t nCount)
{
    m_bAtStart = false;
    CheckStream(::fwrite_unlocked(pBytes, 1, nCount, m_pStream) == nCount);
}

ULONGLONG CStdioFile_E::Seek(LONGLONG lOff, UINT nFrom)
{
    std::FILE& stream = Stream();
    if (nFrom > end)
        AfxThrowInvalidArgException_E();
    const ULONGLONG base = nFrom == begin ? 0 : nFrom == current ? GetPosition() : GetLength();
    LONGLONG target;
    if (__builtin_add_overflow(static_cast<LONGLONG>(base), lOff, &target) || target < 0)
        Check(ERROR_NEGATIVE_SEEK);
    CheckStream(::fseeko(&stream, target, SEEK_SET) == 0);
    m_use = Use::None;
    m_bAtStart = target == 0;
    return static_cast<ULONGLONG>(target);
}

ULONGLONG CStdioFile_E::GetPosition() const
{
    const off_t position = ::ftello(&Stream());
    CheckStream(position >= 0);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile_E::GetLength() const
{
    if (::__fwriting(&Stream()))
        CheckStream(std::fflush(m_pStream) == 0);
    return CFile_E::GetLength();
}

void CStdioFile_E::SetLength(ULONGLONG dwNewLen)
{
    // What has been read ahead as well: it may be cut off.
    CheckStream(std::fflush(&Stream()) == 0);
    Check(vx::detail::setLength(Descriptor(), dwNewLen));
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
}

void CStdioFile_E::Flush()
{
    if (m_pStream && ::__fwriting(m_pStream))
        CheckStream(std::fflush(m_pStream) == 0);
}

CFile_E* CStdioFile_E::Duplicate() const { AfxThrowNotSupportedException_E(); }
void CStdioFile_E::LockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException_E(); }
void CStdioFile_E::UnlockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException_E(); }

/// The next byte with the line ends of the mode; EOF at the end.
int CStdioFile_E::NextByte()
{
    const int byte = ::getc_unlocked(m_pStream);
    if (byte != '\r' || !m_bText)
        return byte;
    const int next = ::getc_unlocked(m_pStream);
    if (next != '\n' && next != EOF)
        std::ungetc(next, m_pStream);
    return next == '\n' ? next : byte;
}

int CStdioFile_E::NextCharacter()
{
    const int lead = NextByte();
    if (lead < 0x80)
        return lead;
    char bytes[4] = {static_cast<char>(lead)};
    const int length = utf8Length(static_cast<BYTE>(lead));
    int got = 1;
    for (int byte; got < length && (byte = ::getc_unlocked(m_pStream)) != EOF;)
        bytes[got++] = static_cast<char>(byte);
    int taken;
    const wchar_t character = decodeCharacter(bytes, static_cast<std::size_t>(got), taken);
    while (got > taken)
        std::ungetc(static_cast<BYTE>(bytes[--got]), m_pStream);
    return character;
}

wchar_t* CStdioFile_E::ReadString(wchar_t* lpsz, UINT nMax)
{
    if (!lpsz || nMax == 0)
        return nullptr;
    TextStream();
    UINT count = 0;
    int character = 0;
    while (count < nMax - 1 && character != '\n' && (character = NextCharacter()) != EOF)
        lpsz[count++] = character;
    CheckRead(true);
    lpsz[count] = L'\0';
    return count != 0 || character != EOF ? lpsz : nullptr;
}

BOOL CStdioFile_E::ReadString(CString_E& rString)
{
    std::FILE& stream = TextStream();
    const ssize_t got = ::getdelim(&m_pLine, &m_nLine, '\n', &stream);
    CheckRead(got >= 0 || ::feof_unlocked(&stream)); // memory may have run out
    if (got <= 0) {
        rString.Empty();
        return FALSE;
    }
    if (got > std::numeric_limits<int>::max())
        AfxThrowMemoryException_E();
    auto length = static_cast<std::size_t>(got);
    if (m_pLine[length - 1] == '\n')
        length -= m_bText && length > 1 && m_pLine[length - 2] == '\r' ? 2 : 1;
    wchar_t* const text = rString.GetBufferSetLength(static_cast<int>(length));
    std::size_t count = 0;
    for (std::size_t i = 0; i < length; ++count) {
        int taken;
        text[count] = decodeCharacter(m_pLine + i, length - i, taken);
        i += static_cast<std::size_t>(taken);
    }
    rString.GetBufferSetLength(static_cast<int>(count));
    return TRUE;
}

void CStdioFile_E::WriteString(const wchar_t* lpsz)
{
    if (!lpsz)
        AfxThrowInvalidArgException_E();
    StreamFor(Use::Writing);
    std::wstring_view text = lpsz;
    if (m_text.size() < text.size() * kLongestCharacter)
        m_text.resize(text.size() * kLongestCharacter);
    char* out = m_text.data();
    while (m_bText) {
        const std::size_t nLine = text.find(L'\n');
        if (nLine == std::wstring_view::npos)
            break;
        out = encode(text.substr(0, nLine), out);
        *out++ = '\r';
        *out++ = '\n';
        text.remove_prefix(nLine + 1);
    }
    out = encode(text, out);
    WriteBytes(m_text.data(), static_cast<std::size_t>(out - m_text.data()));
}
