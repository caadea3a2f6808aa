#pragma once

#include "tests/framework/ids.h"
#include "tests/framework/test_app.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

/// The order of events as a test expects it.
using EventLog = std::vector<std::string>;

/// What a script ends its dialog with when it has no step left.
constexpr int scriptEnded = 4711;

/// A dialog that does its steps one by one from within its modal loop. Each
/// step waits until the loop is idle, that is until everything the step before
/// it posted has been handled; so nothing depends on time.
class CScriptDialog : public CDialog
{
  public:
    explicit CScriptDialog(UINT templateId, CWnd* parent = nullptr) : CDialog(templateId, parent) {}

    /// Adds a step; after the last one the dialog ends with scriptEnded.
    CScriptDialog& Then(std::function<void()> step);
    /// Adds a step that presses a key in the window with the focus.
    CScriptDialog& PressKey(WPARAM key);
    /// Adds a step that presses Tab with the shift key held down.
    CScriptDialog& PressShiftTab();
    /// Adds a step that presses Alt and a letter in the window with the focus.
    CScriptDialog& PressMnemonic(wchar_t letter);
    /// Adds a step that notes the id of the window with the focus.
    CScriptDialog& NoteFocus();

    std::function<void()> m_onInit;
    std::function<BOOL()> m_initResult; ///< what OnInitDialog returns; TRUE without
    std::vector<int> m_focusIds;

  protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override;

  private:
    LRESULT OnKickIdle(WPARAM wParam, LPARAM count);

    std::deque<std::function<void()>> m_steps;
};

/// Id of the window with the focus; 0 for none.
int FocusedId();
