#pragma once

#include "base/text.h"
#include "config/core/setting_table.h"
#include "controls/core/list_text.h"

#include <functional>
#include <optional>

namespace ov
{

/// What is known of a variable besides a file: what the pages say of their settings. The defaults hold
/// for a variable that no page has.
struct VariableFacts {
    std::optional<SettingKind> kind; ///< Absent: the kind follows from the value, as for the reader.
    bool isList = false;             ///< A list for certain; else it is one when it has a separator.
    ListFormat list;                 ///< How entries are put into its value.
    Text comment; ///< The comment block that the dialog gives it when it is new; empty for none.
};

/// Gives the facts of a variable by its name.
using FactsOf = std::function<VariableFacts(TextView name)>;

} // namespace ov
