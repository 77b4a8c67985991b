#include <VxMFCEmu/coll/archive.h>

#include "coll/vxarchivetables_p.h"

#include <VxMFCEmu/core/exceptions.h>

#include <algorithm>
#include <new>

// Numbers go into the buffer as they lie in memory.
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__);

namespace {

constexpr int kMinBufferSize = 128;

} // namespace

CArchive_E::CArchive_E(CFile_E* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pFile(pFile), m_nMode(nMode)
{
    if (!pFile)
        AfxThrowInvalidArgException_E();
    m_strFileName = pFile->GetFilePath();
    if (!lpBuf || nBufSize < kMinBufferSize) {
        nBufSize = std::max(nBufSize, kMinBufferSize);
        m_pOwnBuffer.reset(new (std::nothrow) BYTE[static_cast<std::size_t>(nBufSize)]);
        if (!m_pOwnBuffer)
            AfxThrowMemoryException_E();
        lpBuf = m_pOwnBuffer.get();
    }
    m_pBuffer = static_cast<BYTE*>(lpBuf);
    m_nBufferSize = static_cast<std::size_t>(nBufSize);
    if (IsLoading()) {
        m_pRead = m_pReadEnd = m_pBuffer;
    } else {
        m_pWrite = m_pBuffer;
        m_pWriteEnd = m_pBuffer + m_nBufferSize;
    }
}

CArchive_E::~CArchive_E()
{
    // After a failed write it is not known how much of the buffer is in the file.
    if ((m_nMode & bNoFlushOnDelete) != 0 || m_bWriteFailed)
        return;
    try {
        Close();
    } catch (CException_E* e) {
        e->Delete();
    } catch (...) { // a file of the program's may throw anything
    }
}

UINT CArchive_E::Read(void* lpBuf, UINT nMax)
{
    CheckLoading();
    if (nMax == 0)
        return 0;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    auto* const pTarget = static_cast<BYTE*>(lpBuf);
    std::size_t nDone = 0;
    const auto takeBuffered = [&] {
        const auto nPart = std::min<std::size_t>(nMax - nDone, BytesLeft());
        std::memcpy(pTarget + nDone, m_pRead, nPart);
        m_pRead += nPart;
        nDone += nPart;
    };
    takeBuffered();
    while (nMax - nDone >= m_nBufferSize) {
        const UINT nRead = m_pFile->Read(pTarget + nDone, static_cast<UINT>(nMax - nDone));
        if (nRead == 0)
            return static_cast<UINT>(nDone);
        nDone += nRead;
    }
    if (nDone < nMax) {
        Fill(nMax - nDone);
        takeBuffered();
    }
    return static_cast<UINT>(nDone);
}

void CArchive_E::EnsureRead(void* lpBuf, UINT nCount)
{
    if (Read(lpBuf, nCount) != nCount)
        Throw(CArchiveException_E::endOfFile);
}

void CArchive_E::Write(const void* lpBuf, UINT nMax)
{
    CheckStoring();
    if (nMax == 0)
        return;
    if (!lpBuf)
        AfxThrowInvalidArgException_E();
    if (nMax > static_cast<std::size_t>(m_pWriteEnd - m_pWrite))
        MakeRoom();
    if (nMax >= m_nBufferSize) {
        WriteFile(lpBuf, nMax);
        return;
    }
    std::memcpy(m_pWrite, lpBuf, nMax);
    m_pWrite += nMax;
}

void CArchive_E::Flush()
{
    CheckOpen();
    if (IsStoring()) {
        MakeRoom();
        return;
    }
    if (const std::size_t nAhead = BytesLeft(); nAhead != 0)
        m_pFile->Seek(-static_cast<LONGLONG>(nAhead), CFile_E::current);
    m_pRead = m_pReadEnd = m_pBuffer;
}

void CArchive_E::Close()
{
    if (!m_pFile)
        return;
    Flush();
    Abort();
}

void CArchive_E::Abort() noexcept
{
    m_pFile = nullptr;
    m_pRead = m_pReadEnd = m_pWrite = m_pWriteEnd = nullptr;
}

void CArchive_E::Throw(int cause) const { AfxThrowArchiveException_E(cause, m_strFileName); }

void CArchive_E::CheckOpen() const
{
    if (!m_pFile)
        Throw(CArchiveException_E::genericException);
}

void CArchive_E::CheckStoring() const
{
    if (IsLoading())
        Throw(CArchiveException_E::readOnly);
    CheckOpen();
}

void CArchive_E::CheckLoading() const
{
    if (IsStoring())
        Throw(CArchiveException_E::writeOnly);
    CheckOpen();
}

void CArchive_E::MakeRoom()
{
    CheckStoring();
    // How much of the buffer is in the file is not known.
    if (m_bWriteFailed)
        Throw(CArchiveException_E::genericException);
    if (const auto nBytes = static_cast<UINT>(m_pWrite - m_pBuffer); nBytes != 0)
        WriteFile(m_pBuffer, nBytes);
    m_pWrite = m_pBuffer;
}

void CArchive_E::WriteFile(const void* lpBuf, UINT nCount)
{
    m_bWriteFailed = true; // unless it returns
    m_pFile->Write(lpBuf, nCount);
    m_bWriteFailed = false;
}

bool CArchive_E::Fill(std::size_t nBytes)
{
    CheckLoading();
    const std::size_t nLeft = BytesLeft();
    if (nLeft != 0)
        std::memmove(m_pBuffer, m_pRead, nLeft);
    m_pRead = m_pBuffer;
    m_pReadEnd = m_pBuffer + nLeft;
    while (BytesLeft() < nBytes) {
        const std::size_t nFree = m_nBufferSize - BytesLeft();
        const UINT nRead = m_pFile->Read(m_pReadEnd, static_cast<UINT>(nFree));
        if (nRead == 0)
            return false;
        m_pReadEnd += nRead;
    }
    return true;
}

void CArchive_E::Require(std::size_t nBytes)
{
    if (!Fill(nBytes))
        Throw(CArchiveException_E::endOfFile);
}
