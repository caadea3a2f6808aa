#include "match/core/wildcard_walk.h"

#include <algorithm>

namespace ov
{
namespace
{

using Traits = std::char_traits<char16_t>;

// Where the bracket closes whose content begins at `content`, brackets within being counted; null
// when nowhere.
const char16_t* FindClosing(const char16_t* content)
{
    std::size_t level = 1;
    for (const char16_t* at = content; *at != u'\0'; ++at) {
        if (*at == u']' && --level == 0)
            return at;
        level += *at == u'[' ? 1 : 0;
    }
    return nullptr;
}

template <bool exact>
class Walk
{
  public:
    Walk(const char16_t* pattern, const char16_t* text, const WildcardRules& rules)
        : m_at(pattern), m_read(text), m_rules(rules)
    {
    }

    std::optional<bool> Run()
    {
        for (;;) {
            if (*m_at == u'\0') {
                if (*m_read == u'\0')
                    return true;
            } else if (*m_at == u'*') {
                if (PassStar())
                    return true;
                continue;
            } else if (*m_read == u'\0') {
                // What is left of the template takes more characters than there are, and a star that
                // takes more leaves fewer.
                return false;
            } else if (FitsOne()) {
                ++m_read;
                if (m_budget < 0)
                    return std::nullopt;
                continue;
            }
            if (m_afterStar == nullptr)
                return false;
            if (--m_budget < 0)
                return std::nullopt;
            // Only the last star need take more: the text up to it would fit no better with another
            // one taking more.
            m_at = m_afterStar;
            m_read = ++m_afterStarRead;
            m_negated = false;
        }
    }

  private:
    // Goes beyond a star. True when the rest fits at once: after the last star everything does, and a
    // rest that is equal to the end of the text does, whatever wildcards it holds.
    bool PassStar()
    {
        ++m_at;
        if (*m_at == u'\0')
            return true;
        if (m_textEnd == nullptr) {
            m_patternEnd = m_at + Traits::length(m_at);
            m_textEnd = m_read + Traits::length(m_read);
            m_budget += 8 * ((m_patternEnd - m_at) + (m_textEnd - m_read));
        }
        const std::ptrdiff_t rest = m_patternEnd - m_at;
        if (rest <= m_textEnd - m_read &&
            EqualTexts({m_at, m_patternEnd}, {m_textEnd - rest, m_textEnd}, exact))
            return true;
        m_afterStar = m_at;
        m_afterStarRead = m_read;
        m_negated = false;
        return false;
    }

    // Passes one step of the template. True when the next character fits it.
    bool FitsOne()
    {
        const char16_t c = *m_at;
        if (c == u'[' && m_rules.ranges)
            return FitsBracket();
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
            // No expression: it fits any one character and takes the character behind it along.
            const std::size_t length = Traits::length(content);
            m_budget -= static_cast<std::ptrdiff_t>(length);
            m_at = content + std::min<std::size_t>(length, 1);
            return true;
        }
        const TextView names(content, static_cast<std::size_t>(closing - content));
        m_budget -= closing - content;
        m_at = closing + 1;
        return ClassNames(names, *m_read, exact) != m_negated;
    }

    const char16_t* m_at;   // In the template.
    const char16_t* m_read; // In the text.
    const WildcardRules& m_rules;
    std::ptrdiff_t m_budget = 1024; // Steps that may still be taken.
    bool m_negated = false;
    const char16_t* m_afterStar = nullptr; // In the template, behind the last star passed.
    const char16_t* m_afterStarRead = nullptr;
    const char16_t* m_patternEnd = nullptr; // Both ends are looked for at the first star.
    const char16_t* m_textEnd = nullptr;
};

} // namespace

std::optional<bool> WalkWildcards(const char16_t* pattern, const char16_t* text, const WildcardRules& rules)
{
    return rules.exact ? Walk<true>(pattern, text, rules).Run() : Walk<false>(pattern, text, rules).Run();
}

} // namespace ov
