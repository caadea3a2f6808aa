#include "framework/list_control.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace
{
// List view functions take texts as pointers to non-const but do not write to them.
wchar_t* Writable(const ov::Text& text)
{
    return const_cast<wchar_t*>(Wide(text));
}

LPARAM Param(const void* data)
{
    return reinterpret_cast<LPARAM>(data);
}

WPARAM Index(int index)
{
    return static_cast<WPARAM>(index);
}
} // namespace

int CListCtrl::InsertColumn(int column, const ov::Text& heading, int format, int width)
{
    LVCOLUMNW description{};
    description.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    description.fmt = format;
    description.pszText = Writable(heading);
    description.iSubItem = column;
    if (width != -1) {
        description.mask |= LVCF_WIDTH;
        description.cx = width;
    }
    return static_cast<int>(SendMessage(LVM_INSERTCOLUMNW, Index(column), Param(&description)));
}

int CListCtrl::GetColumnWidth(int column) const
{
    return static_cast<int>(SendMessage(LVM_GETCOLUMNWIDTH, Index(column)));
}

int CListCtrl::GetColumnCount() const
{
    const auto header = reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
    return header != nullptr ? static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
}

int CListCtrl::InsertItem(int row, const ov::Text& text)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = Writable(text);
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, Param(&item)));
}

BOOL CListCtrl::SetItemText(int row, int column, const ov::Text& text)
{
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = Writable(text);
    return SendMessage(LVM_SETITEMTEXTW, Index(row), Param(&item)) != 0;
}

ov::Text CListCtrl::GetItemText(int row, int column) const
{
    // A list view does not report the length of a text: a copy that fills the buffer may
    // have been truncated.
    for (ov::Text text(256, u'\0');; text.resize(text.size() * 2)) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = reinterpret_cast<wchar_t*>(text.data());
        item.cchTextMax = static_cast<int>(text.size());
        const auto copied = static_cast<std::size_t>(SendMessage(LVM_GETITEMTEXTW, Index(row), Param(&item)));
        if (copied + 1 < text.size()) {
            text.resize(copied);
            return text;
        }
    }
}

BOOL CListCtrl::SetItemData(int row, DWORD_PTR data)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = static_cast<LPARAM>(data);
    return SendMessage(LVM_SETITEMW, 0, Param(&item)) != 0;
}

DWORD_PTR CListCtrl::GetItemData(int row) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    SendMessage(LVM_GETITEMW, 0, Param(&item));
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask)
{
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    return SendMessage(LVM_SETITEMSTATE, Index(row), Param(&item)) != 0;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const
{
    return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, Index(row), static_cast<LPARAM>(mask)));
}

int CListCtrl::GetNextItem(int row, UINT flags) const
{
    return static_cast<int>(SendMessage(LVM_GETNEXTITEM, Index(row), MAKELPARAM(flags, 0)));
}

BOOL CListCtrl::EnsureVisible(int row, BOOL partialOk)
{
    return SendMessage(LVM_ENSUREVISIBLE, Index(row), MAKELPARAM(partialOk, 0)) != 0;
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, LPARAM context)
{
    return SendMessage(LVM_SORTITEMS, static_cast<WPARAM>(context), reinterpret_cast<LPARAM>(compare)) != 0;
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
}
