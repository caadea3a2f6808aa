#pragma once

#include "base/text.h"

namespace ov
{

/// The comment block for a variable: an empty line, "#", the description wrapped at 100 columns
/// with "# " before each line, and "#". Every line ends with "\n". A variable without a description
/// also gets the block.
Text MakeCommentBlock(TextView description);

} // namespace ov
