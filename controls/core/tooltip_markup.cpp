#include "controls/core/tooltip_markup.h"

#include <algorithm>

namespace ov
{
namespace
{

bool StartsWithTag(TextView text, TextView tag)
{
    return text.size() >= tag.size() &&
           std::equal(tag.begin(), tag.end(), text.begin(),
                      [](char16_t a, char16_t b) { return ToUpperAscii(a) == ToUpperAscii(b); });
}

std::size_t FindTag(TextView text, TextView tag, std::size_t position)
{
    for (; position < text.size(); ++position) {
        if (StartsWithTag(text.substr(position), tag))
            return position;
    }
    return TextView::npos;
}

// Only the four tags end a section; any other "<" belongs to it.
std::size_t FindAnyTag(TextView text, std::size_t position)
{
    for (; position < text.size(); ++position) {
        const TextView rest = text.substr(position);
        if (std::any_of(TooltipTags.begin(), TooltipTags.end(),
                        [&](TextView tag) { return StartsWithTag(rest, tag); }))
            return position;
    }
    return text.size();
}

Text FirstSection(TextView text, TooltipSection section)
{
    std::size_t position = 0;
    return Text(ExtractSection(text, section, position));
}

} // namespace

TextView ExtractSection(TextView text, TooltipSection section, std::size_t& position)
{
    const TextView tag = TooltipTags[static_cast<std::size_t>(section)];
    const std::size_t found = FindTag(text, tag, position);
    if (found == TextView::npos)
        return {};
    const std::size_t start = found + tag.size();
    position = FindAnyTag(text, start);
    return text.substr(start, position - start);
}

Text VariableName(TextView text)
{
    return FirstSection(text, TooltipSection::Variable);
}

Text Description(TextView text)
{
    return FirstSection(text, TooltipSection::Description);
}

} // namespace ov
