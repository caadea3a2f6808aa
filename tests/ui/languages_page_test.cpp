// The Languages page in the dialog.
#include "pages/languages/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

using namespace uidriver;

namespace
{

class LanguagesPageTest : public DialogSession
{
};

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
