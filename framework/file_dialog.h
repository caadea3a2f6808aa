#pragma once

#include "base/text.h"
#include "framework/window.h"

#include <vector>

/// The system's file chooser. The current directory stays as it is.
class CFileDialog
{
  public:
    /// `openFileDialog`: choose a file to open, else a name to save under.
    /// `flags` are OFN_*; `filter` is "Text (*.x)|*.x||" or null.
    explicit CFileDialog(BOOL openFileDialog, LPCWSTR defaultExtension = nullptr, LPCWSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCWSTR filter = nullptr,
                         CWnd* parent = nullptr);
    CFileDialog(const CFileDialog&) = delete;
    CFileDialog& operator=(const CFileDialog&) = delete;

    /// IDOK or IDCANCEL.
    INT_PTR DoModal();
    /// The full path that was chosen; empty before.
    const ov::Text& GetPathName() const { return m_path; }

    /// For what the constructor does not take, the title above all. The texts it
    /// points to must live as long as DoModal runs.
    OPENFILENAMEW m_ofn{};

  private:
    bool m_open;
    ov::Text m_filter;
    ov::Text m_defaultExtension;
    ov::Text m_fileName;
    ov::Text m_path;
};
