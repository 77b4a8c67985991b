// Bytes of archives and elements of collections, for the tests of archives and of collections.
#pragma once

#include "support/test.h"

/// Blanks between the digits are for the reader.
inline QByteArray hex(const char* digits) { return QByteArray::fromHex(digits); }

inline QByteArray bytesOf(CMemFile_E& file)
{
    QByteArray bytes(static_cast<int>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// What @p work writes into an archive.
template <typename Work>
QByteArray stored(Work work, int nBufSize = 4096)
{
    CMemFile_E file;
    {
        CArchive_E ar(&file, CArchive_E::store, nBufSize);
        work(ar);
    }
    return bytesOf(file);
}

/// Lets @p work read from @p bytes, and returns how many are left.
template <typename Work>
int load(QByteArray bytes, Work work, int nBufSize = 4096)
{
    CMemFile_E file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive_E ar(&file, CArchive_E::load, nBufSize);
    work(ar);
    ar.Close();
    return bytes.size() - static_cast<int>(file.GetPosition());
}

/// The cause of the archive exception that @p work throws: 0 when it throws none.
template <typename Work>
int causeOf(Work work)
{
    try {
        work();
    } catch (CArchiveException_E* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CArchiveException_E::none;
}

/// The same of reading @p bytes.
template <typename Work>
int loadCause(const QByteArray& bytes, Work work)
{
    return causeOf([&] { load(bytes, work); });
}

/// An element for a number; null where elements are pointers.
template <typename Element>
Element elementOf(std::size_t number)
{
    if constexpr (std::is_pointer_v<Element>)
        return nullptr;
    else if constexpr (std::is_same_v<Element, CString_E>)
        return QString::number(number);
    else
        return static_cast<Element>(number);
}
