// How a dialog handles messages from other programs while a modal window is open over it.
#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
/// A dialog that counts its button's clicks and its edit's changes.
class CCounting : public CScriptDialog
{
  public:
    explicit CCounting(CWnd* parent = nullptr) : CScriptDialog(IDD_OUTER, parent) {}
    int m_clicks = 0;
    int m_changes = 0;

  protected:
    DECLARE_MESSAGE_MAP()
    void OnLast() { ++m_clicks; }
    void OnFirst() { ++m_changes; }
};

BEGIN_MESSAGE_MAP(CCounting, CScriptDialog)
    ON_BN_CLICKED(IDC_OUTER_LAST, &CCounting::OnLast)
    ON_EN_CHANGE(IDC_OUTER_FIRST, &CCounting::OnFirst)
END_MESSAGE_MAP()

void Press(CWnd& dialog, int id)
{
    ::SendMessageW(::GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}
} // namespace

TEST(ModalBlocking, CommandsAndClosingWaitForTheModalWindow)
{
    CCounting outer;
    CScriptDialog inner(IDD_SMALL, &outer);
    INT_PTR innerResult = 0;
    outer.Then([&] { innerResult = inner.DoModal(); });
    inner.Then([&] {
        outer.SendMessage(WM_CLOSE);
        outer.SendMessage(WM_COMMAND, IDCANCEL);
        Press(outer, IDCANCEL);
        Press(outer, IDC_OUTER_LAST);
    });
    inner.Then([&] {
        EXPECT_FALSE(outer.IsWindowEnabled());
        EXPECT_EQ(0, outer.m_clicks);
    });
    outer.Then([&] {
        Press(outer, IDC_OUTER_LAST);
        EXPECT_EQ(1, outer.m_clicks);
    });
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_EQ(scriptEnded, innerResult);
}

TEST(ModalBlocking, NotificationsAreHandledAllTheSame)
{
    CCounting outer;
    CScriptDialog inner(IDD_SMALL, &outer);
    outer.Then([&] { inner.DoModal(); });
    inner.Then([&] {
        outer.GetDlgItem(IDC_OUTER_FIRST)->SetWindowText(u"new");
        EXPECT_EQ(1, outer.m_changes);
        EXPECT_EQ(inner.m_hWnd, ::GetActiveWindow());
    });
    EXPECT_EQ(scriptEnded, outer.DoModal());
}

TEST(ModalBlocking, ModalTopIsTheInnermostModalWindow)
{
    CHostWindow host;
    CCounting outer(&host);
    CScriptDialog middle(IDD_FIELDS, &outer);
    CScriptDialog inner(IDD_SMALL, &middle);
    CWnd tool;
    outer.Then([&] {
        EXPECT_EQ(outer.m_hWnd, AfxGetModalTop(outer));
        middle.DoModal();
    });
    middle.Then([&] {
        tool.CreateEx(WS_EX_TOOLWINDOW, nullptr, L"Tool", WS_POPUP | WS_VISIBLE, CRect(0, 0, 20, 20), &middle,
                      0);
        EXPECT_EQ(middle.m_hWnd, AfxGetModalTop(outer));
        inner.DoModal();
        tool.DestroyWindow();
    });
    inner.Then([&] {
        EXPECT_EQ(inner.m_hWnd, AfxGetModalTop(outer));
        const CMainWindowScope main(&outer);
        EXPECT_EQ(inner.m_hWnd, AfxGetModalOwner(nullptr)) << "what a message box is to open over";
    });
    EXPECT_EQ(scriptEnded, outer.DoModal());
}

TEST(ModalBlocking, BringingForwardRestoresTheDialogAndItsOwner)
{
    CHostWindow host;
    CCounting dialog(&host);
    dialog.Then([&] {
        dialog.ShowWindow(SW_MINIMIZE);
        ASSERT_TRUE(dialog.IsIconic());
        AfxBringForward(dialog);
        EXPECT_FALSE(dialog.IsIconic());
        host.ShowWindow(SW_MINIMIZE);
        ASSERT_TRUE(host.IsIconic());
        AfxBringForward(dialog);
        EXPECT_FALSE(host.IsIconic());
        EXPECT_TRUE(dialog.IsWindowVisible());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}
