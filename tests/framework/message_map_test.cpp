#include "framework/afxwin.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
constexpr UINT messageOfBase = WM_APP + 1;
constexpr UINT messageOfBoth = WM_APP + 2;

class CBaseWindow : public CWnd
{
  public:
    EventLog m_log;

  protected:
    DECLARE_MESSAGE_MAP()
    LRESULT OnBase(WPARAM wParam, LPARAM lParam)
    {
        m_log.push_back("base message");
        return static_cast<LRESULT>(wParam) + lParam;
    }
    LRESULT OnBoth(WPARAM, LPARAM)
    {
        m_log.push_back("base's both");
        return 1;
    }
    void OnBaseCommand() { m_log.push_back("base command"); }
};

class CMappedWindow : public CBaseWindow
{
  public:
    LRESULT m_notifyAnswer = 0;
    BOOL m_wheelAnswer = TRUE;
    CSize m_size;
    CWnd* m_sender = nullptr;

  protected:
    DECLARE_MESSAGE_MAP()
    LRESULT OnBoth(WPARAM, LPARAM)
    {
        m_log.push_back("derived's both");
        return 2;
    }
    void OnPressed() { m_log.push_back("pressed"); }
    void OnChanged() { m_log.push_back("changed"); }
    void OnNotified(NMHDR* header, LRESULT* result)
    {
        m_log.push_back("notified by " + std::to_string(header->idFrom));
        *result = m_notifyAnswer;
    }
    void OnSize(UINT kind, int width, int height)
    {
        CWnd::OnSize(kind, width, height);
        m_size = CSize(width, height);
    }
    void OnVScroll(UINT code, UINT position, CWnd* sender)
    {
        m_log.push_back("scroll " + std::to_string(code) + " at " + std::to_string(position));
        m_sender = sender;
    }
    void OnTimer(UINT_PTR id)
    {
        m_log.push_back("timer " + std::to_string(id));
        KillTimer(id);
    }
    BOOL OnMouseWheel(UINT keys, short delta, CPoint point)
    {
        m_log.push_back("wheel " + std::to_string(keys) + " " + std::to_string(delta) + " at " +
                        std::to_string(point.x) + "," + std::to_string(point.y));
        return m_wheelAnswer;
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_MOUSEWHEEL) {
            m_log.push_back("wheel's default");
            return 0;
        }
        return CBaseWindow::DefWindowProc(message, wParam, lParam);
    }
};

BEGIN_MESSAGE_MAP(CBaseWindow, CWnd)
    ON_MESSAGE(messageOfBase, &CBaseWindow::OnBase)
    ON_MESSAGE(messageOfBoth, &CBaseWindow::OnBoth)
    ON_COMMAND(7, &CBaseWindow::OnBaseCommand)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMappedWindow, CBaseWindow)
    ON_MESSAGE(messageOfBoth, &CMappedWindow::OnBoth)
    ON_BN_CLICKED(8, &CMappedWindow::OnPressed)
    ON_EN_CHANGE(8, &CMappedWindow::OnChanged)
    ON_NOTIFY(LVN_ITEMCHANGED, 30, &CMappedWindow::OnNotified)
    ON_WM_SIZE()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_TIMER()
END_MESSAGE_MAP()

class MessageMap : public testing::Test
{
  protected:
    MessageMap()
    {
        m_window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 200, 100), nullptr, 0);
        m_control.Create(L"STATIC", L"", 0, CRect(0, 0, 10, 10), &m_window, 8);
        m_window.m_log.clear();
    }
    LRESULT Notify(UINT code, UINT_PTR id)
    {
        NMHDR header{m_control.m_hWnd, id, code};
        return m_window.SendMessage(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
    }
    LRESULT Command(UINT code, UINT id)
    {
        return m_window.SendMessage(WM_COMMAND, MAKEWPARAM(id, code),
                                    reinterpret_cast<LPARAM>(m_control.m_hWnd));
    }

    CMappedWindow m_window;
    CWnd m_control;
};
} // namespace

TEST_F(MessageMap, DerivedMapIsSearchedBeforeTheBases)
{
    EXPECT_EQ(2, m_window.SendMessage(messageOfBoth));
    EXPECT_EQ(42, m_window.SendMessage(messageOfBase, 40, 2));
    EXPECT_EQ((EventLog{"derived's both", "base message"}), m_window.m_log);
}

TEST_F(MessageMap, CommandsFromMenusReachTheCommandEntry)
{
    m_window.SendMessage(WM_COMMAND, 7);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(7, 1)); // an accelerator
    EXPECT_EQ((EventLog{"base command", "base command"}), m_window.m_log);
}

TEST_F(MessageMap, ControlsAreToldApartByCodeAndId)
{
    EXPECT_EQ(1, Command(BN_CLICKED, 8));
    EXPECT_EQ(1, Command(EN_CHANGE, 8));
    EXPECT_EQ(0, Command(EN_CHANGE, 9));
    EXPECT_EQ(0, Command(EN_UPDATE, 8));
    EXPECT_EQ((EventLog{"pressed", "changed"}), m_window.m_log);
}

TEST_F(MessageMap, NotificationAnswersTheControl)
{
    m_window.m_notifyAnswer = 5;
    EXPECT_EQ(5, Notify(static_cast<UINT>(LVN_ITEMCHANGED), 30));
    EXPECT_EQ(0, Notify(static_cast<UINT>(LVN_ITEMCHANGED), 31));
    EXPECT_EQ(0, Notify(static_cast<UINT>(LVN_ITEMCHANGING), 30));
    EXPECT_EQ((EventLog{"notified by 30"}), m_window.m_log);
}

TEST_F(MessageMap, CommandMessagesAreRoutedByHand)
{
    EXPECT_TRUE(m_window.OnCmdMsg(7, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(m_window.OnCmdMsg(77, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ((EventLog{"base command"}), m_window.m_log);
}

TEST_F(MessageMap, PackedParametersAreUnpacked)
{
    m_window.SetWindowPos(nullptr, 0, 0, 50, 60, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(CSize(50, 60), m_window.m_size);
    m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 40000),
                         reinterpret_cast<LPARAM>(m_control.m_hWnd));
    EXPECT_EQ(&m_control, m_window.m_sender);
    m_window.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(nullptr, m_window.m_sender);
    EXPECT_EQ((EventLog{"scroll 5 at 40000", "scroll 1 at 0"}), m_window.m_log);
}

TEST_F(MessageMap, RefusedWheelGoesOnToTheDefault)
{
    const WPARAM wheel = MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120));
    const LPARAM place = MAKELPARAM(static_cast<WORD>(-5), 7);
    EXPECT_EQ(TRUE, m_window.SendMessage(WM_MOUSEWHEEL, wheel, place));
    m_window.m_wheelAnswer = FALSE;
    EXPECT_EQ(FALSE, m_window.SendMessage(WM_MOUSEWHEEL, wheel, place));
    EXPECT_EQ((EventLog{"wheel 8 -120 at -5,7", "wheel 8 -120 at -5,7", "wheel's default"}), m_window.m_log);
}

TEST_F(MessageMap, TimerTellsItsId)
{
    ASSERT_NE(0u, m_window.SetTimer(101, 1));
    MSG message{};
    ASSERT_GT(::GetMessageW(&message, m_window, WM_TIMER, WM_TIMER), 0);
    ::DispatchMessageW(&message);
    EXPECT_EQ((EventLog{"timer 101"}), m_window.m_log);
    EXPECT_FALSE(m_window.KillTimer(101)) << "it has been stopped";
}

TEST_F(MessageMap, RealControlNotifiesItsParent)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(0, 0, 50, 20), &m_window, 8));
    edit.SetWindowText(u"x");
    EXPECT_EQ((EventLog{"changed"}), m_window.m_log);
}
