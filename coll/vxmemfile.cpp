#include <VxMFCEmu/coll/memfile.h>

#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/sys/errorcodes.h>

#include <QtCore/QFile>

#include <algorithm>
#include <cstdint>
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
    return ReportOpen(ERROR_NOT_SUPPORTED, lpszFileName, pError);
}

UINT CMemFile_E::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0 || m_nPosition >= m_nFileSize)
        return 0;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    const auto count = std::min<std::size_t>(nCount, m_nFileSize - m_nPosition);
    Memcpy(static_cast<BYTE*>(lpBuf), m_lpBuffer + m_nPosition, count);
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
    if (newPosition > m_nBufferSize) {
        // What is written may be part of the block, which moves.
        const auto offset =
            reinterpret_cast<std::uintptr_t>(lpBuf) - reinterpret_cast<std::uintptr_t>(m_lpBuffer);
        const bool bOwnBytes = m_lpBuffer && offset < m_nBufferSize;
        GrowFile(newPosition);
        if (bOwnBytes)
            lpBuf = m_lpBuffer + offset;
    }
    if (m_nPosition > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    Memcpy(m_lpBuffer + m_nPosition, static_cast<const BYTE*>(lpBuf), nCount);
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
        AfxThrowFileException_E(CFileException_E::badSeek, ERROR_NEGATIVE_SEEK,
                                m_strFileName.GetString());
    m_nPosition = static_cast<std::size_t>(target);
    return m_nPosition;
}

void CMemFile_E::SetLength(ULONGLONG dwNewLen)
{
    if (dwNewLen > m_nBufferSize)
        GrowFile(dwNewLen);
    if (dwNewLen > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, dwNewLen - m_nFileSize);
    m_nFileSize = dwNewLen;
    m_nPosition = std::min<SIZE_T>(m_nPosition, dwNewLen);
}

void CMemFile_E::Close()
{
    // The destructor means the base's own.
    if (m_bAutoDelete && m_lpBuffer)
        Free(m_lpBuffer); // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall)
    m_lpBuffer = nullptr;
    m_nBufferSize = m_nFileSize = m_nPosition = 0;
    m_bAutoDelete = true;
}

BOOL CMemFile_E::GetStatus(CFileStatus_E& rStatus) const
{
    rStatus = {};
    rStatus.m_size = m_nFileSize;
    const auto length = static_cast<std::size_t>(m_strFileName.GetLength());
    if (length < CFileStatus_E::kMaxPath)
        std::copy_n(m_strFileName.GetString(), length, rStatus.m_szFullName);
    return TRUE;
}

CFile_E* CMemFile_E::Duplicate() const { AfxThrowNotSupportedException_E(); }
void CMemFile_E::LockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException_E(); }
void CMemFile_E::UnlockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException_E(); }

BYTE* CMemFile_E::Alloc(SIZE_T nBytes) { return static_cast<BYTE*>(std::malloc(nBytes)); }

BYTE* CMemFile_E::Realloc(BYTE* lpMem, SIZE_T nBytes)
{
    return static_cast<BYTE*>(std::realloc(lpMem, nBytes));
}

void CMemFile_E::Free(BYTE* lpMem) { std::free(lpMem); }

BYTE* CMemFile_E::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes)
{
    // The caller's memory may be part of the block.
    return static_cast<BYTE*>(std::memmove(lpMemTarget, lpMemSource, nBytes));
}

void CMemFile_E::GrowFile(SIZE_T dwNewLen)
{
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0)
        AfxThrowMemoryException_E();
    // Doubled as well, so that many small writes do not copy the block each time.
    const SIZE_T wanted = std::max(dwNewLen, m_nBufferSize * 2);
    const SIZE_T steps = (wanted - 1) / m_nGrowBytes + 1;
    SIZE_T bytes;
    if (__builtin_mul_overflow(steps, SIZE_T{m_nGrowBytes}, &bytes))
        AfxThrowMemoryException_E();
    BYTE* const pBlock = m_lpBuffer ? Realloc(m_lpBuffer, bytes) : Alloc(bytes);
    if (!pBlock)
        AfxThrowMemoryException_E();
    m_lpBuffer = pBlock;
    m_nBufferSize = bytes;
}
