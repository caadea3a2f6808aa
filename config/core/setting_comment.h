#pragma once

#include "base/text.h"

namespace ov
{

/// The comment block for a variable: an empty line, "#", the description wrapped at 100 columns
/// with each line after "# ", and "#"; every line ended by "\n". A variable without a description
/// gets the block as well.
Text MakeCommentBlock(TextView description);

} // namespace ov
