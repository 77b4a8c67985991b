#include <VxMFCEmu/coll/file.h>

#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QFile>

#include <algorithm>
#include <cerrno>

IMPLEMENT_DYNAMIC_E(CStdioFile_E, CFile_E, QFile)

namespace {

constexpr qint64 kLongestSequence = 4;

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// Number of bytes of the first @p characters characters.
int bytesOf(const QByteArray& line, UINT characters)
{
    UINT seen = 0;
    const auto* const cut = std::find_if(line.cbegin(), line.cend(), [&](char byte) {
        return startsCharacter(byte) && seen++ == characters;
    });
    return static_cast<int>(cut - line.cbegin());
}

} // namespace

CStdioFile_E::CStdioFile_E() = default;
CStdioFile_E::~CStdioFile_E() = default;

CStdioFile_E::CStdioFile_E(const wchar_t* lpszFileName, UINT nOpenFlags)
{
    CFileException_E error;
    if (!CStdioFile_E::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException_E(error.m_cause, error.m_lOsError, lpszFileName);
}

BOOL CStdioFile_E::Open(const wchar_t* lpszFileName, UINT nOpenFlags, CFileException_E* pError)
{
    m_bText = (nOpenFlags & typeBinary) == 0;
    return OpenFile(lpszFileName, nOpenFlags, pError, QIODevice::NotOpen);
}

wchar_t* CStdioFile_E::ReadString(wchar_t* lpsz, UINT nMax)
{
    if (!lpsz || nMax == 0)
        return nullptr;
    const UINT room = nMax - 1;
    // More, to see the "\n" of an "\r\n" whose "\r" is the last that fits; Qt reads no less than
    // two.
    QByteArray line = ReadLine(room * kLongestSequence + 2);
    if (line.isEmpty())
        return nullptr;
    const int length = line.size();
    int taken = bytesOf(line, room);
    if (m_bText && line.endsWith("\r\n") && taken >= length - 1) {
        line.replace(length - 2, 2, "\n");
        taken = length;
    }
    if (taken < length)
        Seek(taken - length, current);
    const CString_E text(QString::fromUtf8(line.constData(), std::min(taken, line.size())));
    const auto count = std::min<std::size_t>(static_cast<std::size_t>(text.GetLength()), room);
    std::copy_n(text.GetString(), count, lpsz);
    lpsz[count] = L'\0';
    return lpsz;
}

BOOL CStdioFile_E::ReadString(CString_E& rString)
{
    QByteArray line = ReadLine(0);
    const bool read = !line.isEmpty();
    if (line.endsWith('\n'))
        line.chop(m_bText && line.endsWith("\r\n") ? 2 : 1);
    rString = QString::fromUtf8(line);
    return read;
}

void CStdioFile_E::WriteString(const wchar_t* lpsz)
{
    if (!lpsz)
        AfxThrowInvalidArgException_E();
    const QByteArray bytes = VxQString(lpsz).toUtf8();
    Write(bytes.constData(), static_cast<UINT>(bytes.size()));
}

QByteArray CStdioFile_E::ReadLine(qint64 nMaxBytes)
{
    static const QByteArray byteOrderMark("\xEF\xBB\xBF");
    QFile& file = File(QIODevice::ReadOnly);
    errno = 0;
    if (file.pos() == 0 && file.peek(byteOrderMark.size()) == byteOrderMark)
        file.seek(byteOrderMark.size());
    QByteArray line = file.readLine(nMaxBytes);
    if (line.isEmpty() && file.error() == QFileDevice::ReadError)
        ThrowError(errno != 0 ? errno : EIO);
    return line;
}
