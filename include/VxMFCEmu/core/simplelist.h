/// @file simplelist.h
/// A singly linked list through a link field inside the elements.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/types.h>

/// Links elements that it does not own. Their link field lies at one byte offset in all of them.
class VXMFC_EXPORT CSimpleList_E
{
public:
    /// An empty list of elements whose link field lies at this offset.
    explicit CSimpleList_E(std::size_t nNextOffset = 0) : m_nNextOffset(nNextOffset) {}

    /// Sets the offset of the link field; only while the list is empty.
    void Construct(std::size_t nNextOffset) { m_nNextOffset = nNextOffset; }

    /// Whether there is no element.
    BOOL IsEmpty() const { return m_pHead == nullptr; }
    /// The first element; null when the list is empty.
    void* GetHead() const { return m_pHead; }
    /// The element after @p p; null for null and for the last one.
    void* GetNext(const void* p) const;
    /// Links @p p in front; null is ignored.
    void AddHead(void* p);
    /// Unlinks the first occurrence of @p p and clears its link; FALSE when it is not there.
    BOOL Remove(void* p);
    /// Forgets the elements without touching them.
    void RemoveAll() { m_pHead = nullptr; }

private:
    void SetNext(void* p, void* pNext) const;

    void* m_pHead = nullptr;
    std::size_t m_nNextOffset;
};
