// The Languages page in the dialog.
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include "pages/languages/ids.h"

using namespace uidriver;

namespace
{

class LanguagesPageTest : public DialogSession
{
};

TEST_F(LanguagesPageTest, EveryTextIsChangedSavedAndShownAgain)
{
    constexpr std::pair<int, const char*> texts[] = {
        {IDC_LANGUAGES_MENU_NAME, "_ORTHOVAL_MENU_NAME"},
        {IDC_LANGUAGES_LANGUAGE_1, "_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_1"},
        {IDC_LANGUAGES_LANGUAGE_2, "_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_2"},
        {IDC_LANGUAGES_KEYIN_1, "_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1"},
        {IDC_LANGUAGES_KEYIN_2, "_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2"},
        {IDC_LANGUAGES_INITIAL_KEYIN, "_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN"},
        {IDC_LANGUAGES_TEMPLATE_FILE, "_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE"},
    };
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Languages"));
    for (const auto& [control, variable] : texts)
        TypeOnPage(control, L"text" + std::to_wstring(control));
    Save();
    const std::string bytes = CurrentBytes();
    for (const auto& [control, variable] : texts)
        EXPECT_NE(std::string::npos, AssignmentOf(bytes, variable).find("text" + std::to_string(control)))
            << variable;
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Languages"));
    for (const auto& [control, variable] : texts)
        EXPECT_EQ(L"text" + std::to_wstring(control), PageText(control)) << variable;
    Cancel();
}

TEST_F(LanguagesPageTest, KeyinsAreListsAndARefusalKeepsTheFocusAtTheirEdit)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Languages"));
    for (const auto& [button, edit] : {std::pair{IDC_LANGUAGES_KEYIN_1_BROWSE, IDC_LANGUAGES_KEYIN_1},
                                       {IDC_LANGUAGES_KEYIN_2_BROWSE, IDC_LANGUAGES_KEYIN_2},
                                       {IDC_LANGUAGES_INITIAL_KEYIN_BROWSE, IDC_LANGUAGES_INITIAL_KEYIN}}) {
        TypeOnPage(edit, L"co=1;lv=2,3");
        ClickOnPage(button);
        HWND editor = AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
        ASSERT_TRUE(editor);
        EXPECT_EQ((std::vector<std::wstring>{L"co=1", L"lv=2,3"}), ListViewTexts(GetDlgItem(editor, 9338)));
        EXPECT_FALSE(IsWindowVisible(GetDlgItem(editor, 9335)));
        Click(GetDlgItem(editor, IDCANCEL));
        EXPECT_TRUE(AwaitGone(editor));
        TypeOnPage(edit, L"\"co");
        Focus(PageControl(button));
        ClickOnPage(button);
        AnswerBox(L"Text qualifier is missing.\nPlease verify the value again.", {IDOK}, IDOK);
        EXPECT_TRUE(Await([&, edit = edit] { return FocusIn(Dialog()) == PageControl(edit); }));
    }
    Abandon();
}

} // namespace
