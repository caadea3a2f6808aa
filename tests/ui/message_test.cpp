// The dialog's own questions and choices: abandoning changes, loading defaults,
// choosing a file.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <dlgs.h>

using namespace uidriver;

namespace
{

class MessageTest : public DialogSession
{
  protected:
    static constexpr const wchar_t* NoFileText =
        L"Error: No configuration file has been defined. Use the '...' button at the top of the dialog "
        L"window to define an output file name for the configuration file.";

    const std::string m_old = "_ORTHOVAL_CHECK_CELLS = 1\r\n";

    /// Opens the current file and changes one setting.
    bool OpenModified()
    {
        UseCurrent(m_old);
        if (!Open())
            return false;
        ClickOnPage(IDC_BRANDING_AUTO);
        return CanSave();
    }

    void ExpectStillEdited()
    {
        ExpectOpen();
        EXPECT_TRUE(CanSave());
        EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    }

    /// Presses "..." and answers the file chooser: with a path and its open button
    /// or, for an empty path, with its cancel button.
    void Choose(const std::wstring& path)
    {
        Press(IDC_PREFERENCES_BROWSE);
        HWND chooser = AwaitTopWindow(L"Open Config File", GetCurrentProcessId());
        ASSERT_TRUE(chooser);
        EXPECT_EQ(Dialog(), GetWindow(chooser, GW_OWNER));
        EXPECT_FALSE(IsWindowEnabled(Dialog()));
        if (!path.empty())
            SetText(FileNameBox(chooser), path);
        Click(GetDlgItem(chooser, path.empty() ? IDCANCEL : IDOK));
        ASSERT_TRUE(AwaitGone(chooser));
        Settle(Dialog());
    }

    /// The combo box for the file name, which is nested in another one.
    static HWND FileNameBox(HWND chooser)
    {
        return FindWindowExW(AwaitControl(chooser, cmb13), nullptr, L"ComboBox", nullptr);
    }

    std::wstring ShownPath() { return GetText(Control(IDC_PREFERENCES_CONFIG_FILE)); }
};

TEST_F(MessageTest, CancelOfAnUnmodifiedDialogAsksNothing)
{
    UseCurrent(m_old);
    ASSERT_TRUE(Open());
    Cancel();
    EXPECT_EQ(m_old, CurrentBytes());
}

TEST_F(MessageTest, AbandonAnsweredCancelStaysWithTheEdits)
{
    ASSERT_TRUE(OpenModified());
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDCANCEL);
    ExpectStillEdited();
    Abandon();
}

TEST_F(MessageTest, AbandonAnsweredYesClosesWithoutSaving)
{
    ASSERT_TRUE(OpenModified());
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDYES);
    ExpectClosed();
    EXPECT_EQ(m_old, CurrentBytes());
}

TEST_F(MessageTest, AbandonAnsweredNoSavesAndCloses)
{
    ASSERT_TRUE(OpenModified());
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDNO);
    ExpectClosed();
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_AUTO"));
}

TEST_F(MessageTest, AbandonAnsweredNoStaysWithTheEditsWhenTheSaveFails)
{
    ASSERT_TRUE(OpenModified());
    ASSERT_TRUE(DeleteFileW(m_currentPath.c_str()));
    ASSERT_TRUE(CreateDirectoryW(m_currentPath.c_str(), nullptr));
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDNO);
    Answer(AwaitBox(), IDOK);
    ExpectStillEdited();
    Abandon();
}

TEST_F(MessageTest, ClosingTheWindowAsksLikeCancel)
{
    ASSERT_TRUE(OpenModified());
    PostMessageW(Dialog(), WM_SYSCOMMAND, SC_CLOSE, 0);
    AnswerAbandonQuestion(IDYES);
    ExpectClosed();
}

TEST_F(MessageTest, AbandonQuestionBelongsToTheDialog)
{
    ASSERT_TRUE(OpenModified());
    Press(IDC_PREFERENCES_CANCEL);
    const auto box = AwaitBox();
    EXPECT_EQ(Dialog(), GetWindow(box.window, GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(Dialog()));
    Answer(box, IDCANCEL);
    Abandon();
}

TEST_F(MessageTest, SaveWithoutAFileNameIsRefused)
{
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_SAVE);
    AnswerBox(NoFileText, {IDOK}, IDOK);
    ExpectStillEdited();
    EXPECT_EQ(std::vector<std::wstring>{}, m_folder.Names());
    Abandon();
}

TEST_F(MessageTest, AbandonAnsweredNoWithoutAFileNameStaysOpen)
{
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDNO);
    AnswerBox(NoFileText, {IDOK}, IDOK);
    ExpectStillEdited();
    Abandon();
}

TEST_F(MessageTest, LoadDefaultPreferencesShowsTheDefaultsAndMarksModified)
{
    UseDefaults("_ORTHOVAL_CHECK_TEXT = 1\r\n_ORTHOVAL_MIN_MU_ERRORSCALE = 0.5\r\n");
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n_ORTHOVAL_BRANDING_AUTO = 1\r\n"
               "_ORTHOVAL_CHECK_IGNORED_LEVELS = x\r\n");
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanSave());
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(CanLoadDefaults());
    // Settings that the defaults lack are off or empty, on the hidden page as well.
    EXPECT_FALSE(IsPageChecked(IDC_BRANDING_AUTO));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_TRUE(IsPageChecked(IDC_CONFORMING_CHECK_TEXT));
    EXPECT_FALSE(IsPageChecked(IDC_CONFORMING_CHECK_CELLS));
    EXPECT_EQ(L"0.5", PageText(IDC_CONFORMING_MIN_ERROR));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_IGNORED_LEVELS));
    Save();
    EXPECT_EQ("_ORTHOVAL_CHECK_TEXT = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_TEXT"));
    EXPECT_EQ("_ORTHOVAL_CHECK_CELLS = 0", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_CELLS"));
    EXPECT_EQ("_ORTHOVAL_CHECK_IGNORED_LEVELS = \"\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_IGNORED_LEVELS"));
}

TEST_F(MessageTest, NamingAFileThatDoesNotExistEnablesSaveWhichWritesIt)
{
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanSave());
    m_currentPath = m_folder / L"chosen.cfg";
    Choose(m_currentPath);
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_TRUE(CanSave());
    // A new file has no old one to rename, so a stale backup does not matter.
    ASSERT_TRUE(WriteBytes(m_folder / L"chosen.bak", "left over\r\n"));
    Save();
    EXPECT_EQ("_ORTHOVAL_CHECK_CELLS = 0", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_CELLS"));
    EXPECT_EQ((std::vector<std::wstring>{L"chosen.bak", L"chosen.cfg"}), m_folder.Names());
}

TEST_F(MessageTest, ChoosingAnExistingFileLoadsIt)
{
    UseCurrent(m_old);
    const std::wstring other = m_folder / L"other.cfg";
    ASSERT_TRUE(WriteBytes(other, "_ORTHOVAL_BRANDING_CERTIFY = 1\r\n_ORTHOVAL_CHECK_TAGS = 1\r\n"));
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Choose(other);
    EXPECT_EQ(other, ShownPath());
    EXPECT_FALSE(CanSave());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_CERTIFY));
    EXPECT_FALSE(IsPageChecked(IDC_BRANDING_AUTO));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_TRUE(IsPageChecked(IDC_CONFORMING_CHECK_TAGS));
    EXPECT_FALSE(IsPageChecked(IDC_CONFORMING_CHECK_CELLS));
    Cancel();
    EXPECT_EQ(m_old, CurrentBytes());
}

TEST_F(MessageTest, TheDialogTakesNoInputUnderTheBoxOfAFailedRead)
{
    ASSERT_TRUE(OpenModified());
    const std::wstring other = m_folder / L"other.cfg";
    ASSERT_TRUE(WriteBytes(other, m_old));
    HANDLE held = CreateFileW(other.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    Choose(other);
    const auto box = AwaitBox();
    CloseHandle(held);
    EXPECT_EQ(nullptr, GetWindow(box.window, GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(Dialog()));
    // Sent although the window is disabled.
    Send(Dialog(), WM_CLOSE);
    Press(IDC_PREFERENCES_SAVE);
    EXPECT_TRUE(IsWindowVisible(box.window));
    Answer(box, IDOK);
    ExpectStillEdited();
    EXPECT_EQ(m_old, CurrentBytes());
    EXPECT_TRUE(Await([&] { return IsChild(Dialog(), FocusIn(Dialog())); })) << "the keyboard is lost";
    Abandon();
}

TEST_F(MessageTest, CancellingTheChooserChangesNothing)
{
    UseCurrent(m_old);
    ASSERT_TRUE(Open());
    Choose(L"");
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_FALSE(CanSave());
    Cancel();
}

} // namespace
