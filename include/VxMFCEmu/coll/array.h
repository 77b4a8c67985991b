/// @file array.h
/// An array of elements of any type that grows at need.
///
/// An index outside the array throws the invalid-argument exception, as every negative number does;
/// too large a size throws the memory exception.
///
/// Differs from MFC: the room at least doubles when it grows, so that appending stays fast; the
/// amount asked for is a minimum. Elements are moved by their constructors, not bit by bit.
/// Appending an array to itself doubles it.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/coll/elements.h>
#include <VxMFCEmu/core/exceptions.h>

#include <algorithm>
#include <cstdlib>

namespace vx::detail {

template <class TYPE>
// NOLINTNEXTLINE(bugprone-sizeof-expression): pointers are elements, too.
inline constexpr std::size_t kSizeOf = sizeof(TYPE);

/// The block @p p, null for none, with room for @p nCount elements of @p cbElement bytes; throws
/// the memory exception, leaving the block alone, when there is none. Owned by the caller (`free`).
VXMFC_EXPORT void* resizeBlock(void* p, INT_PTR nCount, std::size_t cbElement);
/// How many elements to make room for when @p nNeeded do not fit into @p nPresent.
VXMFC_EXPORT INT_PTR grownCapacity(INT_PTR nNeeded, INT_PTR nPresent, INT_PTR nGrowBy) noexcept;
/// The sum of two counts; throws the memory exception when there is none.
VXMFC_EXPORT INT_PTR addCounts(INT_PTR n1, INT_PTR n2);

} // namespace vx::detail

/// An array of @p TYPE, whose members take elements as @p ARG_TYPE. Not copyable; see Copy().
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray_E : public CObject_E
{
public:
    using BASE_TYPE = TYPE;         ///< what the array keeps
    using BASE_ARG_TYPE = ARG_TYPE; ///< what its members take

    CArray_E() = default;
    ~CArray_E() override { RemoveAll(); }

    /// The number of elements.
    INT_PTR GetSize() const { return m_nSize; }
    /// As GetSize().
    INT_PTR GetCount() const { return m_nSize; }
    /// Whether there are no elements.
    BOOL IsEmpty() const { return m_nSize == 0; }
    /// The last index; -1 for an empty array.
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    /// Drops elements at the end or adds ones made by default; 0 frees the memory. A @p nGrowBy
    /// that is not negative is the least number of elements to add room for from now on.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    /// Gives back the room that is not used.
    void FreeExtra();
    /// Drops all elements and frees the memory.
    void RemoveAll() { SetSize(0); }

    /// The element at an index; a reference is valid until elements are added or removed.
    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    /// The same, to be changed.
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    /// Overwrites an element that is there; see SetAtGrow() for others.
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement)
    {
        m_pData[Checked(nIndex)] = std::forward<ARG_TYPE>(newElement);
    }
    /// As GetAt().
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    /// As GetAt().
    TYPE& ElementAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    /// As GetAt().
    const TYPE& operator[](INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    /// As GetAt().
    TYPE& operator[](INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    /// The elements, valid until the array's size changes; null while there is no memory for any.
    const TYPE* GetData() const { return m_pData; }
    /// The same, to be changed.
    TYPE* GetData() { return m_pData; }

    /// Sets an element, first growing the array when it does not reach that far.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// Adds an element at the end and returns its index.
    INT_PTR Add(ARG_TYPE newElement)
    {
        if (m_nSize == m_nMaxSize)
            return AddGrowing(std::forward<ARG_TYPE>(newElement));
        vx::detail::makeElement(m_pData + m_nSize, std::forward<ARG_TYPE>(newElement));
        return m_nSize++;
    }
    /// Adds the elements of @p src, which may be this array, and returns the index of the first.
    INT_PTR Append(const CArray_E& src);
    /// Makes this an array of the same elements.
    void Copy(const CArray_E& src);

    /// Inserts @p nCount copies of an element; behind the end the array first grows up to @p
    /// nIndex.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    /// Inserts the elements of @p pNewArray, which may be this array; null throws the
    /// invalid-argument exception.
    void InsertAt(INT_PTR nStartIndex, const CArray_E* pNewArray);
    /// Drops @p nCount elements, all of which must be there.
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    /// Writes or reads the number of elements and these, through SerializeElements(). More elements
    /// than take 64 KiB are read in several calls of it: memory is taken only as the bytes come in.
    /// After a failure the elements that were read are there.
    void Serialize(CArchive_E& ar) override;
    /// Writes the number of elements, and the elements at a depth above 0.
    void Dump(CDumpContext_E& dc) const override;

private:
    INT_PTR Checked(INT_PTR nIndex) const
    {
        if (static_cast<UINT_PTR>(nIndex) >= static_cast<UINT_PTR>(m_nSize))
            AfxThrowInvalidArgException_E();
        return nIndex;
    }
    INT_PTR AddGrowing(ARG_TYPE newElement);
    void Load(CArchive_E& ar, DWORD_PTR nCount);
    void OpenGap(INT_PTR nIndex, INT_PTR nCount);
    void MakeRoomFor(INT_PTR nNeeded);
    void Reallocate(INT_PTR nMaxSize);

protected:
    TYPE* m_pData = nullptr; ///< the elements; owned, from `malloc`
    INT_PTR m_nSize = 0;     ///< how many there are
    INT_PTR m_nMaxSize = 0;  ///< for how many there is room
    INT_PTR m_nGrowBy = 0;   ///< as SetSize() has set it
};

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nNewSize < 0)
        AfxThrowInvalidArgException_E();
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    MakeRoomFor(nNewSize);
    if (nNewSize > m_nSize)
        ConstructElements<TYPE>(m_pData + m_nSize, nNewSize - m_nSize);
    else if (nNewSize < m_nSize)
        DestructElements<TYPE>(m_pData + nNewSize, m_nSize - nNewSize);
    m_nSize = nNewSize;
    if (nNewSize == 0)
        FreeExtra();
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nSize != 0 && m_nSize != m_nMaxSize) {
        Reallocate(m_nSize);
    } else if (m_nSize == 0) {
        std::free(std::exchange(m_pData, nullptr));
        m_nMaxSize = 0;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    if (nIndex < m_nSize)
        return SetAt(nIndex, std::forward<ARG_TYPE>(newElement));
    vx::detail::withCopy<TYPE>(std::forward<ARG_TYPE>(newElement), [&](TYPE& copy) {
        SetSize(vx::detail::addCounts(nIndex, 1));
        m_pData[nIndex] = std::move(copy);
    });
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray_E<TYPE, ARG_TYPE>::AddGrowing(ARG_TYPE newElement)
{
    vx::detail::withCopy<TYPE>(std::forward<ARG_TYPE>(newElement), [&](TYPE& copy) {
        MakeRoomFor(m_nSize + 1);
        vx::detail::makeElement(m_pData + m_nSize, std::move(copy));
    });
    return m_nSize++;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray_E<TYPE, ARG_TYPE>::Append(const CArray_E& src)
{
    const INT_PTR nOldSize = m_nSize;
    const INT_PTR nAdded = src.m_nSize;
    SetSize(vx::detail::addCounts(nOldSize, nAdded));
    CopyElements<TYPE>(m_pData + nOldSize, src.m_pData, nAdded);
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::Copy(const CArray_E& src)
{
    if (this == &src)
        return;
    SetSize(src.m_nSize);
    CopyElements<TYPE>(m_pData, src.m_pData, src.m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    vx::detail::withCopy<TYPE>(std::forward<ARG_TYPE>(newElement), [&](const TYPE& copy) {
        OpenGap(nIndex, nCount);
        std::fill_n(m_pData + nIndex, nCount, copy);
    });
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, const CArray_E* pNewArray)
{
    if (!pNewArray)
        AfxThrowInvalidArgException_E();
    const INT_PTR nCount = pNewArray->m_nSize;
    if (nCount == 0 && nStartIndex >= 0)
        return;
    OpenGap(nStartIndex, nCount);
    // The gap may have cut this very array in two.
    const INT_PTR nFirst = pNewArray == this ? std::min(nCount, nStartIndex) : nCount;
    CopyElements<TYPE>(m_pData + nStartIndex, pNewArray->m_pData, nFirst);
    if (nFirst < nCount)
        CopyElements<TYPE>(m_pData + nStartIndex + nFirst, m_pData + nFirst + nCount,
                           nCount - nFirst);
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0 || nCount > m_nSize - nIndex)
        AfxThrowInvalidArgException_E();
    TYPE* const pFirst = m_pData + nIndex;
    TYPE* const pEnd = m_pData + m_nSize;
    // What is removed must be what DestructElements() gets to see.
    if constexpr (std::is_move_constructible_v<TYPE>)
        std::rotate(pFirst, pFirst + nCount, pEnd);
    else
        std::move(pFirst + nCount, pEnd, pFirst);
    DestructElements<TYPE>(pEnd - nCount, nCount);
    m_nSize -= nCount;
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::Serialize(CArchive_E& ar)
{
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<DWORD_PTR>(m_nSize));
        SerializeElements<TYPE>(ar, m_pData, m_nSize);
    } else {
        Load(ar, ar.ReadCount());
    }
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::Load(CArchive_E& ar, DWORD_PTR nCount)
{
    constexpr DWORD_PTR nPiece = std::max<DWORD_PTR>(0x10000 / vx::detail::kSizeOf<TYPE>, 1);
    DWORD_PTR nDone = 0;
    do {
        const DWORD_PTR nNow = std::min(nCount - nDone, std::max(nPiece, nDone));
        SetSize(static_cast<INT_PTR>(nDone + nNow));
        SerializeElements<TYPE>(ar, m_pData + nDone, static_cast<INT_PTR>(nNow));
        nDone += nNow;
    } while (nDone < nCount);
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::Dump(CDumpContext_E& dc) const
{
    CObject_E::Dump(dc);
    dc << L"with " << m_nSize << L" elements";
    if (dc.GetDepth() > 0) {
        dc << L"\n";
        DumpElements<TYPE>(dc, m_pData, m_nSize);
    }
    dc << L"\n";
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::OpenGap(INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0)
        AfxThrowInvalidArgException_E();
    const INT_PTR nOldSize = m_nSize;
    SetSize(vx::detail::addCounts(std::max(nIndex, nOldSize), nCount));
    if (nIndex < nOldSize)
        std::move_backward(m_pData + nIndex, m_pData + nOldSize, m_pData + m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::MakeRoomFor(INT_PTR nNeeded)
{
    if (nNeeded > m_nMaxSize)
        Reallocate(vx::detail::grownCapacity(nNeeded, m_nMaxSize, m_nGrowBy));
}

template <class TYPE, class ARG_TYPE>
void CArray_E<TYPE, ARG_TYPE>::Reallocate(INT_PTR nMaxSize)
{
    using namespace vx::detail;
    static_assert(alignof(TYPE) <= alignof(std::max_align_t));
    if constexpr (std::is_trivially_copyable_v<TYPE>) {
        m_pData = static_cast<TYPE*>(resizeBlock(m_pData, nMaxSize, kSizeOf<TYPE>));
    } else {
        auto* const pNew = static_cast<TYPE*>(resizeBlock(nullptr, nMaxSize, kSizeOf<TYPE>));
        INT_PTR nMade = 0;
        try {
            for (; nMade < m_nSize; ++nMade)
                makeElement(pNew + nMade, std::move_if_noexcept(m_pData[nMade]));
        } catch (...) {
            std::destroy_n(pNew, nMade);
            std::free(pNew);
            throw;
        }
        std::destroy_n(m_pData, m_nSize);
        std::free(std::exchange(m_pData, pNew));
    }
    m_nMaxSize = nMaxSize;
}
