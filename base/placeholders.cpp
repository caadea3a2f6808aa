#include "base/placeholders.h"

namespace ov
{

Text FillPlaces(TextView pattern, std::initializer_list<TextView> values)
{
    Text filled;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const std::size_t value = pattern[at] == u'%' && at + 1 < pattern.size()
                                      ? static_cast<std::size_t>(pattern[at + 1]) - u'1'
                                      : values.size();
        if (value < values.size()) {
            filled += values.begin()[value];
            ++at;
        } else {
            filled += pattern[at];
        }
    }
    return filled;
}

Text FillNumber(TextView pattern, int number)
{
    constexpr TextView kPlace = u"%d";
    Text filled(pattern);
    if (const std::size_t at = filled.find(kPlace); at != Text::npos)
        filled.replace(at, kPlace.size(), FormatInteger(number));
    return filled;
}

} // namespace ov
