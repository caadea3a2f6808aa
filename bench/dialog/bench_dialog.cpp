// Measures how fast the dialog opens, changes pages and saves. The library is called as a host calls
// it, in this process and on this thread. The baseline is the system's own work: creating, showing and
// drawing windows from the same templates, without any code behind them.
//
// A timer drives the dialog. Timer messages come last in a queue: when one arrives, everything is drawn.

#include "bench/measure.h"
#include "include/ovPreferences.h"
#include "pages/core/page_catalogue.h"
#include "resources/ids.h"
#include "tests/support/category_list.h"
#include "tests/support/control_state.h"
#include "tests/support/test_files.h"
#include "tests/support/window_search.h"

#include <windows.h>
#include <algorithm>
#include <chrono>
#include <commctrl.h>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace
{

using namespace ov::bench;

class Stopwatch
{
  public:
    double Milliseconds() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_start).count();
    }

  private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

// The minimum of several times.
struct Best {
    double milliseconds = std::numeric_limits<double>::max();
    void Take(double taken) { milliseconds = std::min(milliseconds, taken); }
};

// Marks a step in the log of Wine's server, where scripts/count-requests counts the
// requests from one mark to the next.
void Mark(const std::string& step)
{
    ::GlobalDeleteAtom(::GlobalAddAtomA(("bench " + step).c_str()));
}

// Draws everything that is still to be drawn and sends it to the screen.
void DrawAll(HWND dialog)
{
    ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
}

// Calls `shown` once, when a dialog of this thread with a Save button is visible and drawn.
class WhenShown
{
  public:
    explicit WhenShown(std::function<void(HWND)> shown)
        : m_shown(std::move(shown)), m_timer(::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &OnTimer))
    {
        s_current = this;
    }
    ~WhenShown()
    {
        s_current = nullptr;
        ::KillTimer(nullptr, m_timer);
    }
    WhenShown(const WhenShown&) = delete;
    WhenShown& operator=(const WhenShown&) = delete;

  private:
    static BOOL CALLBACK Find(HWND window, LPARAM found)
    {
        if (!::IsWindowVisible(window) || ::GetDlgItem(window, IDC_PREFERENCES_SAVE) == nullptr)
            return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        HWND dialog = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), &Find, reinterpret_cast<LPARAM>(&dialog));
        if (dialog == nullptr || s_current == nullptr)
            return;
        // The work retrieves no messages, unless a message box opens.
        try {
            Require(!std::exchange(s_current->m_called, true), "the dialog asks a question or stays open");
            s_current->m_shown(dialog);
        } catch (const std::exception& error) {
            // The system calls this function, so no exception may leave it, and the dialog would run forever.
            std::fprintf(stderr, "bench_dialog: %s\n", error.what());
            std::_Exit(1);
        }
    }

    static inline WhenShown* s_current = nullptr;

    std::function<void(HWND)> m_shown;
    bool m_called = false;
    UINT_PTR m_timer;
};

// Windows from the dialog's templates without any code behind them.
class BareDialog
{
  public:
    explicit BareDialog(HMODULE library) : m_library(library)
    {
        m_window = Make(IDD_PREFERENCES, nullptr);
        Place(Make(IDD_LEFT_PANE, m_window), IDC_PREFERENCES_PANE_AREA, SWP_SHOWWINDOW);
        for (const ov::PageInfo* page : ov::PaneRows()) {
            if (::FindResourceW(library, MAKEINTRESOURCEW(page->templateId), RT_DIALOG) != nullptr)
                m_pages.push_back(Make(page->templateId, m_window));
        }
        for (HWND page : m_pages)
            Place(page, IDC_PREFERENCES_PAGE_AREA, page == m_pages.front() ? SWP_SHOWWINDOW : 0);
    }
    ~BareDialog() { ::DestroyWindow(m_window); }
    BareDialog(const BareDialog&) = delete;
    BareDialog& operator=(const BareDialog&) = delete;

    HWND Window() const { return m_window; }
    const std::vector<HWND>& Pages() const { return m_pages; }

    void Show()
    {
        ::ShowWindow(m_window, SW_SHOWNORMAL);
        ::UpdateWindow(m_window);
    }

    void Select(std::size_t page)
    {
        if (page == m_shown)
            return;
        ::ShowWindow(m_pages[page], SW_SHOW);
        ::ShowWindow(m_pages[m_shown], SW_HIDE);
        m_shown = page;
    }

  private:
    static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

    HWND Make(int templateId, HWND parent) const
    {
        HWND window = ::CreateDialogParamW(m_library, MAKEINTRESOURCEW(templateId), parent, &Procedure, 0);
        Require(window != nullptr, "cannot make a template's windows");
        return window;
    }

    void Place(HWND child, int areaId, UINT flags) const
    {
        const RECT area = uidriver::RectIn(::GetDlgItem(m_window, areaId), m_window);
        ::SetWindowPos(child, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                       flags | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    HMODULE m_library;
    HWND m_window = nullptr;
    std::vector<HWND> m_pages;
    std::size_t m_shown = 0;
};

// Activates the library's own manifest, as its exports do, so that both sides use the same controls.
class LibraryContext
{
  public:
    explicit LibraryContext(HMODULE library)
    {
        constexpr WORD kLibraryManifest = 2;
        ACTCTXW description{};
        description.cbSize = sizeof description;
        description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        description.hModule = library;
        description.lpResourceName = MAKEINTRESOURCEW(kLibraryManifest);
        m_context = ::CreateActCtxW(&description);
        Require(m_context != INVALID_HANDLE_VALUE && ::ActivateActCtx(m_context, &m_cookie),
                "the library's manifest cannot be put in force");
    }
    ~LibraryContext()
    {
        ::DeactivateActCtx(0, m_cookie);
        ::ReleaseActCtx(m_context);
    }
    LibraryContext(const LibraryContext&) = delete;
    LibraryContext& operator=(const LibraryContext&) = delete;

  private:
    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
};

int CountWindows(HWND dialog)
{
    int count = 0;
    const auto add = [](HWND, LPARAM counter) -> BOOL {
        ++*reinterpret_cast<int*>(counter);
        return TRUE;
    };
    ::EnumChildWindows(dialog, add, reinterpret_cast<LPARAM>(&count));
    return count;
}

std::string Milliseconds(const Best& best)
{
    return Decimal(best.milliseconds, 2);
}

std::string Ratio(const Best& measured, const Best& bare)
{
    return Decimal(measured.milliseconds / bare.milliseconds, 2);
}

// A set of files for opening the dialog.
struct Opening {
    std::string label;
    std::wstring defaults;
    std::wstring current;
    Best shown;
    double first = 0; ///< The time of the first opening of this kind in the process.
};

class DialogBench
{
  public:
    DialogBench(HMODULE library, const std::wstring& samples)
        : m_library(library), m_show(reinterpret_cast<ovPreferences_showDialogEx_t>(reinterpret_cast<void*>(
                                  ::GetProcAddress(library, OV_PREFERENCES_SHOW_DIALOG_EX_NAME)))),
          m_office(ReadSample(samples + L"\\office.cfg"))
    {
        Require(m_show != nullptr, "the library has no such function");
        Require(uidriver::WriteBytes(Defaults(), ReadSample(samples + L"\\defaults.cfg")),
                "cannot write the defaults");
        m_openings.push_back({"none", L"", L"", {}});
        m_openings.push_back({"defaults.cfg, office.cfg", Defaults(), Office(), {}});
    }

    void Run(int turns)
    {
        for (int turn = 0; turn < turns; ++turn) {
            MeasureBare();
            for (Opening& opening : m_openings)
                MeasureDialog(opening);
            MeasureDisk();
        }
    }

    void Print() const
    {
        Targets targets;
        Table open("From the call of the export until the dialog is drawn, all pages made",
                   {"files", "pages", "windows", "bare ms", "Preferences ms", "ratio", "first ms"});
        for (const Opening& opening : m_openings) {
            open.AddRow({opening.label, std::to_string(m_titles.size()), std::to_string(m_windows),
                         Milliseconds(m_bareShown), Milliseconds(opening.shown),
                         Ratio(opening.shown, m_bareShown), Decimal(opening.first, 1)});
            targets.AtMost("opening with files: " + opening.label,
                           opening.shown.milliseconds / m_bareShown.milliseconds, 1.3,
                           " times the bare windows");
        }
        open.Print();

        Table pages("From the selection of a row until the page is drawn",
                    {"page", "windows", "bare ms", "Preferences ms", "ratio"});
        std::vector<double> times;
        for (std::size_t row = 0; row < m_titles.size(); ++row) {
            pages.AddRow({m_titles[row], std::to_string(m_pageWindows[row]),
                          Milliseconds(m_bareSwitches[row]), Milliseconds(m_switches[row]),
                          Ratio(m_switches[row], m_bareSwitches[row])});
            times.push_back(m_switches[row].milliseconds);
        }
        pages.Print();
        std::ranges::sort(times);
        constexpr double kFrame = 16;
        targets.AtMost("changing pages, the median of the pages", times[times.size() / 2], kFrame, " ms");
        targets.AtMost("changing pages, the worst page", times.back(), kFrame, " ms");

        Table save("Saving after every page was shown; " + std::to_string(m_savedSize) + " bytes",
                   {"from the Save command", "bare ms", "Preferences ms", "ratio"});
        save.AddRow({"until the file is on the disk and the dialog is told to end", Milliseconds(m_disk),
                     Milliseconds(m_save), Ratio(m_save, m_disk)});
        Best bareEnd;
        bareEnd.Take(m_disk.milliseconds + m_bareGone.milliseconds);
        save.AddRow({"until the windows are gone and the call returns", Milliseconds(bareEnd),
                     Milliseconds(m_returned), Ratio(m_returned, bareEnd)});
        save.Print();
        targets.AtMost("saving everything", m_save.milliseconds, 50, " ms");
        targets.Print();
    }

  private:
    static std::string ReadSample(const std::wstring& path)
    {
        const std::optional<std::string> bytes = uidriver::ReadBytes(path);
        Require(bytes.has_value(), "cannot read the samples");
        return *bytes;
    }

    std::wstring Defaults() const { return m_folder / L"defaults.cfg"; }
    std::wstring Office() const { return m_folder / L"office.cfg"; }

    void MeasureBare()
    {
        const LibraryContext context(m_library);
        Mark("open bare");
        const Stopwatch fromStart;
        std::optional<BareDialog> bare(m_library);
        bool done = false;
        const WhenShown drive([&](HWND window) {
            DrawAll(window);
            m_bareShown.Take(fromStart.Milliseconds());
            Mark("end");
            m_windows = CountWindows(window);
            MeasureBareSwitches(*bare);
            done = true;
        });
        bare->Show();
        MSG message;
        while (!done && ::GetMessageW(&message, nullptr, 0, 0) > 0)
            ::DispatchMessageW(&message);
        const Stopwatch ending;
        bare.reset();
        m_bareGone.Take(ending.Milliseconds());
    }

    void MeasureBareSwitches(BareDialog& bare)
    {
        m_bareSwitches.resize(bare.Pages().size());
        m_pageWindows.clear();
        for (HWND page : bare.Pages())
            m_pageWindows.push_back(CountWindows(page));
        for (int pass = 0; pass < kPasses; ++pass) {
            // Starts from the last page, so that selecting each row is a change.
            bare.Select(bare.Pages().size() - 1);
            DrawAll(bare.Window());
            for (std::size_t row = 0; row < bare.Pages().size(); ++row) {
                Mark("page bare " + std::to_string(row));
                const Stopwatch selecting;
                bare.Select(row);
                DrawAll(bare.Window());
                m_bareSwitches[row].Take(selecting.Milliseconds());
                Mark("end");
            }
        }
    }

    void MeasureDialog(Opening& opening)
    {
        Require(uidriver::WriteBytes(Office(), m_office), "cannot write the file");
        const bool saves = !opening.current.empty();
        std::optional<Stopwatch> saving;
        Mark("open " + opening.label);
        const Stopwatch fromCall;
        const WhenShown drive([&](HWND dialog) {
            DrawAll(dialog);
            const double taken = fromCall.Milliseconds();
            Mark("end");
            opening.shown.Take(taken);
            if (opening.first == 0)
                opening.first = taken;
            if (!saves) {
                ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
                return;
            }
            MeasureSwitches(dialog);
            ChangeSomething(dialog);
            saving.emplace();
            ::SendMessageW(::GetDlgItem(dialog, IDC_PREFERENCES_SAVE), BM_CLICK, 0, 0);
            m_save.Take(saving->Milliseconds());
        });
        const unsigned result = m_show(nullptr, opening.defaults.c_str(), opening.current.c_str(), L"Bench");
        if (saving)
            m_returned.Take(saving->Milliseconds());
        Require(result == OV_PREFERENCES_SHOWN, "the dialog was not shown");
        if (saves)
            CheckSaved();
    }

    void MeasureSwitches(HWND dialog)
    {
        HWND list = uidriver::FindControl(dialog, IDC_LEFT_PANE_LIST);
        if (m_titles.empty()) {
            for (const std::wstring& title : uidriver::ListViewTexts(list))
                m_titles.emplace_back(title.begin(), title.end());
            Require(m_titles.size() == m_bareSwitches.size(), "pages and templates are not equally many");
            m_switches.resize(m_titles.size());
        }
        for (int pass = 0; pass < kPasses; ++pass) {
            SelectRow(list, m_titles.size() - 1);
            DrawAll(dialog);
            for (std::size_t row = 0; row < m_titles.size(); ++row) {
                HWND before = uidriver::VisiblePage(dialog);
                Mark("page Preferences " + m_titles[row]);
                const Stopwatch selecting;
                SelectRow(list, row);
                DrawAll(dialog);
                m_switches[row].Take(selecting.Milliseconds());
                Mark("end");
                Require(uidriver::VisiblePage(dialog) != before, "the page did not change");
            }
        }
    }

    static void SelectRow(HWND list, std::size_t row)
    {
        LVITEMW item{};
        item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
        ::SendMessageW(list, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
    }

    // Clicks a check box of a page, so that there is something to save.
    static void ChangeSomething(HWND dialog)
    {
        SelectRow(uidriver::FindControl(dialog, IDC_LEFT_PANE_LIST), 0);
        for (HWND control : uidriver::Children(uidriver::VisiblePage(dialog))) {
            if ((::GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX &&
                uidriver::ClassOf(control) == L"Button" && ::IsWindowEnabled(control)) {
                ::SendMessageW(control, BM_CLICK, 0, 0);
                break;
            }
        }
        DrawAll(dialog);
        Require(uidriver::IsEnabled(::GetDlgItem(dialog, IDC_PREFERENCES_SAVE)), "there is nothing to save");
    }

    void CheckSaved()
    {
        m_saved = ReadSample(Office());
        m_savedSize = m_saved.size();
        // Every setting gets its comment.
        Require(m_savedSize > m_office.size(), "the saved file is too short");
    }

    // Writes the same bytes to the same disk, including the wait for the disk.
    void MeasureDisk()
    {
        const std::wstring path = m_folder / L"plain.cfg";
        const Stopwatch writing;
        HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
        Require(file != INVALID_HANDLE_VALUE, "cannot make a file");
        DWORD written = 0;
        const bool done =
            ::WriteFile(file, m_saved.data(), static_cast<DWORD>(m_saved.size()), &written, nullptr) &&
            ::FlushFileBuffers(file);
        ::CloseHandle(file);
        m_disk.Take(writing.Milliseconds());
        Require(done && written == m_saved.size(), "cannot write a file");
    }

    static constexpr int kPasses = 3;

    HMODULE m_library;
    ovPreferences_showDialogEx_t m_show;
    uidriver::TempFolder m_folder;
    std::string m_office;
    std::string m_saved;
    std::size_t m_savedSize = 0;
    int m_windows = 0;
    std::vector<Opening> m_openings;
    std::vector<std::string> m_titles;
    std::vector<int> m_pageWindows;
    std::vector<Best> m_bareSwitches;
    std::vector<Best> m_switches;
    Best m_bareShown;
    Best m_bareGone;
    Best m_disk;
    Best m_save;
    Best m_returned;
};

std::wstring Widened(const char* text)
{
    const std::string bytes = text;
    return {bytes.begin(), bytes.end()};
}

} // namespace

// The arguments are the folder of the samples and the number of turns.
int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: bench_dialog SAMPLES [TURNS]\n", stderr);
        return 2;
    }
    try {
        const HMODULE library = ::LoadLibraryW(OV_PREFERENCES_LIBRARY);
        Require(library != nullptr, "cannot load the library");
        DialogBench bench(library, Widened(argv[1]));
        bench.Run(argc > 2 ? std::max(std::atoi(argv[2]), 1) : 20);
        bench.Print();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_dialog: %s\n", error.what());
        return 1;
    }
    return 0;
}
