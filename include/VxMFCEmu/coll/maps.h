/// @file maps.h
/// The ready maps between pointers, words, strings and objects. CMapPtrToPtr_E is the core's.
///
/// A map owns its strings, but not what its pointers point to. Those with plain pointers are not
/// serialised. Texts are compared as they stand; a null one counts as empty.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/coll/map.h>
#include <VxMFCEmu/coll/serial.h>
#include <VxMFCEmu/coll/unserialized.h>
#include <VxMFCEmu/core/mapptrtoptr.h>

namespace vx::detail {

/// What the ready maps add to the general one.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class ReadyMap : public CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>
{
public:
    using CMap_E<KEY, ARG_KEY, VALUE, ARG_VALUE>::CMap_E;
    /// The hash of a key.
    UINT HashKey(ARG_KEY key) const { return ::HashKey<ARG_KEY>(key); }
};

/// What the ready maps from strings add to that.
template <class VALUE, class ARG_VALUE>
class StringMap : public ReadyMap<CString_E, LPCWSTR, VALUE, ARG_VALUE>
{
public:
    using ReadyMap<CString_E, LPCWSTR, VALUE, ARG_VALUE>::ReadyMap;
    /// Gives the map's own copy of a key, valid until that is removed; FALSE, leaving @p rKey
    /// alone, when it is not there.
    BOOL LookupKey(LPCWSTR key, LPCWSTR& rKey) const
    {
        const auto* const pPair = this->PLookup(key);
        if (pPair)
            rKey = pPair->key.GetString();
        return pPair != nullptr;
    }
};

} // namespace vx::detail

class VXMFC_EXPORT CMapPtrToWord_E
    : public vx::detail::Unserialized<vx::detail::ReadyMap<void*, void*, WORD, WORD>>
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMapPtrToWord_E)
    using Unserialized::Unserialized;
};

class VXMFC_EXPORT CMapWordToPtr_E
    : public vx::detail::Unserialized<vx::detail::ReadyMap<WORD, WORD, void*, void*>>
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMapWordToPtr_E)
    using Unserialized::Unserialized;
};

class VXMFC_EXPORT CMapWordToOb_E : public vx::detail::ReadyMap<WORD, WORD, CObject_E*, CObject_E*>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CMapWordToOb_E)
    using ReadyMap::ReadyMap;
};

class VXMFC_EXPORT CMapStringToPtr_E
    : public vx::detail::Unserialized<vx::detail::StringMap<void*, void*>>
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CMapStringToPtr_E)
    using Unserialized::Unserialized;
};

class VXMFC_EXPORT CMapStringToOb_E : public vx::detail::StringMap<CObject_E*, CObject_E*>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CMapStringToOb_E)
    using StringMap::StringMap;
};

class VXMFC_EXPORT CMapStringToString_E : public vx::detail::StringMap<CString_E, LPCWSTR>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CMapStringToString_E)
    using StringMap::StringMap;
};
