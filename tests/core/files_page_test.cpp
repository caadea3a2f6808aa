// The File Paths page: an older variable, and which chooser fills which field.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

constexpr const char16_t* jet = u"_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS";
constexpr const char16_t* older = u"_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS";

void Put(SettingStore& store, ov::TextView variable, ov::TextView value,
         ov::TableSelector table = kCurrentTable)
{
    store.SetSetting(variable, value, ov::SettingKindPath, u"", table);
}

Text JetAfterLoading(const SettingStore& store, ov::TableSelector table = kCurrentTable)
{
    PageValues values(ov::kFilesRows);
    values.Load(store, table);
    return values.TextOf(jet);
}

TEST(FilesPage, OlderDataSourceIsShownAsJetAndSavedUnderBothNames)
{
    SettingStore store;
    Put(store, older, u"P:\\Excel.dsn");
    PageValues values(ov::kFilesRows);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.TextOf(jet), u"P:\\Excel.dsn");
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(jet, kCurrentTable), u"P:\\Excel.dsn");
    EXPECT_EQ(store.GetSettingValue(older, kCurrentTable), u"P:\\Excel.dsn");
}

TEST(FilesPage, OlderDataSourceGivesWayToTheNewerOneUnlessThatIsEmpty)
{
    SettingStore store;
    Put(store, older, u"old.dsn");
    Put(store, jet, u"new.dsn");
    EXPECT_EQ(JetAfterLoading(store), u"new.dsn");
    Put(store, jet, u"");
    EXPECT_EQ(JetAfterLoading(store), u"old.dsn");
}

TEST(FilesPage, OlderDataSourceComesFromTheTableThatIsLoaded)
{
    SettingStore store;
    Put(store, older, u"default.dsn", ov::kDefaultTable);
    EXPECT_EQ(JetAfterLoading(store), u"");
    EXPECT_EQ(JetAfterLoading(store, ov::kDefaultTable), u"default.dsn");
}

TEST(FilesPage, NewerDataSourceDoesNotTouchTheOlderOne)
{
    SettingStore store;
    Put(store, older, u"old.dsn");
    PageValues values(ov::kFilesRows);
    values.Load(store, kCurrentTable);
    values.TextOf(jet) = u"new.dsn";
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(jet, kCurrentTable), u"new.dsn");
    EXPECT_EQ(store.GetSettingValue(older, kCurrentTable), u"old.dsn");
}

// The two Excel files among the folders are intended.
TEST(FilesPage, FilesAreChosenForThreeFieldsAndFoldersForAllOthers)
{
    const std::set<int> files = {2411, 2419, 2430};
    ASSERT_FALSE(ov::kFilesRows.browses.empty());
    for (const ov::BrowseRow& row : ov::kFilesRows.browses) {
        EXPECT_EQ(row.kind, files.contains(row.buttonId) ? ov::BrowseKind::File : ov::BrowseKind::Folder)
            << row.buttonId;
    }
}

} // namespace
