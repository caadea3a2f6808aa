#pragma once

#include "base/text.h"
#include "framework/window.h"

// The controls of dialogs. The wrappers are thin: each operation is the message
// of the same name, with texts in the program's type.

class CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
    HICON SetIcon(HICON icon);
};

class CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int state) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(state)); }
    UINT GetButtonStyle() const { return GetStyle() & BS_TYPEMASK; }
    /// Shows an icon in place of the caption.
    HICON SetIcon(HICON icon);
};

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
    BOOL Create(DWORD style, const RECT& rectangle, CWnd* parent, UINT id);
    void SetSel(int start, int end) { SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end); }
    void GetSel(int& start, int& end) const;
    void ReplaceSel(const ov::Text& text, BOOL canUndo = FALSE);
    void LimitText(UINT characters = 0) { SendMessage(EM_LIMITTEXT, characters); }
    BOOL SetReadOnly(BOOL readOnly = TRUE)
    {
        return SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)) != 0;
    }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
};

class CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
    int AddString(const ov::Text& text);
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    /// Selects an entry, -1 none; past the end it clears the selection.
    int SetCurSel(int index);
    ov::Text GetLBText(int index) const;
    int FindStringExact(int startAfter, const ov::Text& text) const;
    int SetItemData(int index, DWORD_PTR data);
    DWORD_PTR GetItemData(int index) const;
};

class CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
    BOOL Create(DWORD style, const RECT& rectangle, CWnd* parent, UINT id);
};

class CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    void GetRange32(int& lower, int& upper) const;
    BOOL SetAccel(int count, UDACCEL* steps);
    CWnd* SetBuddy(CWnd* buddy);
    CWnd* GetBuddy() const;
    int SetPos(int position);
    int GetPos() const;
};

class CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)
    void SetRange(int minimum, int maximum, BOOL redraw = FALSE);
    void SetPos(int position) { SendMessage(TBM_SETPOS, TRUE, position); }
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetTicFreq(int frequency) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(frequency)); }
    int SetPageSize(int size) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, size)); }
    int SetLineSize(int size) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, size)); }
};

class CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)
    /// The date shown; FALSE when none is set.
    BOOL GetTime(SYSTEMTIME& time) const;
    /// FALSE when it is no date; the control keeps its own then.
    BOOL SetTime(const SYSTEMTIME& time);
};

class CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)
    int GetItemCount() const { return static_cast<int>(SendMessage(HDM_GETITEMCOUNT)); }
};
