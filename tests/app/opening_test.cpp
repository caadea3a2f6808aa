// What the dialog does to the windows of its pages while it opens.
#include "pages/files/ids.h"
#include "pages/logging/ids.h"
#include "pages/urls/ids.h"
#include "resources/ids.h"
#include "tests/app/program.h"
#include "tests/support/window_search.h"

#include <algorithm>
#include <map>

namespace
{
constexpr char defaults[] = "_ORTHOVAL_DICT_DIR = D:\\standard\n"
                            "_ORTHOVAL_TECHSUPPORT_URL = http://standard\n"
                            "_ORTHOVAL_LOG_FILE_DEBUGLEVEL = 1\n"
                            "_ORTHOVAL_REPORT_USEREFCLIPPING = 1\n"
                            "_ORTHOVAL_WEBSITE_URL = http://standard\n";
constexpr char office[] = "_ORTHOVAL_DICT_DIR = D:\\office\n"
                          "_ORTHOVAL_TECHSUPPORT_URL = http://office\n"
                          "_ORTHOVAL_LOG_FILE_DEBUGLEVEL = 2\n"
                          "_ORTHOVAL_REPORT_USEREFCLIPPING = 0\n";

/// Counts the messages of this thread that set the controls of pages, and notes which pages
/// come into view.
class PageMessages
{
  public:
    PageMessages()
    {
        s_current = this;
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ~PageMessages() { ::UnhookWindowsHookEx(m_hook); }
    PageMessages(const PageMessages&) = delete;
    PageMessages& operator=(const PageMessages&) = delete;

    std::map<HWND, int> texts;
    std::map<HWND, int> checks;
    std::vector<HWND> shownPages;

  private:
    static bool IsPage(HWND window)
    {
        auto* const page = dynamic_cast<CWizardPage*>(CWnd::FromHandlePermanent(window));
        return page != nullptr && dynamic_cast<CLeftPane*>(page) == nullptr;
    }

    void Note(const CWPSTRUCT& message)
    {
        if (message.message == WM_SHOWWINDOW && message.wParam != 0 && IsPage(message.hwnd))
            shownPages.push_back(message.hwnd);
        if (!IsPage(::GetParent(message.hwnd)))
            return;
        if (message.message == WM_SETTEXT)
            ++texts[message.hwnd];
        if (message.message == BM_SETCHECK && message.wParam == BST_CHECKED)
            ++checks[message.hwnd];
    }

    static LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code >= 0)
            s_current->Note(*reinterpret_cast<const CWPSTRUCT*>(lParam));
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline PageMessages* s_current = nullptr;
    HHOOK m_hook;
};

int Most(const std::map<HWND, int>& counts)
{
    int most = 0;
    for (const auto& [window, count] : counts)
        most = std::max(most, count);
    return most;
}

int SelectedEntry(HWND list)
{
    return static_cast<int>(::SendMessageW(list, CB_GETCURSEL, 0, 0));
}
} // namespace

using Opening = ProgramTest;

TEST_F(Opening, EachControlIsSetOnce)
{
    const PageMessages messages;
    Open(MakeFile(L"defaults.cfg", defaults), MakeFile(L"office.cfg", office));
    EXPECT_EQ(TextOf(IDC_FILES_DICTIONARY), L"D:\\office");
    EXPECT_EQ(TextOf(IDC_URLS_TECH_SUPPORT), L"http://office");
    EXPECT_EQ(TextOf(IDC_URLS_WEBSITE), L"") << "the current file does not have it";
    EXPECT_EQ(SelectedEntry(Control(IDC_LOGGING_DEBUG_LEVEL)), 2);
    EXPECT_EQ(messages.texts.count(Control(IDC_FILES_DICTIONARY)), 1u);
    EXPECT_EQ(messages.texts.count(Control(IDC_URLS_WEBSITE)), 0u) << "it shows nothing already";
    EXPECT_EQ(Most(messages.texts), 1);
    EXPECT_EQ(Most(messages.checks), 1);
}

TEST_F(Opening, OnlyTheFirstPageIsShown)
{
    const PageMessages messages;
    Open(MakeFile(L"defaults.cfg", defaults), MakeFile(L"office.cfg", office));
    EXPECT_EQ(messages.shownPages, std::vector<HWND>{Page().m_hWnd});
    EXPECT_EQ(Page().GetPageId(), 2u);
}
