#pragma once

#include "base/text.h"

#include <cstddef>
#include <vector>

namespace ov
{

/// The features by which the pattern types DOS, ranges and subsets differ, and the case rule.
struct WildcardRules {
    bool ranges;  ///< "[" begins a bracket expression.
    bool subsets; ///< "|" is a wildcard, and a bracket expression with "," lists alternatives.
    bool exact;   ///< Case-sensitive.
};

/// A unit as used in comparisons: upper-cased (a to z only) unless `exact`.
constexpr char16_t Folded(char16_t c, bool exact)
{
    return exact ? c : ToUpperAscii(c);
}

/// True if two texts are equal under the case rule.
bool EqualTexts(TextView first, TextView second, bool exact);

/// True if a bracket expression without alternatives contains the character.
/// Only its first 255 characters count. Inline, because short patterns spend most of their time here.
inline bool ClassNames(TextView content, char16_t character, bool exact)
{
    constexpr std::size_t kLongestContent = 255;
    const std::size_t length = content.size() < kLongestContent ? content.size() : kLongestContent;
    const char16_t folded = Folded(character, exact);
    for (std::size_t i = 0; i < length; ++i) {
        const char16_t c = content[i];
        if (c == u'-' && i > 0 && i + 1 < length) {
            const char16_t low = content[i - 1] < content[i + 1] ? content[i - 1] : content[i + 1];
            const char16_t high = content[i - 1] < content[i + 1] ? content[i + 1] : content[i - 1];
            if ((low <= character && character <= high) ||
                (Folded(low, exact) <= folded && folded <= Folded(high, exact)))
                return true;
            ++i;
        } else if (Folded(c, exact) == folded || c == u'|' || (c <= u'?' && (c == u'?' || c == u'*'))) {
            return true;
        }
    }
    return false;
}

/// One element of a pattern. Each matches exactly one character except stars, bars and lists.
struct PatternElement {
    enum class Kind {
        Literal,      ///< The character in `character`.
        AnyCharacter, ///< Any one character.
        Star,         ///< Any number of any characters.
        Bar,          ///< No or one character.
        Class,        ///< A character in `content`, or if negated a character not in it.
        List,         ///< One of the alternatives in `content`.
    };
    Kind kind = Kind::Literal;
    bool negates = false;   ///< All classes and lists from this one on are negated.
    char16_t character = 0; ///< Literal: the folded character.
    std::size_t begin = 0;  ///< Its position in the pattern.
    TextView content{};     ///< Class and List: the text between the brackets; points into the pattern.
};

/// Parses a pattern in linear time and memory. Element boundaries do not depend on where parsing
/// began: parsing the rest of a pattern gives the rest of its elements.
std::vector<PatternElement> ParsePattern(TextView pattern, const WildcardRules& rules);

/// The non-empty alternatives of a list.
std::vector<Text> SplitAlternatives(TextView content);

/// True if an alternative is tried against texts of any length.
bool IsElastic(TextView alternative);

/// The number of characters that a non-elastic alternative is tried against: its characters other than
/// brackets up to a "]" without a "[", not counting a leading "^", with "A-Z" counting as one.
std::size_t CountedLength(TextView alternative);

} // namespace ov
