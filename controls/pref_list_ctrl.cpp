#include "controls/pref_list_ctrl.h"

IMPLEMENT_DYNAMIC(CPrefListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CPrefListCtrl, CListCtrl)
    ON_MESSAGE(WM_NCCALCSIZE, &CPrefListCtrl::OnNcCalcSize)
    ON_MESSAGE(WM_SYSCOLORCHANGE, &CPrefListCtrl::OnSysColorChange)
END_MESSAGE_MAP()

namespace
{
int CALLBACK ComparePlaces(LPARAM first, LPARAM second, LPARAM)
{
    return first < second ? -1 : 1;
}
} // namespace

int CPrefListCtrl::InsertCaptionedColumn(int column, UINT captionId, int width)
{
    return InsertColumn(column, AfxLoadString(captionId), LVCFMT_LEFT, width);
}

int CPrefListCtrl::AppendRow(const ov::Text& text)
{
    return InsertItem(GetItemCount(), text);
}

int CPrefListCtrl::InsertRow(int row, std::span<const ov::Text> texts)
{
    const int inserted = InsertItem(row, texts.front());
    for (std::size_t column = 1; inserted >= 0 && column < texts.size(); ++column)
        SetItemText(inserted, static_cast<int>(column), texts[column]);
    return inserted;
}

bool CPrefListCtrl::DeleteRow(int row)
{
    return row >= 0 && row < GetItemCount() && DeleteItem(row);
}

bool CPrefListCtrl::ToggleSortDirection()
{
    m_sortAscending = !m_sortAscending;
    return m_sortAscending;
}

void CPrefListCtrl::ArrangeRows(std::span<const std::size_t> places)
{
    for (std::size_t row = 0; row < places.size(); ++row)
        SetItemData(static_cast<int>(row), places[row]);
    SortItems(&ComparePlaces, 0);
}

LRESULT CPrefListCtrl::OnNcCalcSize(WPARAM, LPARAM)
{
    // The list sets this style itself whenever its columns are wider than the list.
    if (const auto style = static_cast<LONG_PTR>(GetStyle());
        !m_hasHorizontalBar && (style & WS_HSCROLL) != 0)
        ::SetWindowLongPtrW(m_hWnd, GWL_STYLE, style & ~LONG_PTR{WS_HSCROLL});
    return Default();
}

LRESULT CPrefListCtrl::OnSysColorChange(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    // Some list views do not update these colours by themselves.
    SendMessage(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(::GetSysColor(COLOR_WINDOW)));
    SendMessage(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(::GetSysColor(COLOR_WINDOW)));
    SendMessage(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(::GetSysColor(COLOR_WINDOWTEXT)));
    return result;
}
