// The positions of the controls in every window of the program, at several sizes. The
// rules apply at every resolution: ./test runs this test at four.
#include "pages/branding/ids.h"
#include "pages/core/page_catalogue.h"
#include "pages/drawing_scales/ids.h"
#include "pages/misc/ids.h"
#include "resources/ids.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/dialog_template.h"
#include "tests/ui/library.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

using namespace uidriver;

static void PrintTo(const RECT& rect, std::ostream* stream)
{
    *stream << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}

namespace
{

/// A visible control and its position in its window, unscrolled.
struct Placed {
    int id;
    HWND window;
    RECT rect;
    std::wstring windowClass;
    DWORD style;
    std::wstring caption; ///< for labels, buttons and frames

    DWORD ButtonType() const { return windowClass == L"Button" ? style & BS_TYPEMASK : ~0U; }
    bool IsFrame() const { return ButtonType() == BS_GROUPBOX; }
    bool IsBox() const { return ButtonType() == BS_AUTOCHECKBOX || ButtonType() == BS_AUTORADIOBUTTON; }
};

bool Contains(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

/// Converts a length at the usual resolution to pixels of the present one.
LONG Scaled(LONG length)
{
    HDC screen = GetDC(nullptr);
    const LONG scaled = MulDiv(static_cast<int>(length), GetDeviceCaps(screen, LOGPIXELSX), 96);
    ReleaseDC(nullptr, screen);
    return scaled;
}

std::vector<Placed> ControlsOf(HWND window)
{
    std::vector<Placed> controls;
    for (HWND child : Children(window)) {
        if (!IsWindowVisible(child))
            continue;
        Placed control = {GetDlgCtrlID(child),
                          child,
                          RectIn(child, window),
                          ClassOf(child),
                          static_cast<DWORD>(GetWindowLongPtrW(child, GWL_STYLE)),
                          {}};
        if (control.windowClass == L"Button" || control.windowClass == L"Static")
            control.caption = GetText(child);
        controls.push_back(std::move(control));
    }
    return controls;
}

/// The additional size that scrolling makes visible.
LONG Scrollable(HWND window, int bar)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    GetScrollInfo(window, bar, &info);
    return info.nMax > 0 ? info.nMax + 1 - static_cast<LONG>(info.nPage) : 0;
}

/// Expects the controls inside the part that the window shows or scrolls to.
void ExpectReachable(HWND window, const std::vector<Placed>& controls)
{
    RECT content = {};
    GetClientRect(window, &content);
    content.right += Scrollable(window, SB_HORZ);
    content.bottom += Scrollable(window, SB_VERT);
    for (const Placed& control : controls) {
        EXPECT_TRUE(Contains(content, control.rect))
            << control.id << " (" << testing::PrintToString(control.rect) << ") lies outside of "
            << testing::PrintToString(content);
    }
}

/// Whether they belong together: the edges of an up-down control and its edit overlap.
bool IsBuddy(const Placed& spin, const Placed& edit)
{
    return spin.windowClass == L"msctls_updown32" &&
           reinterpret_cast<HWND>(Send(spin.window, UDM_GETBUDDY)) == edit.window;
}

/// Whether the frame surrounds the control, with a distance from its edges.
bool Surrounds(const Placed& frame, const Placed& member)
{
    RECT inside = frame.rect;
    InflateRect(&inside, static_cast<int>(-Scaled(8)), 0);
    inside.bottom -= Scaled(8);
    return frame.IsFrame() && Contains(inside, member.rect);
}

/// Whether it is the size grip, which may overlap controls in the dialog's corner.
bool IsGrip(const Placed& control)
{
    return control.windowClass == L"ScrollBar";
}

void ExpectApart(const std::vector<Placed>& controls)
{
    for (auto one = controls.begin(); one != controls.end(); ++one) {
        for (auto other = one + 1; other != controls.end(); ++other) {
            RECT both = {};
            const bool belongs = Surrounds(*one, *other) || Surrounds(*other, *one) ||
                                 IsBuddy(*one, *other) || IsBuddy(*other, *one) || IsGrip(*one) ||
                                 IsGrip(*other);
            EXPECT_FALSE(!belongs && IntersectRect(&both, &one->rect, &other->rect))
                << one->id << " (" << testing::PrintToString(one->rect) << ") and " << other->id << " ("
                << testing::PrintToString(other->rect) << ")";
        }
    }
}

/// Measures texts as the control draws them: with its font and its device context,
/// because letters may have other widths in a memory context.
class Measure
{
  public:
    explicit Measure(HWND control) : m_control(control), m_context(GetDC(control))
    {
        m_before = SelectObject(m_context, reinterpret_cast<HFONT>(Send(control, WM_GETFONT)));
    }
    ~Measure()
    {
        SelectObject(m_context, m_before);
        ReleaseDC(m_control, m_context);
    }
    Measure(const Measure&) = delete;
    Measure& operator=(const Measure&) = delete;

    SIZE Of(const std::wstring& text, LONG width, UINT format) const
    {
        RECT needed = {0, 0, width, 0};
        DrawTextW(m_context, text.c_str(), -1, &needed, DT_CALCRECT | format);
        return {needed.right, needed.bottom};
    }

  private:
    HWND m_control;
    HDC m_context;
    HGDIOBJ m_before;
};

/// The longest of all captions, when measured, exceeds the smallest dialog. When
/// drawn, it fits: letters are measured up to an eighth wider than they are drawn.
bool IsDrawnNarrower(const Placed& control)
{
    return control.id == IDC_DRAWING_SCALES_IGNORE_ANNOTATION_LOCK;
}

/// Expects every caption to be completely visible.
void ExpectUncut(const std::vector<Placed>& controls)
{
    // The width of a box including its distance from the caption, and the edges of frames and buttons.
    const LONG boxWidth = Scaled(18);
    const LONG frameEdges = Scaled(18);
    const LONG buttonEdges = Scaled(6);
    for (const Placed& control : controls) {
        if (control.caption.empty())
            continue;
        const LONG taken = control.IsBox()                    ? boxWidth
                           : control.IsFrame()                ? frameEdges
                           : control.windowClass == L"Button" ? buttonEdges
                                                              : 0;
        const LONG width = control.rect.right - control.rect.left - taken;
        const LONG measured = IsDrawnNarrower(control) ? width * 9 / 8 : width;
        const LONG height = control.rect.bottom - control.rect.top;
        const bool breaks = control.windowClass == L"Static" || (control.style & BS_MULTILINE) != 0;
        const SIZE needed =
            Measure(control.window).Of(control.caption, width, breaks ? DT_WORDBREAK : DT_SINGLELINE);
        EXPECT_TRUE(needed.cx <= measured && needed.cy <= height)
            << control.id << " " << testing::PrintToString(control.caption) << " takes " << needed.cx
            << " by " << needed.cy << " and has " << width << " by " << height;
    }
}

/// Expects every entry of a drop-down list to be completely visible when it is open.
void ExpectEntriesUncut(const std::vector<Placed>& controls)
{
    const LONG edges = Scaled(8);
    for (const Placed& control : controls) {
        if (control.windowClass != L"ComboBox")
            continue;
        const auto dropped = static_cast<LONG>(Send(control.window, CB_GETDROPPEDWIDTH));
        for (const std::wstring& entry : ComboTexts(control.window)) {
            const SIZE needed = Measure(control.window).Of(entry, 0, DT_SINGLELINE | DT_NOPREFIX);
            EXPECT_LE(needed.cx + edges, dropped) << control.id << " " << testing::PrintToString(entry);
        }
    }
}

void ExpectWell(HWND window)
{
    const auto controls = ControlsOf(window);
    ExpectReachable(window, controls);
    ExpectApart(controls);
    ExpectUncut(controls);
    ExpectEntriesUncut(controls);
}

class GeometryTest : public DialogSession
{
  protected:
    void ExpectAllPagesWell()
    {
        for (const std::wstring& title : BuiltTitles()) {
            SCOPED_TRACE(testing::PrintToString(title));
            ASSERT_TRUE(ShowPage(title));
            ExpectWell(Page());
        }
    }

    /// Expects every up-down control at the end of its edit, as in the template.
    void ExpectUpDownControlsInPlace()
    {
        for (const expected::Page* page : BuiltPages()) {
            SCOPED_TRACE(page->title);
            const auto dialog = ReadDialogTemplate(Library::Get().Module(), page->templateId);
            ASSERT_TRUE(dialog);
            for (const TemplateControl& control : dialog->controls) {
                if (control.windowClass != L"msctls_updown32")
                    continue;
                const std::string title = page->title;
                ASSERT_TRUE(ShowPage({title.begin(), title.end()}));
                RECT wanted = control.rect;
                MapDialogRect(Page(), &wanted);
                const RECT shown = RectIn(PageControl(control.id), Page());
                EXPECT_NEAR(wanted.right, shown.right, Scaled(3)) << control.id;
            }
        }
    }

    /// Checks a window that a page's button opens, at its initial and its minimum size.
    void ExpectWellAndClose(HWND window)
    {
        ASSERT_TRUE(window);
        ExpectWell(window);
        Resize(window, 1, 1);
        ExpectWell(window);
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        EXPECT_TRUE(AwaitGone(window));
    }
};

TEST_F(GeometryTest, EveryPageIsWellAtItsFirstSize)
{
    ASSERT_TRUE(Open());
    ExpectWell(Dialog());
    ExpectAllPagesWell();
    ExpectUpDownControlsInPlace();
    Cancel();
}

TEST_F(GeometryTest, EveryPageIsWellInALargeDialog)
{
    ASSERT_TRUE(Open());
    Resize(Dialog(), 1250, 980);
    ExpectAllPagesWell();
    Cancel();
}

TEST_F(GeometryTest, EveryPageIsWellInTheSmallestDialog)
{
    ASSERT_TRUE(Open());
    Resize(Dialog(), 580, 400);
    ExpectWell(Dialog());
    ExpectAllPagesWell();
    Cancel();
}

TEST_F(GeometryTest, ValueEditorIsWell)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Branding"));
    ClickOnPage(IDC_BRANDING_RENAME_BROWSE);
    ExpectWellAndClose(AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId()));
    Cancel();
}

TEST_F(GeometryTest, TesterIsWell)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Miscellaneous"));
    ClickOnPage(IDC_MISC_WILDCARD_TEST);
    ExpectWellAndClose(AwaitTopWindow(L"Regular Expression Tester", GetCurrentProcessId()));
    Cancel();
}

/// Rules that apply at the usual resolution only: at others the texts may need more
/// room than the smallest dialog has.
class UsualGeometryTest : public GeometryTest
{
};

TEST_F(UsualGeometryTest, WidePagesAloneHaveAHorizontalBarInTheSmallestDialog)
{
    ASSERT_TRUE(Open());
    Resize(Dialog(), 580, 400);
    for (const expected::Page* page : BuiltPages()) {
        SCOPED_TRACE(page->title);
        const std::string title = page->title;
        ASSERT_TRUE(ShowPage({title.begin(), title.end()}));
        const RECT area = RectIn(Page(), Dialog());
        const bool isWide = ov::FindPage(page->pageId)->scrollWidth > area.right - area.left;
        EXPECT_EQ(isWide, (GetWindowLongPtrW(Page(), GWL_STYLE) & WS_HSCROLL) != 0);
    }
    Cancel();
}

} // namespace
