#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
class CRefusingDialog : public CScriptDialog
{
  public:
    using CScriptDialog::CScriptDialog;
    bool m_refuse = false;
    int m_exchanges = 0;

  protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        ++m_exchanges;
        if (m_refuse)
            exchange->Fail();
    }
};

/// A child window that records messages about the system's appearance.
class CListeningWindow : public CWnd
{
  public:
    std::vector<UINT> m_heard;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE || message == WM_THEMECHANGED)
            m_heard.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

void PressButton(CDialog& dialog, int id)
{
    dialog.PostMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}
} // namespace

TEST(Dialog, ButtonsEndItWithTheirIds)
{
    CRefusingDialog dialog(IDD_SMALL);
    dialog.Then([&] { PressButton(dialog, IDOK); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(2, dialog.m_exchanges) << "once to show, once to save";
    EXPECT_EQ(nullptr, dialog.m_hWnd);

    CRefusingDialog cancelled(IDD_SMALL);
    cancelled.Then([&] { PressButton(cancelled, IDCANCEL); });
    EXPECT_EQ(IDCANCEL, cancelled.DoModal());
    EXPECT_EQ(1, cancelled.m_exchanges) << "nothing is saved";
}

TEST(Dialog, RefusedValueKeepsItOpen)
{
    CRefusingDialog dialog(IDD_SMALL);
    dialog.Then([&] {
        dialog.m_refuse = true;
        PressButton(dialog, IDOK);
    });
    dialog.Then([&] { EXPECT_TRUE(dialog.IsWindowVisible()); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
}

TEST(Dialog, RefusedInitialValueEndsItWithMinusOne)
{
    CRefusingDialog dialog(IDD_SMALL);
    dialog.m_refuse = true;
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(Dialog, MissingTemplateIsMinusOne)
{
    CDialog dialog(IDD_MISSING);
    EXPECT_EQ(-1, dialog.DoModal());
    CDialog modeless;
    EXPECT_FALSE(modeless.Create(IDD_MISSING));
    EXPECT_EQ(nullptr, modeless.m_hWnd);
}

TEST(Dialog, MayEndInItsInitialisation)
{
    CScriptDialog dialog(IDD_SMALL);
    bool looped = false;
    dialog.m_onInit = [&] { dialog.EndDialog(12); };
    dialog.Then([&] { looped = true; });
    EXPECT_EQ(12, dialog.DoModal());
    EXPECT_FALSE(looped);
    EXPECT_EQ(nullptr, dialog.m_hWnd);

    CScriptDialog modeless(0);
    modeless.m_onInit = [&] { modeless.EndDialog(12); };
    EXPECT_FALSE(modeless.Create(IDD_SMALL));
    EXPECT_EQ(nullptr, modeless.m_hWnd);
}

TEST(Dialog, MayBeRunAgain)
{
    CScriptDialog dialog(IDD_SMALL);
    dialog.Then([&] { dialog.EndDialog(1); });
    EXPECT_EQ(1, dialog.DoModal());
    dialog.Then([&] { dialog.EndDialog(2); });
    EXPECT_EQ(2, dialog.DoModal());
}

TEST(Dialog, InitialFocusFollowsTheAnswer)
{
    CScriptDialog first(IDD_FIELDS);
    first.NoteFocus();
    first.DoModal();
    EXPECT_EQ((std::vector<int>{IDC_FIELDS_EDIT}), first.m_focusIds) << "TRUE: the first control";

    CScriptDialog own(IDD_FIELDS);
    own.m_initResult = [&]() -> BOOL {
        own.GetDlgItem(IDC_FIELDS_CHECK)->SetFocus();
        return FALSE;
    };
    own.NoteFocus();
    own.DoModal();
    EXPECT_EQ((std::vector<int>{IDC_FIELDS_CHECK}), own.m_focusIds) << "FALSE: left as set";
}

// Records its position just before it is shown, because a window manager may move it later.
class CPlacedDialog : public CScriptDialog
{
  public:
    using CScriptDialog::CScriptDialog;

    CRect m_place;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SHOWWINDOW)
            GetWindowRect(&m_place);
        return CScriptDialog::WindowProc(message, wParam, lParam);
    }
};

TEST(Dialog, WithoutAPlaceItIsCentredOverItsOwner)
{
    CHostWindow host;
    CRect owner;
    host.GetWindowRect(&owner);
    CPlacedDialog dialog(IDD_SMALL, &host);
    dialog.Then([] {});
    dialog.DoModal();
    const CRect place = dialog.m_place;
    // The sums of opposite edges, which are twice the centres.
    EXPECT_NEAR(owner.left + owner.right, place.left + place.right, 2);
    EXPECT_NEAR(owner.top + owner.bottom, place.top + place.bottom, 2);
}

TEST(Dialog, ModelessEndIsHidden)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SMALL));
    dialog.ShowWindow(SW_SHOW);
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_NE(nullptr, dialog.m_hWnd);
    EXPECT_FALSE(dialog.IsWindowVisible());
}

TEST(Dialog, DeletingTheObjectDestroysTheWindow)
{
    HWND window = nullptr;
    {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_SMALL));
        window = dialog.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST(Dialog, TellsEveryDescendantOfTheSystemsAppearanceOnce)
{
    CDialog dialog(IDD_SMALL);
    ASSERT_TRUE(dialog.Create(IDD_SMALL));
    CListeningWindow child;
    CListeningWindow grandchild;
    const CRect place(0, 0, 10, 10);
    ASSERT_TRUE(child.Create(L"STATIC", nullptr, WS_CHILD | WS_VISIBLE, place, &dialog, 1));
    ASSERT_TRUE(grandchild.Create(L"STATIC", nullptr, WS_CHILD | WS_VISIBLE, place, &child, 1));
    const std::vector<UINT> changes = {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_THEMECHANGED};
    for (const UINT change : changes)
        dialog.SendMessage(change);
    EXPECT_EQ(changes, child.m_heard);
    EXPECT_EQ(changes, grandchild.m_heard);
}

TEST(Dialog, ThatIsAChildLeavesTellingToTheOutermost)
{
    CDialog dialog(IDD_SMALL);
    ASSERT_TRUE(dialog.Create(IDD_SMALL));
    CDialog page(IDD_INNER);
    ASSERT_TRUE(page.Create(IDD_INNER, &dialog));
    CListeningWindow control;
    ASSERT_TRUE(control.Create(L"STATIC", nullptr, WS_CHILD, CRect(0, 0, 10, 10), &page, 1));
    dialog.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ((std::vector<UINT>{WM_SYSCOLORCHANGE}), control.m_heard);
    page.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(1u, control.m_heard.size());
}
