// Reference Files in the dialog: the scale factor, and the controls that depend on
// the texts for border sheets and for the plot border.
#include "pages/reference_files/ids.h"
#include "resources/ids.h"
#include "tests/ui/page_session.h"
#include "tests/ui/value_editor.h"

using namespace uidriver;

namespace
{

class ReferenceFilesPageTest : public PageSession
{
  protected:
    static constexpr int BorderSheets = 3002;
    static constexpr int PlotShape = 3010;
    static constexpr int ScaleFactor = 11019;

    bool OpenPage() { return Open() && ShowPage(L"Reference Files"); }

    bool AreEnabled(std::initializer_list<int> controls) const
    {
        const bool first = IsEnabled(PageControl(*controls.begin()));
        for (const int control : controls)
            EXPECT_EQ(first, IsEnabled(PageControl(control))) << control;
        return first;
    }
    /// The controls that need border sheets, a plot border, or both.
    bool BorderControls() const { return AreEnabled({9506, 9511, 3006, 3007}); }
    bool ShapeControls() const { return AreEnabled({9509, 9510, 11018, 11019, 11020}); }
    bool BothControl() const { return IsEnabled(PageControl(9512)); }

    /// Gives a control the focus and removes it again.
    void PassThrough(int control)
    {
        Focus(PageControl(control));
        Focus(PageControl(3003));
    }
};

TEST_F(ReferenceFilesPageTest, CaptionsAreTheProductsOwn)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(L"Prompt for drawing scale when a border sheet is...",
              PageText(IDC_REFERENCE_FILES_PROMPT_GROUP));
    EXPECT_EQ(L"Attached", PageText(3003));
    EXPECT_EQ(L"Detached", PageText(3000));
    EXPECT_EQ(L"Modified", PageText(3004));
    EXPECT_EQ(L"Reference drawing scale is independent of master", PageText(9378));
    EXPECT_EQ(L"Unscale dimensions by reference attachment scale ", PageText(9380));
    EXPECT_EQ(L"At least one border sheet must be attached", PageText(9506));
    EXPECT_EQ(L"Only check Default model", PageText(9511));
    EXPECT_EQ(L"Plot border must be defined in border sheet", PageText(9512));
    EXPECT_EQ(L"Disallow elements outside the plot border", PageText(9510));
    EXPECT_EQ(L"Ignore elements outside the plot border until certfiying", PageText(9509));
    EXPECT_EQ(L"Allowed scale factor", PageText(11018));
    EXPECT_EQ(L"(0.75-1.25)", PageText(11020));
    EXPECT_EQ((std::vector<std::wstring>{L"Always", L"Never", L"User Defined"}),
              ComboTexts(PageControl(11066)));
    EXPECT_NE(0, GetWindowLongPtrW(PageControl(11066), GWL_STYLE) & CBS_SORT);
    Cancel();
}

TEST_F(ReferenceFilesPageTest, ClippingThatIsAbsentOrMinusOneIsUserDefinedAndSavedAsMinusOne)
{
    for (const char* bytes : {"", "_ORTHOVAL_REPORT_USEREFCLIPPING = -1\r\n"}) {
        UseCurrent(bytes);
        ASSERT_TRUE(OpenPage());
        EXPECT_EQ(2, ComboSelection(PageControl(11066)));
        ClickOnPage(3003);
        Save();
        EXPECT_EQ("_ORTHOVAL_REPORT_USEREFCLIPPING = -1", Saved("_ORTHOVAL_REPORT_USEREFCLIPPING"));
    }
}

TEST_F(ReferenceFilesPageTest, AbsentUnscaleDimensionsIsChecked)
{
    UseDefaults("_ORTHOVAL_PROMPT_REF_ATTACHED = 1\r\n");
    UseCurrent("_ORTHOVAL_REPORT_REF_UNSCALE_DIMS = 0\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(IsPageChecked(9380));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(IsPageChecked(9380));
    Abandon();
}

TEST_F(ReferenceFilesPageTest, ScaleFactorIsHeldWithinItsLimitsWhenItLosesTheFocus)
{
    UseCurrent("_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(L"1.00000", PageText(ScaleFactor));
    for (const auto& [typed, kept] : {std::pair{L"2", L"1.25000"},
                                      {L"0.5", L"0.75000"},
                                      {L"", L"1.00000"},
                                      {L"1.1", L"1.1"},
                                      {L"x", L"0.75000"}}) {
        SetText(PageControl(ScaleFactor), typed);
        EXPECT_EQ(typed, PageText(ScaleFactor));
        PassThrough(ScaleFactor);
        EXPECT_EQ(kept, PageText(ScaleFactor));
    }
    Abandon();
}

TEST_F(ReferenceFilesPageTest, ScaleFactorOfTheFileIsHeldWithinItsLimits)
{
    UseDefaults("_ORTHOVAL_BORDERSHEETS_ERROR_SCALE = 0.1\r\n");
    UseCurrent("_ORTHOVAL_BORDERSHEETS_ERROR_SCALE = 2\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(L"1.25000", PageText(ScaleFactor));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_EQ(L"0.75000", PageText(ScaleFactor));
    Abandon();
}

TEST_F(ReferenceFilesPageTest, LeavingTheScaleFactorMarksTheDialogModifiedEvenUnchanged)
{
    UseCurrent("_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(CanSave());
    PassThrough(ScaleFactor);
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(ReferenceFilesPageTest, DialogClosesWithTheFocusInTheScaleFactor)
{
    UseCurrent("_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n");
    ASSERT_TRUE(OpenPage());
    ClickOnPage(3003);
    Focus(PageControl(ScaleFactor));
    Abandon();
    ASSERT_TRUE(OpenPage());
    TypeOnPage(ScaleFactor, L"1.2");
    Save();
    EXPECT_EQ("_ORTHOVAL_BORDERSHEETS_ERROR_SCALE = \"1.2\"", Saved("_ORTHOVAL_BORDERSHEETS_ERROR_SCALE"));
}

TEST_F(ReferenceFilesPageTest, WhatIsEnabledFollowsTheLoadedTexts)
{
    struct Case {
        const char* bytes;
        bool border, shape;
    };
    for (const Case& one :
         {Case{"", false, false},
          {"_ORTHOVAL_BORDERSHEETS = a.dgn\r\n", true, false},
          {"_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n", false, true},
          {"_ORTHOVAL_BORDERSHEETS = a.dgn\r\n_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n", true, true}}) {
        SCOPED_TRACE(one.bytes);
        UseCurrent(one.bytes);
        ASSERT_TRUE(OpenPage());
        EXPECT_EQ(one.border, BorderControls());
        EXPECT_EQ(one.shape, ShapeControls());
        EXPECT_EQ(one.border && one.shape, BothControl());
        Cancel();
    }
}

TEST_F(ReferenceFilesPageTest, LoadingDefaultsEnablesWhatTheyNeedAndMarksTheDialogModified)
{
    UseDefaults("_ORTHOVAL_BORDERSHEETS = a.dgn\r\n_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n");
    UseCurrent("_ORTHOVAL_PROMPT_REF_ATTACHED = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(CanSave());
    EXPECT_FALSE(BorderControls());
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(BorderControls());
    EXPECT_TRUE(ShapeControls());
    EXPECT_TRUE(BothControl());
    EXPECT_TRUE(CanSave());
    Abandon();
}

// A refresh enables controls by the texts before the key that caused it.
TEST_F(ReferenceFilesPageTest, FirstKeyInTheBorderSheetsEnablesNothingYet)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(BorderSheets, L"a");
    EXPECT_TRUE(CanSave());
    EXPECT_FALSE(BorderControls());
    TypeOnPage(BorderSheets, L"b");
    EXPECT_TRUE(BorderControls());
    EXPECT_FALSE(BothControl());
    SetText(PageControl(BorderSheets), L"");
    ASSERT_EQ(L"", PageText(BorderSheets));
    EXPECT_TRUE(BorderControls());
    TypeOnPage(BorderSheets, L"c");
    EXPECT_FALSE(BorderControls());
    Abandon();
}

TEST_F(ReferenceFilesPageTest, FirstKeyInThePlotBorderEnablesNothingYet)
{
    UseCurrent("_ORTHOVAL_BORDERSHEETS = a.dgn\r\n");
    ASSERT_TRUE(OpenPage());
    TypeOnPage(PlotShape, L"a");
    EXPECT_FALSE(ShapeControls());
    EXPECT_FALSE(BothControl());
    TypeOnPage(PlotShape, L"b");
    EXPECT_TRUE(ShapeControls());
    EXPECT_TRUE(BothControl());
    Abandon();
}

TEST_F(ReferenceFilesPageTest, ClickOnABoxOfThePlotBorderCatchesUp)
{
    UseCurrent("_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = lv\r\n");
    for (const int box : {9509, 9510}) {
        ASSERT_TRUE(OpenPage());
        TypeOnPage(BorderSheets, L"a");
        EXPECT_FALSE(BorderControls());
        ClickOnPage(box);
        EXPECT_TRUE(IsPageChecked(box));
        EXPECT_TRUE(BorderControls());
        EXPECT_TRUE(BothControl());
        Abandon();
    }
}

TEST_F(ReferenceFilesPageTest, PageShownAgainIsRight)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(BorderSheets, L"a");
    EXPECT_FALSE(BorderControls());
    ASSERT_TRUE(ShowPage(L"Branding"));
    ASSERT_TRUE(ShowPage(L"Reference Files"));
    EXPECT_EQ(L"a", PageText(BorderSheets));
    EXPECT_TRUE(BorderControls());
    Abandon();
}

// A refresh never unchecks anything permanently: disabled check boxes keep their
// state, and it is saved.
TEST_F(ReferenceFilesPageTest, DisabledBoxesKeepTheirChecks)
{
    UseCurrent("_ORTHOVAL_CHECK_BORDERSHEETS = 1\r\n_ORTHOVAL_BORDERSHEETS_DEFAULT_MODEL = 1\r\n"
               "_ORTHOVAL_BORDERSHEETS_PLOTSHAPE_EXISTS = 1\r\n"
               "_ORTHOVAL_BORDERSHEETS_DISALLOW_OUTSIDE = 1\r\n"
               "_ORTHOVAL_BORDERSHEETS_IGNORE_OUTSIDE = 1\r\n");
    ASSERT_TRUE(OpenPage());
    for (const int box : {9506, 9511, 9512, 9510, 9509}) {
        EXPECT_FALSE(IsEnabled(PageControl(box))) << box;
        EXPECT_TRUE(IsPageChecked(box)) << box;
    }
    TypeOnPage(PlotShape, L"x");
    for (const int box : {9506, 9511, 9512, 9510, 9509})
        EXPECT_TRUE(IsPageChecked(box)) << box;
    Save();
    EXPECT_EQ("_ORTHOVAL_CHECK_BORDERSHEETS = 1", Saved("_ORTHOVAL_CHECK_BORDERSHEETS"));
    EXPECT_EQ("_ORTHOVAL_BORDERSHEETS_IGNORE_OUTSIDE = 1", Saved("_ORTHOVAL_BORDERSHEETS_IGNORE_OUTSIDE"));
}

TEST_F(ReferenceFilesPageTest, BorderSheetsAreEditedAsFilesAndModels)
{
    ASSERT_TRUE(OpenPage());
    HWND editor = OpenValueEditor(PageControl(3005));
    ASSERT_TRUE(editor);
    EXPECT_TRUE(IsShown(GetDlgItem(editor, IDC_CONFIG_SETTING_BROWSE)));
    CloseValueEditor(editor, IDCANCEL);
    EXPECT_FALSE(CanSave());
    editor = OpenValueEditor(PageControl(3005));
    ASSERT_TRUE(editor);
    InsertValue(editor, L"a1.dgn,Default");
    InsertValue(editor, L"a3.dgn,Model");
    EXPECT_EQ((std::vector<std::wstring>{L"a1.dgn", L"a3.dgn"}), ValueEditorRows(editor));
    CloseValueEditor(editor, IDOK);
    EXPECT_EQ(L"a1.dgn,Default;a3.dgn,Model", PageText(BorderSheets));
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(BorderControls());
    Abandon();
}

// The refresh after the list editor marks the dialog, even if the editor was cancelled.
TEST_F(ReferenceFilesPageTest, EditorOfThePlotBorderIsFollowedByARefresh)
{
    ASSERT_TRUE(OpenPage());
    HWND editor = OpenValueEditor(PageControl(3011));
    ASSERT_TRUE(editor);
    EXPECT_FALSE(IsShown(GetDlgItem(editor, IDC_CONFIG_SETTING_BROWSE)));
    CloseValueEditor(editor, IDCANCEL);
    EXPECT_TRUE(CanSave());
    EXPECT_FALSE(ShapeControls());
    editor = OpenValueEditor(PageControl(3011));
    ASSERT_TRUE(editor);
    InsertValue(editor, L"lv=Plot");
    CloseValueEditor(editor, IDOK);
    EXPECT_EQ(L"lv=Plot", PageText(PlotShape));
    EXPECT_TRUE(ShapeControls());
    Abandon();
}

TEST_F(ReferenceFilesPageTest, LoneQuoteIsRefusedAndTheEditGetsTheFocus)
{
    UseCurrent("_ORTHOVAL_BORDERSHEETS = a.dgn\r\n");
    ASSERT_TRUE(OpenPage());
    for (const auto& [button, edit] : {std::pair{3005, 3002}, {3007, 3006}, {3011, 3010}})
        ExpectRefusal(edit, button, edit);
    Abandon();
}

} // namespace
