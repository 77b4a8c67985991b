/// @file unserialized.h
/// What the ready collections that are not serialised have in common.
#pragma once

#include <VxMFCEmu/core/object.h>

namespace vx::detail {

/// A collection whose elements mean nothing outside the process: it is not read or written.
template <class Collection>
class Unserialized : public Collection
{
public:
    using Collection::Collection;
    void Serialize(CArchive_E& ar) override { CObject_E::Serialize(ar); }
};

} // namespace vx::detail
