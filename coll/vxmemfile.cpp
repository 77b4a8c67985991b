#include <VxMFCEmu/coll/file.h>

#include <VxMFCEmu/core/exceptions.h>

#include <QtCore/QFile>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <utility>

IMPLEMENT_DYNAMIC_E(CMemFile_E, CFile_E, QFile)

CMemFile_E::CMemFile_E(UINT nGrowBytes) : m_nGrowBytes(nGrowBytes) {}

CMemFile_E::CMemFile_E(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : m_nGrowBytes(nGrowBytes)
{
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile_E::~CMemFile_E() { CMemFile_E::Close(); }

void CMemFile_E::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    CMemFile_E::Close();
    m_lpBuffer = lpBuffer;
    m_nBufferSize = lpBuffer ? nBufferSize : 0;
    m_nFileSize = nGrowBytes == 0 ? m_nBufferSize : 0;
    m_nGrowBytes = nGrowBytes;
    m_bAutoDelete = false;
}

BYTE* CMemFile_E::Detach()
{
    BYTE* const lpBuffer = std::exchange(m_lpBuffer, nullptr);
    CMemFile_E::Close();
    return lpBuffer;
}

BOOL CMemFile_E::Open(const wchar_t* lpszFileName, UINT, CFileException_E* pError)
{
    if (pError) {
        pError->m_cause = CFileException_E::genericException;
        pError->m_lOsError = ENOTSUP;
        pError->m_strFileName = lpszFileName;
    }
    return FALSE;
}

UINT CMemFile_E::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0 || m_nPosition >= m_nFileSize)
        return 0;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    const auto count = std::min<std::size_t>(nCount, m_nFileSize - m_nPosition);
    std::memcpy(lpBuf, m_lpBuffer + m_nPosition, count);
    m_nPosition += count;
    return static_cast<UINT>(count);
}

void CMemFile_E::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    if (nCount > std::numeric_limits<std::size_t>::max() - m_nPosition)
        AfxThrowMemoryException_E();
    const std::size_t newPosition = m_nPosition + nCount;
    GrowFile(newPosition);
    if (m_nPosition > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    std::memmove(m_lpBuffer + m_nPosition, lpBuf, nCount);
    m_nPosition = newPosition;
    m_nFileSize = std::max(m_nFileSize, newPosition);
}

ULONGLONG CMemFile_E::Seek(LONGLONG lOff, UINT nFrom)
{
    if (nFrom > end)
        AfxThrowInvalidArgException_E();
    const std::size_t base = nFrom == begin ? 0 : nFrom == current ? m_nPosition : m_nFileSize;
    LONGLONG target;
    if (__builtin_add_overflow(static_cast<LONGLONG>(base), lOff, &target) || target < 0)
        AfxThrowFileException_E(CFileException_E::badSeek, EINVAL, m_strFileName.GetString());
    m_nPosition = static_cast<std::size_t>(target);
    return m_nPosition;
}

void CMemFile_E::SetLength(ULONGLONG dwNewLen)
{
    GrowFile(dwNewLen);
    if (dwNewLen > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, dwNewLen - m_nFileSize);
    m_nFileSize = dwNewLen;
    m_nPosition = dwNewLen;
}

void CMemFile_E::Close()
{
    if (m_bAutoDelete)
        std::free(m_lpBuffer);
    m_lpBuffer = nullptr;
    m_nBufferSize = m_nFileSize = m_nPosition = 0;
    m_bAutoDelete = true;
}

void CMemFile_E::GrowFile(std::size_t nNewSize)
{
    if (nNewSize <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0)
        AfxThrowMemoryException_E();
    // Doubled as well, so that many small writes do not copy the block each time.
    const std::size_t wanted = std::max(nNewSize, m_nBufferSize * 2);
    const std::size_t steps = (wanted - 1) / m_nGrowBytes + 1;
    std::size_t bytes;
    void* const pBlock =
        __builtin_mul_overflow(steps, static_cast<std::size_t>(m_nGrowBytes), &bytes)
            ? nullptr
            : std::realloc(m_lpBuffer, bytes);
    if (!pBlock)
        AfxThrowMemoryException_E();
    m_lpBuffer = static_cast<BYTE*>(pBlock);
    m_nBufferSize = bytes;
}
