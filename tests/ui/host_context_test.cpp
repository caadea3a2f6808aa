// A host whose code runs while the dialog is open, and leaves an activation
// context of its own active.
#include "pages/branding/ids.h"
#include "tests/ui/dialog_session.h"

#include <utility>

using namespace uidriver;

namespace
{

constexpr UINT kActivate = WM_APP;
constexpr UINT kActivateWhenPosted = WM_APP + 1;
constexpr UINT kDeactivate = WM_APP + 2;

HANDLE CurrentContext()
{
    HANDLE context = nullptr;
    GetCurrentActCtx(&context);
    if (context)
        ReleaseActCtx(context);
    return context;
}

class HostContextTest : public DialogSession
{
  protected:
    /// Calls the library from a thread with a window that runs host code in the
    /// dialog's message loop.
    bool OpenFromHost()
    {
        return Open([this] {
            m_before = CurrentContext();
            m_window = CreateWindowExW(0, L"Static", L"Host", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                                       nullptr);
            SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
            SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(HostProc));
            const unsigned result = Library::Get().ShowDialogEx()(nullptr, L"", L"", nullptr);
            m_afterCall = CurrentContext();
            Deactivate();
            DestroyWindow(m_window);
            return result;
        });
    }

    /// Runs host code on the dialog's thread.
    void Tell(UINT message) { Send(m_window, message); }

    HANDLE m_before = nullptr; ///< the thread's context before the call
    HANDLE m_seen = nullptr;   ///< the context that the host's code saw in the loop
    HANDLE m_afterCall = nullptr;
    HANDLE m_context = nullptr; ///< the host's own context, while it is active
    bool m_deactivated = false; ///< the host succeeded in deactivating its own context
    HWND m_window = nullptr;

  private:
    void Activate()
    {
        m_seen = CurrentContext();
        ACTCTXW description = {};
        description.cbSize = sizeof description;
        description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        description.hModule = Library::Get().Module();
        description.lpResourceName = MAKEINTRESOURCEW(2);
        m_context = CreateActCtxW(&description);
        ActivateActCtx(m_context, &m_cookie);
    }

    void Deactivate()
    {
        if (!m_context)
            return;
        m_deactivated = DeactivateActCtx(0, m_cookie);
        ReleaseActCtx(std::exchange(m_context, nullptr));
    }

    static LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto& test = *reinterpret_cast<HostContextTest*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == kActivate || message == kActivateWhenPosted)
            test.Activate();
        if (message == kDeactivate)
            test.Deactivate();
        return DefWindowProcW(window, message, wParam, lParam);
    }

    ULONG_PTR m_cookie = 0;
};

TEST_F(HostContextTest, ContextThatTheHostLeavesInTheLoopIsStillThereAfterTheCall)
{
    ASSERT_TRUE(OpenFromHost());
    Tell(kActivate);
    EXPECT_EQ(m_before, m_seen);
    const HANDLE hosts = m_context;
    Cancel();
    EXPECT_EQ(hosts, m_afterCall);
    EXPECT_TRUE(m_deactivated);
}

TEST_F(HostContextTest, HostsPostedMessagesRunInItsOwnContext)
{
    ASSERT_TRUE(OpenFromHost());
    PostMessageW(m_window, kActivateWhenPosted, 0, 0);
    ASSERT_TRUE(Settle(Dialog()));
    EXPECT_NE(nullptr, m_context);
    EXPECT_EQ(m_before, m_seen);
    Tell(kDeactivate);
    EXPECT_TRUE(m_deactivated);
    Cancel();
    EXPECT_EQ(m_before, m_afterCall);
}

TEST_F(HostContextTest, ContextThatTheHostLeavesUnderAMessageBoxRaisesNothing)
{
    ASSERT_TRUE(OpenFromHost());
    ClickOnPage(IDC_BRANDING_AUTO);
    Press(IDC_PREFERENCES_CANCEL);
    const auto question = AwaitBox();
    Tell(kActivate);
    const HANDLE hosts = m_context;
    Answer(question, IDCANCEL);
    ExpectOpen();
    Abandon();
    EXPECT_EQ(hosts, m_afterCall);
    EXPECT_TRUE(m_deactivated);
    // The next call removes the context that had to remain below the host's.
    const HANDLE before = m_before;
    ASSERT_TRUE(OpenFromHost());
    Cancel();
    EXPECT_EQ(before, m_afterCall);
}

TEST_F(HostContextTest, WindowsThatTheLoopOpensHaveTheNewControls)
{
    ASSERT_TRUE(OpenFromHost());
    Tell(kActivate);
    Tell(kDeactivate);
    EXPECT_FALSE(IsVersionSix(m_window));
    ClickOnPage(IDC_BRANDING_RENAME_BROWSE);
    const HWND editor = AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
    ASSERT_TRUE(editor);
    EXPECT_TRUE(IsVersionSix(GetDlgItem(editor, IDOK)));
    PostMessageW(editor, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(AwaitGone(editor));
    Cancel();
}

} // namespace
