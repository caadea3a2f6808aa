#include "match/core/wildcard_table.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <map>
#include <unordered_map>
#include <utility>

namespace ov
{
namespace
{

using Kind = PatternElement::Kind;

// An unlimited number of characters. Sums of lengths stay far below the limit of the type.
constexpr std::size_t kUnbounded = std::numeric_limits<std::size_t>::max() / 2;

// The least and the most characters that an element or an alternative matches.
struct Lengths {
    std::size_t least = 0;
    std::size_t most = 0;
};

Lengths operator+(const Lengths& first, const Lengths& second)
{
    return {first.least + second.least, std::min(first.most + second.most, kUnbounded)};
}

void Include(Lengths& lengths, std::size_t length)
{
    lengths.least = std::min(lengths.least, length);
    lengths.most = std::max(lengths.most, length);
}

// A flag for each position in the text. Only a range of positions is in use; the flag is
// false at all others.
class Row
{
  public:
    // Uses the positions from `first` up to `last`, with false flags, of `size` positions in all.
    void Use(std::size_t first, std::size_t last, std::size_t size)
    {
        if (m_holds.size() < size)
            m_holds.resize(size);
        std::fill(At(m_first), At(m_last), std::uint8_t{0});
        m_first = first < last ? first : 0;
        m_last = first < last ? last : 0;
    }

    void Set(std::size_t place)
    {
        m_holds[place] = 1;
        m_first = m_first == m_last ? place : std::min(m_first, place);
        m_last = std::max(m_last, place + 1);
    }

    // Sets the flag at all used positions before `end`.
    void SetBefore(std::size_t end)
    {
        if (end > m_first)
            std::fill(At(m_first), At(std::min(end, m_last)), std::uint8_t{1});
    }

    // Clears the flag at all positions from `begin` on.
    void ClearFrom(std::size_t begin)
    {
        if (begin < m_last)
            std::fill(At(std::max(begin, m_first)), At(m_last), std::uint8_t{0});
    }

    bool Holds(std::size_t place) const { return m_holds[place] != 0; }
    std::size_t First() const { return m_first; }
    std::size_t Last() const { return m_last; }
    bool Uses(std::size_t place) const { return place >= m_first && place < m_last; }

    // One past the last position with a set flag; 0 if there is none.
    std::size_t LastHolding() const
    {
        std::size_t last = m_last;
        while (last > m_first && m_holds[last - 1] == 0)
            --last;
        return last > m_first ? last : 0;
    }

    const std::uint8_t* Data() const { return m_holds.data(); }
    std::uint8_t* Data() { return m_holds.data(); }

  private:
    std::vector<std::uint8_t>::iterator At(std::size_t place)
    {
        return m_holds.begin() + static_cast<std::ptrdiff_t>(place);
    }

    std::vector<std::uint8_t> m_holds;
    std::size_t m_first = 0;
    std::size_t m_last = 0;
};

// One alternative of a list.
struct Alternative {
    Text text;
    bool elastic = false;                 // It is tried against texts of any length.
    std::size_t length = 0;               // Otherwise the length it is tried against.
    std::vector<PatternElement> elements; // and its elements, each for one character.
};

std::vector<Alternative> ReadList(TextView content, const WildcardRules& rules)
{
    std::vector<Alternative> list;
    for (Text& text : SplitAlternatives(content))
        list.push_back({std::move(text), false, 0, {}});
    // The elements point into the texts, which do not move from here on.
    for (Alternative& alternative : list) {
        alternative.elastic = IsElastic(alternative.text);
        if (alternative.elastic)
            continue;
        alternative.length = CountedLength(alternative.text);
        alternative.elements = ParsePattern(alternative.text, rules);
    }
    return list;
}

Lengths LengthsOf(const std::vector<Alternative>& list)
{
    // A negated list matches one character where no alternative matches.
    Lengths lengths{1, 1};
    for (const Alternative& alternative : list)
        Include(lengths, alternative.elastic ? kUnbounded : alternative.length);
    return lengths;
}

class WildcardTable
{
  public:
    enum class Start { AtFront, Anywhere };

    WildcardTable(TextView pattern, TextView text, TextView foldedText, const WildcardRules& rules,
                  Start start)
        : m_pattern(pattern), m_text(text), m_folded(foldedText), m_rules(rules),
          m_elements(ParsePattern(pattern, rules)), m_lastFit(m_elements.size() + 1)
    {
        for (std::size_t i = 0; i < m_elements.size(); ++i) {
            if (m_elements[i].kind == Kind::List)
                m_lists.emplace(i, ReadList(m_elements[i].content, rules));
        }
        m_anyNegates = std::any_of(m_elements.begin(), m_elements.end(),
                                   [](const PatternElement& element) { return element.negates; });
        MeasureBefore(start);
        MeasureBehind();
    }

    // A flag for each position in the text: the text from there to `end` matches the whole pattern.
    const Row& FillTo(std::size_t end)
    {
        m_end = end;
        m_commonEnd = CommonEnd();
        const std::size_t flavours = m_anyNegates ? 2 : 1;
        for (std::size_t negated = 0; negated < flavours; ++negated) {
            m_next[negated].Use(end, end + 1, end + 2);
            m_next[negated].Set(end);
        }
        m_behindBars = m_elements.size();
        for (std::size_t i = m_elements.size(); i-- > 0;) {
            const std::size_t first = std::max(m_before[i].least, end - std::min(end, m_behind[i].most));
            const std::size_t last =
                m_behind[i].least > end ? 0 : std::min(m_before[i].most, end - m_behind[i].least) + 1;
            for (std::size_t negated = 0; negated < flavours; ++negated) {
                m_row[negated].Use(first, last, end + 2);
                FillRow(i, negated != 0);
            }
            m_row.swap(m_next);
            const std::size_t equal = EqualAt(i);
            m_lastFit[i] = std::max(m_next[0].LastHolding(), equal <= end ? equal + 1 : 0);
            if (m_elements[i].kind != Kind::Bar)
                m_behindBars = i;
        }
        const std::size_t equal = m_elements.empty() ? kNowhere : EqualAt(0);
        if (equal <= end)
            m_next[0].Set(equal);
        return m_next[0];
    }

  private:
    static constexpr std::size_t kNowhere = TextView::npos;

    // The result of a list at one position in the text.
    struct Outcome {
        bool decided = false;
        bool acceptsRest = false; // A list at the pattern's end also matches the rest of the text.
        std::size_t taken = 0;
    };

    Lengths LengthsOfElement(std::size_t i) const
    {
        const bool last = i + 1 == m_elements.size();
        switch (m_elements[i].kind) {
        case Kind::Star:
            return {0, kUnbounded};
        case Kind::Bar:
            return {last ? std::size_t{1} : 0, 1};
        case Kind::List: {
            Lengths lengths = LengthsOf(m_lists.at(i));
            if (last)
                lengths.most = kUnbounded;
            return lengths;
        }
        default:
            return {1, 1};
        }
    }

    // The number of characters before each element. Outside these bounds its row is not needed.
    void MeasureBefore(Start start)
    {
        Lengths before{0, start == Start::AtFront ? 0 : kUnbounded};
        m_before.reserve(m_elements.size());
        for (std::size_t i = 0; i < m_elements.size(); ++i) {
            m_before.push_back(before);
            before = before + LengthsOfElement(i);
            // Consecutive bars examine all the text after them.
            if (i + 1 < m_elements.size() && m_elements[i].kind == Kind::Bar &&
                m_elements[i + 1].kind == Kind::Bar)
                before.most = kUnbounded;
        }
    }

    // The number of characters from each element to the pattern's end. Its row is false elsewhere.
    void MeasureBehind()
    {
        m_behind.resize(m_elements.size());
        Lengths behind;
        for (std::size_t i = m_elements.size(); i-- > 0;) {
            behind = LengthsOfElement(i) + behind;
            // After stars and bars, a text that equals the rest of the pattern matches as well.
            if (i > 0 && (m_elements[i - 1].kind == Kind::Star || m_elements[i - 1].kind == Kind::Bar))
                Include(behind, m_pattern.size() - m_elements[i].begin);
            m_behind[i] = behind;
        }
    }

    // The length of the longest common suffix of pattern and text.
    std::size_t CommonEnd() const
    {
        const std::size_t longest = std::min(m_pattern.size(), m_end);
        std::size_t length = 0;
        while (length < longest && Folded(m_pattern[m_pattern.size() - 1 - length], m_rules.exact) ==
                                       m_folded[m_end - 1 - length])
            ++length;
        return length;
    }

    // The position where the rest of the text equals the pattern from this element on. It matches there,
    // independently of the pattern's wildcards.
    std::size_t EqualAt(std::size_t element) const
    {
        const std::size_t length = m_pattern.size() - m_elements[element].begin;
        return length <= m_commonEnd ? m_end - length : kNowhere;
    }

    // Computes the positions that match from element `i` on, after a "[^" if `negated`. The row of the
    // following element is in m_next.
    void FillRow(std::size_t i, bool negated)
    {
        const PatternElement& element = m_elements[i];
        const bool last = i + 1 == m_elements.size();
        const bool nowNegated = negated || element.negates;
        const Row& next = m_next[nowNegated ? 1 : 0];
        Row& row = m_row[negated ? 1 : 0];
        switch (element.kind) {
        case Kind::Literal:
            FillLiteralRow(element.character, next, row);
            break;
        case Kind::AnyCharacter:
            std::copy(next.Data() + row.First() + 1, next.Data() + row.Last() + 1, row.Data() + row.First());
            break;
        case Kind::Star:
            row.SetBefore(last ? m_end + 1 : m_lastFit[i + 1]);
            break;
        case Kind::Bar:
            FillBarRow(i, next, row);
            break;
        case Kind::Class:
            for (std::size_t t = row.First(); t < row.Last(); ++t) {
                if (next.Holds(t + 1) && ClassNames(element.content, m_text[t], m_rules.exact) != nowNegated)
                    row.Set(t);
            }
            break;
        case Kind::List:
            FillListRow(m_lists.at(i), last, nowNegated, next, row);
            break;
        }
    }

    // Most elements of a pattern are literals. The loop reads only local variables, so that the compiler
    // can vectorise it.
    void FillLiteralRow(char16_t character, const Row& next, Row& row) const
    {
        const char16_t* text = m_folded.data();
        const std::uint8_t* behind = next.Data() + 1;
        std::uint8_t* fits = row.Data();
        for (std::size_t t = row.First(), last = row.Last(); t < last; ++t)
            fits[t] = static_cast<std::uint8_t>(text[t] == character ? behind[t] : 0);
    }

    void FillBarRow(std::size_t i, const Row& next, Row& row)
    {
        if (i + 1 == m_elements.size()) {
            // A bar at the pattern's end matches exactly one character.
            row.SetBefore(m_end);
            return;
        }
        // The rest of the pattern is tried without the negation so far, then after one character with
        // it.
        const std::uint8_t* own = m_next[0].Data();
        const std::uint8_t* behind = next.Data() + 1;
        std::uint8_t* fits = row.Data();
        for (std::size_t t = row.First(), last = row.Last(); t < last; ++t)
            fits[t] = static_cast<std::uint8_t>(own[t] | behind[t]);
        const std::size_t equal = EqualAt(i + 1);
        if (equal <= m_end && row.Uses(equal))
            row.Set(equal);
        // Each of several consecutive bars first requires that the elements after all of them match at some
        // later position, without the negation so far.
        if (m_behindBars > i + 1 && m_behindBars < m_elements.size())
            row.ClearFrom(m_lastFit[m_behindBars]);
    }

    void FillListRow(const std::vector<Alternative>& list, bool last, bool negated, const Row& next, Row& row)
    {
        std::vector<Outcome> outcomes(row.Last() - row.First());
        for (const Alternative& alternative : list) {
            if (alternative.elastic)
                TryElastic(alternative.text, negated, row.First(), outcomes);
            else
                TryCounted(alternative, row.First(), outcomes);
        }
        for (std::size_t t = row.First(); t < row.Last(); ++t) {
            Outcome& outcome = outcomes[t - row.First()];
            // A negated list without a matching alternative matches one character.
            if (!outcome.decided && negated)
                outcome = {true, false, 1};
            const std::size_t reached = t + outcome.taken;
            if (outcome.decided && reached <= m_end && ((last && outcome.acceptsRest) || next.Holds(reached)))
                row.Set(t);
        }
    }

    // An alternative with a star or a bar matches as much as it can.
    void TryElastic(const Text& alternative, bool negated, std::size_t first, std::vector<Outcome>& outcomes)
    {
        const bool acceptsRest = alternative.back() == u'*';
        const std::vector<std::uint32_t>& longest = LongestFits(alternative);
        for (std::size_t i = 0; i < outcomes.size(); ++i) {
            Outcome& outcome = outcomes[i];
            if (outcome.decided)
                continue;
            // In a negated list, the first such alternative that does not match ends the list after
            // one character.
            if (longest[first + i] > 0)
                outcome = {true, acceptsRest, longest[first + i]};
            else if (negated)
                outcome = {true, acceptsRest, 1};
        }
    }

    // For each position in the text, the length of the longest match starting there; 0 for none.
    // Patterns often repeat their lists, so results are cached.
    const std::vector<std::uint32_t>& LongestFits(const Text& alternative)
    {
        constexpr std::size_t kMostKept = std::size_t{1} << 16;
        const auto known = m_longestFits.find(alternative);
        if (known != m_longestFits.end())
            return known->second;
        if (m_longestFits.size() * (m_end + 1) > kMostKept)
            m_longestFits.clear();
        std::vector<std::uint32_t>& longest = m_longestFits[alternative];
        longest.resize(m_end + 1);
        if (alternative.find_first_of(u"[|") == Text::npos) {
            FindLongestPlainFits(alternative, longest);
            return longest;
        }
        WildcardTable table(alternative, m_text, m_folded, m_rules, Start::Anywhere);
        std::size_t open = m_end;
        for (std::size_t end = m_end; end > 0 && open > 0; --end) {
            const Row& fits = table.FillTo(end);
            for (std::size_t t = fits.First(); t < std::min(fits.Last(), end); ++t) {
                if (longest[t] == 0 && fits.Holds(t)) {
                    longest[t] = static_cast<std::uint32_t>(end - t);
                    --open;
                }
            }
        }
        return longest;
    }

    // LongestFits for an alternative of literals, question marks and stars. A part between two stars
    // matches at its first possible position, the part after the last star at its last one.
    void FindLongestPlainFits(TextView alternative, std::vector<std::uint32_t>& longest) const
    {
        std::size_t star = alternative.find(u'*');
        TextView part = alternative.substr(0, star);
        // For each start position, the position after the match of the parts so far.
        std::vector<std::size_t> behind(m_end + 1, kNowhere);
        for (std::size_t t = 0; t <= m_end; ++t) {
            if (PartFits(part, t))
                behind[t] = t + part.size();
        }
        for (;;) {
            const std::size_t begin = star + 1;
            star = alternative.find(u'*', begin);
            part = alternative.substr(begin, star - begin);
            if (star == TextView::npos)
                break;
            const std::vector<std::size_t> behindFirst = BehindFirstFits(part);
            for (std::size_t& place : behind)
                place = place != kNowhere ? behindFirst[place] : kNowhere;
        }
        if (part.size() > m_end)
            return;
        std::size_t last = m_end - part.size();
        while (last > 0 && !PartFits(part, last))
            --last;
        if (!PartFits(part, last))
            return;
        for (std::size_t t = 0; t <= m_end; ++t) {
            if (behind[t] <= last)
                longest[t] = static_cast<std::uint32_t>(last + part.size() - t);
        }
    }

    // For each position in the text, the position after the first match of the part from there on.
    std::vector<std::size_t> BehindFirstFits(TextView part) const
    {
        std::vector<std::size_t> behind(m_end + 1);
        std::size_t nearest = kNowhere;
        for (std::size_t t = m_end + 1; t-- > 0;) {
            if (PartFits(part, t))
                nearest = t + part.size();
            behind[t] = nearest;
        }
        return behind;
    }

    // True if the text at position `t` matches literals and question marks.
    bool PartFits(TextView part, std::size_t t) const
    {
        if (part.size() > m_end - t)
            return false;
        for (const char16_t c : part) {
            if (c != u'?' && Folded(c, m_rules.exact) != m_folded[t])
                return false;
            ++t;
        }
        return true;
    }

    // Any other alternative is tried against its counted length only.
    void TryCounted(const Alternative& alternative, std::size_t first, std::vector<Outcome>& outcomes) const
    {
        for (std::size_t i = 0; i < outcomes.size(); ++i) {
            const std::size_t t = first + i;
            const std::size_t left = m_end - t;
            if (outcomes[i].decided || alternative.length > left + 1)
                continue;
            const std::size_t tried = std::min(alternative.length, left);
            if (EqualTexts(alternative.text, m_text.substr(t, tried), m_rules.exact) ||
                (alternative.elements.size() == tried && FitsEach(alternative.elements, t)))
                outcomes[i] = {true, false, alternative.length};
        }
    }

    // True if the characters from `t` on match the elements one by one.
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
    TextView m_folded; // The text with folded case.
    const WildcardRules& m_rules;
    std::vector<PatternElement> m_elements;
    std::map<std::size_t, std::vector<Alternative>> m_lists; // By element index.
    std::vector<Lengths> m_before;                           // By element index; see MeasureBefore.
    std::vector<Lengths> m_behind;                           // By element index; see MeasureBehind.
    bool m_anyNegates = false;
    std::size_t m_end = 0;
    std::size_t m_commonEnd = 0;
    std::size_t m_behindBars = 0;       // The element after the run of bars being filled.
    std::vector<std::size_t> m_lastFit; // By element index: one past the last matching position; 0 for none.
    std::array<Row, 2> m_row;           // The current element's rows: without and with negation.
    std::array<Row, 2> m_next;          // The following element's rows.
    std::unordered_map<Text, std::vector<std::uint32_t>> m_longestFits;
};

} // namespace

bool TabulateWildcards(TextView pattern, TextView text, const WildcardRules& rules)
{
    Text folded(text);
    for (char16_t& c : folded)
        c = Folded(c, rules.exact);
    WildcardTable table(pattern, text, folded, rules, WildcardTable::Start::AtFront);
    return table.FillTo(text.size()).Holds(0);
}

} // namespace ov
