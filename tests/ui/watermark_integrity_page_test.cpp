// The Watermark Integrity page in the dialog.
#include "pages/watermark_integrity/ids.h"
#include "resources/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class WatermarkIntegrityPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Watermark Integrity"); }

    /// Marks the dialog modified without changing a value.
    void Touch()
    {
        ClickOnPage(IDC_WATERMARK_INTEGRITY_CONFORM);
        ClickOnPage(IDC_WATERMARK_INTEGRITY_CONFORM);
    }
};

TEST_F(WatermarkIntegrityPageTest, ListsAreSortedAndSayWhoDecides)
{
    ASSERT_TRUE(OpenPage());
    for (const int list : {IDC_WATERMARK_INTEGRITY_METADATA, IDC_WATERMARK_INTEGRITY_RASTER,
                           IDC_WATERMARK_INTEGRITY_OVERWRITE}) {
        EXPECT_EQ((std::vector<std::wstring>{L"Always", L"Never", L"User Defined"}), PageEntries(list));
        EXPECT_NE(0, GetWindowLongPtrW(PageControl(list), GWL_STYLE) & CBS_SORT);
        EXPECT_EQ(2, PageSelection(list));
    }
    Cancel();
}

TEST_F(WatermarkIntegrityPageTest, AbsentRasterCheckIsTheUsersAndSavedAsMinusOne)
{
    UseCurrent("_ORTHOVAL_WATERMARKS_CONFORM = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(2, PageSelection(IDC_WATERMARK_INTEGRITY_RASTER));
    Touch();
    Save();
    EXPECT_EQ("_ORTHOVAL_WATERMARKS_CHECK_RASTER = -1", Saved("_ORTHOVAL_WATERMARKS_CHECK_RASTER"));
}

TEST_F(WatermarkIntegrityPageTest, OverwriteOfTwoIsTheUsersAndSavedAsMinusOne)
{
    UseCurrent("_ORTHOVAL_WATERMARKS_OVERWRITE = 2\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(2, PageSelection(IDC_WATERMARK_INTEGRITY_OVERWRITE));
    Touch();
    Save();
    EXPECT_EQ("_ORTHOVAL_WATERMARKS_OVERWRITE = -1", Saved("_ORTHOVAL_WATERMARKS_OVERWRITE"));
}

TEST_F(WatermarkIntegrityPageTest, ClippedElementsOfMinusOneAreOffAndSavedSo)
{
    UseCurrent("_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS = -1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(IsPageChecked(IDC_WATERMARK_INTEGRITY_CLIPPED_REFERENCES));
    Touch();
    Save();
    EXPECT_EQ("_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS = 0",
              Saved("_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS"));
}

TEST_F(WatermarkIntegrityPageTest, WhatIsSetIsSavedAndShownAgain)
{
    const std::pair<int, const char*> boxes[] = {
        {IDC_WATERMARK_INTEGRITY_DOUBLE_CROSS, "_ORTHOVAL_REPORT_DOUBLECROSS_ON_FAIL"},
        {IDC_WATERMARK_INTEGRITY_INSTANT_INVALIDATE, "_ORTHOVAL_WATERMARKS_INSTANTINVALIDATE"},
        {IDC_WATERMARK_INTEGRITY_CONFORM, "_ORTHOVAL_WATERMARKS_CONFORM"},
        {IDC_WATERMARK_INTEGRITY_FONT_NUMBERS, "_ORTHOVAL_WATERMARKS_CHECK_FONTNUMS"},
        {IDC_WATERMARK_INTEGRITY_FONT_NAMES, "_ORTHOVAL_WATERMARKS_CHECK_FONTNAMES"},
        {IDC_WATERMARK_INTEGRITY_CLIPPED_REFERENCES, "_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS"},
    };
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(OpenPage());
    for (const auto& [box, variable] : boxes)
        ClickOnPage(box);
    TypeOnPage(IDC_WATERMARK_INTEGRITY_LEVELS, L"Scratch,Notes");
    TypeOnPage(IDC_WATERMARK_INTEGRITY_CELLS, L"STAMP");
    SelectOnPage(IDC_WATERMARK_INTEGRITY_METADATA, 0);
    SelectOnPage(IDC_WATERMARK_INTEGRITY_RASTER, 1);
    Save();
    for (const auto& [box, variable] : boxes)
        EXPECT_EQ(std::string(variable) + " = 1", Saved(variable));
    EXPECT_EQ("_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS = \"Scratch,Notes\"",
              Saved("_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS"));
    EXPECT_EQ("_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS = \"STAMP\"",
              Saved("_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS"));
    EXPECT_EQ("_ORTHOVAL_WATERMARKS_CHECK_METADATA = 1", Saved("_ORTHOVAL_WATERMARKS_CHECK_METADATA"));
    EXPECT_EQ("_ORTHOVAL_WATERMARKS_CHECK_RASTER = 0", Saved("_ORTHOVAL_WATERMARKS_CHECK_RASTER"));
    EXPECT_EQ("_ORTHOVAL_WATERMARKS_OVERWRITE = -1", Saved("_ORTHOVAL_WATERMARKS_OVERWRITE"));
    ASSERT_TRUE(OpenPage());
    for (const auto& [box, variable] : boxes)
        EXPECT_TRUE(IsPageChecked(box)) << variable;
    EXPECT_EQ(L"Scratch,Notes", PageText(IDC_WATERMARK_INTEGRITY_LEVELS));
    EXPECT_EQ(L"STAMP", PageText(IDC_WATERMARK_INTEGRITY_CELLS));
    EXPECT_EQ(0, PageSelection(IDC_WATERMARK_INTEGRITY_METADATA));
    EXPECT_EQ(1, PageSelection(IDC_WATERMARK_INTEGRITY_RASTER));
    EXPECT_EQ(2, PageSelection(IDC_WATERMARK_INTEGRITY_OVERWRITE));
    Cancel();
}

TEST_F(WatermarkIntegrityPageTest, LoadingTheDefaultsGivesTheListsBackToTheUser)
{
    UseDefaults("_ORTHOVAL_WATERMARKS_CHECK_RASTER = 0\r\n");
    UseCurrent("_ORTHOVAL_WATERMARKS_CHECK_RASTER = 1\r\n_ORTHOVAL_WATERMARKS_OVERWRITE = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(0, PageSelection(IDC_WATERMARK_INTEGRITY_OVERWRITE));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_EQ(1, PageSelection(IDC_WATERMARK_INTEGRITY_RASTER));
    EXPECT_EQ(2, PageSelection(IDC_WATERMARK_INTEGRITY_OVERWRITE));
    Abandon();
}

TEST_F(WatermarkIntegrityPageTest, ExclusionsAreEditedBetweenCommas)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_WATERMARK_INTEGRITY_LEVELS, L"a;b,c");
    const Editor levels = UseEditor(IDC_WATERMARK_INTEGRITY_LEVELS_BROWSE, IDOK, L"d");
    EXPECT_EQ((std::vector<std::wstring>{L"a;b", L"c"}), levels.rows);
    EXPECT_FALSE(levels.browses);
    EXPECT_EQ(L"a;b,c,d", PageText(IDC_WATERMARK_INTEGRITY_LEVELS));
    TypeOnPage(IDC_WATERMARK_INTEGRITY_CELLS, L"a,b");
    const Editor cells = UseEditor(IDC_WATERMARK_INTEGRITY_CELLS_BROWSE, IDCANCEL);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b"}), cells.rows);
    EXPECT_FALSE(cells.browses);
    Abandon();
}

TEST_F(WatermarkIntegrityPageTest, RefusalOfTheCellsGoesToTheirEditAndOfTheLevelsNowhere)
{
    ASSERT_TRUE(OpenPage());
    ExpectRefusal(IDC_WATERMARK_INTEGRITY_CELLS, IDC_WATERMARK_INTEGRITY_CELLS_BROWSE,
                  IDC_WATERMARK_INTEGRITY_CELLS);
    ExpectRefusal(IDC_WATERMARK_INTEGRITY_LEVELS, IDC_WATERMARK_INTEGRITY_LEVELS_BROWSE, 0);
    Abandon();
}

TEST_F(WatermarkIntegrityPageTest, EachChangeMarksModified)
{
    ExpectEachMarksModified(L"Watermark Integrity",
                            {
                                [&] { ClickOnPage(IDC_WATERMARK_INTEGRITY_DOUBLE_CROSS); },
                                [&] { ClickOnPage(IDC_WATERMARK_INTEGRITY_INSTANT_INVALIDATE); },
                                [&] { ClickOnPage(IDC_WATERMARK_INTEGRITY_CONFORM); },
                                [&] { ClickOnPage(IDC_WATERMARK_INTEGRITY_FONT_NUMBERS); },
                                [&] { ClickOnPage(IDC_WATERMARK_INTEGRITY_FONT_NAMES); },
                                [&] { ClickOnPage(IDC_WATERMARK_INTEGRITY_CLIPPED_REFERENCES); },
                                [&] { TypeOnPage(IDC_WATERMARK_INTEGRITY_LEVELS, L"a"); },
                                [&] { TypeOnPage(IDC_WATERMARK_INTEGRITY_CELLS, L"a"); },
                                [&] { SelectOnPage(IDC_WATERMARK_INTEGRITY_METADATA, 0); },
                                [&] { SelectOnPage(IDC_WATERMARK_INTEGRITY_RASTER, 0); },
                                [&] { SelectOnPage(IDC_WATERMARK_INTEGRITY_OVERWRITE, 0); },
                            });
}

} // namespace
