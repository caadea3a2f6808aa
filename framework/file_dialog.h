#pragma once

#include "base/text.h"
#include "framework/window.h"

#include <vector>

/// The system's file chooser. It does not change the current directory.
class CFileDialog
{
  public:
    /// `openFileDialog`: TRUE to choose a file to open, FALSE for a name to save under.
    /// `flags` are OFN_*; `filter` is "Text (*.x)|*.x||" or null.
    explicit CFileDialog(BOOL openFileDialog, LPCWSTR defaultExtension = nullptr, LPCWSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCWSTR filter = nullptr,
                         CWnd* parent = nullptr);
    CFileDialog(const CFileDialog&) = delete;
    CFileDialog& operator=(const CFileDialog&) = delete;

    /// IDOK or IDCANCEL.
    INT_PTR DoModal();
    /// The chosen full path; empty before DoModal.
    const ov::Text& GetPathName() const { return m_path; }

    /// For options that the constructor does not take, such as the title. The texts
    /// that it points to must outlive DoModal.
    OPENFILENAMEW m_ofn{};

  private:
    bool m_open;
    ov::Text m_filter;
    ov::Text m_defaultExtension;
    ov::Text m_fileName;
    ov::Text m_path;
};
