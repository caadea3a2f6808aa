#pragma once

#include "framework/afxwin.h"

#include <deque>
#include <vector>

/// A message box that was about to be shown.
struct ShownBox {
    HWND owner;
    ov::Text text;
    ov::Text caption;
    UINT type;
};

/// Intercepts the modal doors while it exists. It records every message box and
/// answers it with the next of the given buttons, or IDOK if none is left. It
/// answers file choosers and folder browsers with the given path.
class CRecordingHook : public CModalHook
{
  public:
    CRecordingHook();
    ~CRecordingHook() override;

    std::optional<int> OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                    UINT type) override;
    std::optional<CPathAnswer> OnFileDialog(const CFileDialogRequest& request) override;
    std::optional<CPathAnswer> OnFolderBrowser(const CFolderBrowserRequest& request) override;
    std::optional<INT_PTR> OnModalDialog(CDialog& dialog) override;

    std::deque<int> m_buttons;
    ov::Text m_path;
    std::optional<INT_PTR> m_dialogAnswer;

    std::vector<ShownBox> m_boxes;
    std::vector<CFileDialogRequest> m_files;
    std::vector<CFolderBrowserRequest> m_folders;
    std::vector<CDialog*> m_dialogs;

  private:
    CModalHook* m_previous;
};
