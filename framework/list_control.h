#pragma once

#include "base/text.h"
#include "framework/window.h"

/// A list view. Rows and columns count from 0; -1 means none.
class CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
    /// Returns the new column's index; -1 on failure. With a width of -1 the list chooses it.
    int InsertColumn(int column, const ov::Text& heading, int format = LVCFMT_LEFT, int width = -1);
    int GetColumnWidth(int column) const;
    /// The number of columns in the list's header.
    int GetColumnCount() const;

    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    /// Returns the new row's index. In a sorted list it can differ from `row`.
    int InsertItem(int row, const ov::Text& text);
    BOOL DeleteItem(int row) { return SendMessage(LVM_DELETEITEM, static_cast<WPARAM>(row)) != 0; }
    BOOL DeleteAllItems() { return SendMessage(LVM_DELETEALLITEMS) != 0; }
    BOOL SetItemText(int row, int column, const ov::Text& text);
    /// The text of a cell, of any length.
    ov::Text GetItemText(int row, int column) const;
    BOOL SetItemData(int row, DWORD_PTR data);
    DWORD_PTR GetItemData(int row) const;
    BOOL SetItemState(int row, UINT state, UINT mask);
    UINT GetItemState(int row, UINT mask) const;
    /// The next row after `row` (-1: from the beginning) that matches the LVNI_* flags.
    int GetNextItem(int row, UINT flags) const;
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    BOOL EnsureVisible(int row, BOOL partialOk);
    /// Sorts the rows with a comparison function that receives the item data of two rows.
    BOOL SortItems(PFNLVCOMPARE compare, LPARAM context);
    /// Sets the LVS_EX_* styles. Returns the previous ones.
    DWORD SetExtendedStyle(DWORD style);
    DWORD GetExtendedStyle() const;
};
