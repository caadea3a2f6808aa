#pragma once

#include "tests/framework/ids.h"
#include "tests/framework/test_app.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

/// The expected order of events.
using EventLog = std::vector<std::string>;

/// The result of a script's dialog when no step is left.
constexpr int scriptEnded = 4711;

/// A dialog that performs steps one by one from within its modal loop. Each
/// step waits until the loop is idle, that is, until everything posted by the step
/// before has been handled. Nothing depends on time.
class CScriptDialog : public CDialog
{
  public:
    explicit CScriptDialog(UINT templateId, CWnd* parent = nullptr) : CDialog(templateId, parent) {}

    /// Adds a step. After the last one the dialog ends with scriptEnded.
    CScriptDialog& Then(std::function<void()> step);
    /// Adds a step that presses a key in the window with the focus.
    CScriptDialog& PressKey(WPARAM key);
    /// Adds a step that presses Tab while Shift is held down.
    CScriptDialog& PressShiftTab();
    /// Adds a step that presses Alt and a letter in the window with the focus.
    CScriptDialog& PressMnemonic(wchar_t letter);
    /// Adds a step that records the id of the window with the focus.
    CScriptDialog& NoteFocus();

    std::function<void()> m_onInit;
    std::function<BOOL()> m_initResult; ///< the result of OnInitDialog; TRUE if empty
    std::vector<int> m_focusIds;

  protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override;

  private:
    LRESULT OnKickIdle(WPARAM wParam, LPARAM count);

    std::deque<std::function<void()>> m_steps;
};

/// The id of the window with the focus; 0 for none.
int FocusedId();
