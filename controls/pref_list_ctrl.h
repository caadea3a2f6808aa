#pragma once

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

    /// The direction that the rows are sorted in.
    bool IsSortDescending() const { return m_sortDescending; }

  private:
    bool m_sortDescending = false;
};
