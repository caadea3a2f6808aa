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

/// Caption of the message boxes.
inline constexpr const wchar_t* kBoxCaption = L"Orthoval for MicroStation Preferences";

/// The fixture: an empty folder for the files, one call of an export at a time
/// on the host's thread. At the end the call has to have returned 0 and no
/// message box may be left; what a failed test leaves open is closed, so that
/// the next test finds the library free.
class DialogSession : public testing::Test
{
  protected:
    DialogSession();
    void TearDown() override;

    // The arguments of the call; empty texts unless a test says otherwise.
    std::wstring m_defaultPath;
    std::wstring m_currentPath;
    std::wstring m_user = L"Ada Archer";

    /// Writes "defaults.cfg" or "current.cfg" and names it in the call.
    void UseDefaults(const std::string& bytes);
    void UseCurrent(const std::string& bytes);
    /// The current file's bytes; a missing file fails the test.
    std::string CurrentBytes() const;

    /// Calls ovPreferences_showDialogEx with no parent and waits for the dialog.
    /// @return the dialog; null, with a failure, when it does not come up.
    HWND Open();
    /// The same with another call in place of it.
    HWND Open(std::function<unsigned()> call);
    /// Only begins the call: for a message box that comes before the dialog.
    void Begin(std::function<unsigned()> call = nullptr);
    HWND AwaitDialog();

    HWND Dialog() const { return m_dialog; }
    bool HasEnded() const { return m_ended; }

    /// A control of the dialog itself, or of the page that it shows.
    HWND Control(int id) const { return GetDlgItem(m_dialog, id); }
    HWND PageControl(int id) const { return GetDlgItem(Page(), id); }
    HWND Page() const { return uidriver::VisiblePage(m_dialog); }
    HWND List() const { return uidriver::FindControl(m_dialog, IDC_LEFT_PANE_LIST); }
    /// Shows the page by its title; null, with a failure, when there is none.
    HWND ShowPage(const std::wstring& title);

    bool CanSave() const { return uidriver::IsEnabled(Control(IDC_PREFERENCES_SAVE)); }
    bool CanLoadDefaults() const { return uidriver::IsEnabled(Control(IDC_PREFERENCES_LOAD_DEFAULTS)); }
    std::wstring PageText(int id) const { return uidriver::GetText(PageControl(id)); }
    bool IsPageChecked(int id) const { return uidriver::IsChecked(PageControl(id)); }
    void ClickOnPage(int id) { uidriver::Click(PageControl(id)); }
    /// Replaces an edit's text by typing it.
    void TypeOnPage(int id, const std::wstring& text);

    /// Presses a button of the dialog.
    void Press(int id) { uidriver::Click(Control(id)); }
    /// The page that is shown tells the dialog that nothing is modified, after which
    /// Save must be disabled: the next change has to mark the dialog again.
    void TakeMarkBack();
    /// Waits until the call has returned, which must be with 0 and without a
    /// message box.
    void ExpectClosed();
    /// Save and Cancel, expected to close the dialog without a message.
    void Save();
    void Cancel();
    /// Cancel, answering the question with Yes.
    void Abandon();
    /// No box is open and the dialog stands ready for input.
    void ExpectOpen();

    /// Waits for the next message box of the host's thread, whatever its
    /// caption; an empty content, with a failure, when none comes.
    uidriver::MessageBoxContent AwaitBox();
    /// Presses a button of it.
    void Answer(const uidriver::MessageBoxContent& box, int button);
    /// Waits for a box of exactly this text with caption kBoxCaption and these
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
