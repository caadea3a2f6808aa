// Close requests that do not come from the user: while a modal window is open over the dialog, and to
// windows inside the dialog.
#include "pages/branding/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/value_editor.h"

#include <utility>

using namespace uidriver;

namespace
{

class CloseRequestsTest : public DialogSession
{
  protected:
    /// Opens the list editor while the dialog has an unsaved change.
    HWND OpenModifiedEditor()
    {
        UseCurrent("_ORTHOVAL_BRANDING_RENAME_TABLES = \"a:b\"\r\n");
        if (!Open())
            return nullptr;
        ClickOnPage(IDC_BRANDING_AUTO);
        HWND editor = OpenValueEditor(PageControl(IDC_BRANDING_RENAME_BROWSE));
        EXPECT_TRUE(editor);
        return editor;
    }

    /// Sends all messages with which programs close a dialog.
    void AskDialogToClose()
    {
        Send(Dialog(), WM_CLOSE);
        Send(Dialog(), WM_SYSCOMMAND, SC_CLOSE);
        Send(Dialog(), WM_COMMAND, IDCANCEL);
        Send(Control(IDC_PREFERENCES_CANCEL), BM_CLICK);
        EXPECT_TRUE(Settle(Dialog()));
    }

    /// Expects the window to be open over the dialog, which is disabled.
    void ExpectModalWindow(HWND window)
    {
        EXPECT_FALSE(HasEnded());
        EXPECT_TRUE(IsWindowVisible(window));
        EXPECT_TRUE(IsWindowEnabled(window));
        EXPECT_TRUE(IsWindowVisible(Dialog()));
        EXPECT_FALSE(IsWindowEnabled(Dialog()));
        EXPECT_EQ(1U, DialogsOver().size()) << "a second window has opened";
    }

    /// The visible dialogs that the dialog owns.
    std::vector<HWND> DialogsOver()
    {
        std::pair<HWND, std::vector<HWND>> search{Dialog(), {}};
        EnumThreadWindows(HostThread::Get().Id(), Collect, reinterpret_cast<LPARAM>(&search));
        return search.second;
    }

  private:
    static BOOL CALLBACK Collect(HWND window, LPARAM parameter)
    {
        auto& [owner, found] = *reinterpret_cast<std::pair<HWND, std::vector<HWND>>*>(parameter);
        if (GetWindow(window, GW_OWNER) == owner && IsWindowVisible(window) && ClassOf(window) == L"#32770")
            found.push_back(window);
        return TRUE;
    }
};

TEST_F(CloseRequestsTest, TheListEditorStaysAndTheDialogUnderItToo)
{
    HWND editor = OpenModifiedEditor();
    ASSERT_TRUE(editor);
    InsertValue(editor, L"c:d");
    AskDialogToClose();
    ExpectModalWindow(editor);
    CloseValueEditor(editor, IDOK);
    ExpectOpen();
    EXPECT_EQ(L"a:b;c:d", PageText(IDC_BRANDING_RENAME)) << "what was edited is lost";
    Abandon();
}

TEST_F(CloseRequestsTest, NeitherSaveNorASecondEditorIsOpenedUnderTheListEditor)
{
    HWND editor = OpenModifiedEditor();
    ASSERT_TRUE(editor);
    const std::string before = CurrentBytes();
    for (HWND button : {Control(IDC_PREFERENCES_SAVE), Control(IDC_PREFERENCES_BROWSE),
                        PageControl(IDC_BRANDING_RENAME_BROWSE)}) {
        Click(button);
        ExpectModalWindow(editor);
    }
    EXPECT_EQ(before, CurrentBytes());
    CloseValueEditor(editor, IDCANCEL);
    Abandon();
}

TEST_F(CloseRequestsTest, TheListEditorComesForward)
{
    HWND editor = OpenModifiedEditor();
    ASSERT_TRUE(editor);
    HWND other = CreateWindowExW(0, L"Static", L"Other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 80,
                                 nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(BringToForeground(other));
    // The window manager may give the other window the focus a moment later; then sends the request again.
    EXPECT_TRUE(Await([&] { return GetForegroundWindow() == editor || (Send(Dialog(), WM_CLOSE), false); }));
    DestroyWindow(other);
    CloseValueEditor(editor, IDCANCEL);
    Abandon();
}

TEST_F(CloseRequestsTest, TheQuestionIsAskedOnce)
{
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_CANCEL);
    const auto box = AwaitBox();
    AskDialogToClose();
    ExpectModalWindow(box.window);
    Answer(box, IDCANCEL);
    ExpectOpen();
    Abandon();
}

TEST_F(CloseRequestsTest, TheFileChooserStays)
{
    ASSERT_TRUE(Open());
    Press(IDC_PREFERENCES_BROWSE);
    HWND chooser = AwaitTopWindow(L"Open Config File", GetCurrentProcessId());
    ASSERT_TRUE(chooser);
    AskDialogToClose();
    ExpectModalWindow(chooser);
    Click(GetDlgItem(chooser, IDCANCEL));
    ASSERT_TRUE(AwaitGone(chooser));
    Settle(Dialog());
    ExpectOpen();
    Cancel();
}

TEST_F(CloseRequestsTest, PageAndPaneStayWhateverTheyAreSent)
{
    ASSERT_TRUE(Open());
    HWND pane = GetParent(List());
    for (HWND inner : {Page(), pane}) {
        Send(inner, WM_CLOSE);
        Settle(Dialog());
        for (const int command : {IDOK, IDCANCEL})
            Send(inner, WM_COMMAND, static_cast<WPARAM>(command));
        EXPECT_TRUE(IsWindowVisible(inner));
    }
    ExpectOpen();
    Cancel();
}

} // namespace
