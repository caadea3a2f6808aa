#pragma once

#include "base/text.h"
#include "config/core/setting_table.h"
#include "controls/core/list_text.h"

#include <functional>
#include <optional>

namespace ov
{

/// What is known about a variable from the pages, independent of any file. The default values apply
/// to a variable that no page has.
struct VariableFacts {
    std::optional<SettingKind> kind; ///< Nothing: the kind is derived from the value, as the reader does.
    bool isList = false;             ///< Known to be a list; otherwise it is one if it contains a separator.
    ListFormat list;                 ///< How entries are stored in its value.
    Text comment; ///< The comment block that the dialog writes for it when it is new; may be empty.
};

/// Returns the facts about a variable by name.
using FactsOf = std::function<VariableFacts(TextView name)>;

} // namespace ov
