#pragma once

#include "document/core/variable_facts.h"

namespace ov
{

/// The facts about a variable from the pages: its kind, its list format, and the comment that the dialog
/// writes for it. Default values for a variable that no page has.
VariableFacts FactsOfPages(TextView name);

} // namespace ov
