// The Feature Tables, Languages and Users pages: how their buttons split lists,
// their dependencies, and the oddities of their existing texts.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace
{
const ov::BrowseRow& BrowseOf(const ov::PageRows& page, int button)
{
    const auto row = std::ranges::find(page.browses, button, &ov::BrowseRow::buttonId);
    EXPECT_NE(row, page.browses.end());
    return *row;
}

TEST(FeatureTablesPage, ListsOfTableNamesAreSplitAtCommas)
{
    for (const int button : {9388, 9395}) {
        const ov::BrowseRow& row = BrowseOf(ov::kFeatureTablesRows, button);
        EXPECT_EQ(row.kind, ov::BrowseKind::List);
        EXPECT_EQ(row.browsing, 0u);
        EXPECT_EQ(row.separator, u',');
        EXPECT_EQ(row.fieldSeparator, 0);
        EXPECT_EQ(row.fieldCount, 1u);
    }
}

TEST(FeatureTablesPage, BackupsGoFromNoneToTenThousandFasterAndFaster)
{
    const auto spins = ov::kFeatureTablesRows.spins;
    ASSERT_EQ(spins.size(), 1u);
    EXPECT_EQ(spins[0].buddyId, 11024);
    EXPECT_EQ(spins[0].lowest, 0);
    EXPECT_EQ(spins[0].highest, 10000);
    ASSERT_EQ(spins[0].steps.size(), 3u);
}

TEST(FeatureTablesPage, SecondListButtonHasNoHelp)
{
    EXPECT_TRUE(std::ranges::none_of(ov::kFeatureTablesRows.extraHelp,
                                     [](const ov::HelpRow& row) { return row.controlId == 9395; }));
}

TEST(LanguagesPage, KeyinsAreListsBetweenSemicolonsThatKeepTheFocusAtTheirEdit)
{
    for (const auto& [button, edit] : {std::pair{2713, 2704}, {2714, 2706}, {2715, 2711}}) {
        const ov::BrowseRow& row = BrowseOf(ov::kLanguagesRows, button);
        EXPECT_EQ(row.kind, ov::BrowseKind::List);
        EXPECT_EQ(row.separator, u';');
        EXPECT_EQ(row.browsing, 0u);
        EXPECT_EQ(row.focusOnRefusal, edit);
    }
    EXPECT_EQ(BrowseOf(ov::kLanguagesRows, 2710).kind, ov::BrowseKind::File);
}

TEST(UsersPage, EverythingHangsOnTheGroupsWindowsAuthenticationIncluded)
{
    ov::PageValues values(ov::kUsersRows);
    std::set<int> dependent;
    for (const int on : {0, 1}) {
        values.NumberOf(u"_ORTHOVAL_USERS_ALLOW_GROUPS") = on;
        for (const ov::DependencyRow& row : ov::kUsersRows.dependencies) {
            EXPECT_EQ(row.effect, ov::Effect::Enable);
            EXPECT_EQ(values.Holds(row), on == 1);
            dependent.insert(row.controlId);
        }
    }
    EXPECT_EQ(dependent, (std::set<int>{9397, 9398, 9399, 11000}));
}

TEST(UsersPage, RefusedListOfGroupsKeepsTheFocusAtItsEdit)
{
    const ov::BrowseRow& row = BrowseOf(ov::kUsersRows, 11000);
    EXPECT_EQ(row.separator, u';');
    EXPECT_EQ(row.focusOnRefusal, 9398);
}

TEST(TextsOfOld, KeepTheirBlanks)
{
    EXPECT_NE(ov::FindString(2036).find(u"'MECH', etc).  Usually this is"), ov::TextView::npos);
    EXPECT_TRUE(ov::FindString(8310).ends_with(u"for the purposes of checking and reporting. "));
}

} // namespace
