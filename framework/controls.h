#pragma once

#include "framework/window.h"

// The controls of dialogs. The wrappers are thin: each operation is the message
// of the same name.

class CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
    /// Shows an icon in place of the caption.
    HICON SetIcon(HICON icon);
};

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
    /// How many characters a person may type; 0 for as many as the control can
    /// hold. On its own account it takes some 30,000.
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
    /// With the message of 16 bits, for bounds from UD_MINVAL to UD_MAXVAL.
    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    BOOL SetAccel(int count, UDACCEL* steps);
    CWnd* SetBuddy(CWnd* buddy);
};
