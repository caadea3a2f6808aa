#include "match/core/tokens.h"

#include <algorithm>
#include <new>

namespace ov
{
namespace
{

bool Contains(const char16_t* set, char16_t c)
{
    if (set == nullptr)
        return false;
    for (; *set != u'\0'; ++set) {
        if (*set == c)
            return true;
    }
    return false;
}

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

// Appends a text in which every qualifier is doubled, with one qualifier for each pair.
void AppendUndoubled(Text& token, TextView text, char16_t qualifier)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        token.push_back(text[i]);
        if (text[i] == qualifier)
            ++i;
    }
}

class TokenReader
{
  public:
    TokenReader(TextView source, const char16_t* leadingSkip, const char16_t* trailingTrim,
                const char16_t* remove, const char16_t* consumedStops, const char16_t* keptStops,
                const char16_t* qualifier)
        : m_source(source), m_trailingTrim(trailingTrim), m_remove(remove), m_consumedStops(consumedStops),
          m_keptStops(keptStops), m_hasQualifier(qualifier != nullptr),
          m_qualifier(qualifier != nullptr ? *qualifier : u'\0')
    {
        while (m_start < m_source.size() && Contains(leadingSkip, m_source[m_start]))
            ++m_start;
        m_end = m_source.size();
        while (m_end > m_start + 1 && Contains(trailingTrim, m_source[m_end - 1]))
            --m_end;
    }

    // Sets the token and returns the number of characters consumed.
    std::size_t Read(Text& token) const
    {
        if (m_start == m_source.size())
            return m_start;
        if (IsQualifier(m_start)) {
            std::size_t consumed = 0;
            if (ReadEmptyQualified(consumed) || ReadQualified(token, consumed))
                return consumed;
        }
        return Scan(token);
    }

  private:
    bool IsQualifier(std::size_t index) const { return m_hasQualifier && m_source[index] == m_qualifier; }
    bool IsStop(std::size_t index) const
    {
        return Contains(m_consumedStops, m_source[index]) || Contains(m_keptStops, m_source[index]);
    }

    // Two qualifiers directly followed by a stop, or followed by trimmed characters only,
    // are an empty token.
    bool ReadEmptyQualified(std::size_t& consumed) const
    {
        if (m_start + 1 >= m_source.size() || !IsQualifier(m_start + 1))
            return false;
        const std::size_t after = m_start + 2;
        if (after == m_end) {
            consumed = m_source.size();
            return true;
        }
        if (after >= m_source.size() || !IsStop(after))
            return false;
        consumed = Contains(m_consumedStops, m_source[after]) ? after + 1 : after;
        return true;
    }

    // A token that is one quoted text from its first to its last character consumes the whole source.
    bool ReadQualified(Text& token, std::size_t& consumed) const
    {
        std::size_t run = m_start;
        while (run < m_end && IsQualifier(run))
            ++run;
        if (run == m_end || (run - m_start) % 2 == 0)
            return false;
        std::size_t closing = m_start + 1;
        while (closing < m_end) {
            if (!IsQualifier(closing)) {
                ++closing;
            } else if (closing + 1 < m_source.size() && IsQualifier(closing + 1)) {
                closing += 2;
            } else {
                break;
            }
        }
        if (closing >= m_end)
            return false;
        const bool last = closing + 1 == m_end || OnlyBlanksFrom(closing + 1);
        const bool oneStop = closing + 2 == m_end && IsStop(closing + 1);
        if (!last && !oneStop)
            return false;
        AppendUndoubled(token, m_source.substr(m_start + 1, closing - m_start - 1), m_qualifier);
        consumed = m_source.size();
        return true;
    }

    bool OnlyBlanksFrom(std::size_t index) const
    {
        return m_source.substr(index).find_first_not_of(u' ') == TextView::npos;
    }

    std::size_t Scan(Text& token) const
    {
        bool inside = false;
        std::size_t kept = 0; // Text before the last closing qualifier is not trimmed.
        std::size_t next = m_source.size();
        for (std::size_t i = m_start; i < m_end; ++i) {
            const char16_t c = m_source[i];
            if (IsQualifier(i)) {
                if (i + 1 < m_end && IsQualifier(i + 1)) {
                    token.push_back(c);
                    ++i;
                    continue;
                }
                inside = !inside;
                if (!inside)
                    kept = token.size();
                continue;
            }
            if (!inside) {
                if (Contains(m_remove, c))
                    continue;
                if (Contains(m_consumedStops, c)) {
                    next = i + 1;
                    break;
                }
                if (Contains(m_keptStops, c)) {
                    next = i;
                    break;
                }
            }
            token.push_back(c);
        }
        while (token.size() > kept && Contains(m_trailingTrim, token.back()))
            token.pop_back();
        return next;
    }

    TextView m_source;
    const char16_t* m_trailingTrim;
    const char16_t* m_remove;
    const char16_t* m_consumedStops;
    const char16_t* m_keptStops;
    bool m_hasQualifier;
    char16_t m_qualifier;
    std::size_t m_start = 0;
    std::size_t m_end = 0; // One past the last character that is not trimmed.
};

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

std::size_t ExtractTokenString(Text& token, TextView source, const char16_t* leadingSkip,
                               const char16_t* trailingTrim, const char16_t* remove,
                               const char16_t* consumedStops, const char16_t* keptStops,
                               const char16_t* qualifier, std::size_t capacity)
{
    constexpr std::size_t kUsualCapacity = 512;
    token.clear();
    const TokenReader reader(source, leadingSkip, trailingTrim, remove, consumedStops, keptStops, qualifier);
    const std::size_t consumed = reader.Read(token);
    token.resize(std::min(token.size(), capacity == 0 ? kUsualCapacity : capacity));
    return consumed;
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
        Text token;
        const TokenReader reader(source, leadingSkip, trailingTrim, remove, consumedStops, keptStops,
                                 qualifier);
        const std::size_t consumed = reader.Read(token);
        CopyOut(destination, token, capacity);
        return consumed;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

std::size_t SplitAlternative(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                             const char16_t* trailingTrim, const char16_t* remove,
                             const char16_t* consumedStops, const char16_t* keptStops, std::size_t limit)
{
    if (destination == nullptr)
        return 0;
    *destination = u'\0';
    if (source == nullptr)
        return 0;
    std::size_t at = 0;
    while (at < limit && source[at] != u'\0' && Contains(leadingSkip, source[at]))
        ++at;
    char16_t* end = destination;
    for (; at < limit && source[at] != u'\0'; ++at) {
        const char16_t c = source[at];
        if (Contains(remove, c))
            continue;
        const bool consumed = Contains(consumedStops, c);
        if (consumed || Contains(keptStops, c)) {
            at += consumed ? 1 : 0;
            break;
        }
        *end++ = c;
    }
    while (end > destination && Contains(trailingTrim, end[-1]))
        --end;
    *end = u'\0';
    return at;
}

} // namespace ov
