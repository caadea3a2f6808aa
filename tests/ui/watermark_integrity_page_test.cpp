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

} // namespace
