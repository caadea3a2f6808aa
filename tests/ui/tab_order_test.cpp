// Tab and Shift and Tab through every window.
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/tab_walk.h"

#include <algorithm>
#include <set>

using namespace uidriver;

namespace
{

bool IsTicked(HWND box)
{
    return CheckState(box) == BST_CHECKED;
}

class TabOrderTest : public DialogSession
{
  protected:
    std::vector<HWND> BoxesOfPage(DWORD type)
    {
        auto boxes = Children(Page());
        std::erase_if(boxes, [&](HWND window) {
            const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
            return ClassOf(window) != L"Button" || (style & BS_TYPEMASK) != type ||
                   !IsWindowVisible(window) || !IsWindowEnabled(window);
        });
        return boxes;
    }

    /// Ticks every check box and chooses the last radio button of each group,
    /// again while that enables or shows others: what they switch on is reached
    /// by Tab, too.
    void TickEverything()
    {
        for (bool changed = true; changed;) {
            changed = false;
            for (HWND box : BoxesOfPage(BS_AUTOCHECKBOX)) {
                if (!IsTicked(box) && IsWindowEnabled(box)) {
                    Click(box);
                    changed = changed || IsTicked(box);
                }
            }
        }
        const auto buttons = BoxesOfPage(BS_AUTORADIOBUTTON);
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            const bool isLast =
                i + 1 == buttons.size() || (GetWindowLongPtrW(buttons[i + 1], GWL_STYLE) & WS_GROUP) != 0;
            if (isLast)
                Click(buttons[i]);
        }
    }

    /// The control is where the person sees it, or its beginning is, if it is
    /// wider than what the scroll bars leave of the page.
    void ExpectInView(HWND control)
    {
        if (!IsChild(Page(), control))
            return;
        RECT view = {};
        GetClientRect(Page(), &view);
        const RECT rect = RectIn(control, Page());
        EXPECT_GE(rect.left, 0) << GetDlgCtrlID(control);
        EXPECT_GE(rect.top, 0) << GetDlgCtrlID(control);
        EXPECT_LE(rect.bottom, view.bottom) << GetDlgCtrlID(control);
        if (rect.right - rect.left <= view.right)
            EXPECT_LE(rect.right, view.right) << GetDlgCtrlID(control);
        else
            EXPECT_LE(rect.left, view.right / 4) << GetDlgCtrlID(control);
    }
};

TEST_F(TabOrderTest, EveryPageAtItsSmallestIsWalkedThroughOnceAndSeen)
{
    // What a text switches on.
    UseCurrent("_ORTHOVAL_BORDERSHEETS = a.dgn\r\n_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE = b\r\n");
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    Resize(Dialog(), 580, 400);
    ASSERT_FALSE(BuiltTitles().empty());
    for (const std::wstring& title : BuiltTitles()) {
        SCOPED_TRACE(testing::PrintToString(title));
        ASSERT_TRUE(ShowPage(title));
        TickEverything();
        ExpectTabCycle(Dialog(), List(), [this](HWND control) { ExpectInView(control); });
    }
    Abandon();
}

} // namespace
