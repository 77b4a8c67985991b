/// @file map.h
/// A hash map of keys and values of any type.
///
/// Keys are found with HashKey<ARG_KEY>() and CompareElements(), which an application may
/// specialise. References to values, and pairs, stay valid until their key is removed. A walk has
/// no particular order; the association that it gave last may be removed, a new key may make it
/// miss some or meet them again.
///
/// Differs from MFC: the number of buckets is where the table starts; it grows with the content, so
/// that looking up stays fast.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/coll/elements.h>
#include <VxMFCEmu/coll/nodepool.h>
#include <VxMFCEmu/core/position.h>

namespace vx::detail {

struct HashLink
{
    HashLink* pNext;
    UINT nHash;
};

/// The buckets of a map, without its keys and values.
class VXMFC_EXPORT HashTable
{
public:
    HashTable() = default;
    ~HashTable() { Clear(); }
    HashTable(const HashTable&) = delete;
    HashTable& operator=(const HashTable&) = delete;

    INT_PTR Count() const { return m_nCount; }
    UINT Size() const { return m_nSize; }
    /// Sets the number of buckets; the nodes stay. Throws the memory exception.
    void SetSize(UINT nSize, bool bAllocNow);
    /// The first node that may have a hash.
    HashLink* Chain(UINT nHash) const
    {
        return m_ppBuckets ? m_ppBuckets[IndexOf(nHash)] : nullptr;
    }
    /// Makes sure that one more node can be linked in; throws the memory exception.
    void MakeRoom()
    {
        if (!m_ppBuckets || m_nCount >= m_nSize)
            Grow();
    }
    /// Links in a node whose hash is set; MakeRoom() comes first.
    void Insert(HashLink* pLink)
    {
        HashLink*& pHead = m_ppBuckets[IndexOf(pLink->nHash)];
        pLink->pNext = pHead;
        pHead = pLink;
        ++m_nCount;
    }
    void Remove(HashLink* pLink);
    /// Forgets the nodes and frees the buckets.
    void Clear();

    HashLink* First() const { return m_nCount != 0 ? FirstFrom(0) : nullptr; }
    HashLink* Next(const HashLink* pLink) const
    {
        return pLink->pNext ? pLink->pNext : FirstFrom(IndexOf(pLink->nHash) + 1);
    }

private:
    /// Spreads hashes that differ in a few bits only over all buckets, whatever their number.
    UINT IndexOf(UINT nHash) const
    {
        const UINT nSpread = nHash * 0x9E3779B1U;
        return static_cast<UINT>((std::uint64_t{nSpread} * m_nSize) >> 32);
    }
    HashLink* FirstFrom(UINT nBucket) const;
    void Grow();
    void Rehash(UINT nSize);

    HashLink** m_ppBuckets = nullptr;
    UINT m_nSize = 17;
    INT_PTR m_nCount = 0;
};

} // namespace vx::detail

/// Maps @p KEY to @p VALUE; members take them as @p ARG_KEY and @p ARG_VALUE. Not copyable.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap_E : public CObject_E
{
public:
    /// @{
    /// The types that the template was given.
    using BASE_KEY = KEY;
    using BASE_ARG_KEY = ARG_KEY;
    using BASE_VALUE = VALUE;
    using BASE_ARG_VALUE = ARG_VALUE;
    /// @}

    /// An association; belongs to its map.
    struct CPair
    {
        const KEY key; ///< fixed, for it decides the bucket
        VALUE value;   ///< may be overwritten

    protected:
        /// Made by the map alone, with a default value.
        explicit CPair(ARG_KEY keyval) : key(std::forward<ARG_KEY>(keyval)), value() {}
    };

    /// Memory is taken for @p nBlockSize associations at a time; below 2 means 64.
    explicit CMap_E(INT_PTR nBlockSize = 10) : m_pool(nBlockSize) {}
    ~CMap_E() override { RemoveAll(); }

    /// @{
    /// The number of associations, or whether there are none.
    INT_PTR GetCount() const { return m_table.Count(); }
    INT_PTR GetSize() const { return m_table.Count(); }
    BOOL IsEmpty() const { return m_table.Count() == 0; }
    /// @}

    /// Copies the value of @p key; FALSE, leaving @p rValue alone, when it is not there.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    /// @{
    /// The association of @p key; null when it is not there.
    const CPair* PLookup(ARG_KEY key) const { return Find(key, Hash(key)); }
    CPair* PLookup(ARG_KEY key) { return Find(key, Hash(key)); }
    /// @}
    /// The value of @p key, entered with a default one when it is not there.
    VALUE& operator[](ARG_KEY key);
    /// Enters or overwrites.
    void SetAt(ARG_KEY key, ARG_VALUE newValue)
    {
        (*this)[std::forward<ARG_KEY>(key)] = std::forward<ARG_VALUE>(newValue);
    }
    /// Takes one key out; FALSE when it is not there.
    BOOL RemoveKey(ARG_KEY key);
    /// Takes everything out and frees the memory.
    void RemoveAll();

    /// The start of a walk; null when the map is empty.
    POSITION GetStartPosition() const { return ToPosition(First()); }
    /// Copies the association at @p rNextPosition, which moves on, to null at the end. A null
    /// position gives nothing.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;
    /// @{
    /// The same walk over the associations themselves: the first one, and the one after @p pAssoc,
    /// which must still be there; null at the end and for null.
    const CPair* PGetFirstAssoc() const { return First(); }
    CPair* PGetFirstAssoc() { return First(); }
    const CPair* PGetNextAssoc(const CPair* pAssoc) const { return After(pAssoc); }
    CPair* PGetNextAssoc(const CPair* pAssoc) { return After(pAssoc); }
    /// @}

    /// The number of buckets.
    UINT GetHashTableSize() const { return m_table.Size(); }
    /// Sets the number of buckets, at least 1, and makes the table now or at the first insertion;
    /// what the map holds stays.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE)
    {
        m_table.SetSize(hashSize, bAllocNow != FALSE);
    }

    /// Writes or reads the number of associations and each key and value, through
    /// SerializeElements(). What is read is entered beside what is there.
    void Serialize(CArchive_E& ar) override;
    /// Writes the number of associations, and these at a depth above 0.
    void Dump(CDumpContext_E& dc) const override;

private:
    using Link = vx::detail::HashLink;
    using KeyRef = std::add_lvalue_reference_t<ARG_KEY>;
    struct Assoc : Link, CPair
    {
        Assoc(ARG_KEY keyval, UINT nKeyHash)
            : Link{nullptr, nKeyHash}, CPair(std::forward<ARG_KEY>(keyval))
        {
        }
    };

    // A copy where HashKey() takes a value: the key itself is still needed.
    static UINT Hash(KeyRef key) { return HashKey<ARG_KEY>(key); }
    static POSITION ToPosition(Link* pLink) { return reinterpret_cast<POSITION>(pLink); }
    static Assoc* ToAssoc(Link* pLink) { return static_cast<Assoc*>(pLink); }
    Assoc* First() const { return ToAssoc(m_table.First()); }
    Assoc* After(const CPair* pAssoc) const
    {
        return pAssoc ? ToAssoc(m_table.Next(static_cast<const Assoc*>(pAssoc))) : nullptr;
    }
    Assoc* Find(KeyRef key, UINT nHash) const;
    static void End(Assoc* pAssoc);

    vx::detail::HashTable m_table;
    vx::detail::NodePool<Assoc> m_pool;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const
{
    const Assoc* const pAssoc = Find(key, Hash(key));
    if (pAssoc)
        rValue = pAssoc->value;
    return pAssoc != nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    const UINT nHash = Hash(key);
    if (Assoc* const pFound = Find(key, nHash))
        return pFound->value;
    m_table.MakeRoom();
    Assoc* const pAssoc = m_pool.Make([](Assoc&) {}, std::forward<ARG_KEY>(key), nHash);
    m_table.Insert(pAssoc);
    return pAssoc->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    Assoc* const pAssoc = Find(key, Hash(key));
    if (!pAssoc)
        return FALSE;
    m_table.Remove(pAssoc);
    End(pAssoc);
    m_pool.Free(pAssoc);
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    for (Assoc* pAssoc = First(); pAssoc;) {
        Assoc* const pNext = After(pAssoc);
        End(pAssoc);
        pAssoc = pNext;
    }
    m_table.Clear();
    m_pool.FreeAll();
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey,
                                                          VALUE& rValue) const
{
    const Assoc* const pAssoc = ToAssoc(reinterpret_cast<Link*>(rNextPosition));
    if (!pAssoc)
        return;
    rKey = pAssoc->key;
    rValue = pAssoc->value;
    rNextPosition = ToPosition(After(pAssoc));
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::Serialize(CArchive_E& ar)
{
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<DWORD_PTR>(GetCount()));
        for (Assoc* pAssoc = First(); pAssoc; pAssoc = After(pAssoc)) {
            SerializeElements<KEY>(ar, const_cast<KEY*>(&pAssoc->key), 1);
            SerializeElements<VALUE>(ar, &pAssoc->value, 1);
        }
        return;
    }
    for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; --nLeft) {
        KEY key{};
        VALUE value{};
        SerializeElements<KEY>(ar, &key, 1);
        SerializeElements<VALUE>(ar, &value, 1);
        (*this)[static_cast<ARG_KEY>(key)] = std::move(value);
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::Dump(CDumpContext_E& dc) const
{
    CObject_E::Dump(dc);
    dc << L"with " << GetCount() << L" elements";
    for (const Assoc* pAssoc = First(); dc.GetDepth() > 0 && pAssoc; pAssoc = After(pAssoc)) {
        dc << L"\n\t[";
        DumpElements<KEY>(dc, &pAssoc->key, 1);
        dc << L"] = ";
        DumpElements<VALUE>(dc, &pAssoc->value, 1);
    }
    dc << L"\n";
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::Assoc*
CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::Find(KeyRef key, UINT nHash) const
{
    for (Link* pLink = m_table.Chain(nHash); pLink; pLink = pLink->pNext) {
        if (pLink->nHash == nHash && CompareElements(&ToAssoc(pLink)->key, &key))
            return ToAssoc(pLink);
    }
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::End(Assoc* pAssoc)
{
    DestructElements<KEY>(const_cast<KEY*>(&pAssoc->key), 1);
    DestructElements<VALUE>(&pAssoc->value, 1);
}
