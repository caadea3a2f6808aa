#pragma once

#include "base/text.h"
#include "match/core/match_status.h"

#include <cstddef>
#include <cstdint>

namespace ov
{

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
///
/// Each set is a null-terminated text of characters and may be null: those skipped before the token,
/// trimmed from its end, removed within it, those that end it and are consumed, and those that end
/// it and are not. `qualifier` points to the one quote character or is null. Between qualifiers a stop
/// has no effect, and a doubled qualifier is a literal one.
std::size_t ExtractToken(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                         const char16_t* trailingTrim, const char16_t* remove, const char16_t* consumedStops,
                         const char16_t* keptStops, const char16_t* qualifier, std::size_t capacity);

/// Like ExtractToken, into a text that grows as needed; a capacity of 0 means 512. The source
/// may contain NUL characters. Throws std::bad_alloc, because a caller must not mistake a part of a
/// list for the whole.
std::size_t ExtractTokenString(Text& token, TextView source, const char16_t* leadingSkip,
                               const char16_t* trailingTrim, const char16_t* remove,
                               const char16_t* consumedStops, const char16_t* keptStops,
                               const char16_t* qualifier, std::size_t capacity);

/// Reads one piece from the front of the source into the destination, without any quoting: at most
/// `limit` characters of the source are examined. The sets are those of ExtractToken. Returns the index
/// just past the consumed stop, the index of a kept stop, or the number of characters read if there
/// was no stop; 0 for an empty or null source.
std::size_t SplitAlternative(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                             const char16_t* trailingTrim, const char16_t* remove,
                             const char16_t* consumedStops, const char16_t* keptStops, std::size_t limit);

} // namespace ov
