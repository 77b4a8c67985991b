/// @file mapptrtoptr.h
/// A hash map from pointers to pointers.
///
/// Differs from MFC: the number of buckets is where the table starts; it grows with the content, so
/// that looking up stays fast.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/core/fixedalloc.h>
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/core/position.h>

/// Maps pointers to pointers; owns neither.
class VXMFC_EXPORT CMapPtrToPtr_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMapPtrToPtr_E)

    /// Room for associations is made @p nBlockSize at a time; values below 2 mean 64.
    explicit CMapPtrToPtr_E(INT_PTR nBlockSize = 10);
    ~CMapPtrToPtr_E() override;

    /// @{
    /// The number of associations, or whether there are none.
    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    /// @}

    /// Finds @p key; FALSE, leaving @p rValue alone, when it is not there.
    BOOL Lookup(void* key, void*& rValue) const;
    /// The value of @p key, entered as null when it is not there; valid until the key is removed.
    /// Throws the memory exception when there is no room.
    void*& operator[](void* key);
    /// Enters or overwrites.
    void SetAt(void* key, void* newValue) { (*this)[key] = newValue; }
    /// Takes one key out; FALSE when it is not there.
    BOOL RemoveKey(void* key);
    /// Takes everything out and frees the memory.
    void RemoveAll();

    /// The start of a walk in no particular order; null when the map is empty.
    POSITION GetStartPosition() const;
    /// Gives the association at @p rNextPosition and moves on; the one given may be removed before
    /// the next call. A null position gives nothing.
    void GetNextAssoc(POSITION& rNextPosition, void*& rKey, void*& rValue) const;

    /// The number of buckets.
    UINT GetHashTableSize() const { return m_nHashTableSize; }
    /// Sets the number of buckets, at least 1, and makes the table now or at the first insertion;
    /// what the map holds stays.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

private:
    struct Assoc;

    UINT BucketOf(const void* key) const;
    Assoc* Find(const void* key) const;
    Assoc* FirstFrom(UINT nBucket) const;
    void MakeTable(UINT nSize);

    Assoc** m_pHashTable = nullptr;
    UINT m_nHashTableSize = 17;
    INT_PTR m_nCount = 0;
    CFixedAllocNoSync_E m_alloc;
};

/// The cache of type libraries: a map that adds nothing.
class VXMFC_EXPORT CTypeLibCacheMap_E : public CMapPtrToPtr_E
{
public:
    ~CTypeLibCacheMap_E() override;
};
