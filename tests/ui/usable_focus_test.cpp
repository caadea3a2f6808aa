// The keyboard focus never stays on a hidden or disabled control: from there the next letter would search
// for a mnemonic endlessly.
#include "pages/branding/ids.h"
#include "pages/scan_period/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/value_editor.h"

using namespace uidriver;

namespace
{

constexpr const char* FixedPeriod =
    "_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 0, 0, 1, 8, 2007, 1, 0, 0, 0, 6, 5, 2016, 1\"\r\n";

class UsableFocusTest : public DialogSession
{
  protected:
    /// Selects the category as accessibility tools do: with a message to the list, which may not have
    /// the focus.
    void SelectByMessage(const std::wstring& title)
    {
        const HWND before = Page();
        ASSERT_TRUE(ShowPage(title));
        ASSERT_NE(before, Page());
    }

    static constexpr unsigned FocusDeadline = 3000;

    /// Expects the category list to have the focus and the dialog to accept keys.
    void ExpectListFocused()
    {
        // On activation the system restores the old focus before the dialog can correct it.
        ASSERT_TRUE(Await([&] { return FocusIn(Dialog()) == List(); }, FocusDeadline));
        ExpectKeysHandled();
    }
    void ExpectKeysHandled()
    {
        PostKey(Dialog(), VK_SPACE);
        PostMessageW(FocusIn(Dialog()), WM_CHAR, L'z', 1);
        EXPECT_TRUE(Settle(Dialog()));
    }

    /// Activates the window until the dialog has lost or regained the focus. An earlier activation by the
    /// window manager may still be pending and arrive after the first attempt.
    bool Activate(HWND window)
    {
        const bool dialog = window == Dialog();
        return Await([&] {
            const bool focused = FocusIn(Dialog()) != nullptr;
            return focused == dialog || (SetForegroundWindow(window), false);
        });
    }
};

TEST_F(UsableFocusTest, LeavesAPageWhoseCategoryIsLeft)
{
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_RENAME));
    ASSERT_NO_FATAL_FAILURE(SelectByMessage(L"Conforming"));
    ExpectListFocused();
    Cancel();
}

TEST_F(UsableFocusTest, LeavesAPageThatWasLeftWhileTheDialogWasInactive)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(BringToForeground(Dialog()));
    Focus(PageControl(IDC_BRANDING_RENAME));
    HWND other = CreateWindowExW(0, L"Static", L"Other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 80,
                                 nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(Activate(other));
    ASSERT_NO_FATAL_FAILURE(SelectByMessage(L"Conforming"));
    ASSERT_TRUE(Activate(Dialog()));
    ExpectListFocused();
    DestroyWindow(other);
    Cancel();
}

TEST_F(UsableFocusTest, LeavesAPageThatWasLeftUnderTheListEditor)
{
    ASSERT_TRUE(Open());
    Focus(PageControl(IDC_BRANDING_RENAME_BROWSE));
    HWND editor = OpenValueEditor(PageControl(IDC_BRANDING_RENAME_BROWSE));
    ASSERT_TRUE(editor);
    ASSERT_NO_FATAL_FAILURE(SelectByMessage(L"Conforming"));
    CloseValueEditor(editor, IDCANCEL);
    ExpectListFocused();
    Cancel();
}

TEST_F(UsableFocusTest, OpenListsAndCalendarsCloseWithTheirPage)
{
    UseCurrent(FixedPeriod);
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    const HWND picker = PageControl(IDC_SCAN_PERIOD_DATE_1);
    const HWND combo = PageControl(IDC_SCAN_PERIOD_MODE_1);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetComboBoxInfo(combo, &info));
    // Opened by a message, they do not have the focus, so losing the focus does not close them.
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    ASSERT_TRUE(IsWindowVisible(info.hwndList));
    ASSERT_NO_FATAL_FAILURE(SelectByMessage(L"Conforming"));
    EXPECT_FALSE(IsWindowVisible(info.hwndList));

    ASSERT_NO_FATAL_FAILURE(SelectByMessage(L"Scan Period"));
    RECT client = {};
    GetClientRect(picker, &client);
    ClickAt(picker, {client.right - 5, client.bottom / 2});
    const HWND calendar = reinterpret_cast<HWND>(Send(picker, DTM_GETMONTHCAL));
    ASSERT_TRUE(IsWindowVisible(calendar));
    ASSERT_NO_FATAL_FAILURE(SelectByMessage(L"Conforming"));
    EXPECT_FALSE(IsWindowVisible(calendar));
    ExpectListFocused();
    Cancel();
}

TEST_F(UsableFocusTest, LeavesAControlThatIsHiddenOnItsPage)
{
    UseCurrent(FixedPeriod);
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    Focus(PageControl(IDC_SCAN_PERIOD_MODE_1));
    // Sent as by accessibility tools: the button is pressed without getting the focus.
    Send(PageControl(IDC_SCAN_PERIOD_FIXED), BM_CLICK);
    ASSERT_FALSE(IsShown(PageControl(IDC_SCAN_PERIOD_MODE_1)));
    EXPECT_TRUE(IsShown(FocusIn(Dialog())));
    EXPECT_TRUE(IsEnabled(FocusIn(Dialog())));
    ExpectKeysHandled();
    Abandon();
}

TEST_F(UsableFocusTest, LeavesAControlThatIsDisabled)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Focus(Control(IDC_PREFERENCES_SAVE));
    TakeMarkBack();
    EXPECT_EQ(Control(IDC_PREFERENCES_CANCEL), FocusIn(Dialog())) << "the next one that Tab stops at";
    Cancel();
}

TEST_F(UsableFocusTest, NavigationByMessageDoesNotReachAHiddenControl)
{
    ASSERT_TRUE(Open());
    const HWND hidden = PageControl(IDC_BRANDING_RENAME);
    ASSERT_TRUE(ShowPage(L"Conforming"));
    Focus(List());
    Send(Dialog(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hidden), TRUE);
    EXPECT_EQ(List(), FocusIn(Dialog()));
    Cancel();
}

TEST_F(UsableFocusTest, ALetterForAHiddenControlSearchesForNoMnemonic)
{
    ASSERT_TRUE(Open());
    const HWND hidden = PageControl(IDC_BRANDING_AUTO);
    ASSERT_TRUE(ShowPage(L"Conforming"));
    PostMessageW(hidden, WM_CHAR, L'z', 1);
    ASSERT_TRUE(Settle(Dialog()));
    Cancel();
}

} // namespace
