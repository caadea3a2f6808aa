/// A call of the library with its real dialog, driven from the test's thread.
#pragma once

#include "resources/ids.h"
#include "tests/support/await.h"
#include "tests/support/category_list.h"
#include "tests/support/control_actions.h"
#include "tests/support/control_state.h"
#include "tests/support/message_box.h"
#include "tests/support/test_files.h"
#include "tests/support/window_search.h"
#include "tests/ui/host_thread.h"
#include "tests/ui/library.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

/// The caption of the message boxes.
inline constexpr const wchar_t* kBoxCaption = L"Orthoval for MicroStation Preferences";

/// The fixture: an empty folder for the files, and one call of an export at a time
/// on the host's thread. At the end the call must have returned 0 and no message
/// box may be open. Windows that a failed test leaves open are closed, so that the
/// next test can call the library.
class DialogSession : public testing::Test
{
  protected:
    DialogSession();
    void TearDown() override;

    // The arguments of the call; empty unless a test sets them.
    std::wstring m_defaultPath;
    std::wstring m_currentPath;
    std::wstring m_user = L"Ada Archer";

    /// Writes "defaults.cfg" or "current.cfg" and passes its path to the call.
    void UseDefaults(const std::string& bytes);
    void UseCurrent(const std::string& bytes);
    /// The current file's bytes; a missing file fails the test.
    std::string CurrentBytes() const;

    /// Calls ovPreferences_showDialogEx without a parent and waits for the dialog.
    /// @return the dialog; null, with a failure, if it does not appear.
    HWND Open();
    /// The same with another call.
    HWND Open(std::function<unsigned()> call);
    /// Only starts the call, for a message box that appears before the dialog.
    void Begin(std::function<unsigned()> call = nullptr);
    HWND AwaitDialog();

    HWND Dialog() const { return m_dialog; }
    bool HasEnded() const { return m_ended; }

    /// A control of the dialog itself, or of the visible page.
    HWND Control(int id) const { return GetDlgItem(m_dialog, id); }
    HWND PageControl(int id) const { return GetDlgItem(Page(), id); }
    HWND Page() const { return uidriver::VisiblePage(m_dialog); }
    HWND List() const { return uidriver::FindControl(m_dialog, IDC_LEFT_PANE_LIST); }
    /// Shows the page with that title; null, with a failure, if there is none.
    HWND ShowPage(const std::wstring& title);

    bool CanSave() const { return uidriver::IsEnabled(Control(IDC_PREFERENCES_SAVE)); }
    bool CanLoadDefaults() const { return uidriver::IsEnabled(Control(IDC_PREFERENCES_LOAD_DEFAULTS)); }
    std::wstring PageText(int id) const { return uidriver::GetText(PageControl(id)); }
    bool IsPageChecked(int id) const { return uidriver::IsChecked(PageControl(id)); }
    void ClickOnPage(int id) { uidriver::Click(PageControl(id)); }
    /// Replaces an edit's text by typing.
    void TypeOnPage(int id, const std::wstring& text);

    /// Presses a button of the dialog.
    void Press(int id) { uidriver::Click(Control(id)); }
    /// Lets the visible page report that nothing is modified. Save must then be
    /// disabled, so that the next change has to mark the dialog again.
    void TakeMarkBack();
    /// Waits until the call has returned, which must be with 0 and without a
    /// message box.
    void ExpectClosed();
    /// Press Save or Cancel and expect the dialog to close without a message.
    void Save();
    void Cancel();
    /// Presses Cancel and answers the question with Yes.
    void Abandon();
    /// Expects that no message box is open and that the dialog accepts input.
    void ExpectOpen();

    /// Waits for the next message box of the host's thread, with any caption; empty
    /// content, with a failure, if none appears.
    uidriver::MessageBoxContent AwaitBox();
    /// Presses a button of the message box.
    void Answer(const uidriver::MessageBoxContent& box, int button);
    /// Waits for a message box with exactly this text, the caption kBoxCaption and these
    /// buttons from left to right, and presses one.
    void AnswerBox(const std::wstring& text, std::initializer_list<int> buttons, int answer);
    void AnswerAbandonQuestion(int answer);

    uidriver::TempFolder m_folder;

  private:
    HWND FindBox() const;
    void CloseByForce();

    std::atomic<bool> m_ended = true;
    std::atomic<unsigned> m_result = 0;
    HWND m_dialog = nullptr;
};
