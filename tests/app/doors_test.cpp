#include "include/ovPreferences.h"
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "resources/ids.h"
#include "tests/app/program.h"

namespace
{
constexpr UINT warning = MB_OK | MB_ICONWARNING | MB_SETFOREGROUND | MB_TOPMOST;
constexpr wchar_t caption[] = L"Orthoval for MicroStation Preferences";
constexpr int conformingPage = 6;
constexpr int brandingPage = 2;

// A file for a page that only has what every page can do.
constexpr char simpleFile[] = "#\n\n_ORTHOVAL_CHECK_CELLS = 1\n";
} // namespace

using Doors = ProgramTest;

TEST_F(Doors, TheAbandonQuestionHasItsButtonsAndIcon)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    Click(IDC_BRANDING_AUTO);
    doors.AnswerMessage(IDCANCEL);
    Click(IDCANCEL);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].text, L"Do you wish to abandon all changes?");
    EXPECT_EQ(doors.messages[0].caption, caption);
    EXPECT_EQ(doors.messages[0].owner, dialog->m_hWnd);
    EXPECT_EQ(doors.messages[0].type, UINT{MB_YESNOCANCEL | MB_ICONQUESTION | MB_SETFOREGROUND | MB_TOPMOST});
    EXPECT_TRUE(dialog->IsWindowVisible());
}

TEST_F(Doors, SavingWithoutAPathTellsWhereToNameOne)
{
    Open(MakeFile(L"defaults.cfg", simpleFile), L"");
    Click(IDC_PREFERENCES_LOAD_DEFAULTS);
    doors.AnswerMessage(IDOK);
    Click(IDC_PREFERENCES_SAVE);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].text, L"Error: No configuration file has been defined. Use the '...' button "
                                      L"at the top of the dialog window to "
                                      L"define an output file name for the configuration file.");
    EXPECT_EQ(doors.messages[0].caption, caption);
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, AStaleBackupIsToldBeforeTheFileIsTouched)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    const std::wstring backup = MakeFile(L"office.bak", "stale");
    Open(L"", path);
    Click(IDC_BRANDING_AUTO);
    doors.AnswerMessage(IDOK);
    doors.onMessage = [&] {
        EXPECT_EQ(uidriver::ReadBytes(path), simpleFile);
        EXPECT_EQ(uidriver::ReadBytes(backup), "stale");
    };
    Click(IDC_PREFERENCES_SAVE);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].text.rfind(L"Cannot rename backup file while saving.", 0), 0u);
    EXPECT_EQ(doors.messages[0].caption, caption);
    EXPECT_EQ(doors.messages[0].owner, dialog->m_hWnd);
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_FALSE(uidriver::PathExists(backup));
    EXPECT_NE(uidriver::ReadBytes(path).value_or("").find("_ORTHOVAL_BRANDING_AUTO = 1\r\n"),
              std::string::npos);
}

TEST_F(Doors, ACharacterThatCannotBeWrittenNamesItsVariable)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    Open(L"", path);
    Type(IDC_BRANDING_RENAME, L"A:\x4E2D");
    doors.AnswerMessage(IDOK);
    Click(IDC_PREFERENCES_SAVE);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_NE(doors.messages[0].text.find(L"_ORTHOVAL_BRANDING_RENAME_TABLES"), std::wstring::npos);
    EXPECT_EQ(doors.messages[0].caption, caption);
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_EQ(uidriver::ReadBytes(path), simpleFile);
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"office.cfg"});
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(TextOf(IDC_BRANDING_RENAME), L"A:\x4E2D");
}

TEST_F(Doors, AFolderInTheFilesPlaceIsRefused)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    Open(L"", path);
    ASSERT_TRUE(::DeleteFileW(path.c_str()));
    ASSERT_TRUE(::CreateDirectoryW(path.c_str(), nullptr));
    Click(IDC_BRANDING_AUTO);
    doors.AnswerMessage(IDOK);
    Click(IDC_PREFERENCES_SAVE);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"office.cfg"});
}

TEST_F(Doors, TheConfigFileChooserMayNameANewFile)
{
    Open(L"", L"");
    doors.AnswerFile(folder / L"new.cfg");
    Click(IDC_PREFERENCES_BROWSE);
    ASSERT_EQ(doors.fileRequests.size(), 1u);
    const CFileDialogRequest& request = doors.fileRequests[0];
    EXPECT_TRUE(request.open);
    EXPECT_EQ(request.title, u"Open Config File");
    EXPECT_EQ(request.filter, u"Config File (*.cfg)|*.cfg||");
    EXPECT_EQ(request.defaultExtension, u"");
    EXPECT_EQ(request.fileName, u"");
    constexpr DWORD wanted = OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING;
    EXPECT_EQ(request.flags & wanted, wanted);
    EXPECT_EQ(request.flags & OFN_FILEMUSTEXIST, 0u);
    EXPECT_EQ(TextOf(IDC_PREFERENCES_CONFIG_FILE), folder / L"new.cfg");
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
    Click(IDC_PREFERENCES_SAVE);
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"new.cfg"});
}

TEST_F(Doors, TheConfigFileChooserReadsAFileThatExists)
{
    const std::wstring path = MakeFile(L"office.cfg", "\n_ORTHOVAL_BRANDING_AUTO = 1\n");
    Open(L"", L"");
    Click(IDC_BRANDING_DISABLE_AUTOLOAD);
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
    doors.AnswerFile(path);
    Click(IDC_PREFERENCES_BROWSE);
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
    EXPECT_EQ(::SendMessageW(Control(IDC_BRANDING_AUTO), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(::SendMessageW(Control(IDC_BRANDING_DISABLE_AUTOLOAD), BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST_F(Doors, CancellingTheConfigFileChooserChangesNothing)
{
    Open(L"", L"");
    doors.AnswerFile(L"");
    Click(IDC_PREFERENCES_BROWSE);
    EXPECT_EQ(TextOf(IDC_PREFERENCES_CONFIG_FILE), L"");
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, ACurrentFileThatCannotBeReadLeavesTheDialogUsable)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    const HANDLE held = ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    doors.AnswerMessage(IDOK);
    Open(MakeFile(L"defaults.cfg", simpleFile), path);
    ::CloseHandle(held);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].owner, nullptr);
    EXPECT_EQ(doors.messages[0].caption, L"");
    EXPECT_EQ(doors.messages[0].type, warning);
    EXPECT_TRUE(dialog->IsWindowVisible());
    // Loading the defaults was a change, which can be saved.
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, APageChoosesAFileByItsFullPath)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    ov::Text text = u"before";
    doors.AnswerFile(L"C:\\Standards\\readme.txt");
    Page().BrowseFileOrList(text, false);
    ASSERT_EQ(doors.fileRequests.size(), 1u);
    EXPECT_TRUE(doors.fileRequests[0].open);
    EXPECT_EQ(doors.fileRequests[0].title, u"Select File");
    EXPECT_EQ(doors.fileRequests[0].filter, u"");
    EXPECT_EQ(doors.fileRequests[0].defaultExtension, u"");
    EXPECT_EQ(text, u"C:\\Standards\\readme.txt");
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, APageThatIsRefusedAFileStaysUnmodified)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    ov::Text text = u"before";
    doors.AnswerFile(L"");
    doors.AnswerFolder(L"");
    Page().BrowseFileOrList(text, false);
    Page().BrowseFolder(text);
    EXPECT_EQ(text, u"before");
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, APageChoosesAFolderOwnedByTheDialog)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    ov::Text text;
    doors.AnswerFolder(L"C:\\Standards");
    Page().BrowseFolder(text);
    ASSERT_EQ(doors.folderRequests.size(), 1u);
    EXPECT_EQ(doors.folderRequests[0].title, u"Please select a folder and press 'OK'.");
    EXPECT_EQ(doors.folderRequests[0].flags, 0u);
    EXPECT_EQ(doors.folderRequests[0].owner, dialog->m_hWnd);
    EXPECT_EQ(text, u"C:\\Standards");
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, APageWithoutAWindowBrowsesForNoFolder)
{
    Open(L"", L"");
    CLeftPane page(dialog.get(), CSize(10, 10));
    ov::Text text = u"before";
    page.BrowseFolder(text);
    EXPECT_TRUE(doors.folderRequests.empty());
    EXPECT_EQ(text, u"before");
}

TEST_F(Doors, AListWithALoneQualifierIsRefusedAndTheFocusIsTakenAway)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    dialog->SelectPage(conformingPage);
    Type(IDC_CONFORMING_IGNORED_LEVELS, L"\"Level 1");
    ::SetFocus(Control(IDC_CONFORMING_IGNORED_LEVELS));
    doors.AnswerMessage(IDOK);
    Click(IDC_CONFORMING_IGNORED_LEVELS_BROWSE);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].text, L"Text qualifier is missing.\nPlease verify the value again.");
    EXPECT_EQ(doors.messages[0].caption, caption);
    EXPECT_EQ(doors.messages[0].type, UINT{MB_OK | MB_ICONERROR | MB_SETFOREGROUND | MB_TOPMOST});
    EXPECT_EQ(::GetFocus(), nullptr);
    EXPECT_EQ(TextOf(IDC_CONFORMING_IGNORED_LEVELS), L"\"Level 1");
}

TEST_F(Doors, ARefusedRenameListGivesTheFocusBackToItsField)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    dialog->SelectPage(brandingPage);
    Type(IDC_BRANDING_RENAME, L"a:\"b");
    ::SetFocus(Control(IDC_BRANDING_RENAME_BROWSE));
    doors.AnswerMessage(IDOK);
    Click(IDC_BRANDING_RENAME_BROWSE);
    EXPECT_EQ(::GetFocus(), Control(IDC_BRANDING_RENAME));
}

TEST_F(Doors, ACancelledListEditorChangesNothing)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    ov::Text text = u"a;b";
    doors.AnswerDialog(IDCANCEL);
    Page().BrowseFileOrList(text, true);
    EXPECT_EQ(text, u"a;b");
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, AListEditorsOkMarksTheDialogModified)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    ov::Text text = u"a;b";
    doors.AnswerDialog(IDOK);
    Page().BrowseFileOrList(text, true);
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Doors, ASecondCallWhileTheDialogIsOpenLeavesItAlone)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    Open(L"", path);
    const HWND toolTip = theTooltip.GetSafeHwnd();
    EXPECT_EQ(ovPreferences_showDialogEx(nullptr, L"other.cfg", L"other.cfg", L"Other"), 1u);
    EXPECT_EQ(ovPreferences_showDialog(), 1u);
    EXPECT_EQ(theCommandLine.m_currentPath, FromWide(path));
    EXPECT_EQ(theCommandLine.m_userName, u"Tester");
    EXPECT_EQ(theTooltip.GetSafeHwnd(), toolTip);
    EXPECT_TRUE(::IsWindow(toolTip));
    EXPECT_EQ(theApp.m_pMainWnd, dialog.get());
}

TEST_F(Doors, ASecondCallRestoresADialogThatIsMinimised)
{
    Open(L"", L"");
    dialog->ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(dialog->IsIconic());
    EXPECT_EQ(ovPreferences_showDialog(), 1u);
    EXPECT_FALSE(dialog->IsIconic());
    dialog->ShowWindow(SW_MINIMIZE);
    EXPECT_EQ(ovPreferences_showDialogEx(nullptr, nullptr, nullptr, nullptr), 1u);
    EXPECT_FALSE(dialog->IsIconic());
}

TEST_F(Doors, TheDialogLiesWithinTheWorkArea)
{
    Open(L"", L"");
    RECT work{};
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0));
    CRect window;
    dialog->GetWindowRect(&window);
    EXPECT_GE(window.left, work.left);
    EXPECT_GE(window.top, work.top);
    EXPECT_LE(window.right, work.right);
    EXPECT_LE(window.bottom, work.bottom);
}
