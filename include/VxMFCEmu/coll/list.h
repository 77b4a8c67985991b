/// @file list.h
/// A doubly linked list of elements of any type.
///
/// A `POSITION` names one element until that is removed, whatever else is inserted or removed.
/// Inserting and removing at a position take constant time. A null position, and the ends of an
/// empty list, throw the invalid-argument exception where an element is needed.
///
/// Differs from MFC: adding a list to itself doubles it.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/coll/elements.h>
#include <VxMFCEmu/coll/nodepool.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/core/position.h>

namespace vx::detail {

struct ListLink
{
    ListLink* pNext;
    ListLink* pPrev;
};

/// The links of a list, without its elements.
class VXMFC_EXPORT LinkChain
{
public:
    INT_PTR Count() const { return m_nCount; }
    ListLink* Head() const { return m_pHead; }
    ListLink* Tail() const { return m_pTail; }
    /// The node at an index; null outside.
    ListLink* At(INT_PTR nIndex) const;

    /// Links a node in before another, at the end before null.
    void Insert(ListLink* pLink, ListLink* pBefore)
    {
        ListLink* const pPrev = pBefore ? pBefore->pPrev : m_pTail;
        pLink->pNext = pBefore;
        pLink->pPrev = pPrev;
        (pBefore ? pBefore->pPrev : m_pTail) = pLink;
        (pPrev ? pPrev->pNext : m_pHead) = pLink;
        ++m_nCount;
    }
    void Remove(ListLink* pLink)
    {
        (pLink->pPrev ? pLink->pPrev->pNext : m_pHead) = pLink->pNext;
        (pLink->pNext ? pLink->pNext->pPrev : m_pTail) = pLink->pPrev;
        --m_nCount;
    }

private:
    ListLink* m_pHead = nullptr;
    ListLink* m_pTail = nullptr;
    INT_PTR m_nCount = 0;
};

} // namespace vx::detail

/// A list of @p TYPE, whose members take elements as @p ARG_TYPE. Not copyable.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList_E : public CObject_E
{
public:
    using BASE_TYPE = TYPE;         ///< what the list keeps
    using BASE_ARG_TYPE = ARG_TYPE; ///< what its members take

    /// Memory is taken for @p nBlockSize elements at a time; below 2 means 64.
    explicit CList_E(INT_PTR nBlockSize = 10) : m_pool(nBlockSize) {}
    ~CList_E() override { RemoveAll(); }

    /// The number of elements.
    INT_PTR GetCount() const { return m_chain.Count(); }
    /// As GetCount().
    INT_PTR GetSize() const { return m_chain.Count(); }
    /// Whether there are no elements.
    BOOL IsEmpty() const { return m_chain.Count() == 0; }

    /// The first element; a reference is valid until that is removed.
    TYPE& GetHead() { return Data(m_chain.Head()); }
    /// The same, to be read.
    const TYPE& GetHead() const { return Data(m_chain.Head()); }
    /// The last element; a reference is valid until that is removed.
    TYPE& GetTail() { return Data(m_chain.Tail()); }
    /// The same, to be read.
    const TYPE& GetTail() const { return Data(m_chain.Tail()); }
    /// Takes out the first element and returns it.
    TYPE RemoveHead() { return TakeOut(m_chain.Head()); }
    /// Takes out the last element and returns it.
    TYPE RemoveTail() { return TakeOut(m_chain.Tail()); }

    /// Adds a first element and returns its position.
    POSITION AddHead(ARG_TYPE newElement)
    {
        return Insert(m_chain.Head(), std::forward<ARG_TYPE>(newElement));
    }
    /// Adds a last element and returns its position.
    POSITION AddTail(ARG_TYPE newElement)
    {
        return Insert(nullptr, std::forward<ARG_TYPE>(newElement));
    }
    /// Adds the elements of a list before the first, in their order; it may be this one. Null
    /// throws the invalid-argument exception.
    void AddHead(const CList_E* pNewList) { InsertList(m_chain.Head(), pNewList); }
    /// The same behind the last element.
    void AddTail(const CList_E* pNewList) { InsertList(nullptr, pNewList); }
    /// Drops all elements and frees the memory.
    void RemoveAll();

    /// The first element's position; null for an empty list.
    POSITION GetHeadPosition() const { return ToPosition(m_chain.Head()); }
    /// The last element's position; null for an empty list.
    POSITION GetTailPosition() const { return ToPosition(m_chain.Tail()); }
    /// The element at @p rPosition, which moves on to the next one, null at the end.
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &Link::pNext); }
    /// The same, to be read.
    const TYPE& GetNext(POSITION& rPosition) const { return Step(rPosition, &Link::pNext); }
    /// The element at @p rPosition, which moves on to the previous one, null at the start.
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &Link::pPrev); }
    /// The same, to be read.
    const TYPE& GetPrev(POSITION& rPosition) const { return Step(rPosition, &Link::pPrev); }

    /// The element at a position; a reference is valid until that is removed.
    TYPE& GetAt(POSITION position) { return Data(ToLink(position)); }
    /// The same, to be read.
    const TYPE& GetAt(POSITION position) const { return Data(ToLink(position)); }
    /// Overwrites an element, which keeps its position.
    void SetAt(POSITION position, ARG_TYPE newElement)
    {
        Data(ToLink(position)) = std::forward<ARG_TYPE>(newElement);
    }
    /// Drops an element; the position means nothing from then on.
    void RemoveAt(POSITION position) { Drop(&Required(ToLink(position))); }
    /// Inserts before an element; before null, at the head.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        return Insert(position ? ToLink(position) : m_chain.Head(),
                      std::forward<ARG_TYPE>(newElement));
    }
    /// Inserts after an element; after null, at the tail.
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        return Insert(position ? ToLink(position)->pNext : nullptr,
                      std::forward<ARG_TYPE>(newElement));
    }

    /// The first element that CompareElements() finds equal, of those after @p startAfter when that
    /// is given; null when there is none.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// The position of the element at an index from 0; null when there is none.
    POSITION FindIndex(INT_PTR nIndex) const { return ToPosition(m_chain.At(nIndex)); }

    /// Writes or reads the number of elements and each one, through SerializeElements(). What is
    /// read is added at the end.
    void Serialize(CArchive_E& ar) override;
    /// Writes the number of elements, and the elements at a depth above 0.
    void Dump(CDumpContext_E& dc) const override;

private:
    using Link = vx::detail::ListLink;
    struct Node : Link
    {
        Node() {}  // NOLINT(modernize-use-equals-default): the element is made later
        ~Node() {} // NOLINT(modernize-use-equals-default)
        union
        {
            TYPE data;
        };
    };

    static POSITION ToPosition(Link* pLink) { return reinterpret_cast<POSITION>(pLink); }
    static Link* ToLink(POSITION position) { return reinterpret_cast<Link*>(position); }
    static Node& Required(Link* pLink)
    {
        if (!pLink)
            AfxThrowInvalidArgException_E();
        return *static_cast<Node*>(pLink);
    }
    static TYPE& Data(Link* pLink) { return Required(pLink).data; }
    static TYPE& Step(POSITION& rPosition, Link* Link::*pDirection)
    {
        Node& node = Required(ToLink(rPosition));
        rPosition = ToPosition(node.*pDirection);
        return node.data;
    }
    template <class ARG>
    POSITION Insert(Link* pBefore, ARG&& newElement);
    void InsertList(Link* pBefore, const CList_E* pNewList);
    void Drop(Node* pNode);
    TYPE TakeOut(Link* pLink);

    vx::detail::LinkChain m_chain;
    vx::detail::NodePool<Node> m_pool;
};

template <class TYPE, class ARG_TYPE>
void CList_E<TYPE, ARG_TYPE>::RemoveAll()
{
    for (Link* pLink = m_chain.Head(); pLink; pLink = pLink->pNext)
        DestructElements<TYPE>(&static_cast<Node*>(pLink)->data, 1);
    m_chain = {};
    m_pool.FreeAll();
}

template <class TYPE, class ARG_TYPE>
POSITION CList_E<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const
{
    Link* pLink = startAfter ? ToLink(startAfter)->pNext : m_chain.Head();
    while (pLink && !CompareElements(&static_cast<Node*>(pLink)->data, &searchValue))
        pLink = pLink->pNext;
    return ToPosition(pLink);
}

template <class TYPE, class ARG_TYPE>
void CList_E<TYPE, ARG_TYPE>::Serialize(CArchive_E& ar)
{
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<DWORD_PTR>(GetCount()));
        for (POSITION position = GetHeadPosition(); position;)
            SerializeElements<TYPE>(ar, &GetNext(position), 1);
        return;
    }
    for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; --nLeft) {
        TYPE element{};
        SerializeElements<TYPE>(ar, &element, 1);
        Insert(nullptr, std::move(element));
    }
}

template <class TYPE, class ARG_TYPE>
void CList_E<TYPE, ARG_TYPE>::Dump(CDumpContext_E& dc) const
{
    CObject_E::Dump(dc);
    dc << L"with " << GetCount() << L" elements";
    for (POSITION position = GetHeadPosition(); dc.GetDepth() > 0 && position;) {
        dc << L"\n";
        DumpElements<TYPE>(dc, &GetNext(position), 1);
    }
    dc << L"\n";
}

template <class TYPE, class ARG_TYPE>
template <class ARG>
POSITION CList_E<TYPE, ARG_TYPE>::Insert(Link* pBefore, ARG&& newElement)
{
    Node* const pNode = m_pool.Make([&newElement](Node& node) {
        vx::detail::makeElement(&node.data, std::forward<ARG>(newElement));
    });
    m_chain.Insert(pNode, pBefore);
    return ToPosition(pNode);
}

template <class TYPE, class ARG_TYPE>
void CList_E<TYPE, ARG_TYPE>::InsertList(Link* pBefore, const CList_E* pNewList)
{
    if (!pNewList)
        AfxThrowInvalidArgException_E();
    const Link* pLink = pNewList->m_chain.Head();
    // By number, because this list may be the other one.
    for (INT_PTR nLeft = pNewList->GetCount(); nLeft > 0; --nLeft, pLink = pLink->pNext)
        Insert(pBefore, static_cast<const Node*>(pLink)->data);
}

template <class TYPE, class ARG_TYPE>
void CList_E<TYPE, ARG_TYPE>::Drop(Node* pNode)
{
    m_chain.Remove(pNode);
    DestructElements<TYPE>(&pNode->data, 1);
    m_pool.Free(pNode);
}

template <class TYPE, class ARG_TYPE>
TYPE CList_E<TYPE, ARG_TYPE>::TakeOut(Link* pLink)
{
    TYPE element(std::move(Data(pLink)));
    Drop(static_cast<Node*>(pLink));
    return element;
}
