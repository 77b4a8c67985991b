// Names with wildcards as Win32 matches them.
#pragma once

#include <string>
#include <string_view>

namespace vx::detail {

/// The pattern that the wildcards of a name mean, for matchesWildcards().
std::u32string wildcardsOf(std::u32string_view name);
/// Whether a name is one that the pattern means, without regard to case.
bool matchesWildcards(std::u32string_view pattern, std::u32string_view name);

} // namespace vx::detail
