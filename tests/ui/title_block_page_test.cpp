// The Title Blocks page in the dialog.
#include "pages/title_block/ids.h"
#include "resources/ids.h"
#include "tests/ui/page_doors.h"

#include <set>

using namespace uidriver;

namespace
{

constexpr int tagBoxes[] = {IDC_TITLE_BLOCK_USE_TAG_SETS, IDC_TITLE_BLOCK_USE_TAGS,
                            IDC_TITLE_BLOCK_USE_TAG_VALUES, IDC_TITLE_BLOCK_USE_SPELL_CHECK};

constexpr const char* everyTag = "_ORTHOVAL_TITLEBLOCK_TAGSETS = A;B\r\n_ORTHOVAL_TITLEBLOCK_TAGDEFS = C\r\n"
                                 "_ORTHOVAL_TITLEBLOCK_TAGVALUES = D;E\r\n"
                                 "_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK = F\r\n";

class TitleBlockPageTest : public PageDoors
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Title Blocks"); }

    std::set<int> CheckedTagBoxes()
    {
        std::set<int> boxes;
        for (const int id : tagBoxes) {
            if (IsPageChecked(id))
                boxes.insert(id);
        }
        return boxes;
    }
    void ExpectEnabled(std::initializer_list<int> ids, bool enabled)
    {
        for (const int id : ids)
            EXPECT_EQ(enabled, IsPageEnabled(id)) << id;
    }
    void ExpectCellsEnabled(bool enabled)
    {
        ExpectEnabled({9491, 9510, 9503, 9487, 9493, 9504, 9488, 9391}, enabled);
    }
    void ExpectTagsEnabled(bool enabled)
    {
        ExpectEnabled({9498, 9499, 9501, 9489, 9392, 9494, 9393, 9496, 9495, 9394}, enabled);
    }
    void ExpectTagsSaved()
    {
        EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGDEFS = \"C\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGDEFS"));
        EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK = \"F\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK"));
        EXPECT_NE("", Saved("_ORTHOVAL_TITLEBLOCK_TAGSETS"));
        EXPECT_NE("", Saved("_ORTHOVAL_TITLEBLOCK_TAGVALUES"));
    }
};

TEST_F(TitleBlockPageTest, EveryControlIsSavedAndShownAgain)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_TITLE_BLOCK_CHECK);
    ClickOnPage(IDC_TITLE_BLOCK_DEFAULT_MODEL);
    ClickOnPage(IDC_TITLE_BLOCK_ALLOW_ONE);
    TypeOnPage(IDC_TITLE_BLOCK_LIBRARY, L"P:\\cells\\title.cel");
    TypeOnPage(IDC_TITLE_BLOCK_NAMES, L"A1,A3");
    for (const int id : tagBoxes)
        ClickOnPage(id);
    TypeOnPage(IDC_TITLE_BLOCK_TAG_SETS, L"INFILL");
    TypeOnPage(IDC_TITLE_BLOCK_TAGS, L"C");
    TypeOnPage(IDC_TITLE_BLOCK_SPELL_CHECK, L"F");
    Save();
    EXPECT_EQ("_ORTHOVAL_CHECK_TITLEBLOCK = 1", Saved("_ORTHOVAL_CHECK_TITLEBLOCK"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_DEFAULT_MODEL = 1", Saved("_ORTHOVAL_TITLEBLOCK_DEFAULT_MODEL"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_ALLOW_ONE = 1", Saved("_ORTHOVAL_TITLEBLOCK_ALLOW_ONE"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_CELLS = \"A1,A3\"", Saved("_ORTHOVAL_TITLEBLOCK_CELLS"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGSETS = \"INFILL\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGSETS"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGDEFS = \"C\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGDEFS"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGVALUES = \"\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGVALUES"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK = \"F\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK"));
    EXPECT_EQ("", Saved("_ORTHOVAL_TITLEBLOCK_COUNT_EDF"));
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_TITLE_BLOCK_CHECK));
    EXPECT_EQ(L"P:\\cells\\title.cel", PageText(IDC_TITLE_BLOCK_LIBRARY));
    EXPECT_EQ(L"A1,A3", PageText(IDC_TITLE_BLOCK_NAMES));
    // Without a text its check box is unchecked.
    EXPECT_EQ((std::set<int>{IDC_TITLE_BLOCK_USE_TAG_SETS, IDC_TITLE_BLOCK_USE_TAGS,
                             IDC_TITLE_BLOCK_USE_SPELL_CHECK}),
              CheckedTagBoxes());
    Cancel();
}

TEST_F(TitleBlockPageTest, SwitchingPagesLosesNoEdit)
{
    UseCurrent("_ORTHOVAL_CHECK_TITLEBLOCK = 1\r\n_ORTHOVAL_TITLEBLOCK_CELLS = old\r\n");
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_TITLE_BLOCK_NAMES, L"new names"); // only typed: nothing has read it yet
    ASSERT_TRUE(ShowPage(L"Branding"));
    ASSERT_TRUE(ShowPage(L"Title Blocks"));
    EXPECT_EQ(L"new names", PageText(IDC_TITLE_BLOCK_NAMES));
    ClickOnPage(IDC_TITLE_BLOCK_USE_TAG_SETS);
    ClickOnPage(IDC_TITLE_BLOCK_USE_TAGS);
    TypeOnPage(IDC_TITLE_BLOCK_LIBRARY, L"new.cel");
    TypeOnPage(IDC_TITLE_BLOCK_TAGS, L"Title1");
    ClickOnPage(IDC_TITLE_BLOCK_ALLOW_ONE);
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ASSERT_TRUE(ShowPage(L"Title Blocks"));
    EXPECT_EQ(L"new names", PageText(IDC_TITLE_BLOCK_NAMES));
    EXPECT_EQ(L"new.cel", PageText(IDC_TITLE_BLOCK_LIBRARY));
    EXPECT_EQ(L"Title1", PageText(IDC_TITLE_BLOCK_TAGS));
    EXPECT_TRUE(IsPageChecked(IDC_TITLE_BLOCK_ALLOW_ONE));
    EXPECT_TRUE(IsPageChecked(IDC_TITLE_BLOCK_USE_TAGS)); // although there is no tag set yet
    ASSERT_TRUE(ShowPage(L"Branding"));
    Save();
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_CELLS = \"new names\"", Saved("_ORTHOVAL_TITLEBLOCK_CELLS"));
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGDEFS = \"Title1\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGDEFS"));
}

TEST_F(TitleBlockPageTest, ShowingThePageDoesNotMarkTheDialogModified)
{
    UseCurrent("_ORTHOVAL_TITLEBLOCK_TAGDEFS = C\r\n"); // unchecks its box: there is no tag set
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(std::set<int>(), CheckedTagBoxes());
    EXPECT_EQ(L"C", PageText(IDC_TITLE_BLOCK_TAGS));
    EXPECT_FALSE(CanSave());
    Cancel();
}

// Kept unchanged.
TEST_F(TitleBlockPageTest, TypingCellNamesAloneDoesNotMarkTheDialogModifiedAndIsSavedWithTheRest)
{
    UseCurrent("_ORTHOVAL_CHECK_TITLEBLOCK = 1\r\n");
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_TITLE_BLOCK_NAMES, L"A1");
    EXPECT_FALSE(CanSave());
    TypeOnPage(IDC_TITLE_BLOCK_LIBRARY, L"title.cel");
    EXPECT_TRUE(CanSave());
    Save();
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_CELLS = \"A1\"", Saved("_ORTHOVAL_TITLEBLOCK_CELLS"));
}

TEST_F(TitleBlockPageTest, ClearingAllowedTagSetsUnchecksTheOtherTagBoxesAndTheTextsAreSaved)
{
    UseCurrent(everyTag);
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(4u, CheckedTagBoxes().size());
    ExpectTagsEnabled(true);
    ClickOnPage(IDC_TITLE_BLOCK_USE_TAG_SETS);
    EXPECT_EQ(std::set<int>(), CheckedTagBoxes());
    ExpectTagsEnabled(false);
    EXPECT_TRUE(IsPageEnabled(IDC_TITLE_BLOCK_USE_TAG_SETS));
    Save();
    ExpectTagsSaved();
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(4u, CheckedTagBoxes().size()); // the texts exist, so their check boxes are checked
    Cancel();
}

TEST_F(TitleBlockPageTest, UncheckingTheCheckLeavesTheTagSectionEnabled)
{
    UseCurrent(std::string("_ORTHOVAL_CHECK_TITLEBLOCK = 1\r\n") + everyTag);
    ASSERT_TRUE(OpenPage());
    ExpectCellsEnabled(true);
    ClickOnPage(IDC_TITLE_BLOCK_CHECK);
    ExpectCellsEnabled(false);
    ExpectTagsEnabled(true);
    EXPECT_TRUE(IsPageEnabled(IDC_TITLE_BLOCK_USE_TAG_SETS));
    Abandon();
}

TEST_F(TitleBlockPageTest, EachTagBoxEnablesItsRow)
{
    UseCurrent(everyTag);
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_TITLE_BLOCK_USE_TAGS);
    ExpectEnabled({9494, 9393}, false);
    ExpectEnabled({9496, 9495, 9394}, true);
    ClickOnPage(IDC_TITLE_BLOCK_USE_TAG_VALUES);
    ExpectEnabled({9496}, false);
    ExpectEnabled({9495, 9394}, true);
    ClickOnPage(IDC_TITLE_BLOCK_USE_SPELL_CHECK);
    ExpectEnabled({9495, 9394}, false);
    Abandon();
}

TEST_F(TitleBlockPageTest, LoadingDefaultsSetsWhatIsEnabled)
{
    UseDefaults(std::string("_ORTHOVAL_CHECK_TITLEBLOCK = 1\r\n") + everyTag);
    UseCurrent("_ORTHOVAL_CHECK_TITLEBLOCK = 0\r\n");
    ASSERT_TRUE(OpenPage());
    ExpectCellsEnabled(false);
    ExpectTagsEnabled(false);
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    ExpectCellsEnabled(true);
    ExpectTagsEnabled(true);
    EXPECT_EQ(4u, CheckedTagBoxes().size());
    Abandon();
}

TEST_F(TitleBlockPageTest, CountOfEnterDataFieldsKeepsItsValueThoughNoControlShowsIt)
{
    UseCurrent("_ORTHOVAL_TITLEBLOCK_COUNT_EDF = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(IsWindowVisible(PageControl(IDC_TITLE_BLOCK_COUNT_FIELDS)));
    Click(PageControl(IDC_TITLE_BLOCK_COUNT_FIELDS));
    Save();
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_COUNT_EDF = 1", Saved("_ORTHOVAL_TITLEBLOCK_COUNT_EDF"));
}

TEST_F(TitleBlockPageTest, ListsOpenInTheEditor)
{
    UseCurrent(std::string("_ORTHOVAL_CHECK_TITLEBLOCK = 1\r\n_ORTHOVAL_TITLEBLOCK_CELLLIBS = a.cel;b.cel\r\n"
                           "_ORTHOVAL_TITLEBLOCK_CELLS = A1,A2;A3\r\n") +
               everyTag);
    using Entries = std::vector<std::wstring>;
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ((Entries{L"a.cel", L"b.cel"}), EntriesBehind(IDC_TITLE_BLOCK_LIBRARY_BROWSE, true));
    EXPECT_EQ((Entries{L"A1,A2", L"A3"}), EntriesBehind(IDC_TITLE_BLOCK_NAMES_BROWSE));
    EXPECT_EQ((Entries{L"A", L"B"}), EntriesBehind(IDC_TITLE_BLOCK_TAG_SETS_BROWSE));
    EXPECT_EQ((Entries{L"C"}), EntriesBehind(IDC_TITLE_BLOCK_TAGS_BROWSE));
    EXPECT_EQ((Entries{L"D", L"E"}), EntriesBehind(IDC_TITLE_BLOCK_TAG_VALUES));
    EXPECT_EQ((Entries{L"F"}), EntriesBehind(IDC_TITLE_BLOCK_SPELL_CHECK_BROWSE));
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(TitleBlockPageTest, TagValuesAreSetWithDefineAlone)
{
    UseCurrent("_ORTHOVAL_TITLEBLOCK_TAGSETS = A\r\n");
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_TITLE_BLOCK_USE_TAG_VALUES);
    EnterInEditor(IDC_TITLE_BLOCK_TAG_VALUES, L"Scale=50");
    EXPECT_TRUE(IsPageChecked(IDC_TITLE_BLOCK_USE_TAG_VALUES));
    EXPECT_TRUE(CanSave());
    Save();
    EXPECT_EQ("_ORTHOVAL_TITLEBLOCK_TAGVALUES = \"Scale=50\"", Saved("_ORTHOVAL_TITLEBLOCK_TAGVALUES"));
}

TEST_F(TitleBlockPageTest, RefusedListsFocusTheirEdit)
{
    UseCurrent(std::string("_ORTHOVAL_CHECK_TITLEBLOCK = 1\r\n") + everyTag);
    ASSERT_TRUE(OpenPage());
    for (const int id : {9487, 9488, 9489, 9494, 9495})
        TypeOnPage(id, L"5\" pipe");
    ExpectRefused(IDC_TITLE_BLOCK_LIBRARY_BROWSE, IDC_TITLE_BLOCK_LIBRARY_BROWSE);
    ExpectRefused(IDC_TITLE_BLOCK_NAMES_BROWSE, IDC_TITLE_BLOCK_NAMES);
    ExpectRefused(IDC_TITLE_BLOCK_TAG_SETS_BROWSE, IDC_TITLE_BLOCK_TAG_SETS);
    ExpectRefused(IDC_TITLE_BLOCK_TAGS_BROWSE, IDC_TITLE_BLOCK_TAGS);
    ExpectRefused(IDC_TITLE_BLOCK_SPELL_CHECK_BROWSE, IDC_TITLE_BLOCK_SPELL_CHECK);
    Abandon();
}

TEST_F(TitleBlockPageTest, TagValuesWithALoneQuoteCannotBeOpenedWithDefine)
{
    UseCurrent("_ORTHOVAL_TITLEBLOCK_TAGSETS = A\r\n_ORTHOVAL_TITLEBLOCK_TAGVALUES = Size=5\" pipe\r\n");
    ASSERT_TRUE(OpenPage());
    ExpectRefused(IDC_TITLE_BLOCK_TAG_VALUES, IDC_TITLE_BLOCK_TAG_VALUES);
    EXPECT_FALSE(CanSave());
    Cancel();
}

} // namespace
