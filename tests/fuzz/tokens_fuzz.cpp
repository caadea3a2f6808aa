// The token readers and their helpers. The lines of an input: capacity and limit; the characters to
// skip before a token; those to trim from its end; those to remove; the consumed stops; the kept
// stops; the qualifier; the text to find; its replacement; then the source. A line "~" means no
// set or no qualifier.

#include "match/core/buffer_text.h"
#include "match/core/tokens.h"
#include "tests/fuzz/fuzz_input.h"

#include <memory>
#include <optional>

namespace ov::fuzz
{
namespace
{

// The functions treat texts as ending at their first NUL.
Text UpToNul(const Text& text)
{
    return text.substr(0, text.find(u'\0'));
}

class Set
{
  public:
    explicit Set(std::string_view line)
    {
        if (line != "~")
            m_characters = UpToNul(Characters(line));
    }
    const char16_t* Pointer() const { return m_characters ? m_characters->c_str() : nullptr; }
    bool Has(char16_t c) const { return m_characters && m_characters->find(c) != Text::npos; }
    // Only the first character of a qualifier's line is the qualifier.
    bool IsFirst(char16_t c) const { return m_characters && m_characters->c_str()[0] == c && c != u'\0'; }

  private:
    std::optional<Text> m_characters;
};

// Memory of exactly that many characters: the sanitizer detects an access beyond it.
class Buffer
{
  public:
    explicit Buffer(std::size_t size) : m_characters(std::make_unique<char16_t[]>(size)), m_size(size)
    {
        std::fill_n(m_characters.get(), size, u'!');
    }
    char16_t* Get() { return m_characters.get(); }
    Text Content() const
    {
        const TextView all(m_characters.get(), m_size);
        OV_REQUIRE(all.find(u'\0') != TextView::npos);
        return Text(all.substr(0, all.find(u'\0')));
    }

  private:
    std::unique_ptr<char16_t[]> m_characters;
    std::size_t m_size;
};

struct Sets {
    Set leading;
    Set trailing;
    Set remove;
    Set consumed;
    Set kept;
    Set qualifier;
};

struct Token {
    Text text;
    std::size_t consumed;
};

// The token reader, implemented rule by rule.
class LiteralReader
{
  public:
    LiteralReader(TextView source, const Sets& sets) : m_source(source), m_sets(sets) {}

    Token Read()
    {
        while (m_start < m_source.size() && m_sets.leading.Has(m_source[m_start]))
            ++m_start;
        if (m_start == m_source.size())
            return {Text(), m_start};
        m_last = m_source.size() - 1;
        while (m_last > m_start && m_sets.trailing.Has(m_source[m_last]))
            --m_last;
        if (IsQuote(m_start)) {
            if (const auto token = EmptyQuoted())
                return *token;
            if (const auto token = Quoted())
                return *token;
        }
        return Scanned();
    }

  private:
    bool IsQuote(std::size_t i) const { return i < m_source.size() && m_sets.qualifier.IsFirst(m_source[i]); }
    bool IsStop(std::size_t i) const
    {
        return m_sets.consumed.Has(m_source[i]) || m_sets.kept.Has(m_source[i]);
    }

    // Two qualifiers at the end or before a stop.
    std::optional<Token> EmptyQuoted() const
    {
        const std::size_t third = m_start + 2;
        if (!IsQuote(m_start + 1))
            return std::nullopt;
        if (third == m_last + 1)
            return Token{Text(), m_source.size()};
        if (third < m_source.size() && m_sets.consumed.Has(m_source[third]))
            return Token{Text(), third + 1};
        if (third < m_source.size() && m_sets.kept.Has(m_source[third]))
            return Token{Text(), third};
        return std::nullopt;
    }

    // One quoted text up to the end of the source, followed at most by blanks or one stop.
    std::optional<Token> Quoted() const
    {
        std::size_t run = 0;
        while (m_start + run <= m_last && IsQuote(m_start + run))
            ++run;
        if (run % 2 == 0 || m_start + run > m_last)
            return std::nullopt;
        Token token{Text(), m_source.size()};
        std::size_t closing = m_start + 1;
        while (closing <= m_last && (!IsQuote(closing) || IsQuote(closing + 1))) {
            token.text += m_source[closing];
            closing += IsQuote(closing) ? 2 : 1;
        }
        if (closing > m_last)
            return std::nullopt;
        const bool blanksFollow = m_source.find_first_not_of(u' ', closing + 1) == TextView::npos;
        const bool oneStopFollows = closing + 1 == m_last && IsStop(m_last);
        if (closing != m_last && !blanksFollow && !oneStopFollows)
            return std::nullopt;
        return token;
    }

    Token Scanned() const
    {
        Token token{Text(), m_source.size()};
        std::size_t safe = 0;
        bool inside = false;
        for (std::size_t i = m_start; i <= m_last; ++i) {
            const char16_t c = m_source[i];
            if (IsQuote(i) && i < m_last && IsQuote(i + 1)) {
                token.text += c;
                ++i;
            } else if (IsQuote(i)) {
                inside = !inside;
                if (!inside)
                    safe = token.text.size();
            } else if (inside) {
                token.text += c;
            } else if (m_sets.remove.Has(c)) {
                continue;
            } else if (IsStop(i)) {
                token.consumed = m_sets.consumed.Has(c) ? i + 1 : i;
                break;
            } else {
                token.text += c;
            }
        }
        while (token.text.size() > safe && m_sets.trailing.Has(token.text.back()))
            token.text.pop_back();
        return token;
    }

    TextView m_source;
    const Sets& m_sets;
    std::size_t m_start = 0;
    std::size_t m_last = 0;
};

// The splitter has no quoting, and also trims stops from the end.
Token LiteralPiece(TextView source, const Sets& sets)
{
    std::size_t i = 0;
    while (i < source.size() && sets.leading.Has(source[i]))
        ++i;
    Token token{Text(), source.size()};
    for (; i < source.size(); ++i) {
        if (sets.remove.Has(source[i]))
            continue;
        if (sets.consumed.Has(source[i]) || sets.kept.Has(source[i])) {
            token.consumed = sets.consumed.Has(source[i]) ? i + 1 : i;
            break;
        }
        token.text += source[i];
    }
    while (!token.text.empty() && sets.trailing.Has(token.text.back()))
        token.text.pop_back();
    return token;
}

bool IsWithin(TextView part, TextView whole)
{
    for (const char16_t c : part) {
        const std::size_t at = whole.find(c);
        if (at == TextView::npos)
            return false;
        whole.remove_prefix(at + 1);
    }
    return true;
}

Token ReadString(TextView source, const Sets& sets, std::size_t capacity)
{
    // Exactly as long as the source, without a terminator.
    const auto copy = std::make_unique<char16_t[]>(source.size());
    std::copy(source.begin(), source.end(), copy.get());
    Token token{u"old", 0};
    token.consumed =
        ExtractTokenString(token.text, TextView(copy.get(), source.size()), sets.leading.Pointer(),
                           sets.trailing.Pointer(), sets.remove.Pointer(), sets.consumed.Pointer(),
                           sets.kept.Pointer(), sets.qualifier.Pointer(), capacity);
    return token;
}

Token ReadBuffer(const Text& source, const Sets& sets, std::size_t capacity)
{
    Buffer buffer(capacity + 1);
    const std::size_t consumed = ExtractToken(
        buffer.Get(), source.c_str(), sets.leading.Pointer(), sets.trailing.Pointer(), sets.remove.Pointer(),
        sets.consumed.Pointer(), sets.kept.Pointer(), sets.qualifier.Pointer(), capacity);
    return {buffer.Content(), consumed};
}

// Reads one token and returns the number of characters consumed.
std::size_t CheckToken(const Text& source, const Sets& sets, std::size_t capacity)
{
    const Token whole = ReadString(source, sets, source.size() + 1);
    OV_REQUIRE(whole.consumed <= source.size());
    OV_REQUIRE(IsWithin(whole.text, TextView(source).substr(0, whole.consumed)));
    // Only with a kept stop can a token consume nothing.
    if (whole.consumed == 0)
        OV_REQUIRE(source.empty() || sets.kept.Has(source.front()));
    if (source.empty())
        OV_REQUIRE(whole.text.empty() && whole.consumed == 0);

    const Token literal = LiteralReader(source, sets).Read();
    OV_REQUIRE(whole.text == literal.text && whole.consumed == literal.consumed);

    // The capacity truncates the token and has no other effect.
    const Token written = ReadBuffer(source, sets, capacity);
    OV_REQUIRE(written.consumed == whole.consumed);
    OV_REQUIRE(written.text == whole.text.substr(0, capacity));
    const Token grown = ReadString(source, sets, capacity);
    OV_REQUIRE(grown.consumed == whole.consumed);
    OV_REQUIRE(grown.text == whole.text.substr(0, capacity == 0 ? 512 : capacity));
    return whole.consumed;
}

void CheckTokens(const Text& source, const Sets& sets, std::size_t capacity)
{
    Text rest = source;
    while (const std::size_t consumed = CheckToken(rest, sets, capacity))
        rest.erase(0, consumed);
}

// The splitter has no quoting and sees only a part of the source.
void CheckSplit(const Text& source, const Sets& sets, std::size_t limit)
{
    const TextView part = TextView(source).substr(0, limit);
    const Token literal = LiteralPiece(part, sets);
    Buffer buffer(part.size() + 1);
    const std::size_t consumed =
        SplitAlternative(buffer.Get(), source.c_str(), sets.leading.Pointer(), sets.trailing.Pointer(),
                         sets.remove.Pointer(), sets.consumed.Pointer(), sets.kept.Pointer(), limit);
    OV_REQUIRE(consumed == literal.consumed);
    OV_REQUIRE(buffer.Content() == literal.text);
}

bool SameNoCase(TextView a, TextView b)
{
    return std::ranges::equal(a, b, {}, ToUpperAscii, ToUpperAscii);
}

// The first position at or after `from`, or npos.
std::size_t Place(TextView haystack, TextView needle, std::size_t from, bool exact)
{
    for (; from + needle.size() <= haystack.size(); ++from) {
        const TextView part = haystack.substr(from, needle.size());
        if (exact ? part == needle : SameNoCase(part, needle))
            return from;
    }
    return TextView::npos;
}

void CheckFind(const Text& haystack, const Text& needle, std::size_t limit)
{
    const char16_t* found = FindNoCase(haystack.c_str(), needle.c_str(), limit);
    const std::size_t place = Place(TextView(haystack).substr(0, limit), needle, 0, false);
    if (limit == 0 || place == TextView::npos)
        OV_REQUIRE(found == nullptr);
    else
        OV_REQUIRE(found == haystack.c_str() + place);
}

void CheckReplace(const Text& source, const Text& find, const Text& replacement, std::size_t capacity,
                  bool exact)
{
    Text expected;
    bool replaced = false;
    std::size_t done = 0;
    if (!find.empty()) {
        for (std::size_t at = Place(source, find, 0, exact); at != TextView::npos;
             at = Place(source, find, done, exact)) {
            expected += source.substr(done, at - done) + replacement;
            done = at + find.size();
            replaced = true;
        }
    }
    expected += source.substr(done);
    expected.resize(std::min(expected.size(), capacity));
    const std::uint32_t status = replaced ? kMatchDone : kMatchFailed;

    Buffer apart(capacity + 1);
    OV_REQUIRE(ReplaceAll(apart.Get(), source.c_str(), find.c_str(), replacement.c_str(), capacity, exact) ==
               status);
    OV_REQUIRE(apart.Content() == expected);

    // For replacing in place, the buffer initially contains the source.
    Buffer inPlace(std::max(capacity, source.size()) + 1);
    std::copy_n(source.c_str(), source.size() + 1, inPlace.Get());
    OV_REQUIRE(ReplaceAll(inPlace.Get(), inPlace.Get(), find.c_str(), replacement.c_str(), capacity, exact) ==
               status);
    OV_REQUIRE(inPlace.Content() == (replaced ? expected : source) || inPlace.Content() == expected);
}

void Run(FuzzInput input)
{
    Options options(input.Line());
    const std::size_t capacity = options.Number(600);
    const std::size_t limit = options.Number(600);
    // The members are initialised in declaration order, which is the order of the lines.
    const Sets sets{Set(input.Line()), Set(input.Line()), Set(input.Line()),
                    Set(input.Line()), Set(input.Line()), Set(input.Line())};
    const Text find = UpToNul(Characters(input.Line()));
    const Text replacement = UpToNul(Characters(input.Line()));
    const Text whole = Characters(input.Rest());
    const Text source = UpToNul(whole);

    CheckTokens(source, sets, capacity);
    OV_REQUIRE(ReadString(whole, sets, capacity).consumed <= whole.size());
    CheckSplit(source, sets, limit);
    CheckFind(source, find, limit);
    CheckReplace(source, find, replacement, capacity, false);
    CheckReplace(source, find, replacement, capacity, true);
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}
