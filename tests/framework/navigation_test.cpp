#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
using Ids = std::vector<int>;

/// A page inside the dialog; it counts the clicks of its button.
class CPage : public CDialog
{
  public:
    int m_pushes = 0;

  protected:
    DECLARE_MESSAGE_MAP()
    void OnPush() { ++m_pushes; }
};

BEGIN_MESSAGE_MAP(CPage, CDialog)
    ON_BN_CLICKED(IDC_INNER_BUTTON, &CPage::OnPush)
END_MESSAGE_MAP()

/// A dialog with a page below its own controls.
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
    CScriptDialog& FocusOn(CWnd& parent, int id)
    {
        return Then([&parent, id] { ::SetFocus(::GetDlgItem(parent, id)); });
    }
    CPage m_page;
    int m_lastPushed = 0;

  protected:
    DECLARE_MESSAGE_MAP()
    void OnLast() { ++m_lastPushed; }
};

BEGIN_MESSAGE_MAP(COuter, CScriptDialog)
    ON_BN_CLICKED(IDC_OUTER_LAST, &COuter::OnLast)
END_MESSAGE_MAP()
} // namespace

TEST(Navigation, TabGoesThroughThePageAndOut)
{
    COuter dialog;
    for (int i = 0; i < 7; ++i)
        dialog.NoteFocus().PressKey(VK_TAB);
    dialog.NoteFocus();
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ((Ids{IDC_OUTER_FIRST, IDC_OUTER_LAST, IDCANCEL, IDC_INNER_FIRST, IDC_INNER_BUTTON,
                   IDC_INNER_LINES, IDC_INNER_LAST, IDC_OUTER_FIRST}),
              dialog.m_focusIds);
}

TEST(Navigation, ShiftTabGoesBackAcrossTheBorder)
{
    COuter dialog;
    for (int i = 0; i < 7; ++i)
        dialog.NoteFocus().PressShiftTab();
    dialog.NoteFocus();
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ((Ids{IDC_OUTER_FIRST, IDC_INNER_LAST, IDC_INNER_LINES, IDC_INNER_BUTTON, IDC_INNER_FIRST,
                   IDCANCEL, IDC_OUTER_LAST, IDC_OUTER_FIRST}),
              dialog.m_focusIds);
}

TEST(Navigation, MnemonicsReachIntoThePage)
{
    COuter dialog;
    dialog.PressMnemonic(L'p');
    dialog.Then([&] { EXPECT_EQ(1, dialog.m_page.m_pushes); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ(0, dialog.m_lastPushed);
}

TEST(Navigation, MnemonicsReachOutOfThePage)
{
    COuter dialog;
    dialog.FocusOn(dialog.m_page, IDC_INNER_FIRST);
    dialog.PressMnemonic(L'l');
    dialog.Then([&] { EXPECT_EQ(1, dialog.m_lastPushed); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ(0, dialog.m_page.m_pushes);
}

TEST(Navigation, EscapeCancelsFromWithinThePage)
{
    for (const int id : {IDC_INNER_FIRST, IDC_INNER_LINES}) {
        COuter dialog;
        dialog.FocusOn(dialog.m_page, id);
        dialog.PressKey(VK_ESCAPE);
        bool wentOn = false;
        dialog.Then([&] { wentOn = true; });
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
        EXPECT_FALSE(wentOn);
    }
}

TEST(Navigation, EnterPressesTheDefaultButton)
{
    CScriptDialog dialog(IDD_SMALL);
    dialog.PressKey(VK_RETURN);
    dialog.Then([] {});
    EXPECT_EQ(IDOK, dialog.DoModal());
}
