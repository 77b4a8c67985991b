/// @file memberoffset.h
/// Where a data member lies in its class. Not for callers.
#pragma once

#include <cstddef>
#include <cstring>

namespace vx::detail {

/// The offset of a data member in bytes, also for classes that offsetof is not made for.
template <typename Class, typename Member>
std::size_t offsetOfMember(Member Class::*pMember)
{
    // The platform's ABI represents a pointer to a data member as its offset.
    static_assert(sizeof(pMember) == sizeof(std::size_t));
    std::size_t offset = 0;
    std::memcpy(&offset, &pMember, sizeof(offset));
    return offset;
}

} // namespace vx::detail
