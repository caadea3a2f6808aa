// Compares help texts with what the program does with the settings that they describe.
#include "config/core/setting_store.h"
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/string_table.h"
#include "tests/pages/expected_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <regex>
#include <string>
#include <vector>

namespace
{

std::string Help(unsigned id)
{
    return ov::Utf8FromText(ov::Description(ov::FindString(id)));
}

void ExpectHelpSays(unsigned id, std::initializer_list<const char*> phrases)
{
    const std::string help = Help(id);
    for (const char* phrase : phrases)
        EXPECT_NE(help.find(phrase), std::string::npos)
            << id << " does not say \"" << phrase << "\": " << help;
}

/// The values that the help text assigns to the variable in its examples.
std::vector<std::string> Examples(const std::string& help, const std::string& variable)
{
    std::vector<std::string> values;
    const std::regex line("\t" + variable + " [=>] ([^\r]*)");
    for (std::sregex_iterator at(help.begin(), help.end(), line), end; at != end; ++at)
        values.push_back((*at)[1]);
    return values;
}

// If the page shows text, the number is saved as typed.
TEST(HelpTexts, ShowWholeNumbersAsExamplesOfWholeNumbers)
{
    for (const expected::Page& page : expected::Pages()) {
        for (const expected::Setting& setting : page.settings) {
            if (setting.kind != ov::SettingKindInteger)
                continue;
            for (const std::string& value : Examples(Help(setting.helpId), setting.variable))
                EXPECT_TRUE(std::regex_match(value, std::regex("-?[0-9]+")))
                    << setting.variable << " = " << value;
        }
    }
}

TEST(HelpTexts, GiveTheNumberUnderWhichEachOperatorIsStored)
{
    ExpectHelpSays(8015, {"\t0: Or ", "\t1: And ", "\t2: Until "});
}

TEST(HelpTexts, DoNotAdviseQuotesThatNoSaveKeeps)
{
    ExpectHelpSays(9120, {"four fields", "cannot hold a comma", "not kept in the file"});
    for (const std::string& command : Examples(Help(9120), "_ORTHOVAL_REPORT_CUSTOM_COMMANDS"))
        EXPECT_EQ(3, std::ranges::count(command, ',')) << command;
    EXPECT_EQ(2u, Examples(Help(9120), "_ORTHOVAL_REPORT_CUSTOM_COMMANDS").size());
}

TEST(HelpTexts, DescribeTheDefaultModelInTheSameWords)
{
    std::string ofTitleBlocks = Help(2056);
    ofTitleBlocks.replace(ofTitleBlocks.find("title block cells"), 17, "border sheets");
    EXPECT_EQ(Help(2057).substr(0, ofTitleBlocks.size()), ofTitleBlocks);
}

// Three check boxes of the page edit the setting after the one in their caption.
TEST(HelpTexts, ExplainWhatTheShiftedBoxesOfCertifyingSet)
{
    ExpectHelpSays(9333, {"The box 'Check reference files for marker cells' sets _ORTHOVAL_MARKERCELL"});
    ExpectHelpSays(2038, {"the box 'Disallow multiple watermarks with differing settings' shows and sets "
                          "_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS"});
}

TEST(HelpTexts, DescribeTheThreeValuesOfClippedReferenceElements)
{
    ExpectHelpSays(9331, {"1 = Always, for all users.", "0 = Never, for all users.", "-1 = User Defined",
                          "-1 is saved as 0"});
}

TEST(HelpTexts, DoNotDenyUsersTheirOwnScanPeriod)
{
    ExpectHelpSays(8014,
                   {"Users may still choose a scan period of their own if _ORTHOVAL_SCANPERIOD_ALLOWUSER"});
    EXPECT_EQ(Help(8014).find("whatever their date"), std::string::npos);
}

// Neither the codes nor the levels are defined by this program.
TEST(HelpTexts, SayWhoDefinesWhatTheDialogDoesNot)
{
    ExpectHelpSays(9103, {"The Reporting tools define the meaning of -1, 0 and 1."});
    ExpectHelpSays(9132, {"The program that writes the log defines what it writes at each level."});
    ExpectHelpSays(9304, {"read by the program that places the watermark", "\t%d - ", "\t%m - ", "\t%Y - "});
    ExpectHelpSays(9309, {"that string itself is not a setting of this file"});
}

TEST(HelpTexts, SayWhatAnEmptyValueMeans)
{
    for (unsigned id : {9302u, 9304u, 9306u, 9309u, 9120u})
        ExpectHelpSays(id, {"If this variable is missing or empty, "});
}

TEST(HelpTexts, SayThatTheTextColourIsForced)
{
    ExpectHelpSays(8102, {"force the override colour of a text to match"});
}

} // namespace
