#include "match/core/wildcard_table.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace ov
{
namespace
{

using Kind = PatternElement::Kind;

// For each place in the text, its end and one beyond it included, whether something holds there.
using Row = std::vector<std::uint8_t>;

class WildcardTable
{
  public:
    WildcardTable(TextView pattern, TextView text, TextView foldedText, const WildcardRules& rules)
        : m_pattern(pattern), m_text(text), m_folded(foldedText), m_rules(rules),
          m_elements(ParsePattern(pattern, rules)), m_lastFit(m_elements.size() + 1)
    {
        m_anyNegates = std::any_of(m_elements.begin(), m_elements.end(),
                                   [](const PatternElement& element) { return element.negates; });
    }

    // For each place in the text whether its part from there to `end` fits the whole template.
    const Row& FillTo(std::size_t end)
    {
        m_end = end;
        m_commonEnd = CommonEnd();
        const std::size_t flavours = m_anyNegates ? 2 : 1;
        for (std::size_t negated = 0; negated < flavours; ++negated) {
            m_row[negated].assign(end + 2, 0);
            m_next[negated].assign(end + 2, 0);
            m_next[negated][end] = 1;
        }
        m_behindBars = m_elements.size();
        for (std::size_t i = m_elements.size(); i-- > 0;) {
            for (std::size_t negated = 0; negated < flavours; ++negated)
                FillRow(i, negated != 0);
            m_row.swap(m_next);
            CloseRow(i);
            if (m_elements[i].kind != Kind::Bar)
                m_behindBars = i;
        }
        m_row[0] = m_next[0];
        const std::size_t equal = EqualAt(0);
        if (equal <= m_end)
            m_row[0][equal] = 1;
        return m_row[0];
    }

  private:
    static constexpr std::size_t kNowhere = TextView::npos;

    // What one alternative of a list does at a place in the text.
    struct Outcome {
        bool decided = false;
        bool acceptsRest = false; // A template that ends with the list takes what is left of the text.
        std::size_t taken = 0;
    };

    // The length of the longest text in which template and text both end.
    std::size_t CommonEnd() const
    {
        const std::size_t longest = std::min(m_pattern.size(), m_end);
        std::size_t length = 0;
        while (length < longest && Folded(m_pattern[m_pattern.size() - 1 - length], m_rules.exact) ==
                                       m_folded[m_end - 1 - length])
            ++length;
        return length;
    }

    // Where the rest of the text is equal to the template from this element on; it fits there,
    // whatever wildcards the template holds.
    std::size_t EqualAt(std::size_t element) const
    {
        const std::size_t length = m_pattern.size() - (m_elements.empty() ? 0 : m_elements[element].begin);
        return length <= m_commonEnd ? m_end - length : kNowhere;
    }

    // Which places fit from element `i` on, within a walk that has met a "[^" or has not. What
    // stands behind the element is in m_next.
    void FillRow(std::size_t i, bool negated)
    {
        const PatternElement& element = m_elements[i];
        const bool last = i + 1 == m_elements.size();
        const bool nowNegated = negated || element.negates;
        const Row& next = m_next[nowNegated ? 1 : 0];
        Row& row = m_row[negated ? 1 : 0];
        row[m_end] = 0;
        switch (element.kind) {
        case Kind::Literal:
            FillLiteralRow(element.character, next, row);
            break;
        case Kind::AnyCharacter:
            std::copy_n(next.begin() + 1, m_end, row.begin());
            break;
        case Kind::Star:
            std::fill_n(row.begin(), m_end + 1, std::uint8_t{0});
            std::fill_n(row.begin(), last ? m_end + 1 : m_lastFit[i + 1], std::uint8_t{1});
            break;
        case Kind::Bar:
            FillBarRow(i, next, row);
            break;
        case Kind::Class:
            for (std::size_t t = 0; t < m_end; ++t) {
                const bool fits =
                    next[t + 1] != 0 && ClassNames(element.content, m_text[t], m_rules.exact) != nowNegated;
                row[t] = fits ? 1 : 0;
            }
            break;
        case Kind::List:
            FillListRow(element, last, nowNegated, next, row);
            break;
        }
    }

    // Most of a template is literals: all that the loop reads is local, so that it runs on many
    // places at once.
    void FillLiteralRow(char16_t character, const Row& next, Row& row) const
    {
        const std::size_t end = m_end;
        const char16_t* text = m_folded.data();
        const std::uint8_t* behind = next.data() + 1;
        std::uint8_t* fits = row.data();
        for (std::size_t t = 0; t < end; ++t)
            fits[t] = static_cast<std::uint8_t>(text[t] == character ? behind[t] : 0);
    }

    void FillBarRow(std::size_t i, const Row& next, Row& row)
    {
        if (i + 1 == m_elements.size()) {
            // The last one takes exactly one character.
            std::fill_n(row.begin(), m_end, std::uint8_t{0});
            if (m_end > 0)
                row[m_end - 1] = 1;
            return;
        }
        // The rest of the template is tried as a walk of its own, then behind one character within
        // this walk.
        const std::size_t equal = EqualAt(i + 1);
        for (std::size_t t = 0; t <= m_end; ++t)
            row[t] = static_cast<std::uint8_t>(m_next[0][t] | next[t + 1]);
        if (equal <= m_end)
            row[equal] = 1;
        // Of several bars in a row each asks first whether what follows them fits anywhere, as a walk
        // of its own.
        if (m_behindBars > i + 1 && m_behindBars < m_elements.size())
            std::fill(row.begin() + static_cast<std::ptrdiff_t>(m_lastFit[m_behindBars]), row.end(),
                      std::uint8_t{0});
    }

    // Keeps where the last place is that fits from element `i` on, as a walk of its own: one beyond
    // it, 0 when there is none.
    void CloseRow(std::size_t i)
    {
        const Row& row = m_next[0];
        std::size_t last = m_end + 1;
        while (last > 0 && row[last - 1] == 0)
            --last;
        const std::size_t equal = EqualAt(i);
        m_lastFit[i] = equal <= m_end ? std::max(last, equal + 1) : last;
    }

    void FillListRow(const PatternElement& element, bool last, bool negated, const Row& next, Row& row)
    {
        std::vector<Outcome> outcomes(m_end + 1);
        for (const Text& alternative : SplitAlternatives(element.content)) {
            if (IsElastic(alternative))
                TryElastic(alternative, negated, outcomes);
            else
                TryCounted(alternative, outcomes);
        }
        for (std::size_t t = 0; t <= m_end; ++t) {
            Outcome& outcome = outcomes[t];
            // A negated list that finds nothing takes one character.
            if (!outcome.decided && negated)
                outcome = {true, false, 1};
            const std::size_t reached = t + outcome.taken;
            const bool fits =
                outcome.decided && reached <= m_end && ((last && outcome.acceptsRest) || next[reached] != 0);
            row[t] = fits ? 1 : 0;
        }
    }

    // An alternative with a star or a bar takes as much as it can.
    void TryElastic(TextView alternative, bool negated, std::vector<Outcome>& outcomes) const
    {
        const bool acceptsRest = alternative.back() == u'*';
        WildcardTable table(alternative, m_text, m_folded, m_rules);
        for (std::size_t end = m_end; end > 0; --end) {
            const auto undecided = [](const Outcome& outcome) { return !outcome.decided; };
            if (std::none_of(outcomes.begin(), outcomes.begin() + static_cast<std::ptrdiff_t>(end),
                             undecided))
                break;
            const Row& fits = table.FillTo(end);
            for (std::size_t t = 0; t < end; ++t) {
                if (!outcomes[t].decided && fits[t] != 0)
                    outcomes[t] = {true, acceptsRest, end - t};
            }
        }
        if (!negated)
            return;
        // In a negated list the first such alternative that does not fit ends the list, taking one
        // character.
        for (Outcome& outcome : outcomes) {
            if (!outcome.decided)
                outcome = {true, acceptsRest, 1};
        }
    }

    // Any other alternative is tried against its counted length only.
    void TryCounted(TextView alternative, std::vector<Outcome>& outcomes) const
    {
        const std::size_t length = CountedLength(alternative);
        const std::vector<PatternElement> elements = ParsePattern(alternative, m_rules);
        for (std::size_t t = 0; t <= m_end; ++t) {
            const std::size_t left = m_end - t;
            if (outcomes[t].decided || length > left + 1)
                continue;
            const std::size_t tried = std::min(length, left);
            if (EqualTexts(alternative, m_text.substr(t, tried), m_rules.exact) ||
                (elements.size() == tried && FitsEach(elements, t)))
                outcomes[t] = {true, false, length};
        }
    }

    // True when the characters from `t` on fit the elements one by one.
    bool FitsEach(const std::vector<PatternElement>& elements, std::size_t t) const
    {
        bool negated = false;
        for (const PatternElement& element : elements) {
            negated = negated || element.negates;
            const bool fits = element.kind == Kind::AnyCharacter ||
                              (element.kind == Kind::Literal && m_folded[t] == element.character) ||
                              (element.kind == Kind::Class &&
                               ClassNames(element.content, m_text[t], m_rules.exact) != negated);
            if (!fits)
                return false;
            ++t;
        }
        return true;
    }

    TextView m_pattern;
    TextView m_text;
    TextView m_folded; // The text as it is compared.
    const WildcardRules& m_rules;
    std::vector<PatternElement> m_elements;
    bool m_anyNegates = false;
    std::size_t m_end = 0;
    std::size_t m_commonEnd = 0;
    std::size_t m_behindBars = 0;       // The element behind the run of bars being filled.
    std::vector<std::size_t> m_lastFit; // By element; see CloseRow.
    std::array<Row, 2> m_row;           // The present element's: outside and inside a negated walk.
    std::array<Row, 2> m_next;          // The following element's.
};

} // namespace

bool TabulateWildcards(TextView pattern, TextView text, const WildcardRules& rules)
{
    Text folded(text);
    for (char16_t& c : folded)
        c = Folded(c, rules.exact);
    return WildcardTable(pattern, text, folded, rules).FillTo(text.size())[0] != 0;
}

} // namespace ov
