#pragma once

#include "framework/window.h"

// Wrappers for dialog controls. They are thin: each operation sends the message
// with the same name.

class CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
    /// Shows an icon instead of the caption.
    HICON SetIcon(HICON icon);
};

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
    /// Sets the most characters that the user can type; 0 for as many as the control
    /// can hold. The default of an edit control is about 30,000.
    void SetLimitText(UINT count = 0);
};

class CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
    BOOL Create(DWORD style, const RECT& rectangle, CWnd* parent, UINT id);
};

class CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
    /// Uses the message for 16-bit bounds; they range from UD_MINVAL to UD_MAXVAL.
    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    BOOL SetAccel(int count, UDACCEL* steps);
    CWnd* SetBuddy(CWnd* buddy);
};
