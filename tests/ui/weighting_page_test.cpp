// The Score Weighting page in the dialog.
#include "pages/weighting/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <commctrl.h>

using namespace uidriver;

namespace
{

struct Weight {
    int bar;
    int value;
    const char* variable;
};

constexpr Weight weights[] = {
    {IDC_WEIGHTING_COLOUR, IDC_WEIGHTING_COLOUR_VALUE, "_ORTHOVAL_WEIGHTING_COLOUR"},
    {IDC_WEIGHTING_WEIGHT, IDC_WEIGHTING_WEIGHT_VALUE, "_ORTHOVAL_WEIGHTING_WEIGHT"},
    {IDC_WEIGHTING_STYLE, IDC_WEIGHTING_STYLE_VALUE, "_ORTHOVAL_WEIGHTING_STYLE"},
    {IDC_WEIGHTING_LEVEL_NAME, IDC_WEIGHTING_LEVEL_NAME_VALUE, "_ORTHOVAL_WEIGHTING_LEVEL_NAME"},
    {IDC_WEIGHTING_CELL_NAME, IDC_WEIGHTING_CELL_NAME_VALUE, "_ORTHOVAL_WEIGHTING_CELL_NAME"},
    {IDC_WEIGHTING_TEXT_HEIGHT, IDC_WEIGHTING_TEXT_HEIGHT_VALUE, "_ORTHOVAL_WEIGHTING_TEXTHEIGHT"},
    {IDC_WEIGHTING_TEXT_STYLE, IDC_WEIGHTING_TEXT_STYLE_VALUE, "_ORTHOVAL_WEIGHTING_TEXTSTYLE"},
    {IDC_WEIGHTING_DIMENSION_STYLE, IDC_WEIGHTING_DIMENSION_STYLE_VALUE,
     "_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE"},
};

class WeightingPageTest : public DialogSession
{
  protected:
    std::string Saved(const std::string& variable) { return AssignmentOf(CurrentBytes(), variable); }
    int Position(int bar) { return TrackbarPosition(PageControl(bar)); }
    void PressOnBar(int bar, WORD key)
    {
        Focus(PageControl(bar));
        PostKey(Dialog(), key);
    }
};

TEST_F(WeightingPageTest, BarsGoFromZeroToTwentyWithoutMarks)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Score Weighting"));
    for (const Weight& weight : weights) {
        const HWND bar = PageControl(weight.bar);
        EXPECT_EQ(0, Send(bar, TBM_GETRANGEMIN)) << weight.variable;
        EXPECT_EQ(20, Send(bar, TBM_GETRANGEMAX)) << weight.variable;
        const LONG_PTR style = GetWindowLongPtrW(bar, GWL_STYLE);
        EXPECT_EQ(TBS_BOTH | TBS_NOTICKS, style & (TBS_BOTH | TBS_NOTICKS | TBS_VERT)) << weight.variable;
        EXPECT_TRUE(GetWindowLongPtrW(PageControl(weight.value), GWL_STYLE) & ES_READONLY);
        EXPECT_EQ(L"0", PageText(weight.value));
    }
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(WeightingPageTest, EachBarMovesItsOwnValueAndIsSaved)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Score Weighting"));
    int steps = 0;
    for (const Weight& weight : weights) {
        ++steps;
        for (int step = 0; step < steps; ++step)
            PressOnBar(weight.bar, VK_RIGHT);
        EXPECT_EQ(std::to_wstring(steps), PageText(weight.value)) << weight.variable;
        EXPECT_TRUE(CanSave());
    }
    Save();
    steps = 0;
    for (const Weight& weight : weights)
        EXPECT_EQ(weight.variable + (" = " + std::to_string(++steps)), Saved(weight.variable));
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Score Weighting"));
    steps = 0;
    for (const Weight& weight : weights)
        EXPECT_EQ(++steps, Position(weight.bar)) << weight.variable;
    Cancel();
}

TEST_F(WeightingPageTest, ValueBeyondTheBarIsKeptUntilTheBarMoves)
{
    UseCurrent("_ORTHOVAL_WEIGHTING_STYLE = 25\r\n_ORTHOVAL_WEIGHTING_COLOUR = 25\r\n"
               "_ORTHOVAL_WEIGHTING_WEIGHT = much\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Score Weighting"));
    EXPECT_EQ(L"25", PageText(IDC_WEIGHTING_STYLE_VALUE));
    EXPECT_EQ(20, Position(IDC_WEIGHTING_STYLE));
    EXPECT_EQ(L"much", PageText(IDC_WEIGHTING_WEIGHT_VALUE));
    EXPECT_EQ(0, Position(IDC_WEIGHTING_WEIGHT));
    PressOnBar(IDC_WEIGHTING_COLOUR, VK_LEFT);
    EXPECT_EQ(L"19", PageText(IDC_WEIGHTING_COLOUR_VALUE));
    Save();
    EXPECT_EQ("_ORTHOVAL_WEIGHTING_STYLE = 25", Saved("_ORTHOVAL_WEIGHTING_STYLE"));
    EXPECT_EQ("_ORTHOVAL_WEIGHTING_COLOUR = 19", Saved("_ORTHOVAL_WEIGHTING_COLOUR"));
    EXPECT_EQ("_ORTHOVAL_WEIGHTING_WEIGHT = much", Saved("_ORTHOVAL_WEIGHTING_WEIGHT"));
    EXPECT_EQ("_ORTHOVAL_WEIGHTING_TEXTHEIGHT = 0", Saved("_ORTHOVAL_WEIGHTING_TEXTHEIGHT"));
}

// The track bars send the same messages as the page's own scroll bar.
TEST_F(WeightingPageTest, ScrollOfAnotherWindowMarksAndThePagesOwnDoesNot)
{
    UseCurrent("_ORTHOVAL_WEIGHTING_STYLE = 2\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Score Weighting"));
    SendMessageW(Page(), WM_HSCROLL, SB_LINERIGHT, 0);
    EXPECT_FALSE(CanSave());
    SendMessageW(Page(), WM_HSCROLL, TB_LINEDOWN,
                 reinterpret_cast<LPARAM>(PageControl(IDC_WEIGHTING_STYLE_VALUE)));
    EXPECT_TRUE(CanSave());
    EXPECT_EQ(L"2", PageText(IDC_WEIGHTING_STYLE_VALUE));
    Abandon();
}

} // namespace
