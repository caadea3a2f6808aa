// Reads a file (after a defaults file, if a line "=====" divides the input), then writes and reads
// it several times. The first line of an input contains: the kind that every variable gets after
// the first reading (0 the one that was read, 6 each kind in turn), the locale
// (0 "C", 1 UTF-8), and the user named in the header.
//
// Reading gives back what was written, except in these cases:
//  - a text loses its quotes and, because it is written in quotes, the part from a "#" on that is not
//    its first character; the rest may be a number;
//  - a value written without quotes loses its trailing white space;
//  - a list loses quotes, blanks around its items and empty items; a list without items is not
//    written; a list with a single item comes back as a single value;
//  - above the first variable written, comment lines before the first empty line are read as the
//    header and discarded; if there is no empty line, the header itself becomes part of the
//    comment, once for each save.
// By these rules every value is stable after three writes, and a value that was read and is not a list
// after one write. A file with stable values does not change any more, except for the header that the
// last rule adds.

#include "base/locale_text.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "tests/fuzz/config_input.h"

#include <optional>

namespace ov::fuzz
{
namespace
{

// The value after writing and reading once; nothing if it is not written at all. The comment
// does not change.
std::optional<LiteralRecord> ValueBack(const LiteralRecord& record)
{
    LiteralRecord back = record;
    if (record.value.find(u';') != Text::npos) {
        const std::vector<Text> items = LiteralItems(record.value);
        if (items.empty())
            return std::nullopt;
        back.value.clear();
        for (std::size_t i = 0; i < items.size(); ++i) {
            const std::size_t end = items[i].find_last_not_of(u" \t\v\f\r");
            if (i > 0)
                back.value += u';';
            back.value += end == Text::npos ? Text() : items[i].substr(0, end + 1);
        }
    } else if (record.kind == 1) {
        back.value = LiteralUnquote(u'"' + record.value + u'"');
    } else {
        const std::size_t end = record.value.find_last_not_of(u" \t\v\f\r");
        back.value = LiteralUnquote(record.value.substr(0, end == Text::npos ? 0 : end + 1));
    }
    back.kind = LiteralKind(back.value);
    return back;
}

// The table with every value as its bytes read. Removing a quote may join bytes to one character: the
// bytes are unchanged, but the text differs when they are read again.
LiteralTable AsBytesRead(LiteralTable table)
{
    for (auto& [name, record] : table) {
        std::string bytes;
        OV_REQUIRE(EncodeLocale(record.value, bytes));
        record.value = DecodeLocale(bytes);
    }
    return table;
}

// The position of the first empty line of a comment; the comment's length if there is none.
std::size_t FirstEmptyLine(const Text& comment)
{
    for (std::size_t i = 0; i < comment.size(); ++i) {
        if (comment[i] == u'\n' && (i == 0 || comment[i - 1] == u'\n'))
            return i;
    }
    return comment.size();
}

// The table after writing and reading once.
LiteralTable TableBack(const LiteralStore& store, const Text& header)
{
    LiteralTable table;
    bool first = true;
    for (const auto& [name, record] : store.current) {
        auto back = ValueBack(record);
        if (!back)
            continue;
        back->comment = store.WrittenComment(name);
        if (first) {
            const std::size_t empty = FirstEmptyLine(back->comment);
            if (empty < back->comment.size())
                back->comment.erase(0, empty);
            else
                back->comment.insert(0, header + u"\n");
        }
        first = false;
        table.emplace(name, *back);
    }
    return table;
}

// The bytes that the save after the next adds before those of the next save.
std::string HeaderAdded(const LiteralTable& table, const Text& header)
{
    if (table.empty())
        return {};
    const Text& comment = table.begin()->second.comment;
    return FirstEmptyLine(comment) < comment.size() ? std::string() : LiteralStore().Write(header);
}

// Whether every variable and value comes back unchanged.
bool AllSettled(const LiteralTable& table)
{
    LiteralTable back;
    for (const auto& [name, record] : table) {
        if (const auto value = ValueBack(record))
            back.emplace(name, *value);
    }
    return AsBytesRead(back) == AsBytesRead(table);
}

bool HoldsList(const LiteralTable& table)
{
    return std::ranges::any_of(table,
                               [](const auto& named) { return named.second.value.find(u';') != Text::npos; });
}

void GiveKinds(SettingStore& store, LiteralStore& literal, unsigned choice)
{
    int next = 0;
    for (auto& [name, record] : literal.current) {
        next = next % 5 + 1;
        record.kind = choice == 6 ? next : static_cast<int>(choice);
        store.SetSetting(name, record.value, record.kind, u"# A comment that is not taken\n", kCurrentTable);
    }
    OV_REQUIRE(TableOf(store, kCurrentTable) == literal.current);
}

void Run(FuzzInput input)
{
    const std::string_view line = input.Line();
    Options options(line.substr(0, 4));
    const unsigned kinds = options.Number(6);
    UseLocale(options.Number(1));
    const Text user = DecodeLocale(line.substr(std::min<std::size_t>(4, line.size())));
    const Text header = MakeHeader({u"Friday 20 November 2026, 19:12:00", user, u"OFFICE-01"});
    const TwoFiles contents(input.Rest());

    SettingStore store;
    LiteralStore literal;
    if (contents.both) {
        ReadConfig(store, kDefaultTable, contents.first);
        literal.Read(kDefaultTable, contents.first);
    }
    const std::string_view file = contents.both ? contents.second : contents.first;
    ReadConfig(store, kCurrentTable, file);
    literal.Read(kCurrentTable, file);
    if (kinds != 0)
        GiveKinds(store, literal, kinds);
    const int savesToSettle = kinds == 0 && !HoldsList(literal.current) ? 1 : 3;

    constexpr int kSaves = 5;
    bool settled = false; // Whether the table's values were stable before this save, unless it is the first.
    std::optional<std::string> expected;
    for (int save = 1; save <= kSaves; ++save) {
        std::string bytes;
        OV_REQUIRE(WriteConfig(store, header, bytes));
        OV_REQUIRE(bytes == literal.Write(header));
        OV_REQUIRE(!expected || bytes == *expected);
        if (settled)
            expected = HeaderAdded(literal.current, header) + bytes;

        const LiteralTable back = TableBack(literal, header);
        ReadConfig(store, kCurrentTable, bytes);
        literal.Read(kCurrentTable, bytes);
        OV_REQUIRE(TableOf(store, kCurrentTable) == literal.current);
        OV_REQUIRE(AsBytesRead(literal.current) == AsBytesRead(back));
        OV_REQUIRE(!settled || AllSettled(literal.current));
        settled = AllSettled(literal.current);
        OV_REQUIRE(settled || save < savesToSettle);
    }
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}
