// Owner windows of the host: the values that it may pass, and the effect on a dialog if its owner is
// destroyed.
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
/// A window without an object of the framework.
class PlainWindow
{
  public:
    PlainWindow()
        : window(::CreateWindowExW(0, L"Static", L"Plain", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 300, 200,
                                   nullptr, nullptr, nullptr, nullptr))
    {
    }
    ~PlainWindow() { ::DestroyWindow(window); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    const HWND window;
};

/// Memory without read access.
class Unreadable
{
  public:
    Unreadable() : memory(::VirtualAlloc(nullptr, 4096, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS)) {}
    ~Unreadable() { ::VirtualFree(memory, 0, MEM_RELEASE); }
    Unreadable(const Unreadable&) = delete;
    Unreadable& operator=(const Unreadable&) = delete;

    void* const memory;
};

/// A dialog that stays open on WM_QUIT until the test closes it.
class CStaying : public CScriptDialog
{
  public:
    using CScriptDialog::CScriptDialog;
    int m_asked = 0;
    bool m_mayEnd = false;

  protected:
    void OnQuit() override
    {
        ++m_asked;
        if (m_mayEnd)
            EndDialog(IDABORT);
    }
};

bool TakeQuit()
{
    MSG message{};
    return ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}
} // namespace

TEST(ForeignPointer, OwnObjectIsItself)
{
    CHostWindow host;
    EXPECT_EQ(&host, CWnd::FromForeign(&host));
    const PlainWindow plain;
    CWnd* const temporary = CWnd::FromHandle(plain.window);
    EXPECT_EQ(temporary, CWnd::FromForeign(temporary));
    EXPECT_EQ(nullptr, CWnd::FromForeign(nullptr));
}

TEST(ForeignPointer, WindowHandleIsItsWindow)
{
    CHostWindow host;
    EXPECT_EQ(&host, CWnd::FromForeign(host.m_hWnd));
    HWND gone = nullptr;
    {
        const PlainWindow plain;
        gone = plain.window;
        const CWnd* const found = CWnd::FromForeign(gone);
        ASSERT_NE(nullptr, found);
        EXPECT_EQ(plain.window, found->m_hWnd);
    }
    EXPECT_EQ(nullptr, CWnd::FromForeign(gone));
}

TEST(ForeignPointer, NothingIsReadThroughAnyOther)
{
    const Unreadable object;
    EXPECT_EQ(nullptr, CWnd::FromForeign(object.memory));
    const CWnd windowless;
    EXPECT_EQ(nullptr, CWnd::FromForeign(&windowless));
    // An address must not count as a handle because its lower half happens to be one.
    CHostWindow host;
    const auto number = reinterpret_cast<UINT_PTR>(host.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromForeign(reinterpret_cast<void*>(number | (UINT_PTR{0x12} << 32))));
}

TEST(ForeignOwner, DialogOutlivesIt)
{
    const PlainWindow owner;
    CScriptDialog dialog(IDD_SMALL, CWnd::FromHandle(owner.window));
    dialog.Then([&] {
        ASSERT_EQ(owner.window, ::GetWindow(dialog, GW_OWNER));
        ::DestroyWindow(owner.window);
    });
    dialog.Then([&] {
        ASSERT_TRUE(::IsWindow(dialog));
        EXPECT_EQ(nullptr, ::GetWindow(dialog, GW_OWNER));
        EXPECT_TRUE(dialog.IsWindowVisible());
        EXPECT_TRUE(dialog.IsWindowEnabled());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(ForeignOwner, DialogOutlivesTheOwnersOwnerUnderASubDialog)
{
    const PlainWindow main;
    const HWND owner = ::CreateWindowExW(0, L"Static", L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                         main.window, nullptr, nullptr, nullptr);
    CScriptDialog dialog(IDD_FIELDS, CWnd::FromHandle(owner));
    CScriptDialog inner(IDD_SMALL, &dialog);
    dialog.Then([&] { EXPECT_EQ(scriptEnded, inner.DoModal()); });
    inner.Then([&] { ::DestroyWindow(main.window); });
    inner.Then([&] { EXPECT_EQ(dialog.m_hWnd, ::GetWindow(inner, GW_OWNER)); });
    dialog.Then([&] { EXPECT_TRUE(dialog.IsWindowVisible()); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_FALSE(::IsWindow(owner));
}

TEST(ForeignOwner, AnotherWindowsEndChangesNothing)
{
    const PlainWindow owner;
    CScriptDialog dialog(IDD_SMALL, CWnd::FromHandle(owner.window));
    dialog.Then([&] {
        {
            const PlainWindow other;
        }
        EXPECT_EQ(owner.window, ::GetWindow(dialog, GW_OWNER));
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_TRUE(::IsWindowEnabled(owner.window));
}

TEST(ForeignOwner, DialogOverAnotherDialogEndsWithIt)
{
    CScriptDialog outer(IDD_FIELDS);
    CScriptDialog inner(IDD_SMALL, &outer);
    INT_PTR innerResult = 0;
    outer.Then([&] { innerResult = inner.DoModal(); });
    inner.Then([&] { outer.DestroyWindow(); });
    EXPECT_EQ(IDCANCEL, outer.DoModal());
    EXPECT_EQ(IDCANCEL, innerResult);
}

TEST(ForeignOwner, DialogMayGoOnAfterTheProgramWasToEnd)
{
    CStaying dialog(IDD_SMALL);
    dialog.Then([] { ::PostQuitMessage(5); });
    dialog.Then([&] {
        EXPECT_EQ(1, dialog.m_asked);
        EXPECT_FALSE(TakeQuit()) << "a message box over the dialog would end at once";
        dialog.m_mayEnd = true;
        ::PostQuitMessage(6);
    });
    dialog.Then([] { ADD_FAILURE() << "the dialog goes on"; });
    EXPECT_EQ(IDABORT, dialog.DoModal());
    EXPECT_EQ(2, dialog.m_asked);
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        << "the loop outside is not told";
    EXPECT_EQ(6U, message.wParam);
}
