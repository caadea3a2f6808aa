// Runs the folders of tests/golden. Each is one case of reading and writing a configuration file.
//
//  default.cfg        read into the default table first, if present
//  current.cfg        read into the current table, if present
//  default-table.txt  the expected default table, if the case checks it
//  table.txt          the expected current table, if the case checks it
//  saved.cfg          the bytes that a save of the current table writes
//
// A table file has one line for each variable in name order: kind, name, value and comment, separated
// by tabs, with "\n", "\r", "\t" and "\\" for these characters and "\xHH" for any other byte that is not
// a printable ASCII character.

#include "base/locale_text.h"
#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "tests/core/scoped_locale.h"
#include "tests/data/test_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace ov
{
namespace
{

namespace fs = std::filesystem;

std::optional<std::string> ReadBytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

std::string Escaped(const Text& text)
{
    std::string bytes;
    EXPECT_TRUE(EncodeLocale(text, bytes));
    std::string escaped;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
        case '\n':
            escaped += "\\n";
            break;
        case '\r':
            escaped += "\\r";
            break;
        case '\t':
            escaped += "\\t";
            break;
        case '\\':
            escaped += "\\\\";
            break;
        default:
            if (byte < 0x20 || byte > 0x7E) {
                constexpr char digits[] = "0123456789ABCDEF";
                escaped += "\\x";
                escaped += digits[byte >> 4];
                escaped += digits[byte & 15];
            } else {
                escaped += c;
            }
        }
    }
    return escaped;
}

std::string TableText(const SettingStore& store, TableSelector table)
{
    std::string text;
    store.VisitInOrder(table, [&text](const SettingRecord& record) {
        text += std::to_string(record.kind) + '\t' + Escaped(record.name) + '\t' + Escaped(record.value) +
                '\t' + Escaped(record.comment) + '\n';
        return true;
    });
    return text;
}

std::vector<std::string> CaseNames()
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(test::TestData("tests/golden"))) {
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class Golden : public testing::TestWithParam<std::string>
{
  protected:
    std::optional<std::string> File(const char* name) const
    {
        return ReadBytes(test::TestData("tests/golden") / GetParam() / name);
    }

    const test::ScopedLocale m_locale{"C"};
};

TEST_P(Golden, ReadsAndWritesAsTheFolderSays)
{
    SettingStore store;
    if (const auto bytes = File("default.cfg"))
        ReadConfig(store, kDefaultTable, *bytes);
    if (const auto bytes = File("current.cfg"))
        ReadConfig(store, kCurrentTable, *bytes);

    bool compared = false;
    if (const auto expected = File("default-table.txt")) {
        EXPECT_EQ(TableText(store, kDefaultTable), *expected);
        compared = true;
    }
    if (const auto expected = File("table.txt")) {
        EXPECT_EQ(TableText(store, kCurrentTable), *expected);
        compared = true;
    }
    if (const auto expected = File("saved.cfg")) {
        std::string saved;
        const Text header = MakeHeader({u"Friday 20 November 2026, 19:12:00", u"Jane Admin", u"OFFICE-01"});
        ASSERT_TRUE(WriteConfig(store, header, saved));
        EXPECT_EQ(saved, *expected);
        compared = true;
    }
    EXPECT_TRUE(compared) << "The folder expects nothing";
}

std::string TestName(const testing::TestParamInfo<std::string>& folder)
{
    std::string name = folder.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Folders, Golden, testing::ValuesIn(CaseNames()), TestName);

} // namespace
} // namespace ov
