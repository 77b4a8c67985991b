/// @file elements.h
/// What the collections do with their elements, as templates that an application may specialise
/// for its own types.
///
/// The collections call these with the element's type, so `template <> UINT HashKey<const CKey&>
/// (const CKey& key)` is what a `CMap_E<CKey, const CKey&, ...>` hashes with. A specialisation must
/// be declared before the collection is used.
///
/// Differs from MFC: floating-point numbers and CString_E are hashed without a specialisation, and
/// pointers to CObject_E are archived as objects. Other elements that are no plain bytes are not
/// archived without one: that throws the not-supported exception.
///
/// Threads: as the elements themselves.
#pragma once

#include <VxMFCEmu/coll/archive.h>
#include <VxMFCEmu/core/dumpcontext.h>
#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/core/object.h>

#include <functional>
#include <memory>
#include <new>

namespace vx::detail {

/// The hash of a text up to its terminator; null counts as empty.
VXMFC_EXPORT UINT hashText(const wchar_t* psz) noexcept;
VXMFC_EXPORT UINT hashText(const char* psz) noexcept;
constexpr UINT foldHash(std::uint64_t value) noexcept
{
    return static_cast<UINT>(value) ^ static_cast<UINT>(value >> 32);
}

/// Writes or reads the bytes of elements, as the archive's direction is.
VXMFC_EXPORT void serializeBytes(CArchive_E& ar, void* pElements, std::size_t nBytes);
/// Writes or reads characters as one UTF-16 code unit each.
VXMFC_EXPORT void serializeUnits(CArchive_E& ar, wchar_t* pElements, INT_PTR nCount);

/// Makes an element at @p pPlace from an argument; one that only takes assignments is made first
/// and then assigned to.
template <class TYPE, class ARG>
void makeElement(TYPE* pPlace, ARG&& arg)
{
    void* const pMemory = const_cast<std::remove_const_t<TYPE>*>(pPlace);
    if constexpr (std::is_convertible_v<ARG&&, TYPE>) {
        ::new (pMemory) TYPE(std::forward<ARG>(arg));
    } else {
        ::new (pMemory) TYPE();
        try {
            *pPlace = std::forward<ARG>(arg);
        } catch (...) {
            std::destroy_at(pPlace);
            throw;
        }
    }
}

/// Calls @p use with a copy of @p arg, which may lie in the collection that @p use changes.
template <class TYPE, class ARG, class Use>
void withCopy(ARG&& arg, const Use& use)
{
    if constexpr (std::is_convertible_v<ARG&&, TYPE>) {
        TYPE copy(std::forward<ARG>(arg));
        use(copy);
    } else {
        TYPE copy{};
        copy = std::forward<ARG>(arg);
        use(copy);
    }
}

} // namespace vx::detail

/// Makes @p nCount elements in raw memory; numbers and pointers are zero.
template <class TYPE>
void ConstructElements(TYPE* pElements, INT_PTR nCount)
{
    std::uninitialized_value_construct_n(pElements, nCount);
}

/// Ends @p nCount elements that leave a collection; the memory stays.
template <class TYPE>
void DestructElements(TYPE* pElements, INT_PTR nCount)
{
    std::destroy_n(pElements, nCount);
}

/// Assigns @p nCount elements of one array to those of another.
template <class TYPE>
void CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    std::copy_n(pSrc, nCount, pDest);
}

/// Whether an element equals what is searched for: by `==`, so pointers to text are compared as
/// pointers.
template <class TYPE, class ARG_TYPE>
BOOL CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

/// The hash of a key: of a text its characters', otherwise what the key converts to as a number.
template <class ARG_KEY>
UINT HashKey(ARG_KEY key)
{
    using Key = std::decay_t<ARG_KEY>;
    if constexpr (std::is_base_of_v<CString_E, Key>)
        return vx::detail::hashText(key.GetString());
    else if constexpr (std::is_same_v<Key, const wchar_t*> || std::is_same_v<Key, wchar_t*> ||
                       std::is_same_v<Key, const char*> || std::is_same_v<Key, char*>)
        return vx::detail::hashText(key);
    else if constexpr (std::is_pointer_v<Key>)
        return vx::detail::foldHash(reinterpret_cast<DWORD_PTR>(key));
    else if constexpr (std::is_floating_point_v<Key>)
        return vx::detail::foldHash(std::hash<Key>()(key));
    else
        return vx::detail::foldHash(static_cast<DWORD_PTR>(key));
}

/// Writes or reads elements: strings, objects and truth values as the archive has them, characters
/// as one UTF-16 code unit each, others bit by bit. A character beyond U+FFFF throws the
/// not-supported exception: a string has room for it.
template <class TYPE>
void SerializeElements(CArchive_E& ar, TYPE* pElements, INT_PTR nCount)
{
    if constexpr (std::is_same_v<TYPE, wchar_t>) {
        vx::detail::serializeUnits(ar, pElements, nCount);
    } else if constexpr (std::is_same_v<TYPE, CString_E> || std::is_same_v<TYPE, CObject_E*> ||
                         std::is_same_v<TYPE, bool>) {
        for (TYPE* const pEnd = pElements + nCount; pElements != pEnd; ++pElements) {
            if (ar.IsStoring())
                ar << *pElements;
            else
                ar >> *pElements;
        }
    } else if constexpr (std::is_trivially_copyable_v<TYPE>) {
        vx::detail::serializeBytes(ar, pElements, static_cast<std::size_t>(nCount) * sizeof(TYPE));
    } else {
        AfxThrowNotSupportedException_E();
    }
}

/// Writes elements to a dump of more than depth 0; the general one writes nothing.
template <class TYPE>
void DumpElements(CDumpContext_E& /*dc*/, const TYPE* /*pElements*/, INT_PTR /*nCount*/)
{
}
