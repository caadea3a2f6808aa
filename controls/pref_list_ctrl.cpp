#include "controls/pref_list_ctrl.h"

IMPLEMENT_DYNAMIC(CPrefListCtrl, CListCtrl)

int CPrefListCtrl::InsertCaptionedColumn(int column, UINT captionId, int width)
{
    return InsertColumn(column, AfxLoadString(captionId), LVCFMT_LEFT, width);
}

int CPrefListCtrl::AppendRow(const ov::Text& text)
{
    return InsertItem(GetItemCount(), text);
}
