#include "tests/core/literal_match.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace ov::test
{
namespace
{

constexpr std::size_t kBracketLimit = 255;

struct TooManyCalls {
};

bool SameCharacter(char16_t a, char16_t b, bool exact)
{
    return exact ? a == b : ToUpperAscii(a) == ToUpperAscii(b);
}

bool SameText(TextView a, TextView b, bool exact)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!SameCharacter(a[i], b[i], exact))
            return false;
    }
    return true;
}

bool IsLetterOrDigit(char16_t c)
{
    return IsDigit(c) || (ToUpperAscii(c) >= u'A' && ToUpperAscii(c) <= u'Z');
}

bool HasWildcard(TextView alternative)
{
    return alternative.find_first_of(u"*|") != TextView::npos;
}

// A piece longer than the limit is continued as the next one. Empty pieces do not count.
std::vector<TextView> Alternatives(TextView content)
{
    std::vector<TextView> alternatives;
    while (!content.empty()) {
        const TextView front = content.substr(0, kBracketLimit);
        const std::size_t comma = front.find(u',');
        if (comma != 0)
            alternatives.push_back(front.substr(0, comma));
        content.remove_prefix(comma == TextView::npos ? front.size() : comma + 1);
    }
    return alternatives;
}

// The part of an alternative that is counted: without a leading "^", and up to a "]" that has no "["
// in the alternative.
TextView CountedPart(TextView alternative)
{
    if (alternative.front() == u'^')
        alternative.remove_prefix(1);
    std::size_t level = 0;
    std::size_t end = 0;
    for (; end < alternative.size(); ++end) {
        if (alternative[end] == u'[') {
            ++level;
        } else if (alternative[end] == u']') {
            if (level == 0)
                break;
            --level;
        }
    }
    return alternative.substr(0, end);
}

// The length of text with which an alternative is compared. Correct for alternatives of literals and
// "?", and for ranges; a class "[AB]" counts as 2.
std::size_t CountedLength(TextView alternative)
{
    const TextView part = CountedPart(alternative);
    std::size_t length = 0;
    std::size_t ranges = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (part[i] != u'[' && part[i] != u']')
            ++length;
        const bool between = i > 0 && i + 1 < part.size();
        if (part[i] == u'-' && between && IsLetterOrDigit(part[i - 1]) && IsLetterOrDigit(part[i + 1]))
            ++ranges;
    }
    return length - 2 * ranges;
}

// True if the character is in the range around the "-".
bool InRange(TextView content, std::size_t dash, char16_t c, bool exact)
{
    const char16_t smaller = std::min(content[dash - 1], content[dash + 1]);
    const char16_t larger = std::max(content[dash - 1], content[dash + 1]);
    if (c >= smaller && c <= larger)
        return true;
    const char16_t upper = ToUpperAscii(c);
    return !exact && upper >= ToUpperAscii(smaller) && upper <= ToUpperAscii(larger);
}

bool HitsClass(TextView content, char16_t c, bool exact)
{
    content = content.substr(0, kBracketLimit);
    for (std::size_t k = 0; k < content.size(); ++k) {
        const char16_t member = content[k];
        if (member == u'-' && k > 0 && k + 1 < content.size()) {
            if (InRange(content, k, c, exact))
                return true;
            ++k; // The upper bound.
        } else if (member == u'|' || member == u'?' || member == u'*' || SameCharacter(member, c, exact)) {
            return true;
        }
    }
    return false;
}

// The rules of one comparison, and the results of its calls.
class Matcher
{
  public:
    Matcher(WildcardType type, bool exact, std::size_t calls, bool remember)
        : m_type(type), m_exact(exact), m_calls(calls), m_remember(remember)
    {
    }

    WildcardType Type() const { return m_type; }
    bool Exact() const { return m_exact; }

    // All recursive calls go through this function.
    bool Matches(TextView pattern, TextView text);

    // A text with "*" before it, which lives as long as the matcher.
    TextView WithStar(TextView pattern) { return *m_built.insert(Text(u"*").append(pattern)).first; }

  private:
    using Arguments = std::tuple<const char16_t*, std::size_t, const char16_t*, std::size_t>;

    WildcardType m_type;
    bool m_exact;
    std::size_t m_calls;
    bool m_remember;
    std::map<Arguments, bool> m_answers;
    std::set<Text> m_built;
};

// The walk of one call through its pattern.
class Walk
{
  public:
    Walk(Matcher& matcher, TextView pattern, TextView text)
        : m_matcher(matcher), m_pattern(pattern), m_text(text)
    {
    }

    bool Run()
    {
        while (m_p < m_pattern.size()) {
            const Step step = TakeStep();
            if (step != Step::GoOn)
                return step == Step::Match;
        }
        return m_starPending || m_t == m_text.size();
    }

  private:
    enum class Step { GoOn, Match, Fail };

    std::size_t Remaining() const { return m_text.size() - m_t; }
    TextView TextRest() const { return m_text.substr(m_t); }

    // Consumes `count` characters of the text and continues at `next`. Fails at the text's end.
    Step Consume(std::size_t count, std::size_t next)
    {
        if (count > Remaining())
            return Step::Fail;
        m_t += count;
        m_p = next;
        return Step::GoOn;
    }

    Step TakeStep()
    {
        const WildcardType type = m_matcher.Type();
        const char16_t c = m_pattern[m_p];
        if (type < WildcardTypeNone) {
            ++m_p;
            return Step::GoOn;
        }
        if (type == WildcardTypeNone)
            return TakeLiteral(c, true);
        m_starPending = false;
        if (c == u'?')
            return Consume(1, m_p + 1);
        if (c == u'*')
            return TakeStar();
        if (c == u'|' && type >= WildcardTypeSubsets)
            return TakeBar();
        if (c == u'[' && type >= WildcardTypeRanges)
            return TakeBracket();
        return TakeLiteral(c, m_matcher.Exact());
    }

    Step TakeLiteral(char16_t c, bool exact)
    {
        if (Remaining() == 0 || !SameCharacter(c, m_text[m_t], exact))
            return Step::Fail;
        return Consume(1, m_p + 1);
    }

    Step TakeStar()
    {
        const TextView rest = m_pattern.substr(m_p + 1);
        if (rest.empty())
            return Step::Match;
        for (std::size_t u = m_t; u <= m_text.size(); ++u) {
            if (m_matcher.Matches(rest, m_text.substr(u)))
                return Step::Match;
        }
        return Step::Fail;
    }

    Step TakeBar()
    {
        const TextView rest = m_pattern.substr(m_p + 1);
        if (rest.empty())
            return Remaining() == 1 ? Step::Match : Step::Fail;
        const std::size_t runEnd = std::min(m_pattern.find_first_not_of(u'|', m_p), m_pattern.size());
        if (runEnd - m_p >= 2 && runEnd < m_pattern.size()) {
            if (!m_matcher.Matches(m_matcher.WithStar(m_pattern.substr(runEnd)), TextRest()))
                return Step::Fail;
        }
        if (m_matcher.Matches(rest, TextRest()))
            return Step::Match;
        return Consume(1, m_p + 1);
    }

    Step TakeBracket()
    {
        std::size_t start = m_p + 1;
        if (start < m_pattern.size() && m_pattern[start] == u'^') {
            m_negated = true; // For the rest of this call.
            ++start;
        }
        if (start >= m_pattern.size())
            return Consume(1, start);
        std::size_t end = start;
        for (std::size_t level = 1; end < m_pattern.size(); ++end) {
            if (m_pattern[end] == u'[')
                ++level;
            if (m_pattern[end] == u']' && --level == 0)
                break;
        }
        if (end == m_pattern.size())
            return Consume(1, start + 1);
        const TextView content = m_pattern.substr(start, end - start);
        if (m_matcher.Type() >= WildcardTypeSubsets && content.find(u',', 1) != TextView::npos)
            return TakeSubset(content, end + 1);
        const bool hit = Remaining() > 0 && HitsClass(content, m_text[m_t], m_matcher.Exact());
        return hit == m_negated ? Step::Fail : Consume(1, end + 1);
    }

    Step TakeSubset(TextView content, std::size_t next)
    {
        for (const TextView alternative : Alternatives(content)) {
            if (HasWildcard(alternative)) {
                for (std::size_t k = Remaining(); k > 0; --k) {
                    if (m_matcher.Matches(alternative, m_text.substr(m_t, k)))
                        return TakeAlternative(alternative, k, next);
                }
                if (m_negated)
                    return TakeAlternative(alternative, 1, next);
            } else {
                const std::size_t k = CountedLength(alternative);
                if (k <= Remaining() + 1 && m_matcher.Matches(alternative, m_text.substr(m_t, k)))
                    return TakeAlternative(alternative, k, next);
            }
        }
        return m_negated ? Consume(1, next) : Step::Fail;
    }

    Step TakeAlternative(TextView alternative, std::size_t count, std::size_t next)
    {
        m_starPending = alternative.back() == u'*';
        return Consume(count, next);
    }

    Matcher& m_matcher;
    TextView m_pattern;
    TextView m_text;
    std::size_t m_p = 0;
    std::size_t m_t = 0;
    bool m_starPending = false;
    bool m_negated = false;
};

bool Matcher::Matches(TextView pattern, TextView text)
{
    if (m_calls == 0)
        throw TooManyCalls();
    --m_calls;
    if (SameText(pattern, text, m_exact))
        return true;
    if (!m_remember)
        return Walk(*this, pattern, text).Run();
    // All texts are parts of the comparison's two texts or of those it built.
    const Arguments arguments(pattern.data(), pattern.size(), text.data(), text.size());
    const auto known = m_answers.find(arguments);
    if (known != m_answers.end())
        return known->second;
    const bool answer = Walk(*this, pattern, text).Run();
    m_answers.emplace(arguments, answer);
    return answer;
}

std::uint32_t Compare(std::uint32_t* match, const char16_t* pattern, const char16_t* text, Matcher matcher)
{
    if (match == nullptr || pattern == nullptr || text == nullptr)
        return kMatchFailed;
    try {
        *match = matcher.Matches(pattern, text) ? 1 : 0;
        return kMatchDone;
    } catch (const TooManyCalls&) {
        return kMatchTooManyCalls;
    }
}

} // namespace

std::uint32_t LiteralMatch(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                           WildcardType type, int caseFlag, std::size_t calls)
{
    return Compare(match, pattern, text, Matcher(type, caseFlag != 0, calls, false));
}

std::uint32_t LiteralMatchOnce(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                               WildcardType type, int caseFlag)
{
    return Compare(match, pattern, text, Matcher(type, caseFlag != 0, kAnyNumberOfCalls, true));
}

} // namespace ov::test
