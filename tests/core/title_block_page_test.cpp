// The Title Blocks page: its check boxes for the tags, what they enable, and what
// is saved independent of them.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

enum Box { Check = 9490, TagSets = 9497, Tags = 9498, TagValues = 9499, SpellCheck = 9501 };

/// The check boxes of the tags and the variables of their texts.
const std::map<int, const char16_t*> tagTexts = {
    {TagSets, u"_ORTHOVAL_TITLEBLOCK_TAGSETS"},
    {Tags, u"_ORTHOVAL_TITLEBLOCK_TAGDEFS"},
    {TagValues, u"_ORTHOVAL_TITLEBLOCK_TAGVALUES"},
    {SpellCheck, u"_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK"},
};

void Put(SettingStore& store, ov::TextView variable, ov::TextView value)
{
    store.SetSetting(variable, value, ov::SettingKindText, u"", kCurrentTable);
}

class TitleBlockPage : public testing::Test
{
  protected:
    TitleBlockPage() : m_values(ov::kTitleBlockRows) {}

    void Load() { m_values.Load(m_store, kCurrentTable); }
    /// Has the effect of a click on one of the check boxes.
    bool Set(int box, int checked)
    {
        m_values.CompanionNumberOf(box) = checked;
        return ov::kTitleBlockRows.refresh(m_values);
    }
    std::set<int> CheckedBoxes()
    {
        std::set<int> boxes;
        for (const auto& [box, variable] : tagTexts) {
            if (m_values.CompanionNumberOf(box) != 0)
                boxes.insert(box);
        }
        return boxes;
    }
    std::set<int> Enabled()
    {
        std::set<int> controls;
        for (const ov::DependencyRow& row : ov::kTitleBlockRows.dependencies) {
            EXPECT_EQ(row.effect, ov::Effect::Enable);
            if (m_values.Holds(row))
                controls.insert(row.controlId);
        }
        return controls;
    }
    void PutEveryTagText()
    {
        for (const auto& [box, variable] : tagTexts)
            Put(m_store, variable, u"A;B");
    }

    SettingStore m_store;
    PageValues m_values;
};

TEST_F(TitleBlockPage, BoxesOfTheTagsFollowTheirTexts)
{
    Load();
    EXPECT_EQ(CheckedBoxes(), std::set<int>());
    for (const auto& [box, variable] : tagTexts) {
        m_store = SettingStore();
        Put(m_store, variable, u" ");
        Load();
        EXPECT_EQ(CheckedBoxes(), std::set<int>{box});
    }
}

TEST_F(TitleBlockPage, ClearingAllowedTagSetsUnchecksTheOtherTagBoxesAndKeepsTheTexts)
{
    PutEveryTagText();
    Load();
    EXPECT_EQ(CheckedBoxes().size(), 4u);
    EXPECT_TRUE(Set(TagSets, 0)); // the controls must show the change
    EXPECT_EQ(CheckedBoxes(), std::set<int>());
    m_values.Save(m_store, true);
    for (const auto& [box, variable] : tagTexts)
        EXPECT_EQ(m_store.GetSettingValue(variable, kCurrentTable), u"A;B");
}

TEST_F(TitleBlockPage, TextThatWasSwitchedOffButNotEmptiedHasItsBoxTheNextTime)
{
    PutEveryTagText();
    Load();
    Set(Tags, 0);
    m_values.Save(m_store, true);
    PageValues next(ov::kTitleBlockRows);
    next.Load(m_store, kCurrentTable);
    EXPECT_EQ(next.CompanionNumberOf(Tags), 1);
}

TEST_F(TitleBlockPage, OtherTagBoxesStayWhileAllowedTagSetsIsChecked)
{
    PutEveryTagText();
    Load();
    EXPECT_FALSE(Set(TagValues, 0)); // nothing changes that the controls do not show
    EXPECT_EQ(CheckedBoxes(), (std::set<int>{TagSets, Tags, SpellCheck}));
}

TEST_F(TitleBlockPage, TagsDoNotDependOnTheCheckForTitleBlocks)
{
    PutEveryTagText();
    Load();
    const std::set<int> tags = {Tags, TagValues, SpellCheck, 9489, 9392, 9494, 9393, 9496, 9495, 9394};
    EXPECT_EQ(Enabled(), tags);
    m_values.NumberOf(u"_ORTHOVAL_CHECK_TITLEBLOCK") = 1;
    std::set<int> all = tags;
    all.insert({9491, 9510, 9503, 9487, 9493, 9504, 9488, 9391});
    EXPECT_EQ(Enabled(), all);
}

TEST_F(TitleBlockPage, EachTagBoxEnablesItsRow)
{
    Load();
    EXPECT_EQ(Enabled(), std::set<int>());
    Set(TagSets, 1);
    const std::set<int> sets = {Tags, TagValues, SpellCheck, 9489, 9392};
    EXPECT_EQ(Enabled(), sets);
    for (const auto& [box, row] : std::map<int, std::set<int>>{
             {Tags, {9494, 9393}}, {TagValues, {9496}}, {SpellCheck, {9495, 9394}}}) {
        Set(box, 1);
        std::set<int> expected = sets;
        expected.insert(row.begin(), row.end());
        EXPECT_EQ(Enabled(), expected);
        Set(box, 0);
    }
}

TEST_F(TitleBlockPage, CountOfEnterDataFieldsStaysAsRead)
{
    const char16_t* variable = u"_ORTHOVAL_TITLEBLOCK_COUNT_EDF";
    m_values.Save(m_store, true);
    EXPECT_FALSE(m_store.HasSetting(variable, kCurrentTable));
    Put(m_store, variable, u"1");
    Load();
    m_values.NumberOf(variable) = 0;
    m_values.Save(m_store, true);
    EXPECT_EQ(m_store.GetSettingValue(variable, kCurrentTable), u"1");
}

// Kept as it always was: only typing these names does not mark the dialog as modified.
TEST_F(TitleBlockPage, TypingCellNamesAloneGoesUnnoticed)
{
    for (const ov::SettingRow& row : ov::kTitleBlockRows.settings)
        EXPECT_EQ(row.changeGoesUnnoticed, row.controlId == 9488) << row.controlId;
}

TEST_F(TitleBlockPage, RefusedListsHandTheFocusToTheirEditAndTheTagValuesToNone)
{
    const std::map<int, int> focus = {{9493, ov::kFocusStays}, {9391, 9488}, {9392, 9489}, {9393, 9494},
                                      {9496, ov::kFocusStays}, {9394, 9495}};
    ASSERT_EQ(ov::kTitleBlockRows.browses.size(), focus.size());
    for (const ov::BrowseRow& row : ov::kTitleBlockRows.browses) {
        EXPECT_EQ(row.kind, ov::BrowseKind::List);
        EXPECT_EQ(row.separator, u';');
        EXPECT_EQ(row.browsing, row.buttonId == 9493 ? 1u : 0u);
        EXPECT_EQ(row.focusOnRefusal, focus.at(row.buttonId)) << row.buttonId;
    }
}

} // namespace
