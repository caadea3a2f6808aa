// Reads one or two files, one after the other, and compares both tables with those of the simple
// reader. The first line of an input contains: table of the first file (0 current, 1 default), table of
// the second, bytes per block minus one, locale (0 "C", 1 UTF-8).

#include "base/locale_text.h"
#include "config/core/config_reader.h"
#include "tests/core/memory_file_port.h"
#include "tests/fuzz/config_input.h"

namespace ov::fuzz
{
namespace
{

// Properties of every table that was read, whatever the file contains.
void RequireSound(const SettingStore& store, TableSelector selector, const LiteralTable& table)
{
    OV_REQUIRE(store.Count(selector) == table.size());
    for (const auto& [name, record] : table) {
        OV_REQUIRE(!name.empty());
        OV_REQUIRE(name.find_first_of(u" \t\n") == Text::npos);
        OV_REQUIRE(name.front() != u'#' && name.front() != u'%');
        OV_REQUIRE(record.kind == ClassifyValue(record.value));
        OV_REQUIRE(record.value.find(u'\n') == Text::npos);
        OV_REQUIRE(record.comment.empty() || record.comment.back() == u'\n');
        for (std::size_t i = 0; i < record.comment.size(); ++i) {
            if (i == 0 || record.comment[i - 1] == u'\n')
                OV_REQUIRE(record.comment[i] == u'\n' || record.comment[i] == u'#');
        }
        const auto found = store.FindSetting(name, selector);
        OV_REQUIRE(found && found->name == name && found->value == record.value);
        OV_REQUIRE(found->comment == record.comment && found->kind == record.kind);
        OV_REQUIRE(store.HasSetting(name, selector));
        OV_REQUIRE(store.GetSettingValue(name, selector) == record.value);
        OV_REQUIRE(store.GetSettingFlag(name, selector) == (record.value == u"1"));
        // No variable in the table has this name.
        OV_REQUIRE(!store.HasSetting(name + u" ", selector));
    }
}

void RequireSame(const SettingStore& store, LiteralStore& literal)
{
    for (const TableSelector selector : {kCurrentTable, kDefaultTable}) {
        const LiteralTable table = TableOf(store, selector);
        RequireSound(store, selector, table);
        OV_REQUIRE(table == literal.Table(selector));
    }
    OV_REQUIRE(store.IsModified() == literal.modified);
}

void Run(FuzzInput input)
{
    Options options(input.Line());
    const TableSelector selectors[] = {static_cast<TableSelector>(options.Number(1)),
                                       static_cast<TableSelector>(options.Number(1))};
    test::MemoryFilePort files;
    files.blockSize = options.Number(1000) + 1;
    UseLocale(options.Number(1));
    const TwoFiles contents(input.Rest());
    const Text path = u"office.cfg";

    SettingStore store;
    SettingStore inBlocks;
    LiteralStore literal;
    for (int i = 0; i < (contents.both ? 2 : 1); ++i) {
        const std::string bytes(i == 0 ? contents.first : contents.second);
        std::string back;
        OV_REQUIRE(EncodeLocale(DecodeLocale(bytes), back) && back == bytes);
        ReadConfig(store, selectors[i], bytes);
        files.contents[path] = bytes;
        OV_REQUIRE(ReadConfigFile(inBlocks, selectors[i], path, files).outcome == ReadOutcome::Read);
        literal.Read(selectors[i], bytes);
        RequireSame(store, literal);
        RequireSame(inBlocks, literal);
        OV_REQUIRE(files.openFiles == 0);
    }
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}
