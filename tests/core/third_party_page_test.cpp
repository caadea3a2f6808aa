// Third Party Apps: help texts that say ON, check boxes that are off initially.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

namespace
{

TEST(ThirdPartyPage, HelpTextsStandWordForWord)
{
    EXPECT_EQ(
        ov::Utf8FromText(ov::FindString(8011)),
        "<T>_ORTHOVAL_CHECK_USERATTRIBUTES<H>Check User Data Attributes<D>This option defines whether to "
        "check user data attributes by default for conform and report, and also whether defined "
        "attributes are ON by default when adding a feature to the feature table. User Data Attributes "
        "are commonly used by third party applications such as Geopak and InRoads, and are displayed in "
        "MicroStation's 'Element Information' dialog box under the 'Attributes' tab page. It is OFF by "
        "default.");
    EXPECT_EQ(ov::Utf8FromText(ov::FindString(8017)),
              "<T>_ORTHOVAL_CHECK_GEOPAK<H>Check GEOPAK elements<D>Allows elements created by GEOPAK to be "
              "checked and added to the feature table. It is ON by default.");
    EXPECT_EQ(
        ov::Utf8FromText(ov::FindString(8018)),
        "<T>_ORTHOVAL_CHECK_INROADS<H>Check InRoads elements<D>Allows elements created by InRoads to be "
        "checked and added to the feature table. It is ON by default.");
    EXPECT_EQ(ov::Utf8FromText(ov::FindString(8019)),
              "<T>_ORTHOVAL_CHECK_TRIFORMA<H>Check MicroStation Triforma elements<D>Allows elements created "
              "by MicroStation Triforma to be checked and added to the feature table. It is ON by default.");
}

// The help texts describe the checker; the page shows the value in the file.
TEST(ThirdPartyPage, FlagsAreOffWhenAbsentWhateverTheHelpSays)
{
    ov::PageValues values(ov::kThirdPartyRows);
    ov::SettingStore store;
    for (std::size_t row = 0; row < values.Rows().size(); ++row)
        EXPECT_EQ(values.Number(row), 0);
    values.Load(store, ov::kCurrentTable);
    values.Save(store, true);
    for (const ov::SettingRow& row : values.Rows())
        EXPECT_EQ(store.GetSettingValue(row.variable, ov::kCurrentTable), u"0");
}

} // namespace
