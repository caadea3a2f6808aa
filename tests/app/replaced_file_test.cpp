// The question that Save asks before it replaces a file whose content the dialog does not know, the
// effects of the answers, and the effect of a failed save on the dialog.
#include "pages/branding/ids.h"
#include "resources/ids.h"
#include "tests/app/program.h"

namespace
{
constexpr wchar_t caption[] = L"Orthoval for MicroStation Preferences";
constexpr char onDisk[] = "#\n\n# by hand\n_ORTHOVAL_CHECK_CELLS = 1\n_SITE_TEXT = ours\n";

using Names = std::vector<std::wstring>;

class ReplacedFile : public ProgramTest
{
  protected:
    /// Holds a handle that prevents others from opening the file, while it exists.
    class Holder
    {
      public:
        explicit Holder(const std::wstring& path)
            : m_file(::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
        {
            EXPECT_NE(m_file, INVALID_HANDLE_VALUE);
        }
        ~Holder() { ::CloseHandle(m_file); }
        Holder(const Holder&) = delete;
        Holder& operator=(const Holder&) = delete;

      private:
        HANDLE m_file;
    };

    /// Presses Save and gives this answer to the question. Returns the question.
    SeenMessage SaveAnswering(int button)
    {
        doors.messages.clear();
        doors.AnswerMessage(button);
        Click(IDC_PREFERENCES_SAVE);
        EXPECT_EQ(doors.messages.size(), 1u);
        return doors.messages.empty() ? SeenMessage{} : doors.messages[0];
    }

    /// Expects the question to name this file and what happened to it, and its default answer to replace
    /// nothing.
    void ExpectQuestion(const SeenMessage& question, const std::wstring& what, const std::wstring& path)
    {
        EXPECT_EQ(question.text.rfind(L"The configuration file on disk " + what + L":\n" + path + L"\n", 0),
                  0u)
            << testing::PrintToString(question.text);
        EXPECT_NE(question.text.find(L"Do you wish to replace it?"), std::wstring::npos);
        EXPECT_EQ(question.caption, caption);
        EXPECT_EQ(question.owner, dialog->m_hWnd);
        EXPECT_EQ(question.type & (MB_TYPEMASK | MB_DEFMASK), UINT{MB_YESNO | MB_DEFBUTTON2});
        EXPECT_NE(question.text.find(folder / L"office (replaced).cfg"), std::wstring::npos);
    }

    void ExpectNothingReplaced(const std::wstring& path, const std::string& bytes)
    {
        EXPECT_TRUE(dialog->IsWindowVisible());
        EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
        EXPECT_EQ(uidriver::ReadBytes(path), bytes);
        EXPECT_EQ(folder.Names(), Names{L"office.cfg"});
    }

    /// Expects the file to be saved with the change, and its previous bytes to be kept.
    void ExpectReplaced(const std::wstring& path, const std::string& bytes)
    {
        EXPECT_FALSE(dialog->IsWindowVisible());
        EXPECT_NE(uidriver::ReadBytes(path).value_or("").find("_ORTHOVAL_BRANDING_AUTO = 1\r\n"),
                  std::string::npos);
        EXPECT_EQ(uidriver::ReadBytes(folder / L"office (replaced).cfg"), bytes);
        EXPECT_EQ(folder.Names(), (Names{L"office (replaced).cfg", L"office.cfg"}));
    }
};
} // namespace

TEST_F(ReplacedFile, AFileThatWasHeldAtTheOpeningIsNotReplacedWithoutAQuestion)
{
    const std::wstring path = MakeFile(L"office.cfg", onDisk);
    {
        const Holder holder(path);
        doors.AnswerMessage(IDOK);
        Open(L"", path);
    }
    Click(IDC_BRANDING_AUTO);
    ExpectQuestion(SaveAnswering(IDNO), L"has not been read into this dialog", path);
    ExpectNothingReplaced(path, onDisk);
    SaveAnswering(IDYES);
    ExpectReplaced(path, onDisk);
}

TEST_F(ReplacedFile, AHeldFileThatIsChosenIsNotReplacedWithoutAQuestion)
{
    Open(L"", L"");
    Click(IDC_BRANDING_AUTO);
    const std::wstring path = MakeFile(L"office.cfg", onDisk);
    {
        const Holder holder(path);
        doors.AnswerFile(path);
        doors.AnswerMessage(IDOK);
        Click(IDC_PREFERENCES_BROWSE);
    }
    ExpectQuestion(SaveAnswering(IDNO), L"has not been read into this dialog", path);
    ExpectNothingReplaced(path, onDisk);
    SaveAnswering(IDYES);
    ExpectReplaced(path, onDisk);
}

TEST_F(ReplacedFile, AChangeBehindTheOpenDialogIsNotReplacedWithoutAQuestion)
{
    const std::wstring path = MakeFile(L"office.cfg", onDisk);
    Open(L"", path);
    Click(IDC_BRANDING_AUTO);
    const std::string changed = std::string(onDisk) + "_SITE_TEXT = theirs\n";
    MakeFile(L"office.cfg", changed);
    ExpectQuestion(SaveAnswering(IDNO), L"has changed since it was read", path);
    ExpectNothingReplaced(path, changed);
    // The result of a box that could not be shown does not count as Yes.
    SaveAnswering(0);
    ExpectNothingReplaced(path, changed);
    SaveAnswering(IDYES);
    ExpectReplaced(path, changed);
}

TEST_F(ReplacedFile, AFileThatAppearsUnderTheNameOfANewOneIsNotReplacedWithoutAQuestion)
{
    const std::wstring path = folder / L"office.cfg";
    Open(L"", L"");
    doors.AnswerFile(path);
    Click(IDC_PREFERENCES_BROWSE);
    Click(IDC_BRANDING_AUTO);
    MakeFile(L"office.cfg", onDisk);
    ExpectQuestion(SaveAnswering(IDNO), L"has not been read into this dialog", path);
    ExpectNothingReplaced(path, onDisk);
    SaveAnswering(IDYES);
    ExpectReplaced(path, onDisk);
}

TEST_F(ReplacedFile, AFileThatWasMissingAtTheOpeningIsNotReplacedWithoutAQuestion)
{
    const std::wstring path = folder / L"office.cfg";
    Open(L"", path);
    Click(IDC_BRANDING_AUTO);
    MakeFile(L"office.cfg", "");
    ExpectQuestion(SaveAnswering(IDNO), L"has not been read into this dialog", path);
    ExpectNothingReplaced(path, "");
    ::DeleteFileW(path.c_str());
    Click(IDC_PREFERENCES_SAVE);
    EXPECT_EQ(doors.messages.size(), 1u);
    EXPECT_FALSE(dialog->IsWindowVisible());
}

TEST_F(ReplacedFile, TheAnswerNoAtCancelKeepsTheDialogOpenToo)
{
    const std::wstring path = MakeFile(L"office.cfg", onDisk);
    Open(L"", path);
    Click(IDC_BRANDING_AUTO);
    MakeFile(L"office.cfg", "changed");
    doors.AnswerMessage(IDNO);
    doors.AnswerMessage(IDNO);
    Click(IDCANCEL);
    ASSERT_EQ(doors.messages.size(), 2u);
    EXPECT_EQ(doors.messages[0].text, L"Do you wish to abandon all changes?");
    ExpectQuestion(doors.messages[1], L"has changed since it was read", path);
    ExpectNothingReplaced(path, "changed");
}

TEST_F(ReplacedFile, WhatWasReadOrWrittenIsReplacedWithoutAQuestion)
{
    // An empty file counts as read.
    Open(L"", MakeFile(L"office.cfg", ""));
    Click(IDC_BRANDING_AUTO);
    EXPECT_TRUE(dialog->OpenConfigFile(false));
    Click(IDC_BRANDING_AUTO);
    Click(IDC_PREFERENCES_SAVE);
    EXPECT_TRUE(doors.messages.empty());
    EXPECT_FALSE(dialog->IsWindowVisible());
    EXPECT_EQ(folder.Names(), Names{L"office.cfg"});
}

TEST_F(ReplacedFile, WhatChangesDuringTheNoticeOfAMissingBackupIsKeptAndTold)
{
    const std::wstring path = MakeFile(L"office.cfg", onDisk);
    MakeFile(L"office.bak", "stale");
    Open(L"", path);
    Click(IDC_BRANDING_AUTO);
    doors.AnswerMessage(IDOK);
    doors.AnswerMessage(IDOK);
    doors.onMessage = [&] {
        if (doors.messages.size() == 1)
            MakeFile(L"office.cfg", "changed");
    };
    Click(IDC_PREFERENCES_SAVE);
    ASSERT_EQ(doors.messages.size(), 2u);
    EXPECT_EQ(doors.messages[1].text,
              L"The configuration file has been saved.\nAnother program may have changed the file on disk "
              L"meanwhile. Its content before the save is kept in this file:\n" +
                  (folder / L"office (replaced).cfg"));
    ExpectReplaced(path, "changed");
}

TEST_F(ReplacedFile, AnswersThatAreNoAnswerKeepTheEdits)
{
    const std::wstring path = MakeFile(L"office.cfg", onDisk);
    Open(L"", path);
    Click(IDC_BRANDING_AUTO);
    for (const int answer : {0, IDOK, IDCANCEL, IDABORT, -1}) {
        doors.AnswerMessage(answer);
        Click(IDCANCEL);
        ExpectNothingReplaced(path, onDisk);
    }
    doors.AnswerMessage(IDYES);
    Click(IDCANCEL);
    EXPECT_FALSE(dialog->IsWindowVisible());
    EXPECT_EQ(uidriver::ReadBytes(path), onDisk);
}

TEST_F(ReplacedFile, ASaveIntoAMissingFolderPutsTheFocusOnTheFilesName)
{
    Open(L"", folder / L"no folder\\office.cfg");
    Click(IDC_BRANDING_AUTO);
    ::SetFocus(Control(IDC_PREFERENCES_SAVE));
    Click(IDC_PREFERENCES_SAVE);
    EXPECT_TRUE(doors.messages.empty());
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(::GetFocus(), Control(IDC_PREFERENCES_CONFIG_FILE));
}
