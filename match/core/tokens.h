#pragma once

#include "base/text.h"
#include "match/core/match_status.h"

#include <cstddef>
#include <cstdint>

namespace ov
{

/// The first occurrence of the needle among the haystack's first `limit` characters, compared
/// without regard to case. Null when there is none, when a text is null, when the limit is 0 and
/// when the needle is longer than the haystack.
const char16_t* FindNoCase(const char16_t* haystack, const char16_t* needle, std::size_t limit);

/// Writes the source into the destination with every occurrence of `find` replaced: at most
/// `capacity` characters and a terminator. A nonzero case flag makes the search exact. Destination
/// and source may be one buffer. kMatchDone when at least one occurrence was replaced; else, and
/// when an argument is null or memory runs out, kMatchFailed. Without an occurrence the source is copied
/// unchanged.
std::uint32_t ReplaceAll(char16_t* destination, const char16_t* source, const char16_t* find,
                         const char16_t* replacement, std::size_t capacity, int caseFlag);

/// Reads one token from the front of the source into the destination: at most `capacity`
/// characters and a terminator. Gives the number of source characters consumed, where the next
/// token begins; 0 with an empty token for an empty or null source and when memory runs out.
///
/// Each set is a text of characters and may be null: those skipped before the token, those trimmed
/// from its end, those removed within it, those that end it and are consumed, those that end it
/// and are left. `qualifier` points at the one quote character or is null: stops count for nothing
/// between qualifiers, and a doubled qualifier means one.
std::size_t ExtractToken(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                         const char16_t* trailingTrim, const char16_t* remove, const char16_t* consumedStops,
                         const char16_t* keptStops, const char16_t* qualifier, std::size_t capacity);

/// As ExtractToken, into a text that grows as needed; a capacity of 0 means 512. The source
/// may hold NUL characters. Throws std::bad_alloc when memory runs out: its callers must not take a
/// part of a list for the whole.
std::size_t ExtractTokenString(Text& token, TextView source, const char16_t* leadingSkip,
                               const char16_t* trailingTrim, const char16_t* remove,
                               const char16_t* consumedStops, const char16_t* keptStops,
                               const char16_t* qualifier, std::size_t capacity);

/// Reads one piece from the front of the source into the destination, without any quoting: at most
/// `limit` characters of the source are looked at. The sets are ExtractToken's. Gives the index
/// just past the consumed stop, the index of a kept stop, or the number of characters read when
/// there was no stop; 0 for an empty or null source.
std::size_t SplitAlternative(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                             const char16_t* trailingTrim, const char16_t* remove,
                             const char16_t* consumedStops, const char16_t* keptStops, std::size_t limit);

} // namespace ov
