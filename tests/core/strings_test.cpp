// The string table as the program and the resource compiler read it.
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/string_table.h"
#include "pages/file_naming_convention/ids.h"
#include "tests/pages/expected_texts.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace
{

std::string String(unsigned id)
{
    return ov::Utf8FromText(ov::FindString(id));
}

/// The positions of the four tags.
std::vector<std::size_t> TagPositions(ov::TextView text)
{
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < text.size(); ++i) {
        for (const ov::TextView tag : ov::TooltipTags) {
            if (text.substr(i).starts_with(tag))
                positions.push_back(i);
        }
    }
    return positions;
}

/// Descriptions older than the rule: one ends with a blank, one has two blanks
/// in a row.
bool HasBlanksOfOld(unsigned id)
{
    return id == 8310 || id == 2036;
}

bool IsHelpText(ov::TextView text)
{
    return text.starts_with(u'<');
}

/// Help texts older than the rules for writing them. Their wording is kept,
/// including two blanks in a row.
bool HasTwoBlanksOfOld(unsigned id)
{
    return id == IDS_HELP_FILE_NAMING_TEMPLATES;
}

TEST(Strings, CaptionsQuestionsAndMessagesStandWordForWord)
{
    EXPECT_EQ(String(5000), "Orthoval for MicroStation Preferences");
    EXPECT_EQ(String(5013), "Category");
    EXPECT_EQ(String(5014), "Open Config File");
    EXPECT_EQ(String(5015), "Do you wish to abandon all changes?");
    EXPECT_EQ(String(5016), "Please select a folder and press 'OK'.");
    EXPECT_EQ(String(5017), "Select File");
    EXPECT_EQ(String(5020), "Text qualifier is missing.\nPlease verify the value again.");
    EXPECT_EQ(String(5030),
              "Error: No configuration file has been defined. Use the '...' button at the top of the dialog "
              "window to define an output file name for the configuration file.");
    EXPECT_EQ(String(2068), "Cannot rename backup file while saving.");
}

TEST(Strings, HelpOfTheDialogStandsWordForWord)
{
    EXPECT_EQ(String(7000), "<H>Preferences List<D>Displaying the list of all preferences settings.");
    EXPECT_EQ(String(7001), "<H>Config File Path<D>Specifies the currently loaded configuration file path.");
    EXPECT_EQ(
        String(7002),
        "<H>Open Config File<D>Sets the current configuration file to work with. Selecting an existing "
        "file will load the settings from it. Selecting a new file will define the location to save the "
        "existing settings to.");
    EXPECT_EQ(String(7003), "<H>Save<D>Saves the preferences and closes the dialog.");
    EXPECT_EQ(String(7004), "<H>Cancel<D>Closes the dialog without applying changes.");
}

TEST(Strings, TextsOfTheListEditorStandWordForWord)
{
    EXPECT_EQ(String(5019), "This will delete %d items from the list.\nDo you want to continue?");
    EXPECT_EQ(String(7005), "<H>Setting Values<D>This list contains all values of the setting.");
    EXPECT_EQ(String(7006), "<H>Value<D>Define a value for the setting.");
    EXPECT_EQ(String(7007), "<H>Insert<D>Inserts the value into list.");
    EXPECT_EQ(String(7008), "<H>Delete<D>Deletes the selected row(s) from defined values list.");
    EXPECT_EQ(String(7009), "<H>OK<D>Saves the changes and closes the dialog.");
    EXPECT_EQ(String(7010), "<H>Browse<D>Opens a file requestor dialog to browse for the required file.");
}

TEST(Strings, TextsOfThePatternTesterStandWordForWord)
{
    EXPECT_EQ(String(5120), "0 - No regular expressions allowed");
    EXPECT_EQ(String(5121), "1 - DOS Wildcards (? and *)");
    EXPECT_EQ(String(5122), "2 - DOS Wildcards with ranges & subsets");
    EXPECT_EQ(String(5123), "3 - DOS Wildcards with ranges, subsets & substrings");
    EXPECT_EQ(String(5124), "4 - PERL Regular Expressions");
    EXPECT_EQ(String(5125), "5 - POSIX Extended Regular Expressions");
    EXPECT_EQ(String(5126), "No Template String");
    EXPECT_EQ(String(5127), "No Test String");
    EXPECT_EQ(String(5128), "Syntax Error in Regex: %d");
    EXPECT_EQ(String(5129), "Match");
    EXPECT_EQ(String(5130), "No Match");
}

TEST(Strings, FixedTextsStandWordForWord)
{
    for (const expected::FixedText& fixed : expected::FixedTexts()) {
        SCOPED_TRACE(fixed.id);
        const std::string text = String(fixed.id);
        switch (fixed.extent) {
        case expected::Extent::Whole:
            EXPECT_EQ(text, fixed.text);
            break;
        case expected::Extent::Beginning:
            EXPECT_EQ(text.substr(0, std::string_view(fixed.text).size()), fixed.text);
            break;
        case expected::Extent::Part:
            EXPECT_NE(text.find(fixed.text), std::string::npos) << text;
            break;
        }
    }
}

TEST(Strings, EveryPageHasATitle)
{
    for (const ov::PageInfo* page : ov::PageCatalogue())
        EXPECT_FALSE(ov::FindString(page->titleId).empty()) << page->titleId;
}

TEST(Strings, EveryHelpTextOfTheTwoPagesIsThere)
{
    for (unsigned id : {8000u, 8001u, 8002u, 2069u, 8008u, 8020u, 8010u, 8004u, 2011u, 8023u, 8028u,
                        8012u, 2017u, 8021u, 9319u, 2059u, 2060u, 2061u, 2062u, 2063u, 2064u})
        EXPECT_TRUE(ov::FindString(id).starts_with(u"<T>_ORTHOVAL_")) << id;
}

TEST(Strings, NumbersAreUnique)
{
    std::set<unsigned> ids;
    for (const ov::StringRow& row : ov::StringTable())
        EXPECT_TRUE(ids.insert(row.id).second) << row.id;
}

TEST(Strings, UnknownNumberGivesAnEmptyText)
{
    EXPECT_TRUE(ov::FindString(0).empty());
    EXPECT_TRUE(ov::FindString(4999).empty());
}

TEST(Strings, AreAsciiSoThatEveryLocaleCanWriteThem)
{
    for (const ov::StringRow& row : ov::StringTable()) {
        EXPECT_FALSE(ov::TextView(row.text).empty()) << row.id;
        for (const char16_t c : ov::TextView(row.text)) {
            EXPECT_TRUE((c >= u' ' && c <= u'~') || c == u'\r' || c == u'\n' || c == u'\t')
                << row.id << " has character " << static_cast<unsigned>(c);
        }
    }
}

TEST(Strings, HelpTextsAreVariableHeadingDescriptionInThisOrder)
{
    for (const ov::StringRow& row : ov::StringTable()) {
        const ov::TextView text = row.text;
        if (!IsHelpText(text)) {
            EXPECT_TRUE(TagPositions(text).empty()) << row.id;
            continue;
        }
        const bool hasVariable = text.starts_with(u"<T>");
        const std::vector<std::size_t> tags = TagPositions(text);
        ASSERT_EQ(tags.size(), hasVariable ? 3u : 2u) << row.id;
        EXPECT_EQ(text.substr(tags[tags.size() - 2], 3), u"<H>") << row.id;
        EXPECT_EQ(text.substr(tags.back(), 3), u"<D>") << row.id;
        EXPECT_EQ(tags.front(), 0u) << row.id;
        EXPECT_EQ(ov::VariableName(text).empty(), !hasVariable) << row.id;
        std::size_t position = 0;
        EXPECT_FALSE(ov::ExtractSection(text, ov::TooltipSection::Heading, position).empty()) << row.id;
        EXPECT_FALSE(ov::Description(text).empty()) << row.id;
    }
}

TEST(Strings, SectionsHaveNoBlanksAtTheirEnds)
{
    for (const ov::StringRow& row : ov::StringTable()) {
        if (!IsHelpText(row.text))
            continue;
        std::size_t position = 0;
        const ov::TextView heading = ov::ExtractSection(row.text, ov::TooltipSection::Heading, position);
        EXPECT_EQ(ov::Trim(heading), heading) << row.id;
        if (HasBlanksOfOld(row.id))
            continue;
        const ov::Text description = ov::Description(row.text);
        EXPECT_EQ(ov::Trim(description), description) << row.id;
        EXPECT_EQ(description.find(u"  ") != ov::Text::npos, HasTwoBlanksOfOld(row.id)) << row.id;
    }
}

TEST(Strings, LinesOfDescriptionsEndInBothCharacters)
{
    for (const ov::StringRow& row : ov::StringTable()) {
        if (!IsHelpText(row.text))
            continue;
        const ov::TextView text = row.text;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == u'\n') {
                EXPECT_TRUE(i > 0 && text[i - 1] == u'\r') << row.id;
            }
            if (text[i] == u'\r') {
                EXPECT_TRUE(i + 1 < text.size() && text[i + 1] == u'\n') << row.id;
            }
        }
    }
}

} // namespace
