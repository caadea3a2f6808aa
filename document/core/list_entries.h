#pragma once

#include "base/text.h"
#include "controls/core/list_text.h"

#include <vector>

namespace ov
{

/// The entries of a list value, including blanks and qualifiers.
using ListEntries = std::vector<Text>;

/// The entries of a list value, including empty ones.
ListEntries EntriesOf(TextView value, const ListFormat& format);

/// Joins the entries to a value.
Text JoinEntries(const ListEntries& entries, const ListFormat& format);

/// An entry as used in comparisons: without surrounding blanks and without its qualifiers.
Text EntryKey(TextView entry, const ListFormat& format);

} // namespace ov
