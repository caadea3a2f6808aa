// The pages File Naming and Model Naming, which are equal except for one detail.
#include "controls/core/tooltip_markup.h"
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "pages/model_naming_convention/ids.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
using ov::PageRows;

const ov::BrowseRow& BrowseOf(const PageRows& page, int buttonId)
{
    return *std::ranges::find(page.browses, buttonId, &ov::BrowseRow::buttonId);
}

TEST(NamingPages, ListsAreSeparatedBySemicolonsAndTheDocumentIsAFile)
{
    for (const PageRows* page : {&ov::kFileNamingConventionRows, &ov::kModelNamingConventionRows}) {
        ASSERT_EQ(page->browses.size(), 4u);
        for (std::size_t i = 0; i < 4; ++i) {
            const ov::BrowseRow& row = page->browses[i];
            EXPECT_EQ(row.kind, i == 2 ? ov::BrowseKind::File : ov::BrowseKind::List) << row.buttonId;
            if (row.kind == ov::BrowseKind::File)
                continue;
            EXPECT_EQ(row.browsing, 0u);
            EXPECT_EQ(row.separator, u';');
            EXPECT_EQ(row.fieldCount, 1u);
        }
    }
}

TEST(NamingPages, RefusedListsHandTheFocusToTheirEdit)
{
    EXPECT_EQ(BrowseOf(ov::kFileNamingConventionRows, 2905).focusOnRefusal, 2901);
    EXPECT_EQ(BrowseOf(ov::kFileNamingConventionRows, 2911).focusOnRefusal, 2903);
    EXPECT_EQ(BrowseOf(ov::kModelNamingConventionRows, 2904).focusOnRefusal, 2903);
    EXPECT_EQ(BrowseOf(ov::kModelNamingConventionRows, 2910).focusOnRefusal, 2909);
}

// The only difference between the two, which is intended.
TEST(NamingPages, RefusedHelpTextHandsTheFocusToTheDescriptionsOfFilesAndToItselfOfModels)
{
    EXPECT_EQ(BrowseOf(ov::kFileNamingConventionRows, 2912).focusOnRefusal, 2903);
    EXPECT_EQ(BrowseOf(ov::kModelNamingConventionRows, 2912).focusOnRefusal, 9349);
}

TEST(NamingPages, StartWithoutPromptAndWithoutTexts)
{
    for (const PageRows* page : {&ov::kFileNamingConventionRows, &ov::kModelNamingConventionRows}) {
        for (const ov::SettingRow& row : page->settings) {
            EXPECT_EQ(row.initialNumber, 0);
            EXPECT_EQ(ov::TextView(row.initialText), u"");
        }
    }
}

TEST(NamingPages, HelpHasItsExamplesInLinesOfTheirOwn)
{
    const ov::Text help = ov::Description(ov::FindString(IDS_HELP_MODEL_NAMING_TEMPLATES));
    EXPECT_NE(help.find(u"for example:\r\n\t_ORTHOVAL_CONVENTION_MODELNAME = \"A-SHEET-\?\?\"\r\n"
                        u"\t_ORTHOVAL_CONVENTION_MODELNAME > \"B-SHEET-\?\?\"\r\n"
                        u"Would match 'A-SHEET-01' OR 'B-SHEET-99' but not 'D-SHEET-99.DGN' if "),
              ov::Text::npos);
}

} // namespace
