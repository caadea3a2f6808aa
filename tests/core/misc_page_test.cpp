// The Miscellaneous page: wildcard types and automatic login.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
constexpr char16_t kWildcardType[] = u"_ORTHOVAL_WILDCARD_TYPE";
constexpr char16_t kDefaultValue[] = u"_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE";

std::string Saved(ov::TextView variable, const char16_t* stored)
{
    ov::SettingStore store;
    if (stored != nullptr)
        store.SetSetting(variable, stored, ov::SettingKindText, u"", ov::kCurrentTable);
    ov::PageValues values(ov::kMiscRows);
    values.Load(store, ov::kCurrentTable);
    values.Save(store, true);
    return ov::Utf8FromText(store.GetSettingValue(variable, ov::kCurrentTable));
}

TEST(MiscPage, EmptyWildcardTypeKeepsThreeAndIsSavedSo)
{
    EXPECT_EQ(Saved(kWildcardType, u""), "3");
    EXPECT_EQ(Saved(kWildcardType, nullptr), "3");
}

TEST(MiscPage, WildcardTypeIsItsLeadingNumber)
{
    EXPECT_EQ(Saved(kWildcardType, u"4 or 5"), "4");
    EXPECT_EQ(Saved(kWildcardType, u"none"), "0");
}

TEST(MiscPage, DefaultValueOfTheLoginIsOnlyOnForAOne)
{
    EXPECT_EQ(Saved(kDefaultValue, u"1"), "1");
    EXPECT_EQ(Saved(kDefaultValue, u"On"), "0");
    EXPECT_EQ(Saved(kDefaultValue, nullptr), "0");
    EXPECT_EQ(ov::PageValues(ov::kMiscRows).NumberOf(kDefaultValue), 1);
}

TEST(MiscPage, HeadingOfTheTypesKeepsItsSpelling)
{
    EXPECT_TRUE(ov::FindString(10015).starts_with(u"<T>_ORTHOVAL_WILDCARD_TYPE<H>String Widlcard Type<D>"));
}

} // namespace
