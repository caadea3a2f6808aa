#pragma once

#include "document/core/list_entries.h"

#include <optional>

namespace ov
{

/// Merges two lists that were derived from a common base, entry by entry: entries removed on one side are
/// removed, entries added on one side are added after the same entry as on that side. If one side changed
/// the order, its order is used. Nothing if both changed it, in different ways.
std::optional<ListEntries> MergeEntries(const ListEntries& base, const ListEntries& ours,
                                        const ListEntries& theirs, const ListFormat& format);

} // namespace ov
