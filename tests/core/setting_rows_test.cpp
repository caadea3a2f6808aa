// What must hold of the rows of every page, and the rows of each page one by one.
#include "controls/core/tooltip_markup.h"
#include "pages/core/all_page_rows.h"
#include "pages/core/branding_rows.h"
#include "pages/core/conforming_rows.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace
{
using ov::ControlKind;
using ov::Encoding;
using ov::SettingRow;

struct ExpectedSetting {
    const char* variable;
    int controlId;
    ControlKind control;
    Encoding encoding;
    int kind;
    unsigned helpId;
};

constexpr ExpectedSetting Check(const char* variable, int controlId, unsigned helpId)
{
    return {variable, controlId, ControlKind::CheckBox, Encoding::Flag, 4, helpId};
}

constexpr ExpectedSetting Edit(const char* variable, int controlId, int kind, unsigned helpId)
{
    return {variable, controlId, ControlKind::Edit, Encoding::Verbatim, kind, helpId};
}

constexpr ExpectedSetting conforming[] = {
    Check("_ORTHOVAL_CHECK_CELLS", 2000, 8000),
    Check("_ORTHOVAL_CHECK_TEXT", 2001, 8001),
    Check("_ORTHOVAL_CHECK_TAGS", 2002, 8002),
    Check("_ORTHOVAL_CHECK_RGB_COLOUR_MATCH", 11072, 2069),
    Check("_ORTHOVAL_CHECK_COMPLEXCOMPONENTS", 2013, 8008),
    Check("_ORTHOVAL_CHECK_3D_OBJECTS", 2014, 8020),
    Check("_ORTHOVAL_CHECK_MULTILINE_DIMS", 2017, 8010),
    Check("_ORTHOVAL_CHECK_PATTERNS", 2015, 8004),
    Check("_ORTHOVAL_CHECK_HIDDEN_CELLS", 2016, 2011),
    Check("_ORTHOVAL_ALLOW_NEGATIVE_TEXTSIZE", 2018, 8023),
    Check("_ORTHOVAL_CHECK_CONTINUOUSISZERO", 2023, 8028),
    Edit("_ORTHOVAL_MAX_ERROR_UORS", 2019, 5, 8012),
    Edit("_ORTHOVAL_MIN_MU_ERRORSCALE", 2020, 5, 2017),
    Edit("_ORTHOVAL_CHECK_IGNORED_LEVELS", 11015, 1, 8021),
};

constexpr ExpectedSetting branding[] = {
    Check("_ORTHOVAL_BRANDING_AUTO", 9512, 2059),
    Check("_ORTHOVAL_BRANDING_OVERRIDE", 9513, 2060),
    Check("_ORTHOVAL_BRANDING_CERTIFY", 9514, 2061),
    Check("_ORTHOVAL_BRANDING_DISABLE_AUTOLOAD", 9515, 2062),
    Edit("_ORTHOVAL_BRANDING_RENAME_TABLES", 11001, 1, 2063),
};

void ExpectRows(const ov::PageRows& rows, std::span<const ExpectedSetting> expected)
{
    ASSERT_EQ(rows.settings.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const SettingRow& row = rows.settings[i];
        SCOPED_TRACE(expected[i].variable);
        EXPECT_EQ(ov::Utf8FromText(row.variable), expected[i].variable);
        EXPECT_EQ(row.controlId, expected[i].controlId);
        EXPECT_EQ(row.commentControlId, expected[i].controlId);
        EXPECT_EQ(row.control, expected[i].control);
        EXPECT_EQ(row.encoding, expected[i].encoding);
        EXPECT_EQ(row.kind, expected[i].kind);
        EXPECT_EQ(row.helpId, expected[i].helpId);
    }
}

/// Calls `check` with every setting of every page.
template <class Check>
void ForEachSetting(Check check)
{
    ASSERT_FALSE(ov::AllPageRows().empty());
    for (const ov::PageRows* page : ov::AllPageRows()) {
        for (const SettingRow& row : page->settings) {
            SCOPED_TRACE(ov::Utf8FromText(row.variable));
            check(*page, row);
        }
    }
}

TEST(ConformingRows, EqualTheTable)
{
    EXPECT_EQ(ov::ConformingRows().pageId, 6);
    ExpectRows(ov::ConformingRows(), conforming);
}

TEST(ConformingRows, BelongToTheirPage)
{
    ASSERT_NE(ov::FindPage(ov::ConformingRows().pageId), nullptr);
    EXPECT_EQ(ov::FindPage(ov::ConformingRows().pageId)->templateId, 101u);
}

TEST(ConformingRows, BrowseButtonHasItsOwnHelp)
{
    ASSERT_EQ(ov::ConformingRows().extraHelp.size(), 1u);
    EXPECT_EQ(ov::ConformingRows().extraHelp[0].controlId, 11016);
    EXPECT_EQ(ov::ConformingRows().extraHelp[0].helpId, 9319u);
}

TEST(BrandingRows, EqualTheTable)
{
    EXPECT_EQ(ov::BrandingRows().pageId, 2);
    ExpectRows(ov::BrandingRows(), branding);
}

TEST(BrandingRows, LongCaptionsStretchWithThePage)
{
    std::map<int, std::uint32_t> flags;
    for (const ov::LayoutRow& row : ov::BrandingRows().layout)
        flags[row.controlId] = row.layoutFlags;
    EXPECT_EQ(flags[9512], 258u);
    EXPECT_EQ(flags[9513], 258u);
}

TEST(BrandingRows, BelongToTheirPage)
{
    ASSERT_NE(ov::FindPage(ov::BrandingRows().pageId), nullptr);
    EXPECT_EQ(ov::FindPage(ov::BrandingRows().pageId)->templateId, 9364u);
}

TEST(BrandingRows, BrowseButtonHasItsOwnHelp)
{
    ASSERT_EQ(ov::BrandingRows().extraHelp.size(), 1u);
    EXPECT_EQ(ov::BrandingRows().extraHelp[0].controlId, 11002);
    EXPECT_EQ(ov::BrandingRows().extraHelp[0].helpId, 2064u);
}

TEST(AllRows, BelongToAPageOfTheCatalogueAndStandInItsOrder)
{
    int order = 0;
    for (const ov::PageRows* page : ov::AllPageRows()) {
        const ov::PageInfo* info = ov::FindPage(page->pageId);
        ASSERT_NE(info, nullptr) << page->pageId;
        EXPECT_GT(info->order, order);
        order = info->order;
    }
}

TEST(AllRows, NameEachVariableOnce)
{
    std::set<ov::Text> variables;
    ForEachSetting([&](const ov::PageRows&, const SettingRow& row) {
        EXPECT_TRUE(variables.insert(row.variable).second);
    });
}

TEST(AllRows, NameVariablesOfTheProduct)
{
    ForEachSetting([](const ov::PageRows&, const SettingRow& row) {
        const ov::TextView name = row.variable;
        EXPECT_TRUE(name.starts_with(u"_ORTHOVAL_"));
        EXPECT_EQ(name.find_first_not_of(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"), ov::TextView::npos);
    });
}

TEST(AllRows, EncodingAndKindFitTheControl)
{
    ForEachSetting([](const ov::PageRows&, const SettingRow& row) {
        switch (row.control) {
        case ControlKind::CheckBox:
            EXPECT_EQ(row.encoding, Encoding::Flag);
            EXPECT_EQ(row.kind, ov::SettingKindFlag);
            break;
        case ControlKind::Edit:
            EXPECT_EQ(row.encoding, Encoding::Verbatim);
            EXPECT_NE(row.kind, ov::SettingKindFlag);
            break;
        case ControlKind::DropDownList:
        case ControlKind::RadioGroup:
            EXPECT_EQ(row.encoding, Encoding::Number);
            EXPECT_EQ(row.kind, ov::SettingKindInteger);
            break;
        case ControlKind::None:
            EXPECT_EQ(row.controlId, 0);
            break;
        }
        EXPECT_EQ(row.controlId == 0, row.control == ControlKind::None);
    });
}

TEST(AllRows, EditEachControlInOneRow)
{
    for (const ov::PageRows* page : ov::AllPageRows()) {
        std::set<int> controls;
        for (const SettingRow& row : page->settings) {
            if (row.controlId != 0) {
                EXPECT_TRUE(controls.insert(row.controlId).second) << row.controlId;
            }
        }
        for (const ov::HelpRow& row : page->extraHelp)
            EXPECT_TRUE(controls.insert(row.controlId).second) << row.controlId;
    }
}

TEST(AllRows, SayWhyTheyAreAnException)
{
    ForEachSetting([](const ov::PageRows&, const SettingRow& row) {
        EXPECT_EQ(row.HasException(), row.reason != nullptr);
    });
}

TEST(AllRows, HelpTextsNameTheRowsVariable)
{
    ForEachSetting([](const ov::PageRows&, const SettingRow& row) {
        const ov::TextView help = ov::FindString(row.helpId);
        ASSERT_FALSE(help.empty());
        EXPECT_EQ(ov::VariableName(help) != row.variable, row.helpNamesAnotherVariable);
        EXPECT_FALSE(ov::Description(help).empty());
    });
}

// An absent flag reads as off, whatever the page shows before it loads.
TEST(AllRows, HelpOfTheFlagsSaysWhatAMissingVariableMeans)
{
    ForEachSetting([](const ov::PageRows&, const SettingRow& row) {
        if (row.encoding != Encoding::Flag)
            return;
        const ov::Text description = ov::Description(ov::FindString(row.helpId));
        EXPECT_NE(description.find(u"If this variable is missing, the option is OFF."), ov::Text::npos);
        EXPECT_EQ(description.find(u"default"), ov::Text::npos);
    });
}

TEST(AllRows, ExtraHelpTextsNameAVariableOfTheirPage)
{
    for (const ov::PageRows* page : ov::AllPageRows()) {
        std::set<ov::Text> variables;
        for (const SettingRow& row : page->settings)
            variables.insert(row.variable);
        for (const ov::HelpRow& row : page->extraHelp) {
            const ov::TextView help = ov::FindString(row.helpId);
            EXPECT_TRUE(variables.contains(ov::VariableName(help))) << row.helpId;
            EXPECT_FALSE(ov::Description(help).empty()) << row.helpId;
        }
    }
}

TEST(AllRows, CommentComesFromAControlWithHelp)
{
    ForEachSetting([](const ov::PageRows& page, const SettingRow& row) {
        std::map<int, unsigned> helpOf;
        for (const SettingRow& other : page.settings)
            helpOf[other.controlId] = other.helpId;
        for (const ov::HelpRow& other : page.extraHelp)
            helpOf[other.controlId] = other.helpId;
        EXPECT_NE(helpOf[row.commentControlId], 0u);
    });
}

TEST(AllRows, LayOutEachControlOnceAndEveryControlWithHelp)
{
    for (const ov::PageRows* page : ov::AllPageRows()) {
        std::set<int> laidOut;
        for (const ov::LayoutRow& row : page->layout)
            EXPECT_TRUE(laidOut.insert(row.controlId).second) << row.controlId;
        for (const SettingRow& row : page->settings)
            EXPECT_TRUE(row.controlId == 0 || laidOut.contains(row.controlId)) << row.controlId;
        for (const ov::HelpRow& row : page->extraHelp)
            EXPECT_TRUE(laidOut.contains(row.controlId)) << row.controlId;
    }
}

TEST(AllRows, UseTheLayoutFlagsOfTheProgram)
{
    const std::set<std::uint32_t> known = {3, 6, 9, 12, 258, 264, 512, 768};
    for (const ov::PageRows* page : ov::AllPageRows()) {
        for (const ov::LayoutRow& row : page->layout)
            EXPECT_TRUE(known.contains(row.layoutFlags)) << row.controlId;
    }
}

} // namespace
