#include "framework/thread_state.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace
{
class WindowMap : public testing::Test
{
  protected:
    WindowMap() { m_window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0); }
    ~WindowMap() override { AfxDeleteTempMap(); }
    CWnd m_window;
};

/// Records whether it is notified of its destruction, and with which message.
class CWatched : public CWnd
{
  public:
    explicit CWatched(EventLog& log) : m_log(log) {}

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY)
            m_log.push_back("WM_DESTROY");
        if (message == WM_NCDESTROY)
            m_log.push_back("WM_NCDESTROY");
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override
    {
        m_log.push_back(m_hWnd == nullptr ? "PostNcDestroy without a window" : "PostNcDestroy too early");
    }

  private:
    EventLog& m_log;
};
} // namespace

TEST_F(WindowMap, PermanentObjectIsFound)
{
    EXPECT_EQ(&m_window, CWnd::FromHandle(m_window.m_hWnd));
    EXPECT_EQ(&m_window, CWnd::FromHandlePermanent(m_window.m_hWnd));
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
}

TEST_F(WindowMap, ForeignWindowGetsOneTemporaryObject)
{
    const HWND foreign = ::GetDesktopWindow();
    CWnd* const temporary = CWnd::FromHandle(foreign);
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(foreign, temporary->m_hWnd);
    EXPECT_EQ(temporary, CWnd::FromHandle(foreign));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(foreign));
}

TEST_F(WindowMap, DeletingTemporariesLeavesTheirWindows)
{
    const HWND plain =
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, m_window, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, CWnd::FromHandle(plain));
    AfxDeleteTempMap();
    EXPECT_TRUE(::IsWindow(plain));
    EXPECT_EQ(plain, CWnd::FromHandle(plain)->m_hWnd);
}

TEST_F(WindowMap, ControlsAreFoundWhateverBecomesOfThem)
{
    constexpr int firstId = 7;
    constexpr int secondId = 8;
    const auto make = [&](HWND parent) {
        return ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, parent,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(firstId)), nullptr, nullptr);
    };
    EXPECT_EQ(nullptr, m_window.FindControl(firstId));
    EXPECT_EQ(nullptr, m_window.GetDlgItem(firstId));
    const HWND first = make(m_window);
    EXPECT_EQ(first, m_window.FindControl(firstId));
    EXPECT_EQ(first, m_window.GetDlgItem(firstId)->m_hWnd);
    // Another control replaces it.
    ::DestroyWindow(first);
    EXPECT_EQ(nullptr, m_window.FindControl(firstId));
    const HWND second = make(m_window);
    EXPECT_EQ(second, m_window.FindControl(firstId));
    // It gets another id or another parent.
    ::SetWindowLongPtrW(second, GWLP_ID, secondId);
    EXPECT_EQ(nullptr, m_window.FindControl(firstId));
    EXPECT_EQ(second, m_window.FindControl(secondId));
    CWnd other;
    ASSERT_TRUE(other.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
    ::SetParent(second, other);
    EXPECT_EQ(nullptr, m_window.FindControl(secondId));
    EXPECT_EQ(second, other.FindControl(secondId));
    // The same for an object that is not the window's own.
    CWnd foreign;
    foreign.m_hWnd = other;
    EXPECT_EQ(second, foreign.FindControl(secondId));
    foreign.m_hWnd = nullptr;
}

TEST_F(WindowMap, ControlsAreListedInZOrder)
{
    const auto make = [&] {
        return ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, m_window, nullptr, nullptr,
                                 nullptr);
    };
    using Windows = std::vector<HWND>;
    EXPECT_EQ(Windows(), m_window.GetControls());
    CWnd own;
    ASSERT_TRUE(own.Create(L"STATIC", L"", 0, CRect(0, 0, 10, 10), &m_window, 7));
    EXPECT_EQ(Windows{own.m_hWnd}, m_window.GetControls());
    const HWND second = make();
    ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, second, nullptr, nullptr, nullptr);
    m_window.ForgetControls();
    EXPECT_EQ((Windows{own.m_hWnd, second}), m_window.GetControls()) << "direct children only";
    EXPECT_EQ((Windows{own.m_hWnd, second}), AfxChildWindows(m_window));
    ::DestroyWindow(own.m_hWnd);
    EXPECT_EQ(Windows{second}, m_window.GetControls());
    const HWND third = make();
    ::SetWindowPos(third, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_window.ForgetControls();
    EXPECT_EQ((Windows{third, second}), m_window.GetControls());
}

TEST_F(WindowMap, EnablingWhatIsEnabledSendsNothing)
{
    class CNoted : public CWnd
    {
      public:
        std::vector<UINT> messages;

      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            messages.push_back(message);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } control;
    ASSERT_TRUE(control.Create(L"STATIC", L"", 0, CRect(0, 0, 10, 10), &m_window, 7));
    control.messages.clear();
    EXPECT_FALSE(control.EnableWindow(TRUE)) << "was it disabled?";
    EXPECT_TRUE(control.messages.empty());
    EXPECT_FALSE(control.EnableWindow(FALSE));
    EXPECT_NE(0, std::ranges::count(control.messages, UINT{WM_ENABLE}));
    EXPECT_FALSE(control.IsWindowEnabled());
    control.messages.clear();
    EXPECT_TRUE(control.EnableWindow(FALSE));
    EXPECT_TRUE(control.messages.empty());
    EXPECT_TRUE(control.EnableWindow(TRUE));
    EXPECT_NE(0, std::ranges::count(control.messages, UINT{WM_ENABLE}));
    EXPECT_TRUE(control.IsWindowEnabled());
}

TEST_F(WindowMap, AttachAndDetachDoNotTouchTheWindow)
{
    const HWND plain =
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, m_window, nullptr, nullptr, nullptr);
    const LONG_PTR procedure = ::GetWindowLongPtrW(plain, GWLP_WNDPROC);
    CWnd object;
    EXPECT_FALSE(object.Attach(nullptr));
    ASSERT_TRUE(object.Attach(plain));
    EXPECT_EQ(&object, CWnd::FromHandlePermanent(plain));
    EXPECT_EQ(procedure, ::GetWindowLongPtrW(plain, GWLP_WNDPROC));
    CWnd second;
    EXPECT_FALSE(second.Attach(plain)) << "a window has one object";
    EXPECT_EQ(plain, object.Detach());
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
    EXPECT_TRUE(::IsWindow(plain));
}

TEST_F(WindowMap, DeletingTheObjectDestroysItsWindow)
{
    HWND handle = nullptr;
    {
        CWnd window;
        window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
        handle = window.m_hWnd;
        ASSERT_TRUE(::IsWindow(handle));
    }
    EXPECT_FALSE(::IsWindow(handle));
    {
        CWnd attached;
        handle =
            ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, m_window, nullptr, nullptr, nullptr);
        attached.Attach(handle);
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
}

TEST_F(WindowMap, SubclassingTakesMessagesOverAndGivesThemBack)
{
    const HWND plain =
        ::CreateWindowExW(0, L"EDIT", L"text", WS_CHILD, 0, 0, 10, 10, m_window, nullptr, nullptr, nullptr);
    const LONG_PTR procedure = ::GetWindowLongPtrW(plain, GWLP_WNDPROC);
    CEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(plain));
    EXPECT_NE(procedure, ::GetWindowLongPtrW(plain, GWLP_WNDPROC));
    EXPECT_EQ(u"text", edit.GetWindowText()) << "the control still answers";
    EXPECT_FALSE(edit.SubclassWindow(plain));
    EXPECT_EQ(plain, edit.UnsubclassWindow());
    EXPECT_EQ(procedure, ::GetWindowLongPtrW(plain, GWLP_WNDPROC));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
}

TEST_F(WindowMap, LaterProcedureOutlivesTheObject)
{
    const HWND plain =
        ::CreateWindowExW(0, L"EDIT", L"text", WS_CHILD, 0, 0, 10, 10, m_window, nullptr, nullptr, nullptr);
    CEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(plain));
    const WNDPROC later = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        return message == WM_APP ? 42 : ::DefWindowProcW(window, message, wParam, lParam);
    };
    ::SetWindowLongPtrW(plain, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(later));
    EXPECT_EQ(plain, edit.UnsubclassWindow());
    EXPECT_EQ(42, ::SendMessageW(plain, WM_APP, 0, 0));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
}

TEST_F(WindowMap, AskingMakesNoThreadState)
{
    bool made = true;
    std::thread([&made] {
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(::GetDesktopWindow()));
        AfxDeleteTempMap();
        EXPECT_EQ(&theTestApp, AfxGetApp());
        made = AfxPeekThreadState() != nullptr;
    }).join();
    EXPECT_FALSE(made);
}

TEST_F(WindowMap, EndIsToldInOrderHoweverItComes)
{
    const EventLog expected = {"WM_DESTROY", "WM_NCDESTROY", "PostNcDestroy without a window"};
    EventLog log;
    CWatched byItself(log);
    byItself.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    EXPECT_TRUE(byItself.DestroyWindow());
    EXPECT_EQ(expected, log);
    EXPECT_FALSE(byItself.DestroyWindow()) << "there is none any more";

    log.clear();
    CWatched withItsParent(log);
    withItsParent.Create(nullptr, L"", 0, CRect(0, 0, 10, 10), &m_window, 1);
    m_window.DestroyWindow();
    EXPECT_EQ(expected, log);
    EXPECT_EQ(nullptr, withItsParent.m_hWnd);
}

TEST_F(WindowMap, IdleLoopDeletesItsOwnTemporariesOnly)
{
    AfxDeleteTempMap();
    const HWND early =
        ::CreateWindowExW(0, L"STATIC", L"early", WS_CHILD, 0, 0, 9, 9, m_window, nullptr, nullptr, nullptr);
    const CWnd* const held = CWnd::FromHandle(early);
    const AFX_TEMP_MAPS& maps = AfxGetThreadState().temporary;
    ASSERT_EQ(1u, maps.windows.Count());
    CScriptDialog dialog(IDD_SMALL);
    HFONT font = nullptr;
    dialog.Then([&] {
        font = *dialog.GetDlgItem(IDOK)->GetFont();
        EXPECT_LT(1u, maps.windows.Count());
        EXPECT_EQ(1u, maps.fonts.Count());
    });
    dialog.Then([&] {
        EXPECT_EQ(1u, maps.windows.Count()) << "the waiting handler's";
        EXPECT_EQ(0u, maps.fonts.Count());
        EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), ::GetObjectType(font)) << "the font itself stays";
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ(held, CWnd::FromHandle(early));
    EXPECT_EQ(u"early", held->GetWindowText());
}
