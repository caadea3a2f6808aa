// The dialog base classes, the tooltip registry and the list control, with real windows.
#include "controls/pref_list_ctrl.h"
#include "controls/resizable_dlg.h"
#include "controls/tool_tip_control.h"
#include "tests/ui/controls_application.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <ostream>

static void PrintTo(const CRect& rect, std::ostream* out)
{
    *out << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

namespace
{

constexpr UINT layoutTemplate = 1;
constexpr UINT missingControl = 4711;
constexpr UINT stretchedList = 1770;
constexpr UINT designWidth = 580;
constexpr UINT designHeight = 400;
constexpr int gripSize = 11;

// The flags of a control are encoded in its id, from 1000 on.
constexpr UINT listedControls[] = {1003, 1006, 1009, 1012, 1258, 1264, 1512, stretchedList};
constexpr UINT FlagsOf(UINT controlId)
{
    return controlId - 1000;
}

CRect RectOf(const CWnd& dialog, UINT controlId)
{
    CRect rect;
    ::GetWindowRect(::GetDlgItem(dialog.m_hWnd, static_cast<int>(controlId)), &rect);
    ::MapWindowPoints(HWND_DESKTOP, dialog.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

using Rects = std::map<UINT, CRect>;

Rects AllRects(const CWnd& dialog)
{
    Rects rects;
    for (const UINT id : listedControls)
        rects[id] = RectOf(dialog, id);
    return rects;
}

CSize ClientSize(const CWnd& window)
{
    CRect client;
    window.GetClientRect(&client);
    return {client.Width(), client.Height()};
}

void ResizeClient(CWnd& window, int width, int height)
{
    CRect outer;
    window.GetWindowRect(&outer);
    const CSize client = ClientSize(window);
    window.SetWindowPos(nullptr, 0, 0, outer.Width() + width - client.cx, outer.Height() + height - client.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND GripOf(const CWnd& dialog)
{
    return ::FindWindowExW(dialog.m_hWnd, nullptr, L"ScrollBar", nullptr);
}

class LayoutDialog : public CResizableDlg
{
  public:
    explicit LayoutDialog(bool sizeGrip = false)
        : CResizableDlg(layoutTemplate, nullptr, sizeGrip, designWidth, designHeight)
    {
        LayoutDialog::InitControlLayout();
    }
    ~LayoutDialog() override
    {
        if (m_hWnd != nullptr)
            DestroyWindow();
    }

    bool Open() { return Create(layoutTemplate, nullptr) && ::IsWindow(m_hWnd); }

    int repositioned = 0;
    CRect stretchedWhenRepositioned;
    bool resizeOnDestroy = false;
    Rects rectsAfterDestroy;
    std::optional<POINT> minimumAfterDestroy;

  protected:
    void InitControlLayout() override
    {
        AddLayout(missingControl, 768);
        for (const UINT id : listedControls)
            AddLayout(id, FlagsOf(id));
    }

    void RepositionCurrentPage() override
    {
        ++repositioned;
        if (::GetDlgItem(m_hWnd, stretchedList) != nullptr)
            stretchedWhenRepositioned = RectOf(*this, stretchedList);
    }

    void OnGetMinMaxInfo(MINMAXINFO* info) { ApplyMinimumSize(info); }

    void OnDestroy()
    {
        CResizableDlg::OnDestroy();
        if (!resizeOnDestroy)
            return;
        repositioned = 0;
        ResizeClient(*this, 900, 700);
        SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(900, 700));
        rectsAfterDestroy = AllRects(*this);
        MINMAXINFO info{};
        SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        minimumAfterDestroy = info.ptMinTrackSize;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LayoutDialog, CResizableDlg)
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

TEST(ResizableDialog, ControlsFollowTheirEdges)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const CSize size = ClientSize(dialog);
    const Rects before = AllRects(dialog);
    constexpr int dx = 120;
    constexpr int dy = 70;
    ResizeClient(dialog, size.cx + dx, size.cy + dy);
    ASSERT_EQ(ClientSize(dialog), CSize(size.cx + dx, size.cy + dy));

    Rects expected = before;
    expected[1006].OffsetRect(dx, 0);
    expected[1009].OffsetRect(0, dy);
    expected[1012].OffsetRect(dx, dy);
    expected[1258].right += dx;
    expected[1264].right += dx;
    expected[1264].OffsetRect(0, dy);
    expected[1512].bottom += dy;
    expected[1770].right += dx;
    expected[1770].bottom += dy;
    EXPECT_EQ(AllRects(dialog), expected);
}

TEST(ResizableDialog, RepeatedResizingDoesNotDrift)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const CSize size = ClientSize(dialog);
    const Rects before = AllRects(dialog);
    for (int i = 1; i <= 50; ++i)
        ResizeClient(dialog, size.cx + 13 * i % 301, size.cy + 7 * i % 203);
    EXPECT_NE(AllRects(dialog), before);
    ResizeClient(dialog, size.cx, size.cy);
    EXPECT_EQ(AllRects(dialog), before);
}

TEST(ResizableDialog, StretchedListOf304PixelsGetsThreeColumnsOf100)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const HWND list = ::GetDlgItem(dialog.m_hWnd, stretchedList);
    const HWND tallList = ::GetDlgItem(dialog.m_hWnd, 1512);
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = 37;
    for (int i = 0; i < 3; ++i) {
        ListView_InsertColumn(list, i, &column);
        ListView_InsertColumn(tallList, i, &column);
    }
    const CSize size = ClientSize(dialog);
    const int listWidth = RectOf(dialog, stretchedList).Width();
    ASSERT_NE(listWidth, 304);
    ResizeClient(dialog, size.cx + 304 - listWidth, size.cy);
    ASSERT_EQ(RectOf(dialog, stretchedList).Width(), 304);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ListView_GetColumnWidth(list, i), 100) << i;
        EXPECT_EQ(ListView_GetColumnWidth(tallList, i), 37) << i;
    }
}

TEST(ResizableDialog, HookIsCalledAtTheEndOfEveryLayoutPass)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.repositioned = 0;
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, 0);
    EXPECT_EQ(dialog.repositioned, 1);
    const CSize size = ClientSize(dialog);
    ResizeClient(dialog, size.cx + 50, size.cy + 50);
    EXPECT_EQ(dialog.stretchedWhenRepositioned, RectOf(dialog, stretchedList));
}

TEST(ResizableDialog, MinimisingMovesNothingAndRestoringLaysOutAnew)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.ShowWindow(SW_SHOWNOACTIVATE);
    const CSize size = ClientSize(dialog);
    ResizeClient(dialog, size.cx + 60, size.cy + 40);
    const Rects before = AllRects(dialog);
    dialog.ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(dialog.IsIconic());
    EXPECT_EQ(AllRects(dialog), before);
    dialog.repositioned = 0;
    dialog.SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
    EXPECT_EQ(dialog.repositioned, 0);
    EXPECT_EQ(AllRects(dialog), before);
    dialog.ShowWindow(SW_RESTORE);
    ASSERT_FALSE(dialog.IsIconic());
    EXPECT_GE(dialog.repositioned, 1);
    EXPECT_EQ(AllRects(dialog), before);
}

TEST(ResizableDialog, LateSizesAfterDestructionLeaveTheControlsAlone)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const Rects before = AllRects(dialog);
    dialog.resizeOnDestroy = true;
    dialog.DestroyWindow();
    ASSERT_EQ(dialog.rectsAfterDestroy.size(), before.size());
    EXPECT_EQ(dialog.rectsAfterDestroy, before);
    EXPECT_EQ(dialog.repositioned, 0);
    ASSERT_TRUE(dialog.minimumAfterDestroy.has_value());
    EXPECT_EQ(dialog.minimumAfterDestroy->x, 0);
    EXPECT_EQ(dialog.minimumAfterDestroy->y, 0);
}

TEST(ResizableDialog, MinimumTrackingSizeIsTheDesignSize)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.repositioned = 0;
    MINMAXINFO info{};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 580);
    EXPECT_EQ(info.ptMinTrackSize.y, 400);
    EXPECT_EQ(dialog.repositioned, 1);
}

TEST(ResizableDialog, GripSitsInTheCornerAndFollowsIt)
{
    LayoutDialog dialog(true);
    ASSERT_TRUE(dialog.Open());
    const HWND grip = GripOf(dialog);
    ASSERT_NE(grip, nullptr);
    EXPECT_NE(::GetWindowLongPtrW(grip, GWL_STYLE) & SBS_SIZEGRIP, 0);
    const auto expectInCorner = [&] {
        const CSize size = ClientSize(dialog);
        CRect rect;
        ::GetWindowRect(grip, &rect);
        dialog.ScreenToClient(&rect);
        EXPECT_EQ(rect, CRect(size.cx - gripSize, size.cy - gripSize, size.cx, size.cy));
    };
    expectInCorner();
    const CSize size = ClientSize(dialog);
    ResizeClient(dialog, size.cx + 33, size.cy + 44);
    expectInCorner();
}

TEST(ResizableDialog, DialogWithoutTheFlagHasNoGrip)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(GripOf(dialog), nullptr);
}

TEST(AbstractFontDialog, EveryDirectChildGetsTheSharedFont)
{
    CFont font;
    LOGFONTW description{};
    description.lfHeight = 14;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    sharedFont = &font;
    LayoutDialog dialog;
    const bool opened = dialog.Open();
    sharedFont = nullptr;
    ASSERT_TRUE(opened);
    for (const UINT id : listedControls) {
        const HWND control = ::GetDlgItem(dialog.m_hWnd, static_cast<int>(id));
        EXPECT_EQ(::SendMessageW(control, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font.GetSafeHandle()))
            << id;
    }
    dialog.DestroyWindow();
}

TEST(AbstractFontDialog, WithoutASharedFontTheTemplatesFontStays)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const LRESULT own = dialog.SendMessage(WM_GETFONT);
    EXPECT_NE(own, 0);
    EXPECT_EQ(::SendDlgItemMessageW(dialog.m_hWnd, 1006, WM_GETFONT, 0, 0), own);
}

class Tooltip : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(dialog.Open());
        ASSERT_TRUE(tip.Create(&dialog, kTooltipBalloon, 8, nullptr));
    }
    void TearDown() override
    {
        if (tip.m_hWnd != nullptr)
            tip.DestroyWindow();
    }

    const CWnd* Control(UINT id) const { return dialog.GetDlgItem(static_cast<int>(id)); }

    LayoutDialog dialog;
    CToolTipControl tip;
};

TEST_F(Tooltip, WindowIsAHiddenOwnedToolWindow)
{
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_NE(tip.GetStyle() & WS_POPUP, 0u);
    EXPECT_NE(tip.GetExStyle() & WS_EX_TOOLWINDOW, 0u);
    EXPECT_EQ(::GetWindow(tip.m_hWnd, GW_OWNER), dialog.m_hWnd);
    EXPECT_EQ(tip.GetTooltipStyle(), 1u);
}

TEST_F(Tooltip, WindowNeedsNoOwnersWindow)
{
    CToolTipControl other;
    LayoutDialog notOpened;
    ASSERT_TRUE(other.Create(&notOpened, kTooltipBalloon, 8, nullptr));
    EXPECT_FALSE(other.IsWindowVisible());
    other.DestroyWindow();
}

TEST_F(Tooltip, LookupsReadTheRegisteredText)
{
    tip.AddTool(Control(1258), 7001);
    tip.AddTool(Control(1006), 7002);
    EXPECT_EQ(tip.GetVariableName(Control(1258)), u"_ORTHOVAL_CHECK_CELLS");
    EXPECT_EQ(tip.GetDescription(Control(1258)), u"Checks the cells.");
    EXPECT_EQ(tip.GetVariableName(Control(1006)), u"");
    EXPECT_EQ(tip.GetDescription(Control(1006)), u"Saves the changes and closes the dialog.");
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(Tooltip, RegisteringTwiceKeepsOneEntryWithTheSecondText)
{
    tip.RegisterControl(Control(1258), u"<T>FIRST<D>one");
    tip.RegisterControl(Control(1258), u"<T>SECOND<D>two");
    EXPECT_EQ(tip.GetToolCount(), 1u);
    EXPECT_EQ(tip.GetVariableName(Control(1258)), u"SECOND");
    EXPECT_EQ(tip.GetDescription(Control(1258)), u"two");
}

TEST_F(Tooltip, ControlWithoutAWindowIsIgnored)
{
    const CWnd nothing;
    tip.RegisterControl(&nothing, u"<D>text");
    tip.RegisterControl(nullptr, u"<D>text");
    EXPECT_EQ(tip.GetToolCount(), 0u);
    EXPECT_EQ(tip.GetDescription(&nothing), u"");
    EXPECT_EQ(tip.GetDescription(nullptr), u"");
}

TEST_F(Tooltip, EntriesShareTheTooltipsIcon)
{
    tip.AddTool(Control(1258), 7001);
    tip.AddTool(Control(1006), 7002);
    const HICON icon = tip.GetToolIcon(Control(1258));
    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(icon, &info));
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    EXPECT_EQ(tip.GetToolIcon(Control(1006)), icon);
    EXPECT_EQ(tip.GetToolIcon(Control(1009)), nullptr);
    tip.DestroyWindow();
    EXPECT_FALSE(::GetIconInfo(icon, &info)) << "it goes with the entries";
}

TEST_F(Tooltip, UnknownControlHasEmptyTexts)
{
    tip.RegisterControl(Control(1258), u"<T>NAME<D>text");
    EXPECT_EQ(tip.GetVariableName(Control(1006)), u"");
    EXPECT_EQ(tip.GetDescription(Control(1006)), u"");
}

TEST_F(Tooltip, EntriesAndTheirIconsGoWithTheWindow)
{
    const HICON icon = ::CopyIcon(::LoadIconW(nullptr, IDI_APPLICATION));
    ASSERT_NE(icon, nullptr);
    tip.RegisterControl(Control(1258), u"<D>text", icon);
    // Registering other controls does not change the entry.
    tip.RegisterControl(Control(1258), u"<D>other");
    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(icon, &info));
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    tip.DestroyWindow();
    EXPECT_EQ(tip.GetToolCount(), 0u);
    EXPECT_FALSE(::GetIconInfo(icon, &info));
}

TEST(TooltipProvider, IsAskedWhenTheRegisteredTextIsEmpty)
{
    class Provider : public CTooltipTextProvider
    {
      public:
        ov::Text GetTooltipText(HWND control) override
        {
            asked = control;
            return u"<T>PROVIDED";
        }
        HWND asked = nullptr;
    };
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    Provider provider;
    CToolTipControl tip;
    ASSERT_TRUE(tip.Create(&dialog, kTooltipBalloon, 8, &provider));
    const CWnd* control = dialog.GetDlgItem(1258);
    tip.RegisterControl(control, u"<T>OWN");
    EXPECT_EQ(tip.GetVariableName(control), u"OWN");
    EXPECT_EQ(provider.asked, nullptr);
    tip.RegisterControl(control, u"");
    EXPECT_EQ(tip.GetVariableName(control), u"PROVIDED");
    EXPECT_EQ(provider.asked, control->m_hWnd);
    tip.DestroyWindow();
}

TEST(PrefListControl, ColumnsAndRowsStandInTheirOrder)
{
    LayoutDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CPrefListCtrl list;
    ASSERT_TRUE(list.SubclassWindow(::GetDlgItem(dialog.m_hWnd, stretchedList)));
    EXPECT_EQ(list.GetColumnCount(), 0);
    EXPECT_EQ(list.InsertCaptionedColumn(0, 5013, 77), 0);
    EXPECT_EQ(list.GetColumnCount(), 1);
    EXPECT_EQ(ListView_GetColumnWidth(list.m_hWnd, 0), 77);
    wchar_t caption[32] = L"";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = caption;
    column.cchTextMax = 32;
    ListView_GetColumn(list.m_hWnd, 0, &column);
    EXPECT_STREQ(column.pszText, L"Category");

    EXPECT_EQ(list.AppendRow(u"Branding"), 0);
    EXPECT_EQ(list.AppendRow(u"Cell Handling"), 1);
    EXPECT_EQ(list.AppendRow(u"A later row is not sorted"), 2);
    list.SetItemData(1, 3);
    EXPECT_EQ(list.GetItemText(1, 0), u"Cell Handling");
    EXPECT_EQ(list.GetItemData(1), 3u);
    EXPECT_TRUE(list.ToggleSortDirection());
    EXPECT_FALSE(list.ToggleSortDirection());
}

} // namespace
