#include "framework/controls.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

namespace
{
LPARAM TextParam(const ov::Text& text)
{
    return reinterpret_cast<LPARAM>(Wide(text));
}
} // namespace

HICON CStatic::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
}

HICON CButton::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}

BOOL CEdit::Create(DWORD style, const RECT& rectangle, CWnd* parent, UINT id)
{
    return CWnd::Create(L"EDIT", nullptr, style, rectangle, parent, id);
}

void CEdit::GetSel(int& start, int& end) const
{
    DWORD first = 0;
    DWORD last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::ReplaceSel(const ov::Text& text, BOOL canUndo)
{
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), TextParam(text));
}

int CComboBox::AddString(const ov::Text& text)
{
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, TextParam(text)));
}

int CComboBox::SetCurSel(int index)
{
    // Asked for an entry that it does not have, a box may keep its selection.
    const int existing = index < GetCount() ? index : -1;
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(existing)));
}

ov::Text CComboBox::GetLBText(int index) const
{
    const LRESULT length = SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (length == CB_ERR)
        return {};
    ov::Text text(static_cast<std::size_t>(length), u'\0');
    SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

int CComboBox::FindStringExact(int startAfter, const ov::Text& text) const
{
    return static_cast<int>(
        SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), TextParam(text)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data)
{
    return static_cast<int>(
        SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

BOOL CScrollBar::Create(DWORD style, const RECT& rectangle, CWnd* parent, UINT id)
{
    return CWnd::Create(L"SCROLLBAR", nullptr, style, rectangle, parent, id);
}

void CSpinButtonCtrl::SetRange(short lower, short upper)
{
    SendMessage(UDM_SETRANGE, 0, MAKELPARAM(upper, lower));
}

void CSpinButtonCtrl::SetRange32(int lower, int upper)
{
    SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
}

BOOL CSpinButtonCtrl::SetAccel(int count, UDACCEL* steps)
{
    return SendMessage(UDM_SETACCEL, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(steps)) != 0;
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    return AfxWindowFromParam(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(AfxSafeHwnd(buddy))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return AfxWindowFromParam(SendMessage(UDM_GETBUDDY));
}

int CSpinButtonCtrl::SetPos(int position)
{
    return static_cast<int>(SendMessage(UDM_SETPOS32, 0, position));
}

int CSpinButtonCtrl::GetPos() const
{
    return static_cast<int>(SendMessage(UDM_GETPOS32));
}

void CSliderCtrl::SetRange(int minimum, int maximum, BOOL redraw)
{
    // One message each: the combined one carries 16 bits a limit.
    SendMessage(TBM_SETRANGEMIN, FALSE, minimum);
    SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(redraw), maximum);
}

BOOL CDateTimeCtrl::GetTime(SYSTEMTIME& time) const
{
    return SendMessage(DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time)) == GDT_VALID;
}

BOOL CDateTimeCtrl::SetTime(const SYSTEMTIME& time)
{
    return SendMessage(DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time)) != 0;
}
