#pragma once

#include <string>
#include <string_view>

namespace ov::cli
{

/// A text with nothing in it that Markdown reads as more than a character.
std::string EscapedMarkdown(std::string_view text);

/// The address of a heading within its page, "#..."; code marks of the heading are left out.
std::string AddressOfHeading(std::string_view heading);

} // namespace ov::cli
