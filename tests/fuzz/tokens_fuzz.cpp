// The token readers and their helpers. The lines of an input: capacity, then limit; the characters
// to skip before a token; those to trim behind it; those to remove; the stops that are consumed;
// the stops that are left; the qualifier; the text to find; its replacement; then the source. A line
// "~" is no set and no qualifier at all.

#include "match/core/tokens.h"
#include "tests/fuzz/fuzz_input.h"

#include <memory>
#include <optional>

namespace ov::fuzz
{
namespace
{

// Texts of the functions end at their first NUL.
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
    std::size_t Count() const { return m_characters ? m_characters->size() : 0; }

  private:
    std::optional<Text> m_characters;
};

// Memory of exactly that many characters: a step beyond it is found out.
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

// What a source without qualifiers gives. The token reader looks for no stop among what is trimmed
// from the source's end, the splitter does.
Token PlainToken(TextView source, const Sets& sets, bool trimsFirst)
{
    std::size_t start = 0;
    while (start < source.size() && sets.leading.Has(source[start]))
        ++start;
    if (start == source.size())
        return {Text(), start};
    std::size_t last = source.size() - 1;
    while (trimsFirst && last > start && sets.trailing.Has(source[last]))
        --last;
    Token token{Text(), source.size()};
    for (std::size_t i = start; i <= last; ++i) {
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
    // Exactly as long as the source, and without a terminator.
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

// Reads one token and gives the number of characters consumed.
std::size_t CheckToken(const Text& source, const Sets& sets, std::size_t capacity)
{
    const Token whole = ReadString(source, sets, source.size() + 1);
    OV_REQUIRE(whole.consumed <= source.size());
    OV_REQUIRE(IsWithin(whole.text, TextView(source).substr(0, whole.consumed)));
    // Only a stop that is left keeps a token from making progress.
    if (whole.consumed == 0)
        OV_REQUIRE(source.empty() || sets.kept.Has(source.front()));
    if (source.empty())
        OV_REQUIRE(whole.text.empty() && whole.consumed == 0);

    const bool hasQualifier =
        sets.qualifier.Count() > 0 && source.find(*sets.qualifier.Pointer()) != Text::npos;
    if (!hasQualifier) {
        const Token plain = PlainToken(source, sets, true);
        OV_REQUIRE(whole.text == plain.text && whole.consumed == plain.consumed);
    }

    // The capacity cuts the token and nothing else.
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

// The splitter knows no quoting and sees only a part of the source.
void CheckSplit(const Text& source, const Sets& sets, std::size_t limit)
{
    const TextView part = TextView(source).substr(0, limit);
    const Token plain = PlainToken(part, sets, false);
    Buffer buffer(part.size() + 1);
    const std::size_t consumed =
        SplitAlternative(buffer.Get(), source.c_str(), sets.leading.Pointer(), sets.trailing.Pointer(),
                         sets.remove.Pointer(), sets.consumed.Pointer(), sets.kept.Pointer(), limit);
    OV_REQUIRE(consumed == plain.consumed);
    OV_REQUIRE(buffer.Content() == plain.text);
}

bool SameNoCase(TextView a, TextView b)
{
    return std::ranges::equal(a, b, {}, ToUpperAscii, ToUpperAscii);
}

// The first place at or after `from`, npos when there is none.
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

    // In place, the buffer holds the source to begin with.
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
    // The members are initialised in their order, which is that of the lines.
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
