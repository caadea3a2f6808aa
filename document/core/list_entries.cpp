#include "document/core/list_entries.h"

#include "match/core/tokens.h"

namespace ov
{

ListEntries EntriesOf(TextView value, const ListFormat& format)
{
    const std::vector<TextView> parts = SplitEntries(value, format);
    return {parts.begin(), parts.end()};
}

Text JoinEntries(const ListEntries& entries, const ListFormat& format)
{
    Text value;
    for (const Text& entry : entries) {
        if (&entry != &entries.front())
            value += format.separator;
        value += entry;
    }
    return value;
}

Text EntryKey(TextView entry, const ListFormat& format)
{
    Text key;
    const char16_t stops[] = {format.separator, u'\0'};
    ExtractTokenString(key, Trim(entry), u" ", u" ", nullptr, stops, nullptr,
                       format.qualifier != u'\0' ? &format.qualifier : nullptr, entry.size() + 1);
    return key;
}

} // namespace ov
