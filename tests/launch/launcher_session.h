/// The shipped launcher in a process of its own, with a folder for files and another one in place of the
/// user's application data.
#pragma once

#include "tests/support/control_actions.h"
#include "tests/support/control_state.h"
#include "tests/support/process.h"
#include "tests/support/test_files.h"
#include "tests/support/window_search.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

class LauncherSession : public testing::Test
{
  protected:
    /// What a launcher shows. Each is recognised by one of its controls.
    enum class Shown { Nothing, Start, Question, Dialog, Box };

    LauncherSession();
    ~LauncherSession() override;

    /// Starts the launcher and waits until it shows a window or ends.
    Shown Start(const std::vector<std::wstring>& arguments);

    /// Waits until the launcher shows another window than the present one, or ends.
    Shown AwaitNext();

    /// Clicks a button of the present window and waits for what comes next.
    Shown Press(int button);

    /// Waits for the launcher to end and returns its exit code.
    unsigned ExitCode();

    HWND Window() const { return m_window; }
    HWND Control(int id) const { return uidriver::FindControl(m_window, id); }
    std::wstring TextOf(int id) const { return uidriver::GetText(Control(id)); }
    void Type(int id, const std::wstring& text) { uidriver::SetText(Control(id), text); }

    /// Expects that every visible control lies in the window and beside the others, and that no two
    /// have the same mnemonic.
    void ExpectOrder() const;

    /// Writes a file into the folder and returns its path.
    std::wstring Put(const std::wstring& name, const std::string& bytes);
    std::wstring Path(const std::wstring& name) const { return m_folder / name; }
    std::string Content(const std::wstring& name) const;
    std::vector<std::wstring> Names() const { return m_folder.Names(); }

    /// Makes the launcher remember a defaults file; an empty path means that there is none.
    void RememberDefaults(const std::wstring& path);

    /// What the launcher remembers for the user; nothing if it has no file for that.
    std::vector<std::wstring> Remembered() const;

  private:
    Shown Look();

    uidriver::TempFolder m_folder;
    uidriver::TempFolder m_userData;
    std::wstring m_userDataBefore;
    std::optional<uidriver::Process> m_launcher;
    HWND m_window = nullptr;
};
