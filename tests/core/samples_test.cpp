// The two sample files, read as the program reads them.
#include "config/core/config_reader.h"
#include "config/core/setting_comment.h"
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "tests/data/test_data.h"
#include "tests/pages/expected_pages.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace
{
using ov::kCurrentTable;
using ov::kDefaultTable;

std::string ReadSample(const char* name)
{
    const auto path = ov::test::TestData("samples") / name;
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

class Samples : public testing::Test
{
  protected:
    Samples()
    {
        ov::ReadConfig(store, kDefaultTable, ReadSample("defaults.cfg"));
        ov::ReadConfig(store, kCurrentTable, ReadSample("office.cfg"));
    }

    std::string Current(const char16_t* name) const
    {
        EXPECT_TRUE(store.HasSetting(name, kCurrentTable)) << ov::Utf8FromText(name);
        return ov::Utf8FromText(store.GetSettingValue(name, kCurrentTable));
    }

    std::string Comment(const char16_t* name) const
    {
        const auto record = store.FindSetting(name, kCurrentTable);
        return record ? ov::Utf8FromText(ov::Text(record->comment)) : "absent";
    }

    ov::SettingStore store;
};

/// The names that the lines of a file assign; commented-out lines do not count.
std::set<std::string> AssignedNames(const std::string& bytes)
{
    std::set<std::string> names;
    std::istringstream lines(bytes);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        std::string sign;
        if (words >> name >> sign && name[0] != '#' && name[0] != '%')
            names.insert(name);
    }
    return names;
}

/// Every variable that any page reads.
std::set<std::string> AllVariables()
{
    std::set<std::string> names;
    for (const expected::Page& page : expected::Pages()) {
        for (const expected::Setting& setting : page.settings)
            names.insert(setting.variable);
    }
    for (const char* variable : expected::OlderVariables())
        names.insert(variable);
    return names;
}

TEST_F(Samples, EveryAssignedVariableIsRead)
{
    EXPECT_EQ(store.Count(kDefaultTable), AssignedNames(ReadSample("defaults.cfg")).size());
    EXPECT_EQ(store.Count(kCurrentTable), AssignedNames(ReadSample("office.cfg")).size());
}

TEST_F(Samples, DefaultsAreComplete)
{
    EXPECT_EQ(AssignedNames(ReadSample("defaults.cfg")), AllVariables());
    EXPECT_GE(store.Count(kDefaultTable), 177u);
}

TEST_F(Samples, DefaultsHaveAValueAndACommentForEveryVariable)
{
    for (const std::string& name : AllVariables()) {
        const auto record = store.FindSetting(ov::TextFromUtf8(name), kDefaultTable);
        ASSERT_TRUE(record) << name;
        EXPECT_FALSE(record->value.empty()) << name;
        EXPECT_NE(ov::Text(record->comment).find_first_not_of(u"# \n"), ov::Text::npos) << name;
    }
}

/// Removes the blanks at the ends of lines, which the samples do not have.
std::string WithoutTrailingBlanks(const ov::Text& comment)
{
    return std::regex_replace(ov::Utf8FromText(comment), std::regex(" +\n"), "\n");
}

// The comments are the help texts in the form that a new variable gets.
TEST_F(Samples, DefaultsExplainEveryVariableByItsHelp)
{
    for (const expected::Page& page : expected::Pages()) {
        for (const expected::Setting& setting : page.settings) {
            const auto record = store.FindSetting(ov::TextFromUtf8(setting.variable), kDefaultTable);
            ASSERT_TRUE(record) << setting.variable;
            const ov::Text block = ov::MakeCommentBlock(ov::Description(ov::FindString(setting.helpId)));
            EXPECT_EQ(WithoutTrailingBlanks(ov::Text(record->comment)), WithoutTrailingBlanks(block))
                << setting.variable;
        }
    }
}

// As Save writes it: in name order, with a comment block above every variable. For the lists see below.
TEST_F(Samples, DefaultsHaveTheFormOfASavedFile)
{
    const std::string bytes = ReadSample("defaults.cfg");
    EXPECT_TRUE(bytes.starts_with("#\r\n# Orthoval Administration Configuration File.\r\n#\r\n"));
    std::istringstream lines(bytes);
    std::string above;
    std::string lastName;
    for (std::string line; std::getline(lines, line); above = line) {
        if (line.starts_with("#") || line == "\r")
            continue;
        const std::string name = line.substr(0, line.find(' '));
        EXPECT_EQ(above, "#\r") << name << " has no comment block";
        EXPECT_LT(lastName, name);
        lastName = name;
    }
}

// Pages that load the defaults and save write the same values.
TEST_F(Samples, DefaultsPassThroughThePagesAsTheyAre)
{
    expected::Table defaults;
    for (const std::string& name : AllVariables())
        defaults[name] = ov::Utf8FromText(store.GetSettingValue(ov::TextFromUtf8(name), kDefaultTable));
    for (const expected::Page& page : expected::Pages()) {
        for (const expected::Setting& setting : page.settings)
            EXPECT_EQ(expected::AfterSave(setting, defaults), defaults.at(setting.variable))
                << setting.variable;
    }
    for (const ov::PageRows* page : ov::AllPageRows()) {
        ov::SettingStore saved;
        ov::PageValues values(*page);
        values.Load(store, kDefaultTable);
        values.Save(saved, true);
        for (const ov::SettingRow& row : page->settings) {
            const auto record = saved.FindSetting(row.variable, kCurrentTable);
            if (!record)
                continue;
            EXPECT_EQ(ov::Utf8FromText(ov::Text(record->value)),
                      ov::Utf8FromText(store.GetSettingValue(row.variable, kDefaultTable)))
                << ov::Utf8FromText(row.variable);
        }
    }
}

TEST_F(Samples, OfficeFileIsASelectionWithSomethingForEveryPage)
{
    const std::set<std::string> all = AllVariables();
    std::size_t known = 0;
    for (const expected::Page& page : expected::Pages()) {
        std::size_t ofPage = 0;
        for (const expected::Setting& setting : page.settings)
            ofPage += store.HasSetting(ov::TextFromUtf8(setting.variable), kCurrentTable) ? 1 : 0;
        EXPECT_GT(ofPage, 0u) << page.title;
        known += ofPage;
    }
    EXPECT_LT(known, all.size());
    EXPECT_TRUE(ReadSample("office.cfg").find("\r\n%include ") != std::string::npos);
}

TEST_F(Samples, LinesEndAsOnWindows)
{
    for (const char* name : {"defaults.cfg", "office.cfg"}) {
        const std::string bytes = ReadSample(name);
        ASSERT_TRUE(bytes.ends_with("\r\n")) << name;
        ASSERT_NE(bytes.front(), '\n') << name;
        for (std::size_t i = 1; i < bytes.size(); ++i) {
            if (bytes[i] == '\n') {
                EXPECT_EQ(bytes[i - 1], '\r') << name << " at " << i;
            }
        }
    }
}

TEST_F(Samples, ListsAreJoined)
{
    EXPECT_EQ(Current(u"_ORTHOVAL_BRANDING_RENAME_TABLES"),
              "HR Civil 2004:HR Civil;HR Struct 2004:HR Structures;York Water:HR Water");
    EXPECT_EQ(
        Current(u"_ORTHOVAL_CONVENTION_FILENAME"),
        "HR[0-9]{4}-(C|S|E|M|W)-[0-9]{3}[A-Z]?\\.dgn;HR[0-9]{4}-XREF-.+\\.dgn;A14JV-[A-Z]{2}-[0-9]{5}\\.dgn");
}

// From a list on several lines, a defaults file gives only the last item.
TEST_F(Samples, ListsInTheDefaultsStandOnOneLine)
{
    EXPECT_EQ(ReadSample("defaults.cfg").find("\r\n_ORTHOVAL_CONVENTION_FILENAME > "), std::string::npos);
    EXPECT_EQ(ov::Utf8FromText(store.GetSettingValue(u"_ORTHOVAL_CONVENTION_FILENAME", kDefaultTable)),
              "HR[0-9][0-9][0-9][0-9]-[CSEMW]-*.DGN;HR[0-9][0-9][0-9][0-9]-XREF-*.DGN");
}

TEST_F(Samples, HashStaysInValuesWithoutQuotes)
{
    EXPECT_EQ(Current(u"_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN"), "mdl silentload plotlog #2");
    EXPECT_EQ(Current(u"_ORTHOVAL_REPORT_DISCIPLINES_DIR"), "\\\\hr-york-fs01\\cadstds\\#Disciplines\\");
}

TEST_F(Samples, QuotesInsideAValueStay)
{
    EXPECT_EQ(Current(u"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2"),
              "active level \"TEXT CY\";active font \"Engineering Italic\"");
    EXPECT_EQ(Current(u"_ORTHOVAL_README_FILE"),
              "\\\\hr-york-fs01\\cadstds\\orthoval\\docs\\York read me.pdf");
}

TEST_F(Samples, VariableThatNoPageKnowsIsRead)
{
    EXPECT_EQ(Current(u"HR_BATCH_FOLDERS"), "P:\\2217\\dgn;P:\\2231\\dgn");
}

TEST_F(Samples, CommentsByHandTravelWithTheirVariable)
{
    EXPECT_EQ(Comment(u"_ORTHOVAL_CHECK_TAGS"), "# Tags only in title blocks, as agreed with the client.\n");
    EXPECT_EQ(Comment(u"_ORTHOVAL_CHECK_TEXT"), "");
}

TEST_F(Samples, CommentedOutVariableIsPartOfTheNextComment)
{
    EXPECT_FALSE(store.HasSetting(u"_ORTHOVAL_CONVENTION_MODELNAME", kCurrentTable));
    EXPECT_EQ(Comment(u"_ORTHOVAL_CONVENTION_MODELNAME_PROMPT"),
              "# Model names are not checked until all sheets have been split.\n"
              "# _ORTHOVAL_CONVENTION_MODELNAME = \"[A-Z]{2}-SHEET-[0-9]{2}\"\n");
}

TEST_F(Samples, OfficeFileNamesEverySettingOfBrandingAndConforming)
{
    constexpr int branding = 2;
    constexpr int conforming = 6;
    for (const ov::PageRows* page : ov::AllPageRows()) {
        if (page->info.pageId != branding && page->info.pageId != conforming)
            continue;
        EXPECT_FALSE(page->settings.empty());
        for (const ov::SettingRow& row : page->settings)
            EXPECT_TRUE(store.HasSetting(row.variable, kCurrentTable)) << ov::Utf8FromText(row.variable);
    }
}

TEST_F(Samples, SavingUntouchedPagesChangesNoValueThatIsThere)
{
    ASSERT_FALSE(ov::AllPageRows().empty());
    for (const ov::PageRows* page : ov::AllPageRows()) {
        std::map<ov::Text, ov::Text> before;
        for (const ov::SettingRow& row : page->settings) {
            if (store.HasSetting(row.variable, kCurrentTable))
                before[row.variable] = store.GetSettingValue(row.variable, kCurrentTable);
        }
        ov::PageValues values(*page);
        values.Load(store, kCurrentTable);
        values.Save(store, true);
        for (const auto& [variable, value] : before)
            EXPECT_EQ(store.GetSettingValue(variable, kCurrentTable), value) << ov::Utf8FromText(variable);
    }
}

} // namespace
