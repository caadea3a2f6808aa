// The dialog's sizes: how its controls follow, the minimum size, the size grip.
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"

#include <random>

using namespace uidriver;

static void PrintTo(const RECT& rect, std::ostream* stream)
{
    *stream << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}

static bool operator==(const RECT& one, const RECT& other)
{
    return EqualRect(&one, &other) != FALSE;
}

namespace
{

class LayoutTest : public DialogSession
{
  protected:
    static SIZE OuterSize(HWND window)
    {
        RECT rect = {};
        GetWindowRect(window, &rect);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }

    /// Resizes the dialog. A window manager may answer an earlier resize late and
    /// undo this one; the request is then repeated.
    bool ResizeTo(LONG width, LONG height)
    {
        return Await([&] {
            const SIZE size = OuterSize(Dialog());
            if (size.cx == width && size.cy == height)
                return true;
            Resize(Dialog(), width, height);
            return false;
        });
    }

    SIZE ClientSize()
    {
        RECT rect = {};
        GetClientRect(Dialog(), &rect);
        return {rect.right, rect.bottom};
    }

    /// Every control of the dialog and of all its child dialogs, with its
    /// rectangle in the dialog.
    std::vector<RECT> AllRectangles()
    {
        std::vector<RECT> rectangles;
        Collect(Dialog(), rectangles);
        return rectangles;
    }

    HWND Grip()
    {
        for (HWND child : Children(Dialog())) {
            if (ClassOf(child) == L"ScrollBar" && (GetWindowLongPtrW(child, GWL_STYLE) & SBS_SIZEGRIP))
                return child;
        }
        return nullptr;
    }

    void ExpectGripInTheCorner()
    {
        const SIZE client = ClientSize();
        ASSERT_TRUE(Grip());
        EXPECT_TRUE(IsWindowVisible(Grip()));
        EXPECT_EQ((RECT{client.cx - 11, client.cy - 11, client.cx, client.cy}), RectIn(Grip(), Dialog()));
    }

  private:
    void Collect(HWND parent, std::vector<RECT>& rectangles)
    {
        for (HWND child : Children(parent)) {
            rectangles.push_back(RectIn(child, Dialog()));
            if (ClassOf(child) == L"#32770" && IsWindowVisible(child))
                Collect(child, rectangles);
        }
    }
};

/// How the dialog's controls follow its edges.
struct Rule {
    int id;
    int left, top, right, bottom; // whether the edge follows
};

constexpr Rule rules[] = {
    {IDC_PREFERENCES_CONFIG_FILE_LABEL, 0, 0, 0, 0},
    {IDC_PREFERENCES_CONFIG_FILE, 0, 0, 1, 0},
    {IDC_PREFERENCES_BROWSE, 1, 0, 1, 0},
    {IDC_PREFERENCES_PANE_AREA, 0, 0, 0, 1},
    {IDC_PREFERENCES_PAGE_AREA, 0, 0, 1, 1},
    {IDC_PREFERENCES_VARIABLE_NAME_LABEL, 0, 1, 0, 1},
    {IDC_PREFERENCES_VARIABLE_NAME, 0, 1, 0, 1},
    {IDC_PREFERENCES_DESCRIPTION_LABEL, 0, 1, 0, 1},
    {IDC_PREFERENCES_DESCRIPTION, 0, 1, 1, 1},
    {IDC_PREFERENCES_SAVE, 0, 1, 0, 1},
    {IDC_PREFERENCES_LOAD_DEFAULTS, 0, 1, 0, 1},
    {IDC_PREFERENCES_CANCEL, 1, 1, 1, 1},
};

TEST_F(LayoutTest, ControlsFollowTheEdges)
{
    ASSERT_TRUE(Open());
    const SIZE outer = OuterSize(Dialog());
    for (const auto& [dx, dy] : {std::pair{83L, 61L}, {-101L, -57L}, {200L, -40L}}) {
        ASSERT_TRUE(ResizeTo(outer.cx, outer.cy));
        std::vector<RECT> expected;
        for (const Rule& rule : rules) {
            const RECT before = RectIn(Control(rule.id), Dialog());
            expected.push_back({before.left + rule.left * dx, before.top + rule.top * dy,
                                before.right + rule.right * dx, before.bottom + rule.bottom * dy});
        }
        const auto inPlace = [&](std::size_t index) {
            return expected[index] == RectIn(Control(rules[index].id), Dialog());
        };
        Await([&, dx = dx, dy = dy] {
            if (!ResizeTo(outer.cx + dx, outer.cy + dy))
                return true;
            for (std::size_t index = 0; index < std::size(rules); ++index) {
                if (!inPlace(index))
                    return false;
            }
            return true;
        });
        for (std::size_t index = 0; index < std::size(rules); ++index) {
            EXPECT_EQ(expected[index], RectIn(Control(rules[index].id), Dialog()))
                << "control " << rules[index].id;
        }
    }
    Cancel();
}

TEST_F(LayoutTest, PageFillsItsPlaceholderAtEverySize)
{
    ASSERT_TRUE(Open());
    for (const SIZE size : {SIZE{900, 700}, {580, 400}, {1100, 500}}) {
        Resize(Dialog(), size.cx, size.cy);
        for (const std::wstring& title : BuiltTitles()) {
            ASSERT_TRUE(ShowPage(title));
            EXPECT_EQ(RectIn(Control(IDC_PREFERENCES_PAGE_AREA), Dialog()), RectIn(Page(), Dialog()));
        }
    }
    Cancel();
}

TEST_F(LayoutTest, SmallestSizeIs580By400)
{
    ASSERT_TRUE(Open());
    MINMAXINFO info = {};
    SendMessageW(Dialog(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(580, info.ptMinTrackSize.x);
    EXPECT_EQ(400, info.ptMinTrackSize.y);
    Resize(Dialog(), 300, 200);
    EXPECT_EQ(580, OuterSize(Dialog()).cx);
    EXPECT_EQ(400, OuterSize(Dialog()).cy);
    Cancel();
}

TEST_F(LayoutTest, RepeatedResizingDoesNotDrift)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    const SIZE outer = OuterSize(Dialog());
    // Causes a layout pass, which places the page.
    ASSERT_TRUE(ResizeTo(outer.cx + 1, outer.cy));
    ASSERT_TRUE(ResizeTo(outer.cx, outer.cy));
    const auto before = AllRectangles();
    std::mt19937 random(20040229);
    std::uniform_int_distribution<int> width(580, 1250);
    std::uniform_int_distribution<int> height(400, 980);
    for (int round = 0; round < 50; ++round)
        Resize(Dialog(), width(random), height(random));
    Await([&] { return ResizeTo(outer.cx, outer.cy) && before == AllRectangles(); });
    EXPECT_EQ(before, AllRectangles());
    Cancel();
}

TEST_F(LayoutTest, OpeningSizeIsAlreadyLaidOut)
{
    ASSERT_TRUE(Open());
    const auto before = AllRectangles();
    const SIZE outer = OuterSize(Dialog());
    ASSERT_TRUE(ResizeTo(outer.cx + 40, outer.cy + 40));
    Await([&] { return ResizeTo(outer.cx, outer.cy) && before == AllRectangles(); });
    EXPECT_EQ(before, AllRectangles());
    Cancel();
}

TEST_F(LayoutTest, MinimisingMovesNothingAndRestoringComesBack)
{
    ASSERT_TRUE(Open());
    const auto before = AllRectangles();
    ShowWindow(Dialog(), SW_MINIMIZE);
    ASSERT_TRUE(Await([&] { return IsIconic(Dialog()) != FALSE; }));
    Settle(Dialog());
    const HWND save = Control(IDC_PREFERENCES_SAVE);
    const HWND label = Control(IDC_PREFERENCES_CONFIG_FILE_LABEL);
    const RECT saveRect = RectIn(save, Dialog());
    const RECT labelRect = RectIn(label, Dialog());
    ShowWindow(Dialog(), SW_RESTORE);
    ASSERT_TRUE(Await([&] { return !IsIconic(Dialog()); }));
    Settle(Dialog());
    EXPECT_EQ(before, AllRectangles());
    // Their positions relative to each other did not change while minimised.
    const RECT saveNow = RectIn(save, Dialog());
    const RECT labelNow = RectIn(label, Dialog());
    EXPECT_EQ(saveNow.left - labelNow.left, saveRect.left - labelRect.left);
    EXPECT_EQ(saveNow.top - labelNow.top, saveRect.top - labelRect.top);
    Cancel();
}

TEST_F(LayoutTest, GripStaysInTheCorner)
{
    ASSERT_TRUE(Open());
    ExpectGripInTheCorner();
    Resize(Dialog(), 1000, 800);
    ExpectGripInTheCorner();
    Resize(Dialog(), 580, 400);
    ExpectGripInTheCorner();
    Cancel();
}

TEST_F(LayoutTest, ControlsShareOneFont)
{
    ASSERT_TRUE(Open());
    LOGFONTW dialogFont = {};
    ASSERT_TRUE(
        GetObjectW(reinterpret_cast<HFONT>(Send(Dialog(), WM_GETFONT)), sizeof dialogFont, &dialogFont));
    const auto shared = Send(Control(IDC_PREFERENCES_SAVE), WM_GETFONT);
    ASSERT_NE(0, shared);
    for (HWND parent : {Dialog(), Page(), GetParent(List())}) {
        for (HWND child : Children(parent)) {
            if (ClassOf(child) == L"#32770" || ClassOf(child) == L"ScrollBar" ||
                ClassOf(child) == L"msctls_updown32")
                continue;
            EXPECT_EQ(shared, Send(child, WM_GETFONT)) << GetDlgCtrlID(child);
        }
    }
    LOGFONTW font = {};
    ASSERT_TRUE(GetObjectW(reinterpret_cast<HFONT>(shared), sizeof font, &font));
    EXPECT_EQ(dialogFont.lfHeight, font.lfHeight);
    EXPECT_STREQ(dialogFont.lfFaceName, font.lfFaceName);
    Cancel();
}

} // namespace
