#include "coll/vxwildcards_p.h"

#include <QtCore/QChar>

#include <vector>

namespace {

// Wildcards that no caller can write, as the file system of Windows knows them.
enum Wildcard : char32_t
{
    Any = 0x110000, ///< any characters
    AnyUpToTheDot,  ///< any characters but the last dot of the name
    OneOrNone,      ///< a character, none before a dot and at the end
    DotOrEnd
};

char32_t folded(char32_t character) { return QChar::toUpper(character); }

/// Adds the places of the pattern that can be reached without a character.
void skip(std::u32string_view pattern, bool atDot, bool atEnd, std::vector<bool>& places)
{
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char32_t p = pattern[i];
        if (places[i] && (p == Any || p == AnyUpToTheDot || (p == OneOrNone && (atDot || atEnd)) ||
                          (p == DotOrEnd && atEnd)))
            places[i + 1] = true;
    }
}

/// The places of the pattern behind a character.
std::vector<bool> step(std::u32string_view pattern, const std::vector<bool>& places,
                       char32_t character, bool lastDot)
{
    std::vector<bool> next(places.size());
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (!places[i])
            continue;
        const char32_t p = pattern[i];
        if (p == Any || (p == AnyUpToTheDot && !lastDot))
            next[i] = true;
        else if ((p == OneOrNone && character != U'.') || (p == DotOrEnd && character == U'.') ||
                 (p < Any && folded(p) == folded(character)))
            next[i + 1] = true;
    }
    return next;
}

} // namespace

std::u32string vx::detail::wildcardsOf(std::u32string_view name)
{
    if (name == U"*.*")
        return {Any};
    std::u32string pattern;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool atEnd = i + 1 == name.size();
        const char32_t next = atEnd ? U'\0' : name[i + 1];
        if (name[i] == U'?')
            pattern += char32_t{OneOrNone};
        else if (name[i] == U'*')
            pattern += next == U'.' ? char32_t{AnyUpToTheDot} : char32_t{Any};
        else if (name[i] == U'.' && (next == U'*' || next == U'?'))
            pattern += char32_t{DotOrEnd};
        else if (name[i] == U'.' && atEnd && i > 0 && name[i - 1] == U'*')
            continue; // "*." wants nothing behind its dot
        else
            pattern += name[i];
    }
    return pattern;
}

bool vx::detail::matchesWildcards(std::u32string_view pattern, std::u32string_view name)
{
    std::vector<bool> places(pattern.size() + 1);
    places[0] = true;
    // The dots of "." and ".." begin no extension.
    const std::size_t lastDot = name == U"." || name == U".." ? name.npos : name.rfind(U'.');
    for (std::size_t i = 0; i < name.size(); ++i) {
        skip(pattern, name[i] == U'.', false, places);
        places = step(pattern, places, name[i], i == lastDot);
    }
    skip(pattern, false, true, places);
    return places.back();
}
