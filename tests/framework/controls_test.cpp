#include "tests/framework/test_app.h"

#include <gtest/gtest.h>

namespace
{
class Controls : public testing::Test
{
  protected:
    Controls() { m_parent.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 400, 300), nullptr, 0); }

    AFX_MAINTAIN_STATE2 m_state{AfxGetStaticModuleState()};
    CWnd m_parent;
};

int CALLBACK Descending(LPARAM first, LPARAM second, LPARAM)
{
    return static_cast<int>(second - first);
}
} // namespace

TEST_F(Controls, ListKeepsRowsColumnsAndData)
{
    CListCtrl list;
    ASSERT_TRUE(
        list.Create(WC_LISTVIEWW, L"", LVS_REPORT | LVS_SHOWSELALWAYS, CRect(0, 0, 300, 200), &m_parent, 1));
    EXPECT_EQ(0, list.GetColumnCount());
    EXPECT_EQ(0, list.InsertColumn(0, u"Name", LVCFMT_LEFT, 100));
    EXPECT_EQ(1, list.InsertColumn(1, u"Value", LVCFMT_LEFT, 50));
    EXPECT_EQ(2, list.GetColumnCount());
    EXPECT_EQ(50, list.GetColumnWidth(1));

    EXPECT_EQ(0, list.InsertItem(0, u"one"));
    EXPECT_EQ(1, list.InsertItem(1, u"two"));
    EXPECT_EQ(1, list.InsertItem(1, u"between"));
    EXPECT_TRUE(list.SetItemText(0, 1, u"first"));
    EXPECT_TRUE(list.SetItemData(2, 22));
    EXPECT_EQ(3, list.GetItemCount());
    EXPECT_EQ(u"between", list.GetItemText(1, 0));
    EXPECT_EQ(u"first", list.GetItemText(0, 1));
    EXPECT_EQ(u"", list.GetItemText(1, 1));
    EXPECT_EQ(22u, list.GetItemData(2));

    EXPECT_EQ(-1, list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_TRUE(list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(2, list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED), list.GetItemState(2, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(1u, list.GetSelectedCount());

    EXPECT_TRUE(list.DeleteItem(0));
    EXPECT_EQ(u"between", list.GetItemText(0, 0));
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(0, list.GetItemCount());
    EXPECT_EQ(0u, list.SetExtendedStyle(LVS_EX_FULLROWSELECT));
    EXPECT_EQ(static_cast<DWORD>(LVS_EX_FULLROWSELECT), list.GetExtendedStyle());
}

TEST_F(Controls, ListGivesBackTextsOfAnyLength)
{
    CListCtrl list;
    list.Create(WC_LISTVIEWW, L"", LVS_REPORT, CRect(0, 0, 300, 200), &m_parent, 1);
    list.InsertColumn(0, u"Name", LVCFMT_LEFT, 100);
    for (const std::size_t length : {254u, 255u, 256u, 257u, 5000u}) {
        const ov::Text text(length, u'x');
        list.InsertItem(0, text);
        EXPECT_EQ(length, list.GetItemText(0, 0).size());
    }
}

TEST_F(Controls, ListSortsByData)
{
    CListCtrl list;
    list.Create(WC_LISTVIEWW, L"", LVS_REPORT, CRect(0, 0, 300, 200), &m_parent, 1);
    list.InsertColumn(0, u"Name", LVCFMT_LEFT, 100);
    for (const int row : {0, 1, 2}) {
        list.InsertItem(row, ov::FormatInteger(row));
        list.SetItemData(row, static_cast<DWORD_PTR>(row));
    }
    EXPECT_TRUE(list.SortItems(&Descending, 0));
    EXPECT_EQ(u"2", list.GetItemText(0, 0));
    EXPECT_EQ(u"0", list.GetItemText(2, 0));
}

TEST_F(Controls, SpinMovesItsBuddysNumber)
{
    CEdit edit;
    edit.Create(L"EDIT", L"", 0, CRect(0, 0, 50, 20), &m_parent, 1);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(UPDOWN_CLASSW, L"", UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(50, 0, 60, 20),
                            &m_parent, 2));
    EXPECT_EQ(nullptr, spin.SetBuddy(&edit));
    EXPECT_EQ(edit.m_hWnd, reinterpret_cast<HWND>(spin.SendMessage(UDM_GETBUDDY)));
    spin.SetRange32(-100000, 100000);
    spin.SendMessage(UDM_SETPOS32, 0, 70000);
    EXPECT_EQ(u"70000", edit.GetWindowText());
    spin.SendMessage(UDM_SETPOS32, 0, -100001);
    EXPECT_EQ(u"-100000", edit.GetWindowText());
    UDACCEL step{0, 5};
    EXPECT_TRUE(spin.SetAccel(1, &step));
    UDACCEL read{};
    EXPECT_EQ(1, spin.SendMessage(UDM_GETACCEL, 1, reinterpret_cast<LPARAM>(&read)));
    EXPECT_EQ(5u, read.nInc);
}

TEST_F(Controls, SpinTakesItsRangeOf16Bits)
{
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(UPDOWN_CLASSW, L"", 0, CRect(50, 0, 60, 20), &m_parent, 2));
    spin.SetRange(-1, 99);
    const auto range = static_cast<DWORD>(spin.SendMessage(UDM_GETRANGE));
    EXPECT_EQ(99, static_cast<short>(LOWORD(range)));
    EXPECT_EQ(-1, static_cast<short>(HIWORD(range)));
}

TEST_F(Controls, ButtonShowsAnIcon)
{
    CButton button;
    button.Create(L"BUTTON", L"", BS_ICON, CRect(0, 0, 50, 20), &m_parent, 1);
    const HICON icon = ::LoadIconW(nullptr, IDI_APPLICATION);
    EXPECT_EQ(nullptr, button.SetIcon(icon));
    EXPECT_EQ(icon, button.SetIcon(nullptr));
}

TEST_F(Controls, AreToldApartByTheirWindowsClass)
{
    CWnd edit;
    edit.Create(L"EDIT", L"", 0, CRect(0, 0, 50, 20), &m_parent, 1);
    EXPECT_TRUE(AfxIsOfClass(edit, L"Edit"));
    EXPECT_TRUE(AfxIsOfClass(edit, L"EDIT"));
    EXPECT_FALSE(AfxIsOfClass(edit, L"Edi"));
    EXPECT_FALSE(AfxIsOfClass(edit, WC_LISTVIEWW));
    EXPECT_FALSE(AfxIsOfClass(nullptr, L"Edit"));
}
