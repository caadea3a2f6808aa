// The bytes that Save writes, and what happens to the backup.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <algorithm>
#include <regex>

using namespace uidriver;

namespace
{

class SaveTest : public DialogSession
{
  protected:
    /// The saved file with "%DATE%" for its date, which must be today's.
    std::string SavedBytes()
    {
        std::string bytes = CurrentBytes();
        EXPECT_NE("", TakeDate(bytes)) << "the header has no date";
        return bytes;
    }

    static std::wstring CannotRename() { return L"Cannot rename backup file while saving."; }

    /// Answers the message that the old file could not be renamed, which contains the
    /// system's message.
    void AnswerCannotRename()
    {
        const auto box = AwaitBox();
        ASSERT_TRUE(box);
        EXPECT_EQ(kBoxCaption, box.caption);
        EXPECT_TRUE(box.text.starts_with(CannotRename() + L"\n")) << testing::PrintToString(box.text);
        EXPECT_GT(box.text.size(), CannotRename().size() + 1);
        ASSERT_EQ(1U, box.buttons.size());
        EXPECT_EQ(IDOK, box.buttons[0].id);
        EXPECT_EQ(Dialog(), GetWindow(box.window, GW_OWNER));
        Answer(box, IDOK);
    }
};

TEST_F(SaveTest, NewFileHoldsEverySettingUnderItsDescription)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_CERTIFY);
    TypeOnPage(IDC_BRANDING_RENAME, L"Civil 2004:Civil; Survey Old:Survey ;;\"Site\":Site 2");
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ClickOnPage(IDC_CONFORMING_CHECK_CELLS);
    TypeOnPage(IDC_CONFORMING_MAX_ERROR, L"12");
    TypeOnPage(IDC_CONFORMING_MIN_ERROR, L" 0.010 ");
    TypeOnPage(IDC_CONFORMING_IGNORED_LEVELS, L"Scratch,\"Notes, old\"");
    Save();

    ExpectedFile expected;
    const auto add = [&](const char* variable, unsigned help, const std::vector<std::string>& lines) {
        expected.Add(variable, CommentBlock(HelpSection(help, "<D>")), lines);
    };
    add("_ORTHOVAL_BRANDING_CERTIFY", 2061, {"_ORTHOVAL_BRANDING_CERTIFY = 1"});
    add("_ORTHOVAL_BRANDING_RENAME_TABLES", 2063,
        {"_ORTHOVAL_BRANDING_RENAME_TABLES = Civil 2004:Civil",
         "_ORTHOVAL_BRANDING_RENAME_TABLES > Survey Old:Survey",
         "_ORTHOVAL_BRANDING_RENAME_TABLES > Site:Site 2"});
    add("_ORTHOVAL_CHECK_CELLS", 8000, {"_ORTHOVAL_CHECK_CELLS = 1"});
    add("_ORTHOVAL_MAX_ERROR_UORS", 8012, {"_ORTHOVAL_MAX_ERROR_UORS = 12"});
    add("_ORTHOVAL_MIN_MU_ERRORSCALE", 2017, {"_ORTHOVAL_MIN_MU_ERRORSCALE =  0.010 "});
    add("_ORTHOVAL_CHECK_IGNORED_LEVELS", 8021,
        {"_ORTHOVAL_CHECK_IGNORED_LEVELS = \"Scratch,\"Notes, old\"\""});
    expected.AddMissingSettings();
    EXPECT_EQ("", Difference(expected.Bytes("Ada Archer"), SavedBytes()));
    EXPECT_EQ(std::vector<std::wstring>{L"new.cfg"}, m_folder.Names());
}

TEST_F(SaveTest, ExistingFileKeepsItsCommentsAndTheVariablesThatNoPageKnows)
{
    UseDefaults("# header of the defaults\r\n\r\n"
                "# from the defaults\r\n_SITE_NUMBER = 1\r\n");
    UseCurrent("# an old header\r\n#\r\n\r\n"
               "# cells, by hand\r\n_ORTHOVAL_CHECK_CELLS = 1\r\n"
               "%include other.cfg\r\n"
               "_SITE_NUMBER = 17\r\n"
               "# _ORTHOVAL_CHECK_TAGS = 1\r\n_SITE_FOLDER = C:\\Standards\\2004\r\n"
               "_SITE_LIST = one\r\n_SITE_LIST > two\r\n"
               "_SITE_REAL = -1.50\r\n"
               "nonsense\r\n"
               "AAA_FIRST = \"quoted text\"\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ClickOnPage(IDC_CONFORMING_CHECK_TEXT);
    Save();

    ExpectedFile expected;
    expected.Add("AAA_FIRST", "", {"AAA_FIRST = \"quoted text\""});
    expected.Add("_ORTHOVAL_CHECK_CELLS", "\n# cells, by hand\n", {"_ORTHOVAL_CHECK_CELLS = 1"});
    expected.Add("_SITE_NUMBER", "\n# from the defaults\n", {"_SITE_NUMBER = 17"});
    expected.Add("_SITE_FOLDER", "# _ORTHOVAL_CHECK_TAGS = 1\n", {"_SITE_FOLDER = \"C:\\Standards\\2004\""});
    expected.Add("_SITE_LIST", "", {"_SITE_LIST = one", "_SITE_LIST > two"});
    expected.Add("_SITE_REAL", "", {"_SITE_REAL = -1.50"});
    expected.Add("_ORTHOVAL_CHECK_TEXT", CommentBlock(HelpSection(8001, "<D>")),
                 {"_ORTHOVAL_CHECK_TEXT = 1"});
    expected.AddMissingSettings();
    EXPECT_EQ("", Difference(expected.Bytes("Ada Archer"), SavedBytes()));
}

TEST_F(SaveTest, SavingAnUntouchedFileAgainChangesNothingButTheDate)
{
    ExpectedFile file;
    file.Add("_ORTHOVAL_CHECK_CELLS", "\n# cells\n", {"_ORTHOVAL_CHECK_CELLS = 1"});
    file.Add("_ORTHOVAL_BRANDING_RENAME_TABLES", "\n# names\n",
             {"_ORTHOVAL_BRANDING_RENAME_TABLES = a:b", "_ORTHOVAL_BRANDING_RENAME_TABLES > c:d"});
    file.Add("_ORTHOVAL_MAX_ERROR_UORS", "\n#\n# error\n#\n", {"_ORTHOVAL_MAX_ERROR_UORS = 0.5"});
    file.Add("_SITE_TEXT", "\n# text\n", {"_SITE_TEXT = \"some text\""});
    file.AddMissingSettings();
    // A comment line is saved without its trailing blanks.
    const std::string bytes =
        std::regex_replace(file.Bytes("Ada Archer"), std::regex("(#[^\r\n]*?) +\r\n"), "$1\r\n");
    UseCurrent(bytes);
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    const std::string saved = SavedBytes();
    EXPECT_EQ(AssignmentsOf(bytes), AssignmentsOf(saved));
    EXPECT_EQ("", Difference(bytes, saved));
}

TEST_F(SaveTest, DateIsThatOfTheSave)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    const auto today = [] {
        const std::time_t now = std::time(nullptr);
        char text[64] = {};
        std::strftime(text, sizeof text, "%A %d %B %Y", std::localtime(&now));
        return std::string(text);
    };
    const std::string before = today();
    Save();
    std::string bytes = CurrentBytes();
    const std::string date = TakeDate(bytes);
    EXPECT_TRUE(date.starts_with(before + ", ") || date.starts_with(today() + ", ")) << date;
}

TEST_F(SaveTest, ExistingFileLeavesNoBackupBehind)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    EXPECT_EQ(std::vector<std::wstring>{L"current.cfg"}, m_folder.Names());
}

TEST_F(SaveTest, EveryCharacterOfTheFileSurvives)
{
    // In the "C" locale each byte is one character.
    UseCurrent("_SITE_TEXT = \xE9t\xE9 \x80\xFF\r\n");
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"\u00C4ltere:\u00FC");
    Save();
    EXPECT_EQ("_SITE_TEXT = \"\xE9t\xE9 \x80\xFF\"", AssignmentOf(CurrentBytes(), "_SITE_TEXT"));
    EXPECT_EQ("_ORTHOVAL_BRANDING_RENAME_TABLES = \"\xC4ltere:\xFC\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_RENAME_TABLES"));
}

TEST_F(SaveTest, StaleBackupIsReportedTheFileOverwrittenAndTheBackupDeleted)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(WriteBytes(m_folder / L"current.bak", "left over\r\n"));
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_SAVE);
    AnswerCannotRename();
    ExpectClosed();
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_AUTO"));
    EXPECT_EQ("_ORTHOVAL_CHECK_CELLS = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_CELLS"));
    EXPECT_EQ(std::vector<std::wstring>{L"current.cfg"}, m_folder.Names());
}

TEST_F(SaveTest, BackupOfAPathWithoutADotIsDotBakInTheWorkingFolder)
{
    wchar_t before[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, before);
    ASSERT_TRUE(SetCurrentDirectoryW(m_folder.Path().c_str()));
    m_currentPath = L"settings";
    EXPECT_TRUE(WriteBytes(m_folder / L"settings", "_ORTHOVAL_CHECK_CELLS = 1\r\n"));
    EXPECT_TRUE(WriteBytes(m_folder / L".bak", "left over\r\n"));
    if (Open()) {
        ClickOnPage(IDC_BRANDING_AUTO);
        Press(IDC_PREFERENCES_SAVE);
        AnswerCannotRename();
        ExpectClosed();
    }
    SetCurrentDirectoryW(before);
    EXPECT_EQ(std::vector<std::wstring>{L"settings"}, m_folder.Names());
}

TEST_F(SaveTest, FileHeldOpenElsewhereKeepsItsBytesAndTheDialogItsEdits)
{
    const std::string old = "_ORTHOVAL_CHECK_CELLS = 1\r\n";
    UseCurrent(old);
    ASSERT_TRUE(Open());
    HANDLE held =
        CreateFileW(m_currentPath.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_SAVE);
    AnswerCannotRename();
    // If the file cannot be created for writing, there is no message.
    ExpectOpen();
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    EXPECT_EQ(old, CurrentBytes());
    CloseHandle(held);
    Save();
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_AUTO"));
    EXPECT_EQ(std::vector<std::wstring>{L"current.cfg"}, m_folder.Names());
}

TEST_F(SaveTest, FolderThatCannotBeWrittenKeepsTheDialogOpenWithItsEdits)
{
    m_currentPath = m_folder / L"missing folder\\new.cfg";
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"a:b");
    Press(IDC_PREFERENCES_SAVE);
    ExpectOpen();
    EXPECT_TRUE(CanSave());
    EXPECT_EQ(L"a:b", PageText(IDC_BRANDING_RENAME));
    EXPECT_EQ(std::vector<std::wstring>{}, m_folder.Names());
    ASSERT_TRUE(CreateDirectoryW((m_folder / L"missing folder").c_str(), nullptr));
    Save();
    EXPECT_EQ("_ORTHOVAL_BRANDING_RENAME_TABLES = \"a:b\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_RENAME_TABLES"));
}

TEST_F(SaveTest, FolderInPlaceOfTheFileIsRefused)
{
    m_currentPath = m_folder / L"current.cfg";
    ASSERT_TRUE(Open());
    ASSERT_TRUE(CreateDirectoryW(m_currentPath.c_str(), nullptr));
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_SAVE);
    const auto box = AwaitBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(kBoxCaption, box.caption);
    EXPECT_TRUE(box.text.starts_with(L"The configuration file has not been saved."));
    EXPECT_NE(std::wstring::npos, box.text.find(L"folder")) << testing::PrintToString(box.text);
    Answer(box, IDOK);
    ExpectOpen();
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    EXPECT_EQ(std::vector<std::wstring>{L"current.cfg"}, m_folder.Names());
    Abandon();
}

TEST_F(SaveTest, FileThatIsItsOwnBackupIsSavedInPlace)
{
    m_currentPath = m_folder / L"current.bak";
    ASSERT_TRUE(WriteBytes(m_currentPath, "_ORTHOVAL_CHECK_CELLS = 1\r\n"));
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_AUTO"));
    EXPECT_EQ("_ORTHOVAL_CHECK_CELLS = 1", AssignmentOf(CurrentBytes(), "_ORTHOVAL_CHECK_CELLS"));
    EXPECT_EQ(std::vector<std::wstring>{L"current.bak"}, m_folder.Names());
}

TEST_F(SaveTest, CharacterThatCannotBeWrittenIsNamedAndTheOldFileStands)
{
    const std::string old = "_ORTHOVAL_CHECK_CELLS = 1\r\n";
    UseCurrent(old);
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"a:\u4E2D");
    Press(IDC_PREFERENCES_SAVE);
    const auto box = AwaitBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(kBoxCaption, box.caption);
    EXPECT_NE(std::wstring::npos, box.text.find(L"_ORTHOVAL_BRANDING_RENAME_TABLES"));
    EXPECT_NE(std::wstring::npos, box.text.find(L"\u4E2D"));
    EXPECT_NE(std::wstring::npos, box.text.find(L"The file on disk is as it was before."));
    Answer(box, IDOK);
    ExpectOpen();
    EXPECT_TRUE(CanSave());
    EXPECT_EQ(L"a:\u4E2D", PageText(IDC_BRANDING_RENAME));
    EXPECT_EQ(old, CurrentBytes());
    EXPECT_EQ(std::vector<std::wstring>{L"current.cfg"}, m_folder.Names());
    TypeOnPage(IDC_BRANDING_RENAME, L"a:b");
    Save();
    EXPECT_EQ("_ORTHOVAL_BRANDING_RENAME_TABLES = \"a:b\"",
              AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_RENAME_TABLES"));
}

} // namespace
