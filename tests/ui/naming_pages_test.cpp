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
