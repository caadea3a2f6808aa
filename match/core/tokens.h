#pragma once

#include "base/text.h"

#include <cstddef>
#include <cstdint>

namespace ov
{

/// Reads one token of at most `capacity` characters from the front of the source; a capacity of 0
/// means 512. Returns the number of source characters consumed, where the next token begins; 0 with
/// an empty token for an empty source. The source may contain NUL characters. Throws std::bad_alloc,
/// because a caller must not mistake a part of a list for the whole.
///
/// Each set is a null-terminated text of characters and may be null: those skipped before the token,
/// trimmed from its end, removed within it, those that end it and are consumed, and those that end
/// it and are not. `qualifier` points to the one quote character or is null. Between qualifiers a stop
/// has no effect, and a doubled qualifier is a literal one.
std::size_t ExtractTokenString(Text& token, TextView source, const char16_t* leadingSkip,
                               const char16_t* trailingTrim, const char16_t* remove,
                               const char16_t* consumedStops, const char16_t* keptStops,
                               const char16_t* qualifier, std::size_t capacity);

/// Reads one piece from the front of the source into the destination, without any quoting: at most
/// `limit` characters of the source are examined. The sets are those of ExtractTokenString. Returns the index
/// just past the consumed stop, the index of a kept stop, or the number of characters read if there
/// was no stop; 0 for an empty or null source.
std::size_t SplitAlternative(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                             const char16_t* trailingTrim, const char16_t* remove,
                             const char16_t* consumedStops, const char16_t* keptStops, std::size_t limit);

} // namespace ov
