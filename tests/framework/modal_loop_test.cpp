#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
/// Records the states of the owner's window while a dialog over it opens and closes.
class CWatchedHost : public CWnd
{
  public:
    EventLog m_log;
    CDialog* m_dialog = nullptr;

    CWatchedHost()
    {
        CreateEx(0, nullptr, L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(10, 10, 410, 310), nullptr, 0);
        m_edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(0, 0, 100, 20), this, 5);
    }
    CEdit m_edit;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENABLE && m_dialog != nullptr) {
            const bool visible = m_dialog->m_hWnd != nullptr && m_dialog->IsWindowVisible();
            m_log.push_back(std::string(wParam ? "enabled" : "disabled") +
                            (visible ? " under the dialog" : " without a dialog"));
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST(ModalLoop, OwnerIsDisabledFirstAndEnabledBeforeTheDialogGoes)
{
    CWatchedHost host;
    CScriptDialog dialog(IDD_SMALL, &host);
    host.m_dialog = &dialog;
    HWND owner = nullptr;
    dialog.Then([&] {
        owner = ::GetWindow(dialog, GW_OWNER);
        EXPECT_FALSE(host.IsWindowEnabled());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ(host.m_hWnd, owner);
    EXPECT_TRUE(host.IsWindowEnabled());
    EXPECT_EQ((EventLog{"disabled without a dialog", "enabled under the dialog"}), host.m_log);
}

TEST(ModalLoop, FocusReturnsToTheOwner)
{
    CWatchedHost host;
    host.m_edit.SetFocus();
    ASSERT_EQ(host.m_edit.m_hWnd, ::GetFocus());
    CScriptDialog dialog(IDD_SMALL, &host);
    dialog.NoteFocus();
    dialog.DoModal();
    EXPECT_EQ((std::vector<int>{IDOK}), dialog.m_focusIds);
    EXPECT_EQ(host.m_hWnd, ::GetActiveWindow());
    EXPECT_EQ(host.m_edit.m_hWnd, ::GetFocus());
}

TEST(ModalLoop, OwnerThatWasDisabledStaysSo)
{
    CHostWindow host;
    host.EnableWindow(FALSE);
    CScriptDialog dialog(IDD_SMALL, &host);
    dialog.DoModal();
    EXPECT_FALSE(host.IsWindowEnabled());
}

TEST(ModalLoop, OwnersOwnerIsDisabledToo)
{
    CHostWindow host;
    CWnd popup;
    popup.CreateEx(0, nullptr, L"Popup", WS_POPUP | WS_VISIBLE, CRect(50, 50, 200, 200), &host, 0);
    CScriptDialog dialog(IDD_SMALL, &popup);
    dialog.Then([&] {
        EXPECT_EQ(popup.m_hWnd, ::GetWindow(dialog, GW_OWNER));
        EXPECT_FALSE(popup.IsWindowEnabled());
        EXPECT_FALSE(host.IsWindowEnabled());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_TRUE(popup.IsWindowEnabled());
    EXPECT_TRUE(host.IsWindowEnabled());
}

TEST(ModalLoop, ChildWindowStandsForItsTopLevelWindow)
{
    CWatchedHost host;
    CScriptDialog dialog(IDD_SMALL, &host.m_edit);
    dialog.Then([&] { EXPECT_EQ(host.m_hWnd, ::GetWindow(dialog, GW_OWNER)); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(ModalLoop, OwnerIsFoundWithoutAParent)
{
    CHostWindow main;
    CHostWindow active;
    ::SetActiveWindow(active);
    HWND owner = nullptr;
    {
        const CMainWindowScope scope(&main);
        CScriptDialog dialog(IDD_SMALL);
        dialog.Then([&] { owner = ::GetWindow(dialog, GW_OWNER); });
        dialog.DoModal();
        EXPECT_EQ(main.m_hWnd, owner) << "the application's main window";
    }
    ::SetActiveWindow(active);
    CScriptDialog dialog(IDD_SMALL);
    dialog.Then([&] { owner = ::GetWindow(dialog, GW_OWNER); });
    dialog.DoModal();
    EXPECT_EQ(active.m_hWnd, owner) << "the thread's active window";
}

TEST(ModalLoop, MainWindowWithoutAHandleIsPassedOver)
{
    CHostWindow host;
    ::SetActiveWindow(host);
    CScriptDialog dialog(IDD_SMALL);
    const CMainWindowScope scope(&dialog); // like the program's own dialog
    HWND owner = nullptr;
    dialog.Then([&] { owner = ::GetWindow(dialog, GW_OWNER); });
    dialog.DoModal();
    EXPECT_EQ(host.m_hWnd, owner);
}

TEST(ModalLoop, DialogsNest)
{
    CHostWindow host;
    EventLog log;
    CScriptDialog outer(IDD_SMALL, &host);
    CScriptDialog inner(IDD_FIELDS, &outer);
    outer.Then([&] {
        log.push_back("inner opens");
        log.push_back(inner.DoModal() == 7 ? "inner gave 7" : "inner gave something else");
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(host.IsWindowEnabled());
    });
    inner.Then([&] {
        EXPECT_FALSE(outer.IsWindowEnabled());
        EXPECT_FALSE(host.IsWindowEnabled());
        log.push_back("inner ends");
        inner.EndDialog(7);
    });
    outer.Then([&] { log.push_back("outer goes on"); });
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_TRUE(host.IsWindowEnabled());
    EXPECT_EQ((EventLog{"inner opens", "inner ends", "inner gave 7", "outer goes on"}), log);
}

TEST(ModalLoop, EndingTheOuterFromWithinTheInnerWaitsForTheInner)
{
    EventLog log;
    CScriptDialog outer(IDD_SMALL);
    CScriptDialog inner(IDD_FIELDS, &outer);
    outer.Then([&] {
        inner.DoModal();
        log.push_back("inner over");
    });
    inner.Then([&] {
        outer.EndDialog(5);
        log.push_back("outer told to end");
    });
    inner.Then([&] { log.push_back("inner still runs"); });
    EXPECT_EQ(5, outer.DoModal());
    EXPECT_EQ((EventLog{"outer told to end", "inner still runs", "inner over"}), log);
}

TEST(ModalLoop, QuitEndsItAndIsPostedAgain)
{
    CScriptDialog outer(IDD_SMALL);
    CScriptDialog inner(IDD_FIELDS, &outer);
    INT_PTR innerResult = 0;
    outer.Then([&] { innerResult = inner.DoModal(); });
    inner.Then([] { ::PostQuitMessage(99); });
    EXPECT_EQ(IDCANCEL, outer.DoModal());
    EXPECT_EQ(IDCANCEL, innerResult);
    EXPECT_EQ(nullptr, outer.m_hWnd);
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(99u, message.wParam);
}

TEST(ModalLoop, DestroyedWindowEndsIt)
{
    CScriptDialog dialog(IDD_SMALL);
    dialog.Then([&] { dialog.DestroyWindow(); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}
