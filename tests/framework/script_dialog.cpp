#include "tests/framework/script_dialog.h"

BEGIN_MESSAGE_MAP(CScriptDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &CScriptDialog::OnKickIdle)
END_MESSAGE_MAP()

namespace
{
// Bit 29 of a key message: the Alt key is down.
constexpr LPARAM altKeyDown = 1L << 29;

void HoldShift(bool down)
{
    BYTE keys[256];
    ::GetKeyboardState(keys);
    keys[VK_SHIFT] = down ? 0x80 : 0;
    ::SetKeyboardState(keys);
}
} // namespace

int FocusedId()
{
    const HWND focus = ::GetFocus();
    return focus != nullptr ? ::GetDlgCtrlID(focus) : 0;
}

CScriptDialog& CScriptDialog::Then(std::function<void()> step)
{
    m_steps.push_back(std::move(step));
    return *this;
}

CScriptDialog& CScriptDialog::PressKey(WPARAM key)
{
    return Then([key] { ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1); });
}

CScriptDialog& CScriptDialog::PressShiftTab()
{
    Then([] { HoldShift(true); });
    PressKey(VK_TAB);
    return Then([] { HoldShift(false); });
}

CScriptDialog& CScriptDialog::PressMnemonic(wchar_t letter)
{
    return Then([letter] { ::PostMessageW(::GetFocus(), WM_SYSCHAR, letter, altKeyDown); });
}

CScriptDialog& CScriptDialog::NoteFocus()
{
    return Then([this] { m_focusIds.push_back(FocusedId()); });
}

BOOL CScriptDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (m_onInit)
        m_onInit();
    return m_initResult ? m_initResult() : TRUE;
}

LRESULT CScriptDialog::OnKickIdle(WPARAM, LPARAM)
{
    if (m_steps.empty()) {
        EndDialog(scriptEnded);
        return 0;
    }
    const std::function<void()> step = std::move(m_steps.front());
    m_steps.pop_front();
    step();
    return 1;
}
