#include "match/core/wildcard_pattern.h"

#include "match/core/tokens.h"

#include <algorithm>
#include <array>

namespace ov
{
namespace
{

constexpr std::size_t kLongestAlternative = 255;

constexpr bool IsLetterOrDigit(char16_t c)
{
    const char16_t upper = ToUpperAscii(c);
    return IsDigit(c) || (upper >= u'A' && upper <= u'Z');
}

// The position of the closing "]" for each "[" of the pattern; npos if it has none.
class ClosingBrackets
{
  public:
    explicit ClosingBrackets(TextView pattern) : m_closing(pattern.size(), TextView::npos)
    {
        std::vector<std::size_t> open;
        for (std::size_t i = 0; i < pattern.size(); ++i) {
            if (pattern[i] == u'[') {
                open.push_back(i);
            } else if (pattern[i] == u']' && !open.empty()) {
                m_closing[open.back()] = i;
                open.pop_back();
            }
        }
    }

    std::size_t Of(std::size_t at) const { return m_closing[at]; }

  private:
    std::vector<std::size_t> m_closing;
};

// Parses the bracket expression at `at` and advances past it. A "[" without a closing bracket matches
// any one character, and the character after the "[" is skipped as well.
PatternElement ReadBracket(TextView pattern, std::size_t& at, std::size_t closing, const WildcardRules& rules)
{
    PatternElement element;
    element.begin = at;
    element.negates = at + 1 < pattern.size() && pattern[at + 1] == u'^';
    const std::size_t start = at + (element.negates ? 2 : 1);
    if (closing == TextView::npos) {
        element.kind = PatternElement::Kind::AnyCharacter;
        at = std::min(start + 1, pattern.size());
        return element;
    }
    element.content = pattern.substr(start, closing - start);
    const bool list = rules.subsets && element.content.find(u',', 1) != TextView::npos;
    element.kind = list ? PatternElement::Kind::List : PatternElement::Kind::Class;
    at = closing + 1;
    return element;
}

PatternElement ElementOf(char16_t c, std::size_t begin, const WildcardRules& rules)
{
    PatternElement element;
    element.begin = begin;
    if (c == u'?') {
        element.kind = PatternElement::Kind::AnyCharacter;
    } else if (c == u'*') {
        element.kind = PatternElement::Kind::Star;
    } else if (c == u'|' && rules.subsets) {
        element.kind = PatternElement::Kind::Bar;
    } else {
        element.kind = PatternElement::Kind::Literal;
        element.character = Folded(c, rules.exact);
    }
    return element;
}

} // namespace

bool EqualTexts(TextView first, TextView second, bool exact)
{
    return exact ? first == second
                 : std::equal(first.begin(), first.end(), second.begin(), second.end(),
                              [](char16_t a, char16_t b) { return ToUpperAscii(a) == ToUpperAscii(b); });
}

std::vector<PatternElement> ParsePattern(TextView pattern, const WildcardRules& rules)
{
    const ClosingBrackets closing(rules.ranges ? pattern : TextView());
    std::vector<PatternElement> elements;
    elements.reserve(pattern.size());
    for (std::size_t i = 0; i < pattern.size();) {
        if (rules.ranges && pattern[i] == u'[') {
            elements.push_back(ReadBracket(pattern, i, closing.Of(i), rules));
        } else {
            elements.push_back(ElementOf(pattern[i], i, rules));
            ++i;
        }
    }
    return elements;
}

std::vector<Text> SplitAlternatives(TextView content)
{
    std::vector<Text> alternatives;
    const Text source(content);
    std::array<char16_t, kLongestAlternative + 1> piece{};
    for (std::size_t at = 0; at < source.size();) {
        at += SplitAlternative(piece.data(), source.c_str() + at, nullptr, nullptr, nullptr, u",", nullptr,
                               kLongestAlternative);
        if (piece[0] != u'\0')
            alternatives.emplace_back(piece.data());
    }
    return alternatives;
}

bool IsElastic(TextView alternative)
{
    return alternative.find_first_of(u"*|") != TextView::npos;
}

std::size_t CountedLength(TextView alternative)
{
    std::size_t count = 0;
    std::size_t level = 0;
    for (std::size_t i = alternative.front() == u'^' ? 1 : 0; i < alternative.size(); ++i) {
        const char16_t c = alternative[i];
        if (c == u'[') {
            ++level;
        } else if (c == u']') {
            if (level == 0)
                break;
            --level;
        } else if (c == u'-' && i > 0 && i + 1 < alternative.size() && IsLetterOrDigit(alternative[i - 1]) &&
                   IsLetterOrDigit(alternative[i + 1])) {
            // "A-Z" counts as one: the hyphen is not counted, and only one of its two neighbours is.
            --count;
        } else {
            ++count;
        }
    }
    return count;
}

} // namespace ov
