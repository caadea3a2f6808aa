// Rows for more than one control with one setting: the encodings as a page uses
// them, companions, hooks, dependencies.
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace
{
using ov::kCurrentTable;
using ov::PageRows;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

enum Control { Box = 1, OtherBox, Choice, List, Radio, Edit, Dependent };

constexpr ov::SettingRow settings[] = {
    ov::FlagRow(u"FLAG", Box, 0),
    {u"UNLESS", ov::SettingKindFlag, ov::Encoding::FlagUnlessZero, ov::ControlKind::CheckBox, OtherBox, 0, 0},
    ov::ChoiceRow(u"LIST", ov::Encoding::AlwaysNeverUser, ov::ControlKind::DropDownList, List, 0, 2),
    ov::ChoiceRow(u"RADIO", ov::Encoding::NeverAlwaysUser, ov::ControlKind::RadioGroup, Radio, 0, -1),
    {u"ZERO", ov::SettingKindInteger, ov::Encoding::VerbatimOrZero, ov::ControlKind::Edit, Edit, 0, 0},
    ov::HiddenRow(u"HIDDEN", ov::SettingKindText, ov::Encoding::Verbatim, 0),
};

constexpr ov::CompanionRow companions[] = {
    {ov::ControlKind::RadioGroup, Choice, u"HIDDEN", 4},
};

constexpr PageRows plainPage = {
    .info = {},
    .settings = settings,
    .companions = companions,
};

/// The companion shows the length of the hidden text, and sets a text of that length.
constexpr PageRows pageWithHooks = {
    .info = {},
    .settings = settings,
    .companions = companions,
    .afterLoad =
        [](PageValues& values, const SettingStore& store, ov::TableSelector table) {
            values.CompanionNumberOf(Choice) = static_cast<int>(values.TextOf(u"HIDDEN").size());
            if (store.HasSetting(u"OLDER", table))
                values.TextOf(u"ZERO") = store.GetSettingValue(u"OLDER", table);
        },
    .beforeSave =
        [](PageValues& values) {
            values.TextOf(u"HIDDEN").assign(static_cast<std::size_t>(values.CompanionNumberOf(Choice)), u'x');
        },
};

void Put(SettingStore& store, ov::TextView name, ov::TextView value, ov::TableSelector table = kCurrentTable)
{
    store.SetSetting(name, value, ov::SettingKindText, u"", table);
}

std::string SavedAfterLoading(const char16_t* variable, const char16_t* stored)
{
    SettingStore store;
    if (stored != nullptr)
        Put(store, variable, stored);
    PageValues values(plainPage);
    values.Load(store, kCurrentTable);
    values.Save(store, true);
    return ov::Utf8FromText(store.GetSettingValue(variable, kCurrentTable));
}

TEST(PageHooks, FlagUnlessZeroIsOnWhenAbsent)
{
    EXPECT_EQ(SavedAfterLoading(u"UNLESS", nullptr), "1");
    EXPECT_EQ(SavedAfterLoading(u"UNLESS", u""), "1");
    EXPECT_EQ(SavedAfterLoading(u"UNLESS", u"no"), "1");
    EXPECT_EQ(SavedAfterLoading(u"UNLESS", u" 0"), "1");
    EXPECT_EQ(SavedAfterLoading(u"UNLESS", u"0"), "0");
}

TEST(PageHooks, ListOfWhoDecidesIsTheUsersWhenAbsent)
{
    EXPECT_EQ(SavedAfterLoading(u"LIST", nullptr), "-1");
    EXPECT_EQ(SavedAfterLoading(u"LIST", u"2"), "-1");
    EXPECT_EQ(SavedAfterLoading(u"LIST", u"1"), "1");
    EXPECT_EQ(SavedAfterLoading(u"LIST", u"0"), "0");
}

TEST(PageHooks, ListOfWhoDecidesForgetsTheTableBefore)
{
    SettingStore store;
    Put(store, u"LIST", u"1");
    PageValues values(plainPage);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.NumberOf(u"LIST"), 0);
    values.Load(store, ov::kDefaultTable);
    EXPECT_EQ(values.NumberOf(u"LIST"), 2);
}

TEST(PageHooks, ButtonsOfWhoDecidesAreTheFirstWhenAbsentAndTheLastWhenUnknown)
{
    EXPECT_EQ(SavedAfterLoading(u"RADIO", nullptr), "0");
    EXPECT_EQ(SavedAfterLoading(u"RADIO", u"-1"), "-1");
    EXPECT_EQ(SavedAfterLoading(u"RADIO", u"7"), "-1");
    EXPECT_EQ(SavedAfterLoading(u"RADIO", u"1"), "1");
}

TEST(PageHooks, ButtonsOfWhoDecidesOfAnUnseenPageAreWrittenAsTheUsers)
{
    SettingStore store;
    PageValues(plainPage).Save(store, false);
    EXPECT_EQ(store.GetSettingValue(u"RADIO", kCurrentTable), u"-1");
}

TEST(PageHooks, EmptyNumberKeptAsTextReadsAsZero)
{
    EXPECT_EQ(SavedAfterLoading(u"ZERO", nullptr), "0");
    EXPECT_EQ(SavedAfterLoading(u"ZERO", u""), "0");
    EXPECT_EQ(SavedAfterLoading(u"ZERO", u"25"), "25");
    EXPECT_EQ(SavedAfterLoading(u"ZERO", u"many"), "many");
}

TEST(PageHooks, DependencyHoldsWhileAnEditIsFilled)
{
    PageValues values(plainPage);
    const ov::DependencyRow filled = ov::EnabledWhen(Dependent, ov::IsFilled(Edit), ov::IsOn(Box));
    values.NumberOf(u"FLAG") = 1;
    values.TextOf(u"ZERO") = u" ";
    EXPECT_TRUE(values.Holds(filled));
    values.TextOf(u"ZERO").clear();
    EXPECT_FALSE(values.Holds(filled));
    values.TextOf(u"ZERO") = u"1";
    values.NumberOf(u"FLAG") = 0;
    EXPECT_FALSE(values.Holds(filled));
}

TEST(PageHooks, CompanionsStartWithTheirBuiltInValueAndAreNotStored)
{
    PageValues values(plainPage);
    EXPECT_EQ(values.CompanionNumberOf(Choice), 4);
    SettingStore store;
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.CompanionNumberOf(Choice), 4);
    values.Save(store, true);
    EXPECT_EQ(store.Count(kCurrentTable), std::size(settings));
}

TEST(PageHooks, HooksWorkOutCompanionsAfterLoadingAndSettingsBeforeSaving)
{
    SettingStore store;
    Put(store, u"HIDDEN", u"abc");
    Put(store, u"OLDER", u"9");
    PageValues values(pageWithHooks);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.CompanionNumberOf(Choice), 3);
    EXPECT_EQ(values.TextOf(u"ZERO"), u"9");
    values.CompanionNumberOf(Choice) = 5;
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(u"HIDDEN", kCurrentTable), u"xxxxx");
}

TEST(PageHooks, DependencyHoldsWhileAllItsConditionsDo)
{
    PageValues values(plainPage);
    const auto holds = [&](const ov::DependencyRow& row) { return values.Holds(row); };
    values.NumberOf(u"FLAG") = 1;
    values.NumberOf(u"UNLESS") = 0;
    EXPECT_TRUE(holds(ov::EnabledWhen(Dependent, ov::IsOn(Box))));
    EXPECT_FALSE(holds(ov::EnabledWhen(Dependent, ov::IsOff(Box))));
    EXPECT_FALSE(holds(ov::EnabledWhen(Dependent, ov::IsOn(Box), ov::IsOn(OtherBox))));
    EXPECT_TRUE(holds(ov::ShownWhen(Dependent, ov::IsOn(Box), ov::IsOff(OtherBox), {Choice, 4})));
    EXPECT_FALSE(holds(ov::ShownWhen(Dependent, ov::IsOn(Box), ov::IsOff(OtherBox), {Choice, 3})));
    EXPECT_TRUE(holds(ov::EnabledWhen(Dependent, {List, 2})));
}

TEST(PageHooks, WhatThePageDoesNotHaveIsAMistakeOfTheProgram)
{
    PageValues values(plainPage);
    EXPECT_THROW(values.TextOf(u"OTHER"), std::logic_error);
    EXPECT_THROW(values.CompanionNumberOf(Box), std::logic_error);
    EXPECT_THROW(values.Holds(ov::EnabledWhen(Dependent, ov::IsOn(99))), std::logic_error);
}

} // namespace
