// Compares windows that are notified of another resolution with windows that open at
// that resolution. A thread that is not DPI-aware opens its windows at 96 pixels per
// inch, independent of the system's resolution: ./test runs this at four resolutions.
#include "pages/branding/ids.h"
#include "pages/misc/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"

#include <commctrl.h>
#include <optional>
#include <sstream>

using namespace uidriver;

namespace
{

constexpr UINT usualResolution = 96;
constexpr std::size_t pageCount = 27;

// Child windows get these before and after their top-level window is notified.
constexpr UINT beforeParent = 0x02E2;
constexpr UINT afterParent = 0x02E3;

// Page sizes: larger than any content at any resolution, so that no page scrolls; too
// narrow for most pages; too small for most pages in both directions.
constexpr SIZE largePage{1400, 1700};
constexpr SIZE narrowPage{300, 1700};
constexpr SIZE smallPage{300, 200};

template <class Function>
Function* UserFunction(const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

/// The resolution at which the calling thread's windows are created.
UINT ThreadResolution()
{
    return UserFunction<UINT WINAPI()>("GetDpiForSystem")();
}

/// Makes the calling thread DPI-unaware: its windows open at 96 pixels per inch, and
/// it measures windows of such threads.
class UnawareThread
{
  public:
    UnawareThread() : m_before(Set(DPI_AWARENESS_CONTEXT_UNAWARE)) {}
    ~UnawareThread() { Set(m_before); }
    UnawareThread(const UnawareThread&) = delete;
    UnawareThread& operator=(const UnawareThread&) = delete;

  private:
    static DPI_AWARENESS_CONTEXT Set(DPI_AWARENESS_CONTEXT context)
    {
        return UserFunction<DPI_AWARENESS_CONTEXT WINAPI(DPI_AWARENESS_CONTEXT)>(
            "SetThreadDpiAwarenessContext")(context);
    }

    DPI_AWARENESS_CONTEXT m_before;
};

SIZE SizeOf(const RECT& rect)
{
    return {rect.right - rect.left, rect.bottom - rect.top};
}

RECT WindowRect(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

SIZE ClientSize(HWND window)
{
    RECT rect = {};
    GetClientRect(window, &rect);
    return SizeOf(rect);
}

LONG FontHeight(HWND control)
{
    LOGFONTW description = {};
    GetObjectW(reinterpret_cast<HFONT>(Send(control, WM_GETFONT)), sizeof description, &description);
    return description.lfHeight;
}

/// Measures of a list in report view that depend on its resolution: row height, column widths.
std::vector<LONG> ListMeasures(HWND list)
{
    RECT row = {LVIR_BOUNDS, 0, 0, 0};
    Send(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    std::vector<LONG> measures = {row.bottom - row.top};
    HWND header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
    for (WPARAM column = 0; column < static_cast<WPARAM>(Send(header, HDM_GETITEMCOUNT)); ++column)
        measures.push_back(static_cast<LONG>(Send(list, LVM_GETCOLUMNWIDTH, column)));
    return measures;
}

/// The controls of a window in order, each as text with its position, its font and
/// its other properties that depend on the resolution.
using Layout = std::vector<std::string>;

std::string Describe(HWND control, HWND window)
{
    const RECT rect = RectIn(control, window);
    std::ostringstream text;
    text << GetDlgCtrlID(control) << ": " << rect.left << ',' << rect.top << " - " << rect.right << ','
         << rect.bottom << ", font " << FontHeight(control);
    if (ClassOf(control) == L"SysListView32") {
        for (const LONG measure : ListMeasures(control))
            text << ", " << measure;
    }
    return text.str();
}

bool IsDialog(HWND window)
{
    return ClassOf(window) == L"#32770";
}

std::vector<HWND> ChildDialogs(HWND window)
{
    std::vector<HWND> dialogs = Children(window);
    std::erase_if(dialogs, [](HWND child) { return !IsDialog(child); });
    return dialogs;
}

Layout LayoutOf(HWND window)
{
    Layout layout;
    for (HWND child : Children(window)) {
        if (!IsDialog(child))
            layout.push_back(Describe(child, window));
    }
    return layout;
}

/// The settings of a page's scroll bars: range and visible part of both.
std::vector<UINT> BarsOf(HWND page)
{
    std::vector<UINT> bars;
    for (const int bar : {SB_HORZ, SB_VERT}) {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE;
        GetScrollInfo(page, bar, &info);
        bars.push_back(static_cast<UINT>(info.nMax));
        bars.push_back(info.nPage);
    }
    return bars;
}

/// A page in three sizes: the positions of its controls when it does not scroll and when
/// it is narrow, and its scroll range.
struct PageMeasures {
    Layout layout;
    Layout narrow;
    std::vector<UINT> bars;
};

void SetSize(HWND window, SIZE size)
{
    SetWindowPos(window, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Leaves the page small and scrolled to its end.
PageMeasures MeasurePage(HWND page)
{
    PageMeasures measures;
    SetSize(page, largePage);
    measures.layout = LayoutOf(page);
    SetSize(page, narrowPage);
    measures.narrow = LayoutOf(page);
    SetSize(page, smallPage);
    measures.bars = BarsOf(page);
    for (const UINT message : {WM_HSCROLL, WM_VSCROLL}) {
        for (int i = 0; i < 2; ++i)
            Send(page, message, SB_PAGEDOWN);
    }
    return measures;
}

/// A window and, for the dialog, all pages and the pane, most of which are hidden.
struct Measures {
    SIZE client = {};
    Layout layout;
    std::vector<PageMeasures> pages;
};

/// The window after a resize; before it, a list's columns have widths of their own.
Measures Measure(HWND window)
{
    const SIZE client = ClientSize(window);
    Send(window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.cx, client.cy));
    Measures measures = {client, LayoutOf(window), {}};
    for (HWND child : ChildDialogs(window))
        measures.pages.push_back(MeasurePage(child));
    return measures;
}

void ExpectSame(const Layout& expected, const Layout& layout)
{
    ASSERT_EQ(expected.size(), layout.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(expected[i], layout[i]);
}

void ExpectSame(const Measures& expected, const Measures& measures)
{
    EXPECT_EQ(expected.client.cx, measures.client.cx);
    EXPECT_EQ(expected.client.cy, measures.client.cy);
    ExpectSame(expected.layout, measures.layout);
    ASSERT_EQ(expected.pages.size(), measures.pages.size());
    for (std::size_t i = 0; i < expected.pages.size(); ++i) {
        SCOPED_TRACE("child dialog " + std::to_string(i));
        ExpectSame(expected.pages[i].layout, measures.pages[i].layout);
        ExpectSame(expected.pages[i].narrow, measures.pages[i].narrow);
        EXPECT_EQ(expected.pages[i].bars, measures.pages[i].bars);
    }
}

/// Notifies the window of a resolution with a suggested rectangle.
void Tell(HWND window, UINT resolution, RECT rect)
{
    Send(window, WM_DPICHANGED, MAKEWPARAM(resolution, resolution), reinterpret_cast<LPARAM>(&rect));
}

/// The same with a rectangle that keeps the window's top-left corner and results in that
/// client area.
void Tell(HWND window, UINT resolution, SIZE client)
{
    RECT rect = WindowRect(window);
    const SIZE present = ClientSize(window);
    rect.right += client.cx - present.cx;
    rect.bottom += client.cy - present.cy;
    Tell(window, resolution, rect);
}

/// The size in pixels of four horizontal and eight vertical dialog units: the average
/// letter width and the line height of the control's font.
SIZE UnitsOf(HWND control)
{
    HDC context = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(context, reinterpret_cast<HFONT>(Send(control, WM_GETFONT)));
    SIZE letters = {};
    TEXTMETRICW metrics = {};
    GetTextExtentPoint32W(context, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52, &letters);
    GetTextMetricsW(context, &metrics);
    SelectObject(context, before);
    ReleaseDC(nullptr, context);
    return {(letters.cx / 26 + 1) / 2, metrics.tmHeight};
}

SIZE SmallestSize(HWND window)
{
    MINMAXINFO info = {};
    Send(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return {info.ptMinTrackSize.x, info.ptMinTrackSize.y};
}

int IconSize(LRESULT icon)
{
    ICONINFO info = {};
    BITMAP bitmap = {};
    if (!GetIconInfo(reinterpret_cast<HICON>(icon), &info))
        return 0;
    GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return static_cast<int>(bitmap.bmWidth);
}

/// Tell, with the messages that newer systems send to child windows before and after it.
void TellAll(HWND window, UINT resolution, SIZE client)
{
    const std::vector<HWND> inside = ChildDialogs(window);
    for (HWND child : inside)
        Send(child, beforeParent);
    Tell(window, resolution, client);
    for (HWND child : inside)
        Send(child, afterParent);
}

void ExpectGrown(const Measures& usual, const Measures& finer)
{
    EXPECT_NE(usual.layout, finer.layout);
    ASSERT_EQ(usual.pages.size(), finer.pages.size());
    for (std::size_t i = 0; i < usual.pages.size(); ++i) {
        EXPECT_NE(usual.pages[i].layout, finer.pages[i].layout);
        EXPECT_LT(usual.pages[i].bars, finer.pages[i].bars);
    }
}

/// Expects that a resize to the same size moves nothing.
void ExpectLaidOutAtOnce(HWND window)
{
    std::vector<HWND> windows = ChildDialogs(window);
    windows.push_back(window);
    for (HWND each : windows) {
        const Layout atOnce = LayoutOf(each);
        const SIZE client = ClientSize(each);
        Send(each, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.cx, client.cy));
        ExpectSame(atOnce, LayoutOf(each));
    }
}

class ResolutionTest : public DialogSession
{
  protected:
    /// A resolution other than the system's: 96 if possible, otherwise
    /// 144.
    UINT Other() const { return ThreadResolution() != usualResolution ? usualResolution : 144; }

    HWND OpenUnaware()
    {
        return Open([this] {
            const UnawareThread unaware;
            return Library::Get().ShowDialogEx()(nullptr, m_defaultPath.c_str(), m_currentPath.c_str(),
                                                 m_user.c_str());
        });
    }

    HWND OpenEditor()
    {
        EXPECT_TRUE(ShowPage(L"Branding"));
        ClickOnPage(IDC_BRANDING_RENAME_BROWSE);
        return AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
    }

    HWND OpenTester()
    {
        EXPECT_TRUE(ShowPage(L"Miscellaneous"));
        ClickOnPage(IDC_MISC_WILDCARD_TEST);
        return AwaitTopWindow(L"Regular Expression Tester", GetCurrentProcessId());
    }

    void Close(HWND window)
    {
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        EXPECT_TRUE(AwaitGone(window));
    }

    /// Measures the window that `open` opens at 96 pixels per inch; nothing if that is the
    /// system's resolution.
    template <class Opener>
    std::optional<Measures> MeasureAtUsualResolution(Opener open)
    {
        if (ThreadResolution() == usualResolution)
            return std::nullopt;
        const UnawareThread unaware;
        OpenUnaware();
        HWND window = open();
        const Measures measures = Measure(window);
        if (window != Dialog())
            Close(window);
        Cancel();
        return measures;
    }

    /// Expects the window to follow the other resolution and back.
    void ExpectFollowing(HWND window, const std::optional<Measures>& expected)
    {
        ASSERT_TRUE(window);
        const Measures own = Measure(window);
        Tell(window, Other(), expected ? expected->client : own.client);
        ExpectLaidOutAtOnce(window);
        const Measures other = Measure(window);
        if (expected)
            ExpectSame(*expected, other);
        else
            ExpectGrown(own, other);
        TellAll(window, ThreadResolution(), own.client);
        Measures back = Measure(window);
        // A slow window manager may still report the size from before.
        if (back.client.cx != own.client.cx && Await([&] { return ClientSize(window).cx == own.client.cx; }))
            back = Measure(window);
        ExpectSame(own, back);
    }
};

TEST_F(ResolutionTest, EveryPageIsLaidOutAsWhereItOpens)
{
    const auto expected = MeasureAtUsualResolution([this] { return Dialog(); });
    ASSERT_TRUE(Open());
    EXPECT_EQ(pageCount + 1, Measure(Dialog()).pages.size());
    ExpectFollowing(Dialog(), expected);
    Cancel();
}

TEST_F(ResolutionTest, ValueEditorIsLaidOutAsWhereItOpens)
{
    const auto expected = MeasureAtUsualResolution([this] { return OpenEditor(); });
    ASSERT_TRUE(Open());
    HWND editor = OpenEditor();
    ExpectFollowing(editor, expected);
    Close(editor);
    Cancel();
}

TEST_F(ResolutionTest, TesterIsLaidOutAsWhereItOpens)
{
    const auto expected = MeasureAtUsualResolution([this] { return OpenTester(); });
    ASSERT_TRUE(Open());
    HWND tester = OpenTester();
    ExpectFollowing(tester, expected);
    Close(tester);
    Cancel();
}

TEST_F(ResolutionTest, ValueEditorOpensAtTheDialogsResolution)
{
    const auto expected = MeasureAtUsualResolution([this] { return OpenEditor(); });
    ASSERT_TRUE(Open());
    Tell(Dialog(), Other(), ClientSize(Dialog()));
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor);
    if (expected)
        ExpectSame(*expected, Measure(editor));
    Close(editor);
    Cancel();
}

/// 580 by 400 pixels at 96 pixels per inch, and the same number of units at others.
void ExpectSmallestSize(HWND window)
{
    constexpr SIZE usualUnits{6, 13};
    const SIZE units = UnitsOf(GetDlgItem(window, IDCANCEL));
    const SIZE smallest = SmallestSize(window);
    EXPECT_EQ((580 * units.cx + usualUnits.cx - 1) / usualUnits.cx, smallest.cx);
    EXPECT_EQ((400 * units.cy + usualUnits.cy - 1) / usualUnits.cy, smallest.cy);
}

void ExpectIcons(HWND window, UINT resolution)
{
    for (const WPARAM kind : {ICON_BIG, ICON_SMALL})
        EXPECT_EQ(MulDiv(32, static_cast<int>(resolution), 96), IconSize(Send(window, WM_GETICON, kind)));
}

void ExpectMoveIcons(HWND editor, UINT resolution)
{
    for (const int button : {IDC_CONFIG_SETTING_MOVE_UP, IDC_CONFIG_SETTING_MOVE_DOWN})
        EXPECT_EQ(MulDiv(16, static_cast<int>(resolution), 96),
                  IconSize(Send(GetDlgItem(editor, button), BM_GETIMAGE, IMAGE_ICON)));
}

TEST_F(ResolutionTest, SmallestSizeAndIconsFollow)
{
    ASSERT_TRUE(Open());
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor);
    for (const UINT resolution : {ThreadResolution(), Other(), ThreadResolution()}) {
        SCOPED_TRACE(resolution);
        Tell(Dialog(), resolution, ClientSize(Dialog()));
        Tell(editor, resolution, ClientSize(editor));
        ExpectSmallestSize(Dialog());
        ExpectSmallestSize(editor);
        ExpectIcons(Dialog(), resolution);
        ExpectMoveIcons(editor, resolution);
    }
    Close(editor);
    Cancel();
}

TEST_F(ResolutionTest, MinimisedDialogIsLaidOutWhenItIsRestored)
{
    ASSERT_TRUE(Open());
    const RECT place = WindowRect(Dialog());
    Tell(Dialog(), Other(), place);
    const Measures expected = Measure(Dialog());
    Tell(Dialog(), ThreadResolution(), place);
    ShowWindow(Dialog(), SW_MINIMIZE);
    ASSERT_TRUE(Await([&] { return IsIconic(Dialog()) != FALSE; }));
    Tell(Dialog(), Other(), place);
    EXPECT_TRUE(IsIconic(Dialog()));
    ShowWindow(Dialog(), SW_RESTORE);
    ASSERT_TRUE(Await([&] { return !IsIconic(Dialog()) && ClientSize(Dialog()).cx == expected.client.cx; }));
    Settle(Dialog());
    ExpectSame(expected, Measure(Dialog()));
    Cancel();
}

TEST_F(ResolutionTest, PagesAskTheirDialog)
{
    ASSERT_TRUE(Open());
    const Measures before = Measure(Dialog());
    for (HWND child : ChildDialogs(Dialog())) {
        Send(child, beforeParent);
        Send(child, afterParent);
    }
    ExpectSame(before, Measure(Dialog()));
    Cancel();
}

} // namespace
