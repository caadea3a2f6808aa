#pragma once

#include <array>
#include <cstddef>

#include "base/text.h"

namespace ov
{

/// The sections of a help text. Each is opened by its tag and runs to the next
/// tag or to the end of the text. The values index TooltipTags.
enum class TooltipSection : std::size_t { Heading, Variable, Description, SubHeading };

/// The tags, by section; matched without regard to case.
inline constexpr std::array<TextView, 4> TooltipTags{u"<H>", u"<T>", u"<D>", u"<S>"};

/// The first section of that kind at or after `position`. `position` moves to
/// the section's end, so that successive calls walk repeated sections; it stays
/// where it was when there is none, which alone tells a missing section from
/// an empty one. The result views into `text`.
TextView ExtractSection(TextView text, TooltipSection section, std::size_t& position);

/// Name of the configuration variable that the help text describes; may be empty.
Text VariableName(TextView text);

/// The help text's first description; may be empty.
Text Description(TextView text);

} // namespace ov
