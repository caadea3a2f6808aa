// The Watermark Placement page in the dialog.
#include "pages/watermark_placement/ids.h"
#include "tests/ui/page_session.h"

using namespace uidriver;

namespace
{

class WatermarkPlacementPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Watermark Placement"); }
};

struct TextField {
    int control;
    const char* variable;
    const char* assignment; ///< after "mark it" was typed
};

// Paths and numbers are written without quotes.
constexpr TextField fields[] = {
    {IDC_WATERMARK_PLACEMENT_USER_STRING, "_ORTHOVAL_REPLACETEXT_USERDEFINED_STRING", " = \"mark it\""},
    {IDC_WATERMARK_PLACEMENT_DATE_STRING, "_ORTHOVAL_REPLACETEXT_DATE_STRING", " = mark it"},
    {IDC_WATERMARK_PLACEMENT_DATE_FORMAT, "_ORTHOVAL_REPLACETEXT_DATE_FORMAT", " = mark it"},
    {IDC_WATERMARK_PLACEMENT_DICTIONARY_STRING, "_ORTHOVAL_REPLACETEXT_DICTVERSION_STRING", " = mark it"},
    {IDC_WATERMARK_PLACEMENT_APPLICATION_STRING, "_ORTHOVAL_REPLACETEXT_APP_VERSION_STRING", " = mark it"},
    {IDC_WATERMARK_PLACEMENT_LINE_SPACING, "_ORTHOVAL_REPLACETEXT_LINESPACING", " = mark it"},
    {IDC_WATERMARK_PLACEMENT_CROSS, "_ORTHOVAL_WATERMARK_CROSS", " = \"mark it\""},
};

TEST_F(WatermarkPlacementPageTest, TextsAreSavedAsTypedAndAbsentOnesEmpty)
{
    UseCurrent("_ORTHOVAL_REPLACETEXT_DATE_FORMAT = %d/%m/%Y\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(L"%d/%m/%Y", PageText(IDC_WATERMARK_PLACEMENT_DATE_FORMAT));
    EXPECT_EQ(L"", PageText(IDC_WATERMARK_PLACEMENT_CROSS));
    TypeOnPage(IDC_WATERMARK_PLACEMENT_LINE_SPACING, L"0.5");
    Save();
    EXPECT_EQ("_ORTHOVAL_REPLACETEXT_DATE_FORMAT = %d/%m/%Y", Saved("_ORTHOVAL_REPLACETEXT_DATE_FORMAT"));
    EXPECT_EQ("_ORTHOVAL_REPLACETEXT_LINESPACING = 0.5", Saved("_ORTHOVAL_REPLACETEXT_LINESPACING"));
    EXPECT_EQ("_ORTHOVAL_WATERMARK_CROSS = \"\"", Saved("_ORTHOVAL_WATERMARK_CROSS"));
}

TEST_F(WatermarkPlacementPageTest, CrossIsEditedAsAListAndRefusedWithALoneQuote)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_WATERMARK_PLACEMENT_CROSS, L"co=3;wt=2");
    const Editor editor = UseEditor(IDC_WATERMARK_PLACEMENT_CROSS_BROWSE, IDOK, L"lc=0");
    EXPECT_EQ((std::vector<std::wstring>{L"co=3", L"wt=2"}), editor.rows);
    EXPECT_EQ(1, editor.fields);
    EXPECT_FALSE(editor.browses);
    EXPECT_EQ(L"co=3;wt=2;lc=0", PageText(IDC_WATERMARK_PLACEMENT_CROSS));
    ExpectRefusal(IDC_WATERMARK_PLACEMENT_CROSS, IDC_WATERMARK_PLACEMENT_CROSS_BROWSE,
                  IDC_WATERMARK_PLACEMENT_CROSS);
    Abandon();
}

} // namespace
