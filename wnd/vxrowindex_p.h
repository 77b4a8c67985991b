// Not part of the public interface.
//
// Index of a constexpr table whose rows carry small ids: one byte an id, made at compile time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vx::detail {

/// Row number + 1 by id; 0 for an id below @p Size without a row.
template <std::size_t Size, typename Row, std::size_t Count>
constexpr std::array<std::uint8_t, Size> indexRows(const Row (&rows)[Count])
{
    static_assert(Count < 256);
    std::array<std::uint8_t, Size> index{};
    for (std::size_t i = 0; i < Count; ++i)
        index[static_cast<std::size_t>(rows[i].id)] = static_cast<std::uint8_t>(i + 1);
    return index;
}

} // namespace vx::detail
