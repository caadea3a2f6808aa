#pragma once

#include "app/preferences_app.h"
#include "tests/support/test_files.h"
#include "wizard/preferences_wizard.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A message box that the program opened.
struct SeenMessage {
    HWND owner;
    std::wstring text;
    std::wstring caption;
    UINT type;
};

/// Intercepts every modal door, records the calls and answers them with the prepared
/// answers, in order. A door without a prepared answer fails the test and is cancelled.
/// An answer that was not used fails the test, too.
class DoorKeeper : public CModalHook
{
  public:
    DoorKeeper() : m_previous(AfxSetModalHook(this)) {}
    ~DoorKeeper() override;

    void AnswerMessage(int button) { m_buttons.push_back(button); }
    void AnswerFile(const std::wstring& path) { m_files.push_back({FromWide(path)}); }
    /// Answers the next dialog without opening it.
    void AnswerDialog(INT_PTR result) { m_dialogs.push_back(result); }
    void AnswerFolder(const std::wstring& path) { m_folders.push_back({FromWide(path)}); }

    /// Called while a message box would be open.
    std::function<void()> onMessage;

    std::vector<SeenMessage> messages;
    std::vector<CFileDialogRequest> fileRequests;
    std::vector<CFolderBrowserRequest> folderRequests;

    std::optional<int> OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                    UINT type) override;
    std::optional<CPathAnswer> OnFileDialog(const CFileDialogRequest& request) override;
    /// Lets a dialog without a prepared answer open.
    std::optional<INT_PTR> OnModalDialog(CDialog& dialog) override;
    std::optional<CPathAnswer> OnFolderBrowser(const CFolderBrowserRequest& request) override;

  private:
    CModalHook* m_previous;
    std::deque<int> m_buttons;
    std::deque<INT_PTR> m_dialogs;
    std::deque<CPathAnswer> m_files;
    std::deque<CPathAnswer> m_folders;
};

/// The program with its dialog open but without a modal loop, so that a test can
/// send it commands and check the result at once.
class ProgramTest : public testing::Test
{
  protected:
    ~ProgramTest() override;

    /// Opens the dialog for these paths; an empty path means none.
    void Open(const std::wstring& defaultPath, const std::wstring& currentPath);
    /// Opens the dialog as an owner for other windows. Without its pages that is fast.
    void OpenWithoutPages();

    /// Writes a file into the test's folder and returns its full path.
    std::wstring MakeFile(const std::wstring& name, const std::string& bytes);

    /// Clicks a button; the click has been handled when this returns.
    void Click(int id);
    /// The control of the dialog or of one of its pages.
    HWND Control(int id) const;
    bool IsEnabled(int id) const { return ::IsWindowEnabled(Control(id)) != FALSE; }
    std::wstring TextOf(int id) const;
    void Type(int id, const std::wstring& text);
    /// The visible page.
    CWizardPage& Page() const;

    AFX_MAINTAIN_STATE2 state{AfxGetStaticModuleState()};
    uidriver::TempFolder folder;
    DoorKeeper doors;
    std::unique_ptr<CPreferencesWizard> dialog;

  private:
    void MakeDialog(const std::wstring& defaultPath, const std::wstring& currentPath);
    void ShowDialog();
};
