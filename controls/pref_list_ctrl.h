#pragma once

#include "base/text.h"
#include "framework/afxwin.h"

#include <cstddef>
#include <span>
#include <vector>

/// A list in report view: columns captioned from the string table, and rows of text.
class CPrefListCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(CPrefListCtrl)

  public:
    /// Inserts a column with a caption from the string table and a width in
    /// pixels. Returns its index; -1 on failure.
    int InsertCaptionedColumn(int column, UINT captionId, int width);

    /// Adds a row at the end. Returns its index; -1 on failure.
    int AppendRow(const ov::Text& text);

    /// Inserts a row with one text per column. Returns its index; -1 on
    /// failure.
    int InsertRow(int row, std::span<const ov::Text> texts);

    /// Deletes a row; false if the index is invalid.
    bool DeleteRow(int row);

    /// Reverses the sort direction. Returns true for ascending, which is the result
    /// of the first call.
    bool ToggleSortDirection();

    /// Moves each row to its given new index. Selections move with their rows. Uses
    /// the rows' item data.
    void ArrangeRows(std::span<const std::size_t> places);

    /// For a column whose texts fit beside a vertical scroll bar: the few pixels
    /// under that bar do not require a horizontal one.
    void ShowNoHorizontalBar() { m_hasHorizontalBar = false; }

  protected:
    LRESULT OnNcCalcSize(WPARAM, LPARAM);
    LRESULT OnSysColorChange(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    bool m_sortAscending = false;
    bool m_hasHorizontalBar = true;
};
