#pragma once

#include "base/text.h"

#include <span>

namespace ov
{

/// One string of the library's string table.
struct StringRow {
    unsigned id;
    const char16_t* text;
};

/// Every string that the resource compiler puts into the library, from the
/// same rows, for programs that run without the library.
std::span<const StringRow> StringTable();

/// The string with that id; empty if there is none.
TextView FindString(unsigned id);

} // namespace ov
