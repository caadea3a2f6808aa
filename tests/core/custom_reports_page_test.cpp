// Behaviour that only the Custom Reports page has.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

TEST(CustomReportsPage, CommandsAreListedInFourFieldsAndProjectsAsFiles)
{
    ASSERT_GE(ov::kCustomReportsRows.browses.size(), 2u);
    const ov::BrowseRow& commands = ov::kCustomReportsRows.browses[0];
    EXPECT_EQ(commands.buttonId, 11049);
    EXPECT_EQ(ov::TextView(commands.variable), u"_ORTHOVAL_REPORT_CUSTOM_COMMANDS");
    EXPECT_EQ(commands.kind, ov::BrowseKind::List);
    EXPECT_EQ(commands.browsing, 0u);
    EXPECT_EQ(commands.separator, u';');
    EXPECT_EQ(commands.fieldSeparator, u',');
    EXPECT_EQ(commands.fieldCount, 4u);
    const ov::BrowseRow& projects = ov::kCustomReportsRows.browses[1];
    EXPECT_EQ(projects.buttonId, 11054);
    EXPECT_EQ(ov::TextView(projects.variable), u"_ORTHOVAL_REPORT_CUSTOM_MVBA");
    EXPECT_EQ(projects.browsing, 1u);
    EXPECT_EQ(projects.separator, u';');
    EXPECT_EQ(projects.fieldSeparator, u'\0');
    EXPECT_EQ(projects.fieldCount, 1u);
}

TEST(CustomReportsPage, IsSavedFromTheLockToTheProjects)
{
    std::vector<std::string> order;
    for (const ov::SettingRow& row : ov::kCustomReportsRows.settings)
        order.push_back(ov::Utf8FromText(row.variable));
    EXPECT_EQ(order,
              (std::vector<std::string>{"_ORTHOVAL_REPORT_CUSTOM_COMMANDS_LOCKED",
                                        "_ORTHOVAL_REPORT_CUSTOM_COMMANDS", "_ORTHOVAL_REPORT_CUSTOM_MVBA"}));
}

TEST(CustomReportsPage, ProjectsAreATextNotAPath)
{
    const ov::PageValues values(ov::kCustomReportsRows);
    const std::size_t row = values.FindRow(u"_ORTHOVAL_REPORT_CUSTOM_MVBA");
    ASSERT_LT(row, values.Rows().size());
    EXPECT_EQ(values.Rows()[row].kind, ov::SettingKindText);
}

} // namespace
