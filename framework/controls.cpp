#include "framework/controls.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

HICON CButton::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}

void CEdit::SetLimitText(UINT count)
{
    SendMessage(EM_SETLIMITTEXT, count);
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

BOOL CSpinButtonCtrl::SetAccel(int count, UDACCEL* steps)
{
    return SendMessage(UDM_SETACCEL, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(steps)) != 0;
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    return AfxWindowFromParam(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(AfxSafeHwnd(buddy))));
}
