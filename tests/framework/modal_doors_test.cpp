#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
bool folderVisited = false;

/// A hook for the file chooser: changes the folder, as the chooser does while it is
/// open, and cancels the chooser.
UINT_PTR CALLBACK VisitWindowsFolder(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_NOTIFY || reinterpret_cast<const NMHDR*>(lParam)->code != CDN_INITDONE)
        return 0;
    wchar_t folder[MAX_PATH] = L"";
    ::GetWindowsDirectoryW(folder, MAX_PATH);
    folderVisited = ::SetCurrentDirectoryW(folder) != FALSE;
    ::PostMessageW(::GetParent(window), WM_COMMAND, IDCANCEL, 0);
    return 0;
}
} // namespace

TEST(ModalDoors, MessageBoxGoesThroughTheHook)
{
    CRecordingHook hook;
    hook.m_buttons = {IDYES};
    CHostWindow host;
    EXPECT_EQ(IDYES, AfxShowMessageBox(host, u"text", u"caption", MB_YESNO | MB_TOPMOST));
    ASSERT_EQ(1u, hook.m_boxes.size());
    EXPECT_EQ(host.m_hWnd, hook.m_boxes[0].owner);
    EXPECT_EQ(u"text", hook.m_boxes[0].text);
    EXPECT_EQ(u"caption", hook.m_boxes[0].caption);
    EXPECT_EQ(static_cast<UINT>(MB_YESNO | MB_TOPMOST), hook.m_boxes[0].type);
}

TEST(ModalDoors, AllMessageBoxesShareTheDoor)
{
    CRecordingHook hook;
    CHostWindow host;
    const CMainWindowScope scope(&host);
    AfxMessageBox(u"plain");
    theTestApp.DoMessageBox(u"application's", MB_ICONWARNING);
    ASSERT_EQ(2u, hook.m_boxes.size());
    EXPECT_EQ(u"framework_tests", hook.m_boxes[0].caption);
    EXPECT_EQ(host.m_hWnd, hook.m_boxes[0].owner);
    EXPECT_EQ(u"application's", hook.m_boxes[1].text);
    EXPECT_EQ(static_cast<UINT>(MB_ICONWARNING), hook.m_boxes[1].type);
}

TEST(ModalDoors, ChildOwnerStandsForItsTopLevelWindow)
{
    CRecordingHook hook;
    CHostWindow host;
    CWnd child;
    ASSERT_TRUE(child.Create(L"EDIT", L"", 0, CRect(0, 0, 50, 20), &host, 1));
    AfxShowMessageBox(child, u"text", u"caption", MB_OK);
    AfxShowMessageBox(nullptr, u"text", u"caption", MB_OK);
    ASSERT_EQ(2u, hook.m_boxes.size());
    EXPECT_EQ(host.m_hWnd, hook.m_boxes[0].owner);
    EXPECT_EQ(nullptr, hook.m_boxes[1].owner) << "a box over nothing stays one";
}

TEST(ModalDoors, OwnerThatIsNoWindowIsPassedOver)
{
    CHostWindow host;
    HWND gone = nullptr;
    {
        const CHostWindow other;
        gone = other.m_hWnd;
    }
    ASSERT_FALSE(::IsWindow(gone));
    const CMainWindowScope scope(&host);
    EXPECT_EQ(host.m_hWnd, AfxGetModalOwner(gone));
    EXPECT_EQ(host.m_hWnd, AfxGetModalOwner(nullptr));
}

TEST(ModalDoors, FileChooserLeavesTheCurrentDirectory)
{
    const auto currentDirectory = [] {
        wchar_t path[MAX_PATH] = L"";
        ::GetCurrentDirectoryW(MAX_PATH, path);
        return FromWide(path);
    };
    const ov::Text before = currentDirectory();
    CFileDialog chooser(TRUE, nullptr, nullptr, OFN_ENABLEHOOK);
    chooser.m_ofn.lpfnHook = &VisitWindowsFolder;
    EXPECT_EQ(IDCANCEL, chooser.DoModal());
    EXPECT_TRUE(folderVisited);
    EXPECT_EQ(before, currentDirectory());
}

TEST(ModalDoors, FileChooserAsksAndTakesTheAnswer)
{
    CRecordingHook hook;
    hook.m_path = u"C:\\folder\\chosen.cfg";
    CHostWindow host;
    CFileDialog dialog(TRUE, L"cfg", L"first.cfg", OFN_HIDEREADONLY | OFN_ENABLESIZING,
                       L"Config (*.cfg)|*.cfg||", &host);
    dialog.m_ofn.lpstrTitle = L"Open it";
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(hook.m_path, dialog.GetPathName());
    ASSERT_EQ(1u, hook.m_files.size());
    const CFileDialogRequest& request = hook.m_files[0];
    EXPECT_TRUE(request.open);
    EXPECT_EQ(u"cfg", request.defaultExtension);
    EXPECT_EQ(u"first.cfg", request.fileName);
    EXPECT_EQ(static_cast<DWORD>(OFN_HIDEREADONLY | OFN_ENABLESIZING | OFN_EXPLORER), request.flags);
    EXPECT_EQ(u"Config (*.cfg)|*.cfg||", request.filter);
    EXPECT_EQ(u"Open it", request.title);
    EXPECT_EQ(host.m_hWnd, request.owner);
}

TEST(ModalDoors, CancelledFileChooserHasNoPath)
{
    CRecordingHook hook;
    CFileDialog dialog(FALSE);
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(u"", dialog.GetPathName());
    EXPECT_FALSE(hook.m_files.at(0).open);
}

TEST(ModalDoors, FolderBrowserAsksAndTakesTheAnswer)
{
    CRecordingHook hook;
    CHostWindow host;
    CFolderBrowser cancelled(u"Choose", &host);
    EXPECT_EQ(IDCANCEL, cancelled.DoModal());
    hook.m_path = u"C:\\folder";
    CFolderBrowser browser(u"Choose", &host);
    EXPECT_EQ(IDOK, browser.DoModal());
    EXPECT_EQ(u"C:\\folder", browser.GetPathName());
    ASSERT_EQ(2u, hook.m_folders.size());
    EXPECT_EQ(u"Choose", hook.m_folders[1].title);
    EXPECT_EQ(0u, hook.m_folders[1].flags);
    EXPECT_EQ(host.m_hWnd, hook.m_folders[1].owner);
}

TEST(ModalDoors, SubDialogIsAnsweredOrOpens)
{
    CRecordingHook hook;
    hook.m_dialogAnswer = 77;
    CScriptDialog dialog(IDD_SMALL);
    bool opened = false;
    dialog.m_onInit = [&] { opened = true; };
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_FALSE(opened);
    hook.m_dialogAnswer.reset();
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_TRUE(opened);
    EXPECT_EQ((std::vector<CDialog*>{&dialog, &dialog}), hook.m_dialogs);
}

namespace
{
constexpr UINT pressNo = WM_APP + 1;

/// Lets the message box open with a message pending that its loop will retrieve.
class CPressingHook : public CModalHook
{
  public:
    explicit CPressingHook(HWND presser) : m_presser(presser), m_previous(AfxSetModalHook(this)) {}
    ~CPressingHook() override { AfxSetModalHook(m_previous); }
    int m_asked = 0;
    std::optional<int> OnMessageBox(HWND, const ov::Text&, const ov::Text&, UINT) override
    {
        ++m_asked;
        ::PostMessageW(m_presser, pressNo, 0, 0);
        return std::nullopt;
    }

  private:
    HWND m_presser;
    CModalHook* m_previous;
};

/// Presses "No" in the message box that is open.
class CPressingWindow : public CHostWindow
{
  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == pressNo)
            ::PostMessageW(::GetActiveWindow(), WM_COMMAND, IDNO, 0);
        return CHostWindow::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST(ModalDoors, WithoutAnAnswerTheRealBoxOpens)
{
    CPressingWindow owner;
    CPressingHook hook(owner);
    EXPECT_EQ(IDNO, AfxShowMessageBox(owner, u"Really?", u"Question", MB_YESNO));
    EXPECT_EQ(1, hook.m_asked);
}

TEST(ModalDoors, AfterABoxWithoutAnOwnerTheSameWindowIsActive)
{
    CPressingWindow window;
    ::ShowWindow(window, SW_SHOW);
    ::SetActiveWindow(window);
    ASSERT_EQ(window.m_hWnd, ::GetActiveWindow());
    const CPressingHook hook(window);
    EXPECT_EQ(IDNO, AfxShowMessageBox(nullptr, u"Really?", u"Question", MB_YESNO));
    EXPECT_EQ(window.m_hWnd, ::GetActiveWindow());
}
