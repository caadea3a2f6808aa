#include "tests/app/program.h"

#include "resources/ids.h"
#include "tests/support/window_search.h"

namespace
{
template <class Answer>
std::optional<Answer> Next(std::deque<Answer>& answers, const char* door)
{
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected " << door;
        return std::nullopt;
    }
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}
} // namespace

DoorKeeper::~DoorKeeper()
{
    EXPECT_TRUE(m_buttons.empty() && m_files.empty() && m_folders.empty() && m_dialogs.empty())
        << "a modal door did not come";
    AfxSetModalHook(m_previous);
}

std::optional<int> DoorKeeper::OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                            UINT type)
{
    messages.push_back({owner, Wide(text), Wide(caption), type});
    if (onMessage)
        onMessage();
    return Next(m_buttons, "message box").value_or(IDCANCEL);
}

std::optional<CPathAnswer> DoorKeeper::OnFileDialog(const CFileDialogRequest& request)
{
    fileRequests.push_back(request);
    return Next(m_files, "file chooser").value_or(CPathAnswer{});
}

std::optional<INT_PTR> DoorKeeper::OnModalDialog(CDialog&)
{
    return m_dialogs.empty() ? std::nullopt : Next(m_dialogs, "dialog");
}

std::optional<CPathAnswer> DoorKeeper::OnFolderBrowser(const CFolderBrowserRequest& request)
{
    folderRequests.push_back(request);
    return Next(m_folders, "folder browser").value_or(CPathAnswer{});
}

ProgramTest::~ProgramTest()
{
    if (dialog)
        dialog->DestroyWindow();
    dialog.reset();
    theApp.m_pMainWnd = nullptr;
    if (theTooltip.GetSafeHwnd() != nullptr)
        theTooltip.DestroyWindow();
}

void ProgramTest::Open(const std::wstring& defaultPath, const std::wstring& currentPath)
{
    MakeDialog(defaultPath, currentPath);
    ASSERT_TRUE(dialog->CreatePages());
    ShowDialog();
}

void ProgramTest::OpenWithoutPages()
{
    MakeDialog(L"", L"");
    ShowDialog();
}

void ProgramTest::MakeDialog(const std::wstring& defaultPath, const std::wstring& currentPath)
{
    theCommandLine.m_defaultPath = FromWide(defaultPath);
    theCommandLine.m_currentPath = FromWide(currentPath);
    theCommandLine.m_userName = u"Tester";
    dialog = std::make_unique<CPreferencesWizard>(nullptr, theApp.DialogSetup());
    theApp.m_pMainWnd = dialog.get();
    theTooltip.Create(dialog.get(), kTooltipBalloon, 8, nullptr);
}

void ProgramTest::ShowDialog()
{
    ASSERT_TRUE(dialog->Create(IDD_PREFERENCES));
    dialog->ShowWindow(SW_SHOW);
}

std::wstring ProgramTest::MakeFile(const std::wstring& name, const std::string& bytes)
{
    EXPECT_TRUE(uidriver::WriteBytes(folder / name, bytes));
    return folder / name;
}

HWND ProgramTest::Control(int id) const
{
    return uidriver::FindControl(dialog->m_hWnd, id);
}

void ProgramTest::Click(int id)
{
    ::SendMessageW(Control(id), BM_CLICK, 0, 0);
}

std::wstring ProgramTest::TextOf(int id) const
{
    return Wide(CWnd::FromHandle(Control(id))->GetWindowText());
}

void ProgramTest::Type(int id, const std::wstring& text)
{
    ::SendMessageW(Control(id), EM_SETSEL, 0, -1);
    ::SendMessageW(Control(id), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

CWizardPage& ProgramTest::Page() const
{
    return *dynamic_cast<CWizardPage*>(CWnd::FromHandlePermanent(uidriver::VisiblePage(dialog->m_hWnd)));
}
