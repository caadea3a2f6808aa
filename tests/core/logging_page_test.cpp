// Behaviour that only the Logging page has.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

void Put(SettingStore& store, ov::TextView name, ov::TextView value, ov::TableSelector table = kCurrentTable)
{
    store.SetSetting(name, value, ov::SettingKindText, u"", table);
}

void Save(PageValues& values, SettingStore& store, bool hasWindow)
{
    values.Save(store, hasWindow);
}

TEST(LoggingPage, SizeOfTheLogFileHasNoUnderscoreInFrontOfItsName)
{
    SettingStore store;
    Put(store, u"ORTHOVAL_LOG_FILE_MAXSIZE", u"2048");
    Put(store, u"_ORTHOVAL_LOG_FILE_MAXSIZE", u"1");
    PageValues values(ov::kLoggingRows);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.TextOf(u"ORTHOVAL_LOG_FILE_MAXSIZE"), u"2048");
    values.TextOf(u"ORTHOVAL_LOG_FILE_MAXSIZE") = u"4096";
    Save(values, store, true);
    EXPECT_EQ(store.GetSettingValue(u"ORTHOVAL_LOG_FILE_MAXSIZE", kCurrentTable), u"4096");
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_LOG_FILE_MAXSIZE", kCurrentTable), u"1");
}

TEST(LoggingPage, DebugLevelIsTheLeadingIntegerAndKeptWhenThereIsNothingToRead)
{
    SettingStore store;
    PageValues values(ov::kLoggingRows);
    EXPECT_EQ(values.NumberOf(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL"), 0);
    Put(store, u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", u"2 or so");
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.NumberOf(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL"), 2);
    values.Load(store, ov::kDefaultTable);
    EXPECT_EQ(values.NumberOf(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL"), 2);
    Save(values, store, true);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", kCurrentTable), u"2");
}

TEST(LoggingPage, NeverShownAddsWhatIsMissingWithItsBuiltInValues)
{
    SettingStore store;
    PageValues values(ov::kLoggingRows);
    Save(values, store, false);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_REPORT_TRACKING", kCurrentTable), u"0");
    EXPECT_EQ(store.GetSettingValue(u"ORTHOVAL_LOG_FILE_MAXSIZE", kCurrentTable), u"");
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", kCurrentTable), u"0");
    EXPECT_EQ(store.Count(kCurrentTable), 3u);
}

// More than 16 bits can hold.
TEST(LoggingPage, LogFileMayBeAHundredMegabytes)
{
    ASSERT_GE(ov::kLoggingRows.spins.size(), 1u);
    const ov::SpinRow& spin = ov::kLoggingRows.spins[0];
    EXPECT_EQ(spin.controlId, 3112);
    EXPECT_EQ(spin.buddyId, 3111);
    EXPECT_EQ(spin.lowest, 0);
    EXPECT_EQ(spin.highest, 102400);
}

} // namespace
