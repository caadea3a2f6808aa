// Which windows see a message before it is dispatched, and which of them handles keys.
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

namespace
{
constexpr UINT probe = WM_APP + 9;

/// Records that it saw the probe message, and can handle it.
class CNoting : public CScriptDialog
{
  public:
    CNoting(UINT id, CWnd* parent, EventLog& log, std::string name)
        : CScriptDialog(id, parent), m_log(log), m_name(std::move(name))
    {
    }
    bool m_take = false;
    HWND m_seenFocus = nullptr; ///< the focus at the last message that it saw

    BOOL PreTranslateMessage(MSG* message) override
    {
        m_seenFocus = ::GetFocus();
        if (message->message == probe) {
            m_log.push_back(m_name);
            if (m_take)
                return TRUE;
        }
        return CScriptDialog::PreTranslateMessage(message);
    }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == probe)
            m_log.push_back(m_name + " dispatched");
        return CScriptDialog::WindowProc(message, wParam, lParam);
    }

  private:
    EventLog& m_log;
    std::string m_name;
};

/// Owns the main window, so it is not asked.
class CNotingHost : public CHostWindow
{
  public:
    EventLog m_log;
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == probe)
            m_log.push_back("host");
        return CHostWindow::PreTranslateMessage(message);
    }
};

class PreTranslation : public testing::Test
{
  protected:
    EventLog log;
    CNotingHost host;
    CNoting outer{IDD_OUTER, &host, log, "outer"};
    CMainWindowScope mainWindow{&outer};
};

/// A window with a multi-line edit that is owned by another window but is not a dialog.
class CPopup : public CWnd
{
  public:
    explicit CPopup(CWnd& owner)
    {
        CreateEx(0, nullptr, L"Popup", WS_POPUP | WS_VISIBLE, CRect(50, 50, 250, 200), &owner, 0);
        m_edit.Create(L"EDIT", L"", WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 100, 50), this, 5);
    }
    CEdit m_edit;
};
} // namespace

TEST_F(PreTranslation, GoesFromTheInnermostOutToTheMainWindow)
{
    CNoting page(0, nullptr, log, "page");
    outer.m_onInit = [&] { page.Create(IDD_INNER, &outer); };
    outer.Then([&] { page.PostMessage(probe); });
    outer.Then([&] {
        // Starts at a plain control inside, which has no permanent object.
        ::PostMessageW(::GetDlgItem(page, IDC_INNER_FIRST), probe, 0, 0);
    });
    outer.Then([&] {
        page.m_take = true;
        page.PostMessage(probe);
    });
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_EQ((EventLog{"page", "outer", "page dispatched", "page", "outer", "page"}), log);
    EXPECT_EQ(EventLog{}, host.m_log);
}

TEST_F(PreTranslation, GoesOnFromAModalDialogToItsOwner)
{
    CNoting inner(IDD_FIELDS, &outer, log, "inner");
    outer.Then([&] { inner.DoModal(); });
    inner.Then([&] { ::PostMessageW(::GetDlgItem(inner, IDC_FIELDS_EDIT), probe, 0, 0); });
    inner.Then([&] {
        inner.m_take = true;
        inner.PostMessage(probe);
    });
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_EQ((EventLog{"inner", "outer", "inner"}), log);
    EXPECT_EQ(EventLog{}, host.m_log);
}

TEST_F(PreTranslation, WithoutAMainWindowGoesOnToTheOutermostOwner)
{
    const CMainWindowScope none(nullptr);
    outer.Then([&] { outer.PostMessage(probe); });
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_EQ((EventLog{"outer", "outer dispatched"}), log);
    EXPECT_EQ(EventLog{"host"}, host.m_log);
}

TEST_F(PreTranslation, OuterDialogLearnsOfANewFocusInAnInnerOneWithoutAnyOtherMessage)
{
    CNoting inner(IDD_SMALL, &outer, log, "inner");
    // Windows that do not draw when they get the focus.
    CWnd first;
    CWnd second;
    inner.m_onInit = [&] {
        for (CWnd* const window : {&first, &second})
            window->Create(nullptr, L"", WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 10, 10), &inner, 5);
    };
    outer.Then([&] { inner.DoModal(); });
    for (CWnd* const window : {&first, &second}) {
        inner.Then([window] { window->SetFocus(); });
        inner.Then([&, window] { EXPECT_EQ(window->m_hWnd, outer.m_seenFocus); });
    }
    EXPECT_EQ(scriptEnded, outer.DoModal());
}

TEST_F(PreTranslation, TabInAnInnerDialogMovesTheFocusOnce)
{
    CNoting inner(IDD_OUTER, &outer, log, "inner");
    outer.Then([&] { inner.DoModal(); });
    for (int key = 0; key < 3; ++key)
        inner.PressKey(VK_TAB).NoteFocus();
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_EQ((std::vector<int>{IDC_OUTER_LAST, IDCANCEL, IDC_OUTER_FIRST}), inner.m_focusIds);
}

TEST_F(PreTranslation, KeysOfAnInnerDialogAreHandledThereOnly)
{
    CNoting inner(IDD_SMALL, &outer, log, "inner");
    INT_PTR innerResult = 0;
    bool wentOn = false;
    outer.Then([&] { innerResult = inner.DoModal(); });
    inner.PressKey(VK_ESCAPE);
    outer.Then([&] { wentOn = true; });
    EXPECT_EQ(scriptEnded, outer.DoModal());
    EXPECT_EQ(IDCANCEL, innerResult);
    EXPECT_TRUE(wentOn) << "the outer dialog has taken the key, too";
}

TEST_F(PreTranslation, DialogLeavesTheKeysOfWindowsThatItOwnsAlone)
{
    std::unique_ptr<CPopup> popup;
    outer.Then([&] {
        popup = std::make_unique<CPopup>(outer);
        ::PostMessageW(popup->m_edit, WM_KEYDOWN, VK_ESCAPE, 1);
        ::PostMessageW(popup->m_edit, WM_CHAR, L'x', 1);
    });
    outer.Then([&] {
        EXPECT_EQ(u"x", popup->m_edit.GetWindowText());
        popup.reset();
    });
    EXPECT_EQ(scriptEnded, outer.DoModal()) << "Escape has cancelled the dialog";
}
