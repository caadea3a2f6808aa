#include "match/core/buffer_text.h"

#include "base/text.h"
#include "match/core/tokens.h"

#include <algorithm>
#include <limits>
#include <new>

namespace ov
{
namespace
{

bool EqualNoCase(char16_t a, char16_t b)
{
    return ToUpperAscii(a) == ToUpperAscii(b);
}

// The position of the needle's first occurrence at or after `from`, or npos.
std::size_t PositionNoCase(TextView haystack, TextView needle, std::size_t from)
{
    const TextView rest = haystack.substr(from);
    const auto found = std::search(rest.begin(), rest.end(), needle.begin(), needle.end(), EqualNoCase);
    if (found == rest.end() && !needle.empty())
        return TextView::npos;
    return from + static_cast<std::size_t>(found - rest.begin());
}

void CopyOut(char16_t* destination, TextView text, std::size_t capacity)
{
    const std::size_t length = std::min(text.size(), capacity);
    std::copy_n(text.data(), length, destination);
    destination[length] = u'\0';
}

// Appends the source with every occurrence replaced. Returns true if there was one.
bool Replace(TextView source, TextView find, TextView replacement, bool exact, Text& result)
{
    std::size_t done = 0;
    bool replaced = false;
    for (;;) {
        const std::size_t at = exact ? source.find(find, done) : PositionNoCase(source, find, done);
        if (at == TextView::npos)
            break;
        result.append(source, done, at - done).append(replacement);
        done = at + find.size();
        replaced = true;
    }
    result.append(source, done);
    return replaced;
}

} // namespace

const char16_t* FindNoCase(const char16_t* haystack, const char16_t* needle, std::size_t limit)
{
    if (haystack == nullptr || needle == nullptr || limit == 0)
        return nullptr;
    const TextView all(haystack);
    const TextView wanted(needle);
    if (wanted.size() > all.size())
        return nullptr;
    const std::size_t at = PositionNoCase(all.substr(0, limit), wanted, 0);
    return at == TextView::npos ? nullptr : haystack + at;
}

std::uint32_t ReplaceAll(char16_t* destination, const char16_t* source, const char16_t* find,
                         const char16_t* replacement, std::size_t capacity, int caseFlag)
{
    if (destination == nullptr || source == nullptr || find == nullptr || replacement == nullptr)
        return kMatchFailed;
    const TextView from(source);
    const TextView wanted(find);
    if (wanted.empty() || wanted.size() > from.size()) {
        if (destination != source)
            CopyOut(destination, from, capacity);
        return kMatchFailed;
    }
    try {
        Text result;
        const bool replaced = Replace(from, wanted, replacement, caseFlag != 0, result);
        CopyOut(destination, result, capacity);
        return replaced ? kMatchDone : kMatchFailed;
    } catch (const std::bad_alloc&) {
        return kMatchFailed;
    }
}

std::size_t ExtractToken(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                         const char16_t* trailingTrim, const char16_t* remove, const char16_t* consumedStops,
                         const char16_t* keptStops, const char16_t* qualifier, std::size_t capacity)
{
    if (destination == nullptr)
        return 0;
    *destination = u'\0';
    if (source == nullptr)
        return 0;
    try {
        constexpr std::size_t kWholeToken = std::numeric_limits<std::size_t>::max();
        Text token;
        const std::size_t consumed = ExtractTokenString(token, source, leadingSkip, trailingTrim, remove,
                                                        consumedStops, keptStops, qualifier, kWholeToken);
        CopyOut(destination, token, capacity);
        return consumed;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

} // namespace ov
