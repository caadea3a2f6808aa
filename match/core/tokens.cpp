#include "match/core/tokens.h"

#include <algorithm>

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

} // namespace

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
