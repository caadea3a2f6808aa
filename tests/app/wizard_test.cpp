// How the dialog handles messages that no visible control sends.
#include "config/core/setting_comment.h"
#include "controls/core/tooltip_markup.h"
#include "pages/conforming/ids.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/string_table.h"
#include "pages/scan_period/ids.h"
#include "pages/scan_period/page.h"
#include "resources/ids.h"
#include "tests/app/program.h"
#include "tests/pages/expected_pages.h"
#include "tests/support/process.h"
#include "tests/support/window_search.h"
#include "wizard/messages.h"

namespace
{
constexpr int conformingPage = 6;
constexpr int scanPeriodPage = 20;
constexpr char simpleFile[] = "#\n\n_ORTHOVAL_CHECK_CELLS = 1\n";

/// Counts the pages of a dialog that become visible.
class ShownPages
{
  public:
    explicit ShownPages(HWND dialog) : m_dialog(dialog)
    {
        s_counter = this;
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ~ShownPages() { ::UnhookWindowsHookEx(m_hook); }
    ShownPages(const ShownPages&) = delete;
    ShownPages& operator=(const ShownPages&) = delete;

    int count = 0;

  private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code >= 0 && message.message == WM_SHOWWINDOW && message.wParam != 0 &&
            ::GetParent(message.hwnd) == s_counter->m_dialog &&
            dynamic_cast<CWizardPage*>(CWnd::FromHandlePermanent(message.hwnd)) != nullptr)
            ++s_counter->count;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline ShownPages* s_counter = nullptr;
    HWND m_dialog;
    HHOOK m_hook;
};

/// Handles the messages posted to the thread, as the modal loop does.
void Pump(HWND top)
{
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (!CWnd::WalkPreTranslateTree(top, &message)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
}
} // namespace

using Wizard = ProgramTest;

TEST_F(Wizard, APageReportsItselfModifiedOrNot)
{
    Open(L"", MakeFile(L"office.cfg", simpleFile));
    ASSERT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
    const auto page = reinterpret_cast<WPARAM>(Page().m_hWnd);
    EXPECT_EQ(WM_PAGE_MODIFIED, 0x5F4u);
    EXPECT_EQ(dialog->SendMessage(WM_PAGE_MODIFIED, page, 1), 1);
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
    EXPECT_EQ(dialog->SendMessage(WM_PAGE_MODIFIED, page, 0), 1);
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
    EXPECT_EQ(dialog->SendMessage(WM_PAGE_MODIFIED, page, 2), 1);
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Wizard, TheDialogIsDraggedUnderItsIcon)
{
    Open(L"", L"");
    const LRESULT icon = dialog->SendMessage(WM_QUERYDRAGICON);
    EXPECT_NE(icon, 0);
    EXPECT_EQ(dialog->SendMessage(WM_GETICON, ICON_BIG), icon);
    EXPECT_EQ(dialog->SendMessage(WM_GETICON, ICON_SMALL), icon);
}

TEST_F(Wizard, OpeningNotFromDiskWritesTheFile)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    Open(L"", path);
    dialog->Store().SetSetting(u"_ORTHOVAL_CHECK_CELLS", u"0", ov::SettingKindFlag, u"", ov::kCurrentTable);
    dialog->SendMessage(WM_PAGE_MODIFIED, 0, 1);
    EXPECT_TRUE(dialog->OpenConfigFile(false));
    EXPECT_NE(uidriver::ReadBytes(path).value_or("").find("_ORTHOVAL_CHECK_CELLS = 0\r\n"),
              std::string::npos);
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(Wizard, WritesTheCurrentTableOnRequest)
{
    const std::wstring path = MakeFile(L"office.cfg", simpleFile);
    Open(L"", path);
    dialog->Store().SetSetting(u"_ORTHOVAL_CHECK_CELLS", u"0", ov::SettingKindFlag, u"", ov::kCurrentTable);
    EXPECT_TRUE(dialog->WriteConfigFile());
    EXPECT_NE(uidriver::ReadBytes(path).value_or("").find("_ORTHOVAL_CHECK_CELLS = 0\r\n"),
              std::string::npos);
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"office.cfg"});
}

TEST_F(Wizard, WritingNeedsNoEarlierReadingButSavingDoes)
{
    Open(L"", L"");
    EXPECT_FALSE(dialog->SaveConfigFile());
    EXPECT_TRUE(doors.messages.empty());
    doors.AnswerMessage(IDOK);
    EXPECT_FALSE(dialog->WriteConfigFile());
    EXPECT_EQ(doors.messages.size(), 1u);
}

TEST_F(Wizard, TheScanPeriodUpdatesItsControlsOnRequest)
{
    Open(L"", MakeFile(L"office.cfg", "#\n\n_ORTHOVAL_SCANPERIOD_SETTINGS = "
                                      "1, 1, 0, 1, 8, 2007, 1, 0, 0, 0, 6, 5, 2016, 0\n"));
    dialog->SelectPage(scanPeriodPage);
    auto& page = dynamic_cast<CPageScanPeriod&>(Page());
    const auto isShown = [&](int id) { return ::IsWindowVisible(Control(id)) != FALSE; };
    EXPECT_TRUE(isShown(IDC_SCAN_PERIOD_OR_SELECTOR));
    EXPECT_TRUE(isShown(IDC_SCAN_PERIOD_DATE_2));
    // These messages notify nobody.
    ::SendMessageW(Control(IDC_SCAN_PERIOD_OPERATOR), CB_SETCURSEL, 1, 0);
    ::SendMessageW(Control(IDC_SCAN_PERIOD_MODE_2), CB_SETCURSEL, 1, 0);
    page.UpdateData(TRUE);
    EXPECT_TRUE(isShown(IDC_SCAN_PERIOD_OR_SELECTOR));
    page.UpdateScanPeriodControls();
    EXPECT_FALSE(isShown(IDC_SCAN_PERIOD_OR_SELECTOR));
    EXPECT_FALSE(isShown(IDC_SCAN_PERIOD_DATE_2));
    EXPECT_TRUE(isShown(IDC_SCAN_PERIOD_MODE_2));
}

TEST_F(Wizard, EachNewlySelectedRowSwitchesPagesOnce)
{
    Open(L"", L"");
    const HWND list = uidriver::FindControl(dialog->m_hWnd, IDC_LEFT_PANE_LIST);
    ::SetFocus(list);
    const ShownPages shown(dialog->m_hWnd);
    HWND before = Page().m_hWnd;
    // With the first key press the keyboard focus takes over the row that is already selected.
    ::PostMessageW(list, WM_KEYDOWN, VK_HOME, 1);
    Pump(dialog->m_hWnd);
    EXPECT_EQ(shown.count, 0);
    EXPECT_EQ(Page().m_hWnd, before);
    for (int press = 1; press <= 3; ++press) {
        ::PostMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
        Pump(dialog->m_hWnd);
        EXPECT_EQ(shown.count, press);
        EXPECT_NE(Page().m_hWnd, before);
        before = Page().m_hWnd;
    }
    ::PostMessageW(list, WM_KEYDOWN, VK_END, 1);
    Pump(dialog->m_hWnd);
    EXPECT_EQ(shown.count, 4);
    ::PostMessageW(list, WM_KEYDOWN, VK_END, 1);
    Pump(dialog->m_hWnd);
    EXPECT_EQ(shown.count, 4);
}

TEST_F(Wizard, APageWithoutAWindowLoadsTheDefaultsWhenItGetsOne)
{
    Open(MakeFile(L"defaults.cfg", "#\n\n_ORTHOVAL_CHECK_CELLS = 1\n"),
         MakeFile(L"office.cfg", "#\n\n_ORTHOVAL_CHECK_CELLS = 0\n"));
    dialog->SelectPage(conformingPage);
    CWizardPage& page = Page();
    EXPECT_EQ(::SendMessageW(Control(IDC_CONFORMING_CHECK_CELLS), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    page.DestroyWindow();
    dialog->LoadAllPages(ov::kDefaultTable);
    ASSERT_TRUE(page.CreateOrShow(dialog.get(), CRect(0, 0, 300, 300)));
    EXPECT_EQ(::SendMessageW(Control(IDC_CONFORMING_CHECK_CELLS), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(Wizard, TheCommentOfAControlIsTheOneOfTheRowsThatItExplains)
{
    Open(L"", L"");
    EXPECT_EQ(dialog->MakeSettingComment(nullptr), u"");
    for (const expected::Page& page : expected::Pages()) {
        dialog->SelectPage(static_cast<UINT>(page.pageId));
        for (const expected::Setting& setting : page.settings) {
            SCOPED_TRACE(setting.variable);
            const ov::Text help(ov::FindString(setting.helpId));
            const CWnd* control = Page().GetDlgItem(setting.commentId);
            ASSERT_NE(control, nullptr);
            EXPECT_EQ(dialog->MakeSettingComment(control), ov::MakeCommentBlock(ov::Description(help)));
        }
    }
}

// At the usual resolution; at others the content grows with its controls.
TEST_F(Wizard, EveryPageScrollsOverTheSizeOfTheCatalogue)
{
    Open(L"", L"");
    for (const ov::PageInfo* info : ov::PageCatalogue()) {
        SCOPED_TRACE(info->pageId);
        dialog->SelectPage(static_cast<UINT>(info->pageId));
        Page().MoveToRect(CRect(0, 0, 60, 50));
        SCROLLINFO range{};
        EXPECT_TRUE(Page().GetScrollInfo(SB_HORZ, &range, SIF_RANGE));
        EXPECT_EQ(range.nMax, info->scrollWidth - 1);
        EXPECT_TRUE(Page().GetScrollInfo(SB_VERT, &range, SIF_RANGE));
        EXPECT_EQ(range.nMax, info->scrollHeight - 1);
        Page().MoveToRect(CRect(0, 0, info->scrollWidth + 2, info->scrollHeight + 2));
        EXPECT_EQ(::GetWindowLongPtrW(Page().m_hWnd, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL), 0);
    }
}
