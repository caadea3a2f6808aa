// Every page that is built, as it lies in the dialog at several sizes.
#include "pages/core/page_catalogue.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"

#include <commctrl.h>

#include <algorithm>

using namespace uidriver;

static void PrintTo(const RECT& rect, std::ostream* stream)
{
    *stream << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}

namespace
{

/// A visible control and where it lies on its page, which is not scrolled.
struct Placed {
    int id;
    HWND window;
    RECT rect;
    std::wstring windowClass;
    DWORD style;
    std::wstring caption; ///< of labels, buttons and frames

    DWORD ButtonType() const { return windowClass == L"Button" ? style & BS_TYPEMASK : ~0U; }
    bool IsFrame() const { return ButtonType() == BS_GROUPBOX; }
    bool IsBox() const { return ButtonType() == BS_AUTOCHECKBOX || ButtonType() == BS_AUTORADIOBUTTON; }
};

bool Contains(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

class PageGeometryTest : public DialogSession
{
  protected:
    std::vector<Placed> Controls()
    {
        std::vector<Placed> controls;
        for (HWND child : Children(Page())) {
            if (!IsWindowVisible(child))
                continue;
            Placed control = {GetDlgCtrlID(child),
                              child,
                              RectIn(child, Page()),
                              ClassOf(child),
                              static_cast<DWORD>(GetWindowLongPtrW(child, GWL_STYLE)),
                              {}};
            if (control.windowClass == L"Button" || control.windowClass == L"Static")
                control.caption = GetText(child);
            controls.push_back(std::move(control));
        }
        return controls;
    }

    /// Within what the page shows or scrolls to.
    void ExpectReachable(const std::vector<Placed>& controls, const ov::PageInfo& info)
    {
        RECT client = {};
        GetClientRect(Page(), &client);
        const RECT content = {0, 0, std::max<LONG>(client.right, info.scrollWidth),
                              std::max<LONG>(client.bottom, info.scrollHeight)};
        for (const Placed& control : controls) {
            EXPECT_TRUE(Contains(content, control.rect))
                << control.id << " (" << testing::PrintToString(control.rect) << ") lies outside of "
                << testing::PrintToString(content);
        }
    }

    /// An up-down control's edge covers that of its edit.
    static bool IsBuddy(const Placed& spin, const Placed& edit)
    {
        return spin.windowClass == L"msctls_updown32" &&
               reinterpret_cast<HWND>(Send(spin.window, UDM_GETBUDDY)) == edit.window;
    }

    static void ExpectApart(const std::vector<Placed>& controls)
    {
        for (auto one = controls.begin(); one != controls.end(); ++one) {
            for (auto other = one + 1; other != controls.end(); ++other) {
                RECT both = {};
                const bool isFrame = (one->IsFrame() && Contains(one->rect, other->rect)) ||
                                     (other->IsFrame() && Contains(other->rect, one->rect));
                const bool belongs = IsBuddy(*one, *other) || IsBuddy(*other, *one);
                EXPECT_FALSE(!isFrame && !belongs && IntersectRect(&both, &one->rect, &other->rect))
                    << one->id << " (" << testing::PrintToString(one->rect) << ") and " << other->id << " ("
                    << testing::PrintToString(other->rect) << ")";
            }
        }
    }

    /// Every caption is shown whole.
    static void ExpectUncut(const std::vector<Placed>& controls)
    {
        // What a box takes with its distance from the caption, and a frame's and a button's edges.
        constexpr LONG boxWidth = 16;
        constexpr LONG frameEdges = 18;
        constexpr LONG buttonEdges = 6;
        HDC screen = CreateCompatibleDC(nullptr);
        for (const Placed& control : controls) {
            if (control.caption.empty())
                continue;
            SelectObject(screen, reinterpret_cast<HFONT>(Send(control.window, WM_GETFONT)));
            const LONG taken = control.IsBox()                    ? boxWidth
                               : control.IsFrame()                ? frameEdges
                               : control.windowClass == L"Button" ? buttonEdges
                                                                  : 0;
            const LONG width = control.rect.right - control.rect.left - taken;
            const LONG height = control.rect.bottom - control.rect.top;
            const bool breaks = control.windowClass == L"Static" || (control.style & BS_MULTILINE) != 0;
            RECT needed = {0, 0, width, 0};
            DrawTextW(screen, control.caption.c_str(), -1, &needed,
                      static_cast<UINT>(DT_CALCRECT | (breaks ? DT_WORDBREAK : DT_SINGLELINE)));
            EXPECT_TRUE(needed.right <= width && needed.bottom <= height)
                << control.id << " " << testing::PrintToString(control.caption) << " takes " << needed.right
                << " by " << needed.bottom << " and has " << width << " by " << height;
        }
        DeleteDC(screen);
    }

    void ExpectAllPagesWell()
    {
        for (const expected::Page* page : BuiltPages()) {
            SCOPED_TRACE(page->title);
            const std::string title = page->title;
            ASSERT_TRUE(ShowPage({title.begin(), title.end()}));
            const auto controls = Controls();
            ExpectReachable(controls, *ov::FindPage(page->pageId));
            ExpectApart(controls);
            ExpectUncut(controls);
        }
    }
};

TEST_F(PageGeometryTest, EveryPageIsWellAtItsFirstSize)
{
    ASSERT_TRUE(Open());
    ExpectAllPagesWell();
    Cancel();
}

TEST_F(PageGeometryTest, EveryPageIsWellInALargeDialog)
{
    ASSERT_TRUE(Open());
    Resize(Dialog(), 1250, 980);
    ExpectAllPagesWell();
    Cancel();
}

} // namespace
