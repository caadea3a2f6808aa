#pragma once

#include "base/text.h"
#include "framework/window.h"

/// A list view. Rows and columns count from 0; -1 means none.
class CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
    /// The new column's index; -1 on failure. A width of -1 is left to the list.
    int InsertColumn(int column, const ov::Text& heading, int format = LVCFMT_LEFT, int width = -1);
    int GetColumnWidth(int column) const;
    /// The number of columns, as the header knows it.
    int GetColumnCount() const;

    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    /// The new row's index, which in a sorted list is not the one asked for.
    int InsertItem(int row, const ov::Text& text);
    BOOL DeleteItem(int row) { return SendMessage(LVM_DELETEITEM, static_cast<WPARAM>(row)) != 0; }
    BOOL DeleteAllItems() { return SendMessage(LVM_DELETEALLITEMS) != 0; }
    BOOL SetItemText(int row, int column, const ov::Text& text);
    /// The text of a cell, whatever its length.
    ov::Text GetItemText(int row, int column) const;
    BOOL SetItemData(int row, DWORD_PTR data);
    DWORD_PTR GetItemData(int row) const;
    BOOL SetItemState(int row, UINT state, UINT mask);
    UINT GetItemState(int row, UINT mask) const;
    /// The next row after the given one (-1: from the start) that fits the LVNI_* flags.
    int GetNextItem(int row, UINT flags) const;
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    BOOL EnsureVisible(int row, BOOL partialOk);
    /// Sorts by a comparison that is given the data of two rows.
    BOOL SortItems(PFNLVCOMPARE compare, LPARAM context);
    /// Sets the LVS_EX_* styles; the previous ones.
    DWORD SetExtendedStyle(DWORD style);
    DWORD GetExtendedStyle() const;
};
