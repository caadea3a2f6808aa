#pragma once

#include "match/core/match_status.h"

#include <cstddef>
#include <cstdint>

namespace ov
{

// Functions on null-terminated texts in buffers of a fixed size. They are part of the
// design's contract and used by tests only. The program uses ov::Text and
// ExtractTokenString.

/// The first occurrence of the needle among the haystack's first `limit` characters, ignoring the
/// case of a to z. Null if there is none, if a text is null, if the limit is 0, or if the needle is
/// longer than the haystack.
const char16_t* FindNoCase(const char16_t* haystack, const char16_t* needle, std::size_t limit);

/// Writes the source into the destination with every occurrence of `find` replaced: at most
/// `capacity` characters and a terminator. With a nonzero case flag the search is case-sensitive.
/// Destination and source may be the same buffer. Returns kMatchDone if at least one occurrence was
/// replaced; otherwise, and if an argument is null or memory runs out, kMatchFailed. A source without an
/// occurrence is copied unchanged.
std::uint32_t ReplaceAll(char16_t* destination, const char16_t* source, const char16_t* find,
                         const char16_t* replacement, std::size_t capacity, int caseFlag);

/// Reads one token from the front of the source into the destination: at most `capacity`
/// characters and a terminator. Returns the number of source characters consumed, where the next
/// token begins; 0 with an empty token for an empty or null source and if memory runs out.
/// The sets and the qualifier are those of ExtractTokenString.
std::size_t ExtractToken(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                         const char16_t* trailingTrim, const char16_t* remove, const char16_t* consumedStops,
                         const char16_t* keptStops, const char16_t* qualifier, std::size_t capacity);

} // namespace ov
