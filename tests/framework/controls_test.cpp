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
    ASSERT_TRUE(list.Create(LVS_REPORT | LVS_SHOWSELALWAYS, CRect(0, 0, 300, 200), &m_parent, 1));
    EXPECT_EQ(0, list.GetColumnCount());
    EXPECT_EQ(0, list.InsertColumn(0, u"Name", LVCFMT_LEFT, 100));
    EXPECT_EQ(1, list.InsertColumn(1, u"Value", LVCFMT_LEFT, 50));
    EXPECT_EQ(2, list.GetColumnCount());
    EXPECT_TRUE(list.SetColumnWidth(1, 70));
    EXPECT_EQ(70, list.GetColumnWidth(1));

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
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    EXPECT_EQ(static_cast<DWORD>(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES), list.GetExtendedStyle());
}

TEST_F(Controls, ListGivesBackTextsOfAnyLength)
{
    CListCtrl list;
    list.Create(LVS_REPORT, CRect(0, 0, 300, 200), &m_parent, 1);
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
    list.Create(LVS_REPORT, CRect(0, 0, 300, 200), &m_parent, 1);
    list.InsertColumn(0, u"Name", LVCFMT_LEFT, 100);
    for (const int row : {0, 1, 2}) {
        list.InsertItem(row, ov::FormatInteger(row));
        list.SetItemData(row, static_cast<DWORD_PTR>(row));
    }
    EXPECT_TRUE(list.SortItems(&Descending, 0));
    EXPECT_EQ(u"2", list.GetItemText(0, 0));
    EXPECT_EQ(u"0", list.GetItemText(2, 0));
}

TEST_F(Controls, ComboKeepsEntriesInOrder)
{
    CComboBox box;
    ASSERT_TRUE(box.Create(L"COMBOBOX", L"", CBS_DROPDOWNLIST, CRect(0, 0, 100, 200), &m_parent, 1));
    EXPECT_EQ(0, box.AddString(u"zebra"));
    EXPECT_EQ(1, box.AddString(u"ape"));
    EXPECT_EQ(2, box.GetCount());
    EXPECT_EQ(u"ape", box.GetLBText(1));
    EXPECT_EQ(u"", box.GetLBText(2));
    EXPECT_EQ(1, box.FindStringExact(-1, u"ape"));
    box.SetItemData(1, 11);
    EXPECT_EQ(11u, box.GetItemData(1));
    box.SetCurSel(1);
    EXPECT_EQ(1, box.GetCurSel());
    box.SetCurSel(2);
    EXPECT_EQ(-1, box.GetCurSel());
    box.ResetContent();
    EXPECT_EQ(0, box.GetCount());
}

TEST_F(Controls, SpinMovesItsBuddysNumber)
{
    CEdit edit;
    edit.Create(0, CRect(0, 0, 50, 20), &m_parent, 1);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(UPDOWN_CLASSW, L"", UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(50, 0, 60, 20),
                            &m_parent, 2));
    spin.SetBuddy(&edit);
    EXPECT_EQ(&edit, spin.GetBuddy());
    spin.SetRange32(-100000, 100000);
    int lower = 0;
    int upper = 0;
    spin.GetRange32(lower, upper);
    EXPECT_EQ(-100000, lower);
    EXPECT_EQ(100000, upper);
    spin.SetPos(70000);
    EXPECT_EQ(70000, spin.GetPos());
    EXPECT_EQ(u"70000", edit.GetWindowText());
    UDACCEL step{0, 5};
    EXPECT_TRUE(spin.SetAccel(1, &step));
    spin.SetRange(0, 10);
    spin.GetRange32(lower, upper);
    EXPECT_EQ(0, lower);
    EXPECT_EQ(10, upper);
}

TEST_F(Controls, SliderHoldsItsPositionInRange)
{
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(TRACKBAR_CLASSW, L"", 0, CRect(0, 0, 100, 20), &m_parent, 1));
    slider.SetRange(0, 100000);
    slider.SetPos(70000);
    EXPECT_EQ(70000, slider.GetPos());
    slider.SetPos(100001);
    EXPECT_EQ(100000, slider.GetPos());
}

TEST_F(Controls, DatePickerRefusesWhatIsNoDate)
{
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(DATETIMEPICK_CLASSW, L"", 0, CRect(0, 0, 100, 20), &m_parent, 1));
    SYSTEMTIME date{};
    date.wYear = 2007;
    date.wMonth = 8;
    date.wDay = 1;
    EXPECT_TRUE(picker.SetTime(date));
    SYSTEMTIME wrong = date;
    wrong.wMonth = 13;
    EXPECT_FALSE(picker.SetTime(wrong));
    SYSTEMTIME read{};
    EXPECT_TRUE(picker.GetTime(read));
    EXPECT_EQ(2007, read.wYear);
    EXPECT_EQ(8, read.wMonth);
    EXPECT_EQ(1, read.wDay);
}

TEST_F(Controls, EditSelectsAndReplaces)
{
    CEdit edit;
    edit.Create(ES_AUTOHSCROLL, CRect(0, 0, 50, 20), &m_parent, 1);
    edit.SetWindowText(u"one two");
    edit.SetSel(4, 7);
    edit.ReplaceSel(u"three");
    EXPECT_EQ(u"one three", edit.GetWindowText());
    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_NE(0u, edit.GetStyle() & ES_READONLY);
}

TEST_F(Controls, ButtonKeepsItsState)
{
    CButton button;
    button.Create(L"BUTTON", L"", BS_AUTOCHECKBOX, CRect(0, 0, 50, 20), &m_parent, 1);
    EXPECT_EQ(static_cast<UINT>(BS_AUTOCHECKBOX), button.GetButtonStyle());
    button.SetCheck(BST_CHECKED);
    EXPECT_EQ(BST_CHECKED, button.GetCheck());
    const HICON icon = ::LoadIconW(nullptr, IDI_APPLICATION);
    button.SetIcon(icon);
    EXPECT_EQ(icon, button.SetIcon(nullptr));
}
