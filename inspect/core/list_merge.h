#pragma once

#include "document/core/list_entries.h"

#include <optional>

namespace ov
{

/// Merges two lists that were changed from a common one, entry by entry: what one side removed is gone,
/// what one side added is there, behind the same entry as on that side. Where one side changed the
/// order, its order holds. Nothing when both did, differently.
std::optional<ListEntries> MergeEntries(const ListEntries& base, const ListEntries& ours,
                                        const ListEntries& theirs, const ListFormat& format);

} // namespace ov
