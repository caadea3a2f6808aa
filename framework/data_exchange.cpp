#include "framework/data_exchange.h"

#include "framework/exceptions.h"
#include "framework/focus.h"
#include "framework/thread_state.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
/// Suppresses the handling of a window's notifications while it exists.
class CExchangeLock
{
  public:
    explicit CExchangeLock(HWND window)
        : m_lock{window, AfxGetThreadState().exchangeLocks},
          m_restore(AfxGetThreadState().exchangeLocks, &m_lock)
    {
    }

  private:
    AFX_EXCHANGE_LOCK m_lock;
    CRestoreValue<const AFX_EXCHANGE_LOCK*> m_restore;
};

ov::Text TextOf(HWND control)
{
    CWnd window;
    window.m_hWnd = control;
    return window.GetWindowText();
}

// Setting an equal text would move the caret and flicker.
void SetTextOf(HWND control, const ov::Text& text)
{
    if (TextOf(control) != text)
        ::SetWindowTextW(control, Wide(text));
}

bool IsRadioButton(HWND control)
{
    return (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}
} // namespace

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    const CExchangeLock lock(m_hWnd);
    try {
        DoDataExchange(&exchange);
    } catch (const CUserException&) {
        return FALSE;
    }
    return TRUE;
}

CDataExchange::CDataExchange(CWnd* window, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(window)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = m_pDlgWnd->FindControl(id);
    if (control == nullptr)
        throw std::runtime_error("The dialog has no control " + std::to_string(id) + ".");
    m_lastControl = control;
    m_lastIsEdit = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    const HWND control = PrepareCtrl(id);
    m_lastIsEdit = true;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_lastControl != nullptr) {
        if (AfxCanHoldFocus(m_lastControl))
            ::SetFocus(m_lastControl);
        if (m_lastIsEdit)
            ::SendMessageW(m_lastControl, EM_SETSEL, 0, -1);
    }
    throw CUserException();
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd == nullptr)
        control.SubclassWindow(exchange->PrepareCtrl(id));
}

void DDX_Text(CDataExchange* exchange, int id, ov::Text& text)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        text = TextOf(control);
    else
        SetTextOf(control, text);
}

// A state that the control already shows is not set again: setting it redraws the
// control, and each radio button would also search its whole group.
void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    const int shown = static_cast<int>(::SendMessageW(control, BM_GETCHECK, 0, 0));
    if (exchange->m_bSaveAndValidate)
        value = shown;
    else if (shown != value)
        ::SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    std::vector<HWND> buttons;
    const HWND first = exchange->PrepareCtrl(id);
    const std::vector<HWND> siblings = exchange->m_pDlgWnd->GetControls();
    for (auto control = std::ranges::find(siblings, first); control != siblings.end(); ++control) {
        if (*control != first && (::GetWindowLongPtrW(*control, GWL_STYLE) & WS_GROUP) != 0)
            break;
        // The group may contain other controls; they are not counted.
        if (IsRadioButton(*control))
            buttons.push_back(*control);
    }

    const int count = static_cast<int>(buttons.size());
    int chosen = -1;
    int chosenCount = 0;
    for (int index = 0; index < count; ++index) {
        if (::SendMessageW(buttons[static_cast<std::size_t>(index)], BM_GETCHECK, 0, 0) == BST_CHECKED) {
            chosen = index;
            ++chosenCount;
        }
    }
    if (exchange->m_bSaveAndValidate) {
        value = chosen;
        return;
    }
    // "None checked" is set even so, because it decides at which button Tab stops.
    if (chosen == value && chosenCount == 1)
        return;
    for (int index = 0; index < count; ++index)
        ::SendMessageW(buttons[static_cast<std::size_t>(index)], BM_SETCHECK,
                       index == value ? BST_CHECKED : BST_UNCHECKED, 0);
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        index = static_cast<int>(::SendMessageW(control, CB_GETCURSEL, 0, 0));
        return;
    }
    // A combo box may keep its selection when asked for an entry that it does not have.
    const auto count = static_cast<int>(::SendMessageW(control, CB_GETCOUNT, 0, 0));
    const int selected = index >= 0 && index < count ? index : -1;
    ::SendMessageW(control, CB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}
