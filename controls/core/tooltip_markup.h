#pragma once

#include "base/text.h"

#include <array>
#include <cstddef>

namespace ov
{

/// The sections of a help text. Each begins with its tag and ends at the next
/// tag or at the end of the text. The values are indices of TooltipTags.
enum class TooltipSection : std::size_t { Heading, Variable, Description, SubHeading };

/// The tags, by section; matched ignoring case.
inline constexpr std::array<TextView, 4> TooltipTags{u"<H>", u"<T>", u"<D>", u"<S>"};

/// The first section of that kind at or after `position`. Moves `position` to the
/// section's end, so that successive calls visit repeated sections. If there is none,
/// `position` does not change; only this distinguishes a missing section from an
/// empty one. The result points into `text`.
TextView ExtractSection(TextView text, TooltipSection section, std::size_t& position);

/// The name of the configuration variable that the help text describes; may be empty.
Text VariableName(TextView text);

/// The help text's first description; may be empty.
Text Description(TextView text);

} // namespace ov
