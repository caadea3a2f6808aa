#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/text.h"
#include "framework/afxwin.h"

/// A list in report view: columns captioned from the string table, rows of text.
class CPrefListCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(CPrefListCtrl)

  public:
    /// Inserts a column with a caption of the string table and a width in
    /// pixels; its index, -1 when it could not be inserted.
    int InsertCaptionedColumn(int column, UINT captionId, int width);

    /// Adds a row at the end; its index, -1 when it could not be added.
    int AppendRow(const ov::Text& text);

    /// Inserts a row that shows one text a column; its index, -1 when it could
    /// not be inserted.
    int InsertRow(int row, std::span<const ov::Text> texts);

    /// Deletes a row; false when there is none of that index.
    bool DeleteRow(int row);

    /// Turns the sort direction round; true when rows are to ascend now, as
    /// after the first call.
    bool ToggleSortDirection();

    /// Puts each row into the place that is given for it. Selections stay with
    /// their rows. The rows' data is used for it.
    void ArrangeRows(std::span<const std::size_t> places);

    /// For a column whose texts fit beside a vertical bar: then its few pixels
    /// under that bar are no reason for a horizontal one.
    void ShowNoHorizontalBar() { m_hasHorizontalBar = false; }

  protected:
    LRESULT OnNcCalcSize(WPARAM, LPARAM);
    LRESULT OnSysColorChange(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    bool m_sortAscending = false;
    bool m_hasHorizontalBar = true;
};
