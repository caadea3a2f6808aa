#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/urls/ids.h"
#include "resources/ids.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace
{
using ov::kCurrentTable;
using ov::kDefaultTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

constexpr bool withWindow = true;
constexpr bool withoutWindow = false;

void Put(SettingStore& store, ov::TextView name, ov::TextView value, ov::TableSelector table = kCurrentTable)
{
    store.SetSetting(name, value, ov::SettingKindText, u"", table);
}

std::string Stored(const SettingStore& store, ov::TextView name)
{
    return ov::Utf8FromText(store.GetSettingValue(name, kCurrentTable));
}

int KindOf(const SettingStore& store, ov::TextView name)
{
    const auto record = store.FindSetting(name, kCurrentTable);
    return record ? record->kind : 0;
}

constexpr ov::SettingRow sampleRows[] = {
    ov::FlagRow(u"FLAG", 1, 0, true),
    {u"NUMBER", ov::SettingKindInteger, ov::Encoding::Number, ov::ControlKind::DropDownList, 2, 0, 0, 7},
    ov::TextRow(u"TEXT", ov::SettingKindText, 3, 0, u"built in"),
};

/// A page that only has settings.
constexpr ov::PageRows PageOf(std::span<const ov::SettingRow> settings)
{
    return {.info = {}, .settings = settings};
}

constexpr ov::PageRows samplePage = PageOf(sampleRows);

TEST(PageValues, StartWithTheBuiltInValues)
{
    PageValues values(samplePage);
    EXPECT_EQ(values.Number(0), 1);
    EXPECT_EQ(values.Number(1), 7);
    EXPECT_EQ(values.String(2), u"built in");
}

TEST(PageValues, ShownValuesReplaceTheOthers)
{
    static constexpr unsigned entries[] = {1, 2};
    static constexpr ov::EntriesRow lists[] = {{2, entries}, {5, entries}};
    static constexpr ov::CompanionRow companions[] = {{ov::ControlKind::DropDownList, 5, u"FLAG", -2},
                                                      {ov::ControlKind::Edit, 6, u"FLAG", 3}};
    ov::PageRows page = samplePage;
    page.entries = lists;
    page.companions = companions;
    PageValues values(page);
    values.String(2) = Text(u"before\0after", 12);
    values.CompanionString(1) = Text(u"\0", 1);
    values.TakeShown();
    EXPECT_EQ(values.Number(0), 1);
    EXPECT_EQ(values.Number(1), -1) << "the list has two entries, but 7 is selected";
    EXPECT_EQ(values.String(2), u"before");
    EXPECT_EQ(values.CompanionNumber(0), -1);
    EXPECT_EQ(values.CompanionNumber(1), 3);
    EXPECT_EQ(values.CompanionString(1), u"");
    values.Number(1) = 1;
    values.TakeShown();
    EXPECT_EQ(values.Number(1), 1);
}

TEST(PageValues, RowsAreFoundByVariable)
{
    const PageValues values(samplePage);
    EXPECT_EQ(values.FindRow(u"TEXT"), 2u);
    EXPECT_EQ(values.FindRow(u"text"), 3u);
}

TEST(PageValues, OnlyTheExactTextOneIsAFlag)
{
    for (const char16_t* text : {u"true", u"yes", u" 1", u"1 ", u"01", u"0", u"", u"Y", u"-1"}) {
        SCOPED_TRACE(ov::Utf8FromText(text));
        SettingStore store;
        Put(store, u"FLAG", text);
        PageValues values(samplePage);
        values.Load(store, kCurrentTable);
        EXPECT_EQ(values.Number(0), 0);
        values.Save(store, withWindow);
        EXPECT_EQ(Stored(store, u"FLAG"), "0");
        EXPECT_EQ(KindOf(store, u"FLAG"), ov::SettingKindFlag);
    }
    SettingStore store;
    Put(store, u"FLAG", u"1");
    PageValues values(samplePage);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.Number(0), 1);
    values.Save(store, withWindow);
    EXPECT_EQ(Stored(store, u"FLAG"), "1");
}

TEST(PageValues, AbsentFlagIsOffWhateverIsBuiltIn)
{
    const SettingStore store;
    PageValues values(samplePage);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.Number(0), 0);
}

TEST(PageValues, NumberIsReadToItsLastDigitAndWrittenInDecimal)
{
    SettingStore store;
    Put(store, u"NUMBER", u"12abc");
    PageValues values(samplePage);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.Number(1), 12);
    values.Save(store, withWindow);
    EXPECT_EQ(Stored(store, u"NUMBER"), "12");
    EXPECT_EQ(KindOf(store, u"NUMBER"), ov::SettingKindInteger);
}

TEST(PageValues, NumberTakesBlanksAndSignAndIsZeroWithoutDigits)
{
    const struct {
        const char16_t* text;
        int number;
    } cases[] = {{u"  -3", -3}, {u"+4", 4}, {u"many", 0}, {u" ", 0}};
    for (const auto& item : cases) {
        SCOPED_TRACE(ov::Utf8FromText(item.text));
        SettingStore store;
        Put(store, u"NUMBER", item.text);
        PageValues values(samplePage);
        values.Load(store, kCurrentTable);
        EXPECT_EQ(values.Number(1), item.number);
    }
}

TEST(PageValues, EmptyOrAbsentNumberKeepsThePreviousOne)
{
    SettingStore store;
    PageValues values(samplePage);
    values.Number(1) = 42;
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.Number(1), 42);
    Put(store, u"NUMBER", u"");
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.Number(1), 42);
    values.Save(store, withWindow);
    EXPECT_EQ(Stored(store, u"NUMBER"), "42");
}

TEST(PageValues, TextIsKeptAsEdited)
{
    for (const char16_t* text : {u"  both ends  ", u"\"quoted\"", u"a;b;;c", u"", u"C:\\Std\\#1"}) {
        SettingStore store;
        PageValues values(samplePage);
        values.String(2) = text;
        values.Save(store, withWindow);
        EXPECT_EQ(Stored(store, u"TEXT"), ov::Utf8FromText(text));
        values.String(2) = u"other";
        values.Load(store, kCurrentTable);
        EXPECT_EQ(values.String(2), text);
    }
}

TEST(PageValues, LoadReadsTheSelectedTable)
{
    SettingStore store;
    Put(store, u"TEXT", u"current", kCurrentTable);
    Put(store, u"TEXT", u"default", kDefaultTable);
    PageValues values(samplePage);
    values.Load(store, kDefaultTable);
    EXPECT_EQ(values.String(2), u"default");
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.String(2), u"current");
}

TEST(PageValues, LoadingDefaultsShowsNothingForWhatTheDefaultsLack)
{
    SettingStore store;
    for (const ov::SettingRow& row : ov::kConformingRows.settings)
        Put(store, row.variable, u"1", kCurrentTable);
    PageValues values(ov::kConformingRows);
    values.Load(store, kCurrentTable);
    values.Load(store, kDefaultTable);
    for (std::size_t i = 0; i < values.Rows().size(); ++i) {
        if (values.Rows()[i].HoldsText())
            EXPECT_EQ(values.String(i), u"") << ov::Utf8FromText(values.Rows()[i].variable);
        else
            EXPECT_EQ(values.Number(i), 0) << ov::Utf8FromText(values.Rows()[i].variable);
    }
}

TEST(PageValues, PageWithoutWindowLeavesPresentSettingsAndAddsAbsentOnes)
{
    SettingStore store;
    Put(store, u"FLAG", u"yes");
    Put(store, u"TEXT", u"");
    store.SetModified(false);
    PageValues values(samplePage);
    values.Save(store, withoutWindow);
    EXPECT_EQ(Stored(store, u"FLAG"), "yes");
    EXPECT_EQ(KindOf(store, u"FLAG"), ov::SettingKindText);
    EXPECT_TRUE(store.HasSetting(u"TEXT", kCurrentTable));
    EXPECT_EQ(Stored(store, u"TEXT"), "");
    EXPECT_EQ(Stored(store, u"NUMBER"), "7");
    EXPECT_EQ(store.Count(kCurrentTable), 3u);
}

TEST(PageValues, SavingWritesTheCurrentTableOnly)
{
    SettingStore store;
    PageValues values(samplePage);
    values.Load(store, kDefaultTable);
    values.Save(store, withWindow);
    EXPECT_EQ(store.Count(kDefaultTable), 0u);
    EXPECT_EQ(store.Count(kCurrentTable), 3u);
}

TEST(PageValues, SavingMarksTheStoreModifiedOnlyWhenAValueChanges)
{
    SettingStore store;
    PageValues values(samplePage);
    values.Save(store, withWindow);
    EXPECT_TRUE(store.IsModified());
    store.SetModified(false);
    values.Save(store, withWindow);
    EXPECT_FALSE(store.IsModified());
    values.String(2) = u"changed";
    values.Save(store, withWindow);
    EXPECT_TRUE(store.IsModified());
}

constexpr char16_t supportComment[] = u"\n#\n# This sets the URL for Technical Support information.\n#\n";
constexpr char16_t websiteComment[] = u"\n#\n# This sets the URL for Orthoval information on the web.\n#\n";

constexpr ov::SettingRow commentedRows[] = {
    ov::FlagRow(u"OWN", 10, IDS_HELP_URLS_TECH_SUPPORT),
    ov::FlagRow(u"OTHER", 11, IDS_HELP_URLS_TECH_SUPPORT).CommentFrom(IDS_HELP_URLS_WEBSITE),
    ov::HiddenRow(u"HIDDEN", ov::SettingKindText, ov::Encoding::Verbatim, IDS_HELP_URLS_WEBSITE),
    ov::FlagRow(u"UNDESCRIBED", 12, 0),
};

TEST(PageValues, CommentIsTheHelpTextThatTheRowNames)
{
    SettingStore store;
    PageValues(PageOf(commentedRows)).Save(store, withWindow);
    EXPECT_EQ(store.FindSetting(u"OWN", kCurrentTable)->comment, supportComment);
    EXPECT_EQ(store.FindSetting(u"OTHER", kCurrentTable)->comment, websiteComment);
    EXPECT_EQ(store.FindSetting(u"HIDDEN", kCurrentTable)->comment, websiteComment);
    EXPECT_EQ(store.FindSetting(u"UNDESCRIBED", kCurrentTable)->comment, u"\n#\n# \n#\n");
}

TEST(PageValues, PageWithoutAWindowGivesNoComment)
{
    SettingStore store;
    PageValues(PageOf(commentedRows)).Save(store, withoutWindow);
    EXPECT_EQ(store.Count(kCurrentTable), 4u);
    for (const ov::SettingRow& row : commentedRows)
        EXPECT_EQ(store.FindSetting(row.variable, kCurrentTable)->comment, u"");
}

TEST(PageValues, CommentOfTheFileStays)
{
    SettingStore store;
    store.SetSetting(u"OWN", u"1", ov::SettingKindFlag, u"# the office's\n", kCurrentTable);
    PageValues(PageOf(commentedRows)).Save(store, withWindow);
    EXPECT_EQ(store.FindSetting(u"OWN", kCurrentTable)->comment, u"# the office's\n");
}

TEST(PageValues, ExceptionsToTheRuleOfSaving)
{
    static constexpr auto rows = [] {
        std::array<ov::SettingRow, 2> result = {ov::FlagRow(u"SHOWN", 1, 0), ov::FlagRow(u"NEVER", 2, 0)};
        result[0].saveRule = ov::SaveRule::OnlyWhenShown;
        result[1].saveRule = ov::SaveRule::Never;
        return result;
    }();
    SettingStore store;
    PageValues(PageOf(rows)).Save(store, withoutWindow);
    EXPECT_EQ(store.Count(kCurrentTable), 0u);
    PageValues(PageOf(rows)).Save(store, withWindow);
    EXPECT_TRUE(store.HasSetting(u"SHOWN", kCurrentTable));
    EXPECT_FALSE(store.HasSetting(u"NEVER", kCurrentTable));
}

TEST(ConformingValues, CheckCellsStoredAsYesOrTrueIsOffAndSavedAsZero)
{
    for (const char16_t* text : {u"yes", u"true"}) {
        SettingStore store;
        Put(store, u"_ORTHOVAL_CHECK_CELLS", text);
        PageValues values(ov::kConformingRows);
        values.Load(store, kCurrentTable);
        EXPECT_EQ(values.Number(values.FindRow(u"_ORTHOVAL_CHECK_CELLS")), 0);
        values.Save(store, withWindow);
        EXPECT_EQ(Stored(store, u"_ORTHOVAL_CHECK_CELLS"), "0");
    }
}

TEST(ConformingValues, BuiltInValuesShowBeforeAnythingIsLoaded)
{
    PageValues values(ov::kConformingRows);
    for (std::size_t i = 0; i < values.Rows().size(); ++i) {
        const ov::TextView name = values.Rows()[i].variable;
        SCOPED_TRACE(ov::Utf8FromText(name));
        if (!values.Rows()[i].HoldsText()) {
            EXPECT_EQ(values.Number(i), name == u"_ORTHOVAL_CHECK_MULTILINE_DIMS" ||
                                            name == u"_ORTHOVAL_CHECK_CONTINUOUSISZERO");
        }
    }
    EXPECT_EQ(values.String(values.FindRow(u"_ORTHOVAL_MAX_ERROR_UORS")), u"1");
    EXPECT_EQ(values.String(values.FindRow(u"_ORTHOVAL_MIN_MU_ERRORSCALE")), u"0.01");
    EXPECT_EQ(values.String(values.FindRow(u"_ORTHOVAL_CHECK_IGNORED_LEVELS")), u"");
}

TEST(ConformingValues, PageNeverOpenedWritesAnAbsentMaximumErrorAndLeavesAPresentOne)
{
    SettingStore absent;
    PageValues(ov::kConformingRows).Save(absent, withoutWindow);
    EXPECT_EQ(Stored(absent, u"_ORTHOVAL_MAX_ERROR_UORS"), "1");
    EXPECT_EQ(KindOf(absent, u"_ORTHOVAL_MAX_ERROR_UORS"), ov::SettingKindReal);

    SettingStore present;
    Put(present, u"_ORTHOVAL_MAX_ERROR_UORS", u"25");
    PageValues(ov::kConformingRows).Save(present, withoutWindow);
    EXPECT_EQ(Stored(present, u"_ORTHOVAL_MAX_ERROR_UORS"), "25");
}

TEST(ConformingValues, AbsentNumbersShowEmptyAndAreSavedEmpty)
{
    SettingStore store;
    PageValues values(ov::kConformingRows);
    values.Load(store, kCurrentTable);
    EXPECT_EQ(values.String(values.FindRow(u"_ORTHOVAL_MAX_ERROR_UORS")), u"");
    EXPECT_EQ(values.String(values.FindRow(u"_ORTHOVAL_MIN_MU_ERRORSCALE")), u"");
    values.Save(store, withWindow);
    EXPECT_TRUE(store.HasSetting(u"_ORTHOVAL_MAX_ERROR_UORS", kCurrentTable));
    EXPECT_EQ(Stored(store, u"_ORTHOVAL_MAX_ERROR_UORS"), "");
    EXPECT_EQ(Stored(store, u"_ORTHOVAL_MIN_MU_ERRORSCALE"), "");
}

TEST(ConformingValues, NumericEditsTakeAnyText)
{
    SettingStore store;
    PageValues values(ov::kConformingRows);
    values.String(values.FindRow(u"_ORTHOVAL_MAX_ERROR_UORS")) = u" about one ";
    values.Save(store, withWindow);
    EXPECT_EQ(Stored(store, u"_ORTHOVAL_MAX_ERROR_UORS"), " about one ");
    EXPECT_EQ(KindOf(store, u"_ORTHOVAL_MAX_ERROR_UORS"), ov::SettingKindReal);
}

TEST(BrandingValues, FirstThreeFlagsAreOnUntilLoaded)
{
    PageValues values(ov::kBrandingRows);
    EXPECT_EQ(values.Number(values.FindRow(u"_ORTHOVAL_BRANDING_AUTO")), 1);
    EXPECT_EQ(values.Number(values.FindRow(u"_ORTHOVAL_BRANDING_OVERRIDE")), 1);
    EXPECT_EQ(values.Number(values.FindRow(u"_ORTHOVAL_BRANDING_CERTIFY")), 1);
    EXPECT_EQ(values.Number(values.FindRow(u"_ORTHOVAL_BRANDING_DISABLE_AUTOLOAD")), 0);
    EXPECT_EQ(values.String(values.FindRow(u"_ORTHOVAL_BRANDING_RENAME_TABLES")), u"");
    const SettingStore empty;
    values.Load(empty, kCurrentTable);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(values.Number(i), 0);
}

TEST(BrandingValues, RenameListIsStoredAsText)
{
    SettingStore store;
    PageValues values(ov::kBrandingRows);
    values.String(values.FindRow(u"_ORTHOVAL_BRANDING_RENAME_TABLES")) =
        u"Civil 2004:Civil;Survey Old:Survey";
    values.Save(store, withWindow);
    EXPECT_EQ(Stored(store, u"_ORTHOVAL_BRANDING_RENAME_TABLES"), "Civil 2004:Civil;Survey Old:Survey");
    EXPECT_EQ(KindOf(store, u"_ORTHOVAL_BRANDING_RENAME_TABLES"), ov::SettingKindText);
}

TEST(PageValues, ControlShowsNoneForAnEntryThatItLacks)
{
    static constexpr unsigned entries[] = {IDS_ALWAYS, IDS_NEVER};
    static constexpr ov::EntriesRow lists[] = {{20, entries}};
    static constexpr ov::SettingRow rows[] = {
        ov::ChoiceRow(u"LIST", ov::Encoding::Number, ov::ControlKind::DropDownList, 20, 0, 0),
    };
    PageValues values({.info = {}, .settings = rows, .entries = lists});
    for (const auto& [number, shown] : {std::pair{0, 0}, {1, 1}, {2, -1}, {-1, -1}, {-4, -1}, {100, -1}}) {
        values.Number(0) = number;
        EXPECT_EQ(values.ShownNumber(0), shown) << number;
        EXPECT_EQ(values.Number(0), number);
    }
}

TEST(PageValues, GroupOfRadioButtonsShowsNoneForAButtonThatItLacks)
{
    PageValues misc(ov::kMiscRows);
    const std::size_t type = misc.FindRow(u"_ORTHOVAL_WILDCARD_TYPE");
    for (const auto& [number, shown] : {std::pair{0, 0}, {5, 5}, {6, -1}, {-1, -1}}) {
        misc.Number(type) = number;
        EXPECT_EQ(misc.ShownNumber(type), shown) << number;
    }
}

TEST(PageValues, EditShowsATextUpToItsFirstNul)
{
    PageValues values(PageOf(commentedRows));
    const std::size_t hidden = values.FindRow(u"HIDDEN");
    values.String(hidden) = Text(u"a\0b", 3);
    EXPECT_EQ(values.ShownString(hidden), Text(u"a\0b", 3));
    PageValues sample(samplePage);
    sample.String(2) = Text(u"a\0b", 3);
    EXPECT_EQ(sample.ShownString(2), u"a");
    sample.String(2) = u"whole";
    EXPECT_EQ(sample.ShownString(2), u"whole");
}
} // namespace
