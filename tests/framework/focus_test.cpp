#include "framework/focus.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
/// A dialog with a page below its own controls. The tab order is: the dialog's First, Last, Cancel; the
/// page's First, Button, Lines, Last.
class COuter : public CScriptDialog
{
  public:
    COuter() : CScriptDialog(IDD_OUTER)
    {
        m_onInit = [this] {
            m_page.Create(IDD_INNER, this);
            m_page.ShowWindow(SW_SHOW);
        };
    }
    CDialog m_page;

    CWnd& Item(int id) { return *GetDlgItem(id); }
    CWnd& OnPage(int id) { return *m_page.GetDlgItem(id); }
};
} // namespace

TEST(Focus, GoesToTheNextTabStopFromAControlThatIsDisabled)
{
    COuter dialog;
    dialog.Then([&] {
        dialog.Item(IDC_OUTER_LAST).SetFocus();
        dialog.Item(IDC_OUTER_LAST).EnableWindow(FALSE);
        EXPECT_EQ(IDCANCEL, FocusedId());
        dialog.OnPage(IDC_INNER_BUTTON).SetFocus();
        dialog.OnPage(IDC_INNER_BUTTON).ShowWindow(SW_HIDE);
        EXPECT_EQ(IDC_INNER_LINES, FocusedId());
        // After the last control the search continues at the first and skips disabled ones.
        dialog.Item(IDC_OUTER_FIRST).EnableWindow(FALSE);
        dialog.OnPage(IDC_INNER_LAST).SetFocus();
        dialog.OnPage(IDC_INNER_LAST).EnableWindow(FALSE);
        EXPECT_EQ(IDCANCEL, FocusedId());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Focus, LeavesAPageThatIsHiddenOrDisabled)
{
    for (const bool hide : {true, false}) {
        COuter dialog;
        dialog.Then([&] {
            dialog.OnPage(IDC_INNER_BUTTON).SetFocus();
            if (hide)
                dialog.m_page.ShowWindow(SW_HIDE);
            else
                dialog.m_page.EnableWindow(FALSE);
            EXPECT_EQ(IDC_OUTER_FIRST, FocusedId());
        });
        EXPECT_EQ(scriptEnded, dialog.DoModal());
    }
}

TEST(Focus, StaysWhereItIsWhenSomethingElseIsHiddenOrDisabled)
{
    COuter dialog;
    dialog.Then([&] {
        dialog.Item(IDC_OUTER_LAST).SetFocus();
        dialog.Item(IDC_OUTER_FIRST).EnableWindow(FALSE);
        dialog.m_page.ShowWindow(SW_HIDE);
        EXPECT_EQ(IDC_OUTER_LAST, FocusedId());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Focus, IsNotSetToWhatCannotHoldIt)
{
    COuter dialog;
    dialog.Then([&] {
        dialog.Item(IDC_OUTER_LAST).SetFocus();
        dialog.m_page.ShowWindow(SW_HIDE);
        dialog.OnPage(IDC_INNER_FIRST).SetFocus();
        EXPECT_EQ(IDC_OUTER_LAST, FocusedId());
        dialog.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.OnPage(IDC_INNER_FIRST).m_hWnd),
                           TRUE);
        EXPECT_EQ(IDC_OUTER_LAST, FocusedId());
        dialog.SendMessage(WM_NEXTDLGCTL, 0, FALSE);
        EXPECT_EQ(IDCANCEL, FocusedId());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Focus, OnAHiddenControlIsRepairedBeforeTheLoopWaits)
{
    COuter dialog;
    dialog.Then([&] {
        dialog.m_page.ShowWindow(SW_HIDE);
        ::SetFocus(dialog.OnPage(IDC_INNER_LINES));
        EXPECT_EQ(IDC_INNER_LINES, FocusedId());
    });
    dialog.NoteFocus();
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ(std::vector<int>{IDC_OUTER_FIRST}, dialog.m_focusIds);
}

TEST(Focus, KeyTypedIntoAHiddenControlIsForNobody)
{
    COuter dialog;
    dialog.Then([&] {
        dialog.m_page.ShowWindow(SW_HIDE);
        ::SetFocus(dialog.OnPage(IDC_INNER_FIRST));
        // Retrieved before the loop is idle.
        ::PostMessageW(dialog.OnPage(IDC_INNER_FIRST), WM_CHAR, L'z', 1);
    });
    dialog.Then([&] { EXPECT_EQ(u"", dialog.OnPage(IDC_INNER_FIRST).GetWindowText()); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Focus, NavigationFromAHiddenControlStartsAtItsSuccessor)
{
    COuter dialog;
    dialog.Then([&] {
        dialog.m_page.ShowWindow(SW_HIDE);
        ::SetFocus(dialog.OnPage(IDC_INNER_LINES));
        dialog.SendMessage(WM_NEXTDLGCTL, 0, FALSE);
        EXPECT_EQ(IDC_OUTER_LAST, FocusedId());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Focus, IsNotGivenBackToAControlHiddenWhileTheDialogWasInactive)
{
    CHostWindow other;
    COuter dialog;
    dialog.Then([&] {
        dialog.OnPage(IDC_INNER_BUTTON).SetFocus();
        ::SetActiveWindow(other);
        dialog.m_page.ShowWindow(SW_HIDE);
        ::SetActiveWindow(dialog);
        EXPECT_EQ(IDC_OUTER_FIRST, FocusedId());
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Focus, CanBeHeldUnderADisabledTopLevelWindowOnly)
{
    COuter dialog;
    dialog.Then([&] {
        const HWND control = dialog.OnPage(IDC_INNER_BUTTON);
        EXPECT_TRUE(AfxCanHoldFocus(control));
        dialog.EnableWindow(FALSE);
        EXPECT_TRUE(AfxCanHoldFocus(control)) << "a modal window may be open over the dialog";
        dialog.EnableWindow();
        ::EnableWindow(dialog.m_page, FALSE);
        EXPECT_FALSE(AfxCanHoldFocus(control));
        ::EnableWindow(dialog.m_page, TRUE);
        ::ShowWindow(dialog.m_page, SW_HIDE);
        EXPECT_FALSE(AfxCanHoldFocus(control));
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}
