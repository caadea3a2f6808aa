#include "match/core/wildcard_walk.h"

#include <algorithm>

namespace ov
{
namespace
{

// The bracket that closes the one before `content`; nested brackets are counted. Null
// if there is none.
const char16_t* FindClosing(const char16_t* content)
{
    std::size_t level = 1;
    for (const char16_t* at = content; *at != u'\0'; ++at) {
        if (*at == u']') {
            if (--level == 0)
                return at;
        } else if (*at == u'[') {
            ++level;
        }
    }
    return nullptr;
}

// True if two null-terminated texts are equal; reads no further than the first difference.
template <bool exact>
bool AreEqual(const char16_t* first, const char16_t* second)
{
    while (Folded(*first, exact) == Folded(*second, exact)) {
        if (*first == u'\0')
            return true;
        ++first;
        ++second;
    }
    return false;
}

template <bool exact>
class Walk
{
  public:
    Walk(const char16_t* pattern, const char16_t* text, bool ranges)
        : m_pattern(pattern), m_text(text), m_at(pattern), m_read(text), m_ranges(ranges)
    {
    }

    std::optional<bool> Run()
    {
        for (;;) {
            if (*m_at == u'\0') {
                if (*m_read == u'\0')
                    return true;
            } else if (*m_at == u'*') {
                if (const auto fits = PassStar())
                    return fits;
                continue;
            } else if (*m_read == u'\0') {
                // The rest of the pattern needs more characters than are left, and a longer match of the star
                // leaves even fewer.
                return false;
            } else if (*m_at == u'[' && m_ranges) {
                // A text equal to the pattern matches it. Without brackets the walk finds that by itself.
                if (!m_compared && AreEqual<exact>(m_pattern, m_text))
                    return true;
                m_compared = true;
                if (FitsBracket()) {
                    ++m_read;
                    if (m_budget < 0)
                        return std::nullopt;
                    continue;
                }
            } else if (FitsOne()) {
                ++m_read;
                continue;
            }
            if (m_afterStar == nullptr)
                return false;
            m_budget -= m_at - m_afterStar;
            if (m_budget < 0)
                return std::nullopt;
            // Only the last star has to match more: a longer match of an earlier star would not help the
            // text up to here.
            m_at = m_afterStar;
            m_read = ++m_afterStarRead;
            m_negated = false;
        }
    }

  private:
    // Advances past a star. Returns the result if it is known already.
    std::optional<bool> PassStar()
    {
        ++m_at;
        if (*m_at == u'\0')
            return true;
        if (m_textEnd == nullptr)
            LookAhead();
        const std::ptrdiff_t rest = m_patternEnd - m_at;
        const std::ptrdiff_t left = m_textEnd - m_read;
        if (m_at > m_lastPeculiar) {
            // Each remaining element matches one character: compare with the end of the text.
            return rest <= left && EndsAlike(m_textEnd - rest);
        }
        // A rest that equals the end of the text matches, independently of its wildcards.
        if (rest <= left && EqualTexts({m_at, m_patternEnd}, {m_textEnd - rest, m_textEnd}, exact))
            return true;
        m_afterStar = m_at;
        m_afterStarRead = m_read;
        m_negated = false;
        return std::nullopt;
    }

    // Finds the ends of pattern and text, and the last star or bracket in the pattern.
    void LookAhead()
    {
        m_lastPeculiar = m_at - 1;
        for (m_patternEnd = m_at; *m_patternEnd != u'\0'; ++m_patternEnd) {
            if (*m_patternEnd == u'*' || (*m_patternEnd == u'[' && m_ranges))
                m_lastPeculiar = m_patternEnd;
        }
        m_textEnd = m_read + std::char_traits<char16_t>::length(m_read);
        m_budget += 8 * ((m_patternEnd - m_at) + (m_textEnd - m_read));
    }

    // True if the rest of the pattern, all literals and question marks, matches the text's end.
    bool EndsAlike(const char16_t* end) const
    {
        return std::equal(m_at, m_patternEnd, end, [](char16_t wanted, char16_t given) {
            return wanted == u'?' || Folded(wanted, exact) == Folded(given, exact);
        });
    }

    // Advances past one element. True if it matches the next character.
    bool FitsOne()
    {
        const char16_t c = *m_at;
        ++m_at;
        return c == u'?' || Folded(c, exact) == Folded(*m_read, exact);
    }

    bool FitsBracket()
    {
        const char16_t* content = m_at + 1;
        if (*content == u'^') {
            m_negated = true;
            ++content;
        }
        const char16_t* closing = FindClosing(content);
        if (closing == nullptr) {
            // Not a bracket expression: it matches any one character and skips the one after it.
            const std::size_t length = std::char_traits<char16_t>::length(content);
            m_budget -= static_cast<std::ptrdiff_t>(length);
            m_at = content + std::min<std::size_t>(length, 1);
            return true;
        }
        const TextView names(content, static_cast<std::size_t>(closing - content));
        m_budget -= closing - content;
        m_at = closing + 1;
        return ClassNames(names, *m_read, exact) != m_negated;
    }

    const char16_t* const m_pattern;
    const char16_t* const m_text;
    const char16_t* m_at;   // In the pattern.
    const char16_t* m_read; // In the text.
    const bool m_ranges;
    std::ptrdiff_t m_budget = 1024; // Steps left before the walk gives up.
    bool m_negated = false;
    bool m_compared = false;               // The whole text was compared with the whole pattern.
    const char16_t* m_afterStar = nullptr; // In the pattern, after the last star passed.
    const char16_t* m_afterStarRead = nullptr;
    // These three are set at the first star.
    const char16_t* m_patternEnd = nullptr;
    const char16_t* m_textEnd = nullptr;
    const char16_t* m_lastPeculiar = nullptr; // The last star or bracket.
};

} // namespace

std::optional<bool> WalkWildcards(const char16_t* pattern, const char16_t* text, bool ranges, bool exact)
{
    return exact ? Walk<true>(pattern, text, ranges).Run() : Walk<false>(pattern, text, ranges).Run();
}

} // namespace ov
