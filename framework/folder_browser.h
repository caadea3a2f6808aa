#pragma once

#include "base/text.h"
#include "framework/window.h"

/// The shell's folder browser, without options.
class CFolderBrowser
{
  public:
    explicit CFolderBrowser(const ov::Text& title, CWnd* owner = nullptr);

    /// IDOK if the user chose a folder that has a path, otherwise IDCANCEL.
    INT_PTR DoModal();
    /// The chosen path; empty before DoModal.
    const ov::Text& GetPathName() const { return m_path; }

  private:
    ov::Text m_title;
    HWND m_owner;
    ov::Text m_path;
};
