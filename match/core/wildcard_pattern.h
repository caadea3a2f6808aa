#pragma once

#include "base/text.h"

#include <cstddef>
#include <vector>

namespace ov
{

/// What is common to the templates of DOS, ranges and subsets, and how far one goes.
struct WildcardRules {
    bool ranges;  ///< "[" begins a bracket expression.
    bool subsets; ///< "|" is a wildcard, and a bracket expression with "," lists alternatives.
    bool exact;   ///< Upper and lower case differ.
};

/// A unit as it is compared: upper-cased (a to z only) unless case counts.
constexpr char16_t Folded(char16_t c, bool exact)
{
    return exact ? c : ToUpperAscii(c);
}

/// True when two texts are equal under the case rule.
bool EqualTexts(TextView first, TextView second, bool exact);

/// True when the character is one of those that a bracket expression without alternatives names.
/// Only its first 255 characters count. Inline: it is most of what a short template costs.
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

/// One step of a template. Each fits exactly one character except stars, bars and lists.
struct PatternElement {
    enum class Kind {
        Literal,      ///< `character`.
        AnyCharacter, ///< Any one.
        Star,         ///< Any number of any characters.
        Bar,          ///< No or one character.
        Class,        ///< One that `content` names, or one that it does not name.
        List,         ///< One of the alternatives in `content`.
    };
    Kind kind = Kind::Literal;
    bool negates = false;   ///< From here on all classes and lists are negated.
    char16_t character = 0; ///< Literal: as it is compared.
    std::size_t begin = 0;  ///< Its position in the pattern.
    TextView content{};     ///< Class and List: between the brackets; points into the template.
};

/// The template's steps, in time and memory linear in its length. Where a step begins does not
/// depend on where the reading began: the steps of a template's rest are the rest of its steps.
std::vector<PatternElement> ParsePattern(TextView pattern, const WildcardRules& rules);

/// The alternatives of a list that are not empty.
std::vector<Text> SplitAlternatives(TextView content);

/// True when an alternative is tried against texts of any length.
bool IsElastic(TextView alternative);

/// How many characters an alternative is tried against when it is not elastic: its characters other
/// than brackets up to a "]" without a "[", not counting a "^" at its front, "A-Z" counting as one.
std::size_t CountedLength(TextView alternative);

} // namespace ov
