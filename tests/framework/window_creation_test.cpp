#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

namespace
{
const std::map<UINT, std::string> watchedMessages = {
    {WM_NCCREATE, "WM_NCCREATE"},
    {WM_NCCALCSIZE, "WM_NCCALCSIZE"},
    {WM_CREATE, "WM_CREATE"},
    {WM_SIZE, "WM_SIZE"},
    {WM_MOVE, "WM_MOVE"},
    {WM_SETFONT, "WM_SETFONT"},
    {WM_INITDIALOG, "WM_INITDIALOG"},
    {WM_DESTROY, "WM_DESTROY"},
    {WM_NCDESTROY, "WM_NCDESTROY"},
};

template <class Base>
class CLogging : public Base
{
  public:
    using Base::Base;
    EventLog m_log;
    int m_createAnswer = 0;

  protected:
    void PreSubclassWindow() override { m_log.push_back("PreSubclassWindow"); }
    void PostNcDestroy() override { m_log.push_back("PostNcDestroy"); }
    void DoDataExchange(CDataExchange* exchange) override
    {
        m_log.push_back(exchange->m_bSaveAndValidate ? "exchange: save" : "exchange: show");
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (const auto known = watchedMessages.find(message); known != watchedMessages.end())
            m_log.push_back(known->second);
        if (message == WM_CREATE && m_createAnswer != 0)
            return m_createAnswer;
        return Base::WindowProc(message, wParam, lParam);
    }
};

class CLoggingDialog : public CLogging<CDialog>
{
  public:
    using CLogging<CDialog>::CLogging;

  protected:
    BOOL OnInitDialog() override
    {
        m_log.push_back("OnInitDialog");
        const BOOL result = CDialog::OnInitDialog();
        m_log.push_back("OnInitDialog ends");
        return result;
    }
};

class WindowCreation : public testing::Test
{
  protected:
    WindowCreation() { m_parent.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0); }
    CWnd m_parent;
};
} // namespace

TEST_F(WindowCreation, ObjectSeesEveryMessageFromTheFirst)
{
    CLogging<CWnd> child;
    ASSERT_TRUE(child.Create(nullptr, L"", WS_VISIBLE, CRect(5, 5, 50, 50), &m_parent, 3));
    EXPECT_EQ(
        (EventLog{"PreSubclassWindow", "WM_NCCREATE", "WM_NCCALCSIZE", "WM_CREATE", "WM_SIZE", "WM_MOVE"}),
        child.m_log);
    EXPECT_EQ(3, ::GetDlgCtrlID(child));
    EXPECT_EQ(&m_parent, child.GetParent());
}

TEST_F(WindowCreation, ControlsOfTheSystemToo)
{
    CLogging<CWnd> edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"hello", 0, CRect(5, 5, 50, 50), &m_parent, 3));
    ASSERT_LE(3u, edit.m_log.size());
    EXPECT_EQ("PreSubclassWindow", edit.m_log[0]);
    EXPECT_EQ("WM_NCCREATE", edit.m_log[1]);
    EXPECT_EQ(u"hello", edit.GetWindowText());
}

TEST_F(WindowCreation, WindowsMadeInBetweenAreNotTaken)
{
    /// Creates a plain control of its own during its creation.
    class CNesting : public CLogging<CWnd>
    {
      public:
        HWND m_inner = nullptr;

      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CREATE)
                m_inner = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, m_hWnd, nullptr, nullptr,
                                            nullptr);
            return CLogging<CWnd>::WindowProc(message, wParam, lParam);
        }
    };
    CNesting window;
    ASSERT_TRUE(window.Create(nullptr, L"", 0, CRect(5, 5, 50, 50), &m_parent, 3));
    ASSERT_NE(nullptr, window.m_inner);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window.m_inner));
    EXPECT_EQ(&window, CWnd::FromHandlePermanent(window.m_hWnd));
}

TEST_F(WindowCreation, RefusedCreationLeavesNothing)
{
    CLogging<CWnd> child;
    child.m_createAnswer = -1;
    EXPECT_FALSE(child.Create(nullptr, L"", 0, CRect(5, 5, 50, 50), &m_parent, 3));
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ("PostNcDestroy", child.m_log.back());
    EXPECT_EQ(nullptr, ::GetWindow(m_parent, GW_CHILD));
}

TEST_F(WindowCreation, RefusedBindingMakesNoWindow)
{
    class CRefusing : public CWnd
    {
      public:
        HWND m_seen = nullptr;
        int m_ends = 0;

      protected:
        void PreSubclassWindow() override
        {
            m_seen = m_hWnd;
            throw std::runtime_error("refused");
        }
        void PostNcDestroy() override { ++m_ends; }
    };
    CRecordingHook hook;
    CRefusing child;
    EXPECT_FALSE(child.Create(nullptr, L"", 0, CRect(5, 5, 50, 50), &m_parent, 3));
    ASSERT_NE(nullptr, child.m_seen);
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(child.m_seen));
    EXPECT_EQ(nullptr, ::GetWindow(m_parent, GW_CHILD));
    EXPECT_EQ(1, child.m_ends);
    ASSERT_EQ(1u, hook.m_boxes.size());
    EXPECT_EQ(u"refused", hook.m_boxes[0].text);

    const HWND plain =
        ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 9, 9, m_parent, nullptr, nullptr, nullptr);
    const LONG_PTR procedure = ::GetWindowLongPtrW(plain, GWLP_WNDPROC);
    EXPECT_THROW(child.SubclassWindow(plain), std::runtime_error);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ(procedure, ::GetWindowLongPtrW(plain, GWLP_WNDPROC));
}

TEST_F(WindowCreation, ObjectWithAWindowGetsNoSecondOne)
{
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, L"", 0, CRect(5, 5, 50, 50), &m_parent, 3));
    const HWND first = child.m_hWnd;
    EXPECT_FALSE(child.Create(nullptr, L"", 0, CRect(5, 5, 50, 50), &m_parent, 4));
    EXPECT_EQ(first, child.m_hWnd);
    EXPECT_EQ(nullptr, ::GetDlgItem(m_parent, 4));
}

TEST_F(WindowCreation, UnknownClassIsReported)
{
    CLogging<CWnd> child;
    EXPECT_FALSE(child.Create(L"no such class", L"", 0, CRect(5, 5, 50, 50), &m_parent, 3));
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ((EventLog{"PostNcDestroy"}), child.m_log);
    // The next window must not be bound to the failed object.
    CWnd next;
    ASSERT_TRUE(next.Create(nullptr, L"", 0, CRect(0, 0, 5, 5), &m_parent, 4));
    EXPECT_EQ(&next, CWnd::FromHandlePermanent(next.m_hWnd));
}

TEST_F(WindowCreation, ModelessDialogIsInitialisedOnce)
{
    CLoggingDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_INNER, &m_parent));
    EventLog dialogEvents;
    for (const std::string& event : dialog.m_log) {
        if (event != "WM_NCCALCSIZE" && event != "WM_SIZE" && event != "WM_MOVE")
            dialogEvents.push_back(event);
    }
    EXPECT_EQ((EventLog{"PreSubclassWindow", "WM_NCCREATE", "WM_CREATE", "WM_SETFONT", "WM_INITDIALOG",
                        "OnInitDialog", "exchange: show", "OnInitDialog ends"}),
              dialogEvents);
    EXPECT_EQ(&m_parent, dialog.GetParent());
    dialog.m_log.clear();
    m_parent.DestroyWindow();
    EXPECT_EQ((EventLog{"WM_DESTROY", "WM_NCDESTROY", "PostNcDestroy"}), dialog.m_log);
}

TEST_F(WindowCreation, ClassesAreRegisteredOnceForEachLook)
{
    const LPCWSTR plain = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_EQ(plain, AfxRegisterWndClass(CS_DBLCLKS));
    EXPECT_STRNE(plain, AfxRegisterWndClass(CS_HREDRAW));
}

TEST_F(WindowCreation, WrappersDoWhatTheySay)
{
    CWnd child;
    child.Create(nullptr, L"one", 0, CRect(5, 6, 55, 66), &m_parent, 3);
    CRect place;
    child.GetWindowRect(&place);
    m_parent.ScreenToClient(&place);
    EXPECT_EQ(CRect(5, 6, 55, 66), place);
    child.MoveWindow(CRect(1, 2, 11, 22));
    child.GetClientRect(&place);
    EXPECT_EQ(CRect(0, 0, 10, 20), place);
    child.SetWindowText(u"two");
    EXPECT_EQ(u"two", child.GetWindowText());
    child.SetWindowText({});
    EXPECT_EQ(u"", child.GetWindowText());
    EXPECT_FALSE(child.EnableWindow(FALSE));
    EXPECT_FALSE(child.IsWindowEnabled());
    EXPECT_EQ(&child, m_parent.GetDlgItem(3));

    SCROLLINFO info{};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 30;
    m_parent.SetScrollInfo(SB_VERT, &info);
    SCROLLINFO read{};
    EXPECT_TRUE(m_parent.GetScrollInfo(SB_VERT, &read));
    EXPECT_EQ(30, read.nPos);
    EXPECT_EQ(10u, read.nPage);
    EXPECT_EQ(30, m_parent.GetScrollPos(SB_VERT));
}
