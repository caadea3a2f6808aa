// The pages File Naming and Model Naming in the dialog.
#include "tests/ui/page_doors.h"

using namespace uidriver;

namespace
{

/// One of the two pages: its title, the beginning of its variables and its controls.
struct NamingPage {
    const wchar_t* title;
    std::string variable;
    int prompt, templates, templatesBrowse, descriptions, descriptionsBrowse, document, documentBrowse, text,
        textBrowse, focusAfterText;
};

const NamingPage files = {L"File Naming", "_ORTHOVAL_CONVENTION_FILENAME",
                          2910,           2901,
                          2905,           2903,
                          2911,           2906,
                          2907,           9341,
                          2912,           2903};
const NamingPage models = {L"Model Naming",
                           "_ORTHOVAL_CONVENTION_MODELNAME",
                           9340,
                           2903,
                           2904,
                           2909,
                           2910,
                           9344,
                           9346,
                           9349,
                           2912,
                           9349};

class NamingPagesTest : public PageDoors, public testing::WithParamInterface<const NamingPage*>
{
  protected:
    bool OpenPage() { return Open() && ShowPage(page.title); }

    const NamingPage& page = *GetParam();
};

TEST_P(NamingPagesTest, EveryControlIsSavedAndShownAgain)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(OpenPage());
    ClickOnPage(page.prompt);
    TypeOnPage(page.templates, L"B-0??.DGN");
    TypeOnPage(page.descriptions, L" Border sheets ");
    TypeOnPage(page.document, L"P:\\docs\\names.pdf");
    TypeOnPage(page.text, L"B, a zero");
    Save();
    EXPECT_EQ(page.variable + "_PROMPT = 1", Saved(page.variable + "_PROMPT"));
    EXPECT_EQ(page.variable + " = \"B-0??.DGN\"", Saved(page.variable));
    EXPECT_EQ(page.variable + "_HELP_FILE = \"P:\\docs\\names.pdf\"", Saved(page.variable + "_HELP_FILE"));
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(page.prompt));
    EXPECT_EQ(L"B-0??.DGN", PageText(page.templates));
    EXPECT_EQ(L"P:\\docs\\names.pdf", PageText(page.document));
    EXPECT_EQ(L"B, a zero", PageText(page.text));
    Cancel();
}

TEST_P(NamingPagesTest, EveryControlMarksTheDialogModified)
{
    UseCurrent(page.variable + "_PROMPT = 0\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(CanSave());
    for (const int id : {page.prompt, page.templates, page.descriptions, page.document, page.text}) {
        SCOPED_TRACE(id);
        if (id == page.prompt)
            ClickOnPage(id);
        else
            TypeOnPage(id, L"x");
        EXPECT_TRUE(CanSave());
        TakeMarkBack();
    }
    Cancel();
}

TEST_P(NamingPagesTest, TemplatesBetweenSemicolonsOpenInTheEditor)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(page.templates, L"\"B-0??.DGN\";\"C;D,E\"");
    const auto entries = EntriesBehind(page.templatesBrowse);
    ASSERT_EQ(2u, entries.size());
    EXPECT_NE(std::wstring::npos, entries[0].find(L"B-0??.DGN"));
    EXPECT_NE(std::wstring::npos, entries[1].find(L"C;D,E"));
    Abandon();
}

// For the help text of files the focus moves to the descriptions; this is intended.
TEST_P(NamingPagesTest, RefusedListsFocusTheirEditButForTheHelpTextOfFiles)
{
    ASSERT_TRUE(OpenPage());
    for (const int id : {page.templates, page.descriptions, page.text})
        TypeOnPage(id, L"\"");
    ExpectRefused(page.templatesBrowse, page.templates);
    ExpectRefused(page.descriptionsBrowse, page.descriptions);
    ExpectRefused(page.textBrowse, page.focusAfterText);
    Abandon();
}

TEST_P(NamingPagesTest, DocumentIsChosenAsAFile)
{
    ASSERT_TRUE(OpenPage());
    ExpectOpens(page.documentBrowse, L"Select File");
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_P(NamingPagesTest, EnterDoesNothingInTheHelpText)
{
    ASSERT_TRUE(OpenPage());
    TypeOnPage(page.text, L"one line");
    Focus(PageControl(page.text));
    PostKey(Dialog(), VK_RETURN);
    ExpectOpen();
    EXPECT_EQ(L"one line", PageText(page.text));
    const bool wantsReturn = (GetWindowLongPtrW(PageControl(page.text), GWL_STYLE) & ES_WANTRETURN) != 0;
    EXPECT_EQ(&page == &models, wantsReturn);
    Abandon();
}

INSTANTIATE_TEST_SUITE_P(Both, NamingPagesTest, testing::Values(&files, &models),
                         [](const auto& instance) { return instance.index == 0 ? "Files" : "Models"; });

} // namespace
