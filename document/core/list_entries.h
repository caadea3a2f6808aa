#pragma once

#include "base/text.h"
#include "controls/core/list_text.h"

#include <vector>

namespace ov
{

/// The entries of a list value, with the blanks and qualifiers that they have there.
using ListEntries = std::vector<Text>;

/// The entries of a list value; empty ones too.
ListEntries EntriesOf(TextView value, const ListFormat& format);

/// The entries as a value.
Text JoinEntries(const ListEntries& entries, const ListFormat& format);

/// An entry as it is compared with others: without the blanks around it and without its qualifiers.
Text EntryKey(TextView entry, const ListFormat& format);

} // namespace ov
