// What the pages report to the dialog while they load: some report every load as a
// change, the others report nothing.
#include "pages/core/page_catalogue.h"
#include "resources/ids.h"
#include "tests/app/program.h"
#include "wizard/messages.h"

#include <set>

namespace
{

constexpr int conforming = 6;
constexpr int referenceFiles = 18;
constexpr int scanPeriod = 20;
constexpr int signatureCells = 21;
const std::set<UINT> marking = {conforming, referenceFiles, scanPeriod, signatureCells};

/// Counts the change reports of the pages, from the first window on.
class ReportCounter
{
  public:
    ReportCounter()
    {
        s_reports.clear();
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, See, nullptr, ::GetCurrentThreadId());
    }
    ~ReportCounter() { ::UnhookWindowsHookEx(m_hook); }
    ReportCounter(const ReportCounter&) = delete;
    ReportCounter& operator=(const ReportCounter&) = delete;

    /// Returns the pages that have reported since the last call.
    std::set<UINT> TakePages()
    {
        std::set<UINT> pages;
        for (const HWND window : s_reports) {
            const auto* page = dynamic_cast<CWizardPage*>(CWnd::FromHandlePermanent(window));
            EXPECT_NE(page, nullptr);
            if (page != nullptr)
                pages.insert(page->GetPageId());
        }
        s_reports.clear();
        return pages;
    }

  private:
    static LRESULT CALLBACK See(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && message.message == WM_PAGE_MODIFIED && message.lParam != 0)
            s_reports.push_back(reinterpret_cast<HWND>(message.wParam));
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline std::vector<HWND> s_reports;
    HHOOK m_hook;
};

// Has a value for some page of every kind, so that loading changes controls.
constexpr char file[] = "_ORTHOVAL_CHECK_CELLCOMPONENTS = 1\n"
                        "_ORTHOVAL_DRAFT_BY_RANGES = 1\n"
                        "_ORTHOVAL_WEIGHTING_COLOUR = 3\n"
                        "_ORTHOVAL_BRANDING_RENAME_TABLES = a:b\n"
                        "_ORTHOVAL_REPORT_NAMING = mine\n"
                        "_ORTHOVAL_TITLEBLOCK_TAGSETS = A1\n"
                        "_ORTHOVAL_DRAWINGSCALE_VALUES = 1:50\n"
                        "_ORTHOVAL_CHECK_CELLS = 1\n";

} // namespace

using PageMarks = ProgramTest;

TEST_F(PageMarks, TheMessageHasItsNumber)
{
    EXPECT_EQ(UINT{WM_PAGE_MODIFIED}, 0x5F4u);
}

TEST_F(PageMarks, FourPagesReportTheLoadOfTheirWindowAndTheDialogStaysUnmodified)
{
    ReportCounter reports;
    Open(L"", L"");
    EXPECT_EQ(reports.TakePages(), marking);
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(PageMarks, FourPagesReportTheLoadOfTheDefaults)
{
    Open(MakeFile(L"defaults.cfg", file), MakeFile(L"office.cfg", "_ORTHOVAL_CHECK_TEXT = 1\n"));
    ReportCounter reports;
    Click(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_EQ(reports.TakePages(), marking);
    // Loading what is already shown is reported as well.
    Click(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_EQ(reports.TakePages(), marking);
}

TEST_F(PageMarks, FourPagesReportTheLoadOfAnotherFileAndTheDialogIsUnmodified)
{
    const std::wstring other = MakeFile(L"other.cfg", file);
    Open(L"", MakeFile(L"office.cfg", "_ORTHOVAL_CHECK_TEXT = 1\n"));
    ReportCounter reports;
    doors.AnswerFile(other);
    Click(IDC_PREFERENCES_BROWSE);
    EXPECT_EQ(reports.TakePages(), marking);
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_F(PageMarks, ShowingAPageIsNoLoad)
{
    Open(L"", MakeFile(L"office.cfg", file));
    ReportCounter reports;
    for (const ov::PageInfo* page : ov::PageCatalogue())
        dialog->SelectPage(static_cast<UINT>(page->pageId));
    EXPECT_EQ(reports.TakePages(), std::set<UINT>{});
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}
