/// @file typedptr.h
/// The ready collections of pointers, seen as collections of pointers to one type.
///
/// Nothing checks that what is taken out through these has the type: what goes in through the base
/// class must be of it.
///
/// Threads: as the base class.
#pragma once

#include <VxMFCEmu/coll/arrays.h>
#include <VxMFCEmu/coll/lists.h>
#include <VxMFCEmu/coll/maps.h>

namespace vx::detail {

/// A typed view of a place that holds a pointer of another type; the compiler is told so.
template <class TYPE, class Stored>
auto& asTyped(Stored& stored)
{
    static_assert(std::is_pointer_v<TYPE> && std::is_pointer_v<Stored>);
    using Typed [[gnu::may_alias]] = TYPE;
    return reinterpret_cast<Typed&>(stored);
}
template <class Member>
struct MapMember;
template <class Map, class Result, class Arg>
struct MapMember<Result (Map::*)(Arg)>
{
    using ResultType = Result;
    using ArgType = Arg;
};

} // namespace vx::detail

/// CPtrArray_E or CObArray_E with elements of the pointer type @p TYPE.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray_E : public BASE_CLASS
{
    // So that an array of arrays takes an element for an element.
    using Stored = typename BASE_CLASS::BASE_TYPE;

public:
    /// @{
    /// As the members of CArray_E, for pointers of the type.
    TYPE GetAt(INT_PTR nIndex) const { return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE& ElementAt(INT_PTR nIndex)
    {
        return vx::detail::asTyped<TYPE>(BASE_CLASS::ElementAt(nIndex));
    }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray_E& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray_E& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, Stored(newElement), nCount);
    }
    void InsertAt(INT_PTR nStartIndex, const CTypedPtrArray_E* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    /// @}
};

/// CPtrList_E or CObList_E with elements of the pointer type @p TYPE.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList_E : public BASE_CLASS
{
    // So that a list of lists takes an element for an element.
    using Stored = typename BASE_CLASS::BASE_TYPE;

public:
    /// Memory is taken for @p nBlockSize elements at a time; below 2 means 64.
    explicit CTypedPtrList_E(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    /// @{
    /// As the members of CList_E, for pointers of the type.
    TYPE& GetHead() { return vx::detail::asTyped<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return vx::detail::asTyped<TYPE>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(Stored(newElement)); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(Stored(newElement)); }
    void AddHead(const CTypedPtrList_E* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(const CTypedPtrList_E* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition)
    {
        return vx::detail::asTyped<TYPE>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE GetNext(POSITION& rPosition) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE& GetPrev(POSITION& rPosition)
    {
        return vx::detail::asTyped<TYPE>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE GetPrev(POSITION& rPosition) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE& GetAt(POSITION position)
    {
        return vx::detail::asTyped<TYPE>(BASE_CLASS::GetAt(position));
    }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION position, TYPE newElement) { BASE_CLASS::SetAt(position, newElement); }
    /// @}
};

/// A ready map with keys of type @p KEY and values of type @p VALUE, pointers where those of the
/// map are.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap_E : public BASE_CLASS
{
    using BaseKey = typename vx::detail::MapMember<decltype(&BASE_CLASS::RemoveKey)>::ArgType;
    using BaseValue = std::remove_reference_t<
        typename vx::detail::MapMember<decltype(&BASE_CLASS::operator[])>::ResultType>;

public:
    /// Memory is taken for @p nBlockSize associations at a time; below 2 means 64.
    explicit CTypedPtrMap_E(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    /// @{
    /// As the members of CMap_E, for keys and values of the types.
    BOOL Lookup(BaseKey key, VALUE& rValue) const
    {
        BaseValue value{};
        const BOOL bFound = BASE_CLASS::Lookup(key, value);
        if (bFound)
            rValue = static_cast<VALUE>(value);
        return bFound;
    }
    VALUE& operator[](BaseKey key)
    {
        if constexpr (std::is_same_v<VALUE, BaseValue>)
            return BASE_CLASS::operator[](key);
        else
            return vx::detail::asTyped<VALUE>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        static_assert(!std::is_same_v<StoredKey, CString_E> || std::is_same_v<KEY, CString_E>);
        if (!rPosition)
            return;
        StoredKey key{};
        BaseValue value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = static_cast<KEY>(key);
        rValue = static_cast<VALUE>(value);
    }
    /// @}

private:
    // Texts are handed in as pointers and kept as strings.
    using StoredKey = std::conditional_t<std::is_same_v<BaseKey, LPCWSTR>, CString_E, BaseKey>;
};
