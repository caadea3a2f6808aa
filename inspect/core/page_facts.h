#pragma once

#include "document/core/variable_facts.h"

namespace ov
{

/// What the pages say of a variable: its kind, how its list is written, and the comment that the dialog
/// gives it. The defaults for a variable that no page has.
VariableFacts FactsOfPages(TextView name);

} // namespace ov
