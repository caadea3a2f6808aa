#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/preferences_app.h"
#include "tests/support/test_files.h"
#include "wizard/preferences_wizard.h"

/// One message box that the program opened.
struct SeenMessage {
    HWND owner;
    std::wstring text;
    std::wstring caption;
    UINT type;
};

/// Stands before every modal door, notes what came to it and answers as laid
/// out, in order. A door without an answer fails the test and is cancelled, and
/// so does an answer that no door came for.
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
    /// A dialog that no answer is laid out for opens.
    std::optional<INT_PTR> OnModalDialog(CDialog& dialog) override;
    std::optional<CPathAnswer> OnFolderBrowser(const CFolderBrowserRequest& request) override;

  private:
    CModalHook* m_previous;
    std::deque<int> m_buttons;
    std::deque<INT_PTR> m_dialogs;
    std::deque<CPathAnswer> m_files;
    std::deque<CPathAnswer> m_folders;
};

/// The program with its dialog open but without a modal loop, so that a test
/// sends it commands and looks at the result at once.
class ProgramTest : public testing::Test
{
  protected:
    ~ProgramTest() override;

    /// Opens the dialog on these paths; empty for none.
    void Open(const std::wstring& defaultPath, const std::wstring& currentPath);
    /// The dialog as an owner for other windows: the pages are most of its work.
    void OpenWithoutPages();

    /// Writes a file into the test's folder; its full path.
    std::wstring MakeFile(const std::wstring& name, const std::string& bytes);

    /// A button's click, handled when this returns.
    void Click(int id);
    /// The control, on the dialog or on one of its pages.
    HWND Control(int id) const;
    bool IsEnabled(int id) const { return ::IsWindowEnabled(Control(id)) != FALSE; }
    std::wstring TextOf(int id) const;
    void Type(int id, const std::wstring& text);
    /// The page that is shown.
    CWizardPage& Page() const;

    AFX_MAINTAIN_STATE2 state{AfxGetStaticModuleState()};
    uidriver::TempFolder folder;
    DoorKeeper doors;
    std::unique_ptr<CPreferencesWizard> dialog;

  private:
    void MakeDialog(const std::wstring& defaultPath, const std::wstring& currentPath);
    void ShowDialog();
};
