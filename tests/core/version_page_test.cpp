// The Version page: what it shows but never writes, and its initial values.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

TEST(VersionPage, ServerVersionStaysAsRead)
{
    SettingStore store;
    store.SetSetting(u"_ORTHOVAL_SERVER_VERSION", u"v6.5.0", ov::SettingKindText, u"", kCurrentTable);
    PageValues values(ov::kVersionRows);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.TextOf(u"_ORTHOVAL_SERVER_VERSION"), u"v6.5.0");
    values.TextOf(u"_ORTHOVAL_SERVER_VERSION") = u"v7.0.0";
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_SERVER_VERSION", kCurrentTable), u"v6.5.0");
}

TEST(VersionPage, ServerVersionIsNotAddedWhereItIsAbsent)
{
    for (const bool hasWindow : {false, true}) {
        SettingStore store;
        PageValues(ov::kVersionRows).Save(store, hasWindow);
        EXPECT_FALSE(store.HasSetting(u"_ORTHOVAL_SERVER_VERSION", kCurrentTable));
        EXPECT_EQ(store.Count(kCurrentTable), 2u);
    }
}

TEST(VersionPage, WarnsOfMajorVersionsOnlyBeforeAnythingIsRead)
{
    SettingStore store;
    PageValues(ov::kVersionRows).Save(store, false);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WARN_MAJOR_UPGRADE", kCurrentTable), u"1");
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WARN_MINOR_UPGRADE", kCurrentTable), u"0");
}

TEST(VersionPage, AbsentWarningsReadAsOff)
{
    PageValues values(ov::kVersionRows);
    values.Load(SettingStore(), kCurrentTable);
    EXPECT_EQ(values.NumberOf(u"_ORTHOVAL_WARN_MAJOR_UPGRADE"), 0);
    EXPECT_EQ(values.NumberOf(u"_ORTHOVAL_WARN_MINOR_UPGRADE"), 0);
}

} // namespace
