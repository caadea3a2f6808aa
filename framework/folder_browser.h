#pragma once

#include "base/text.h"
#include "framework/window.h"

/// The shell's folder browser, without options.
class CFolderBrowser
{
  public:
    explicit CFolderBrowser(const ov::Text& title, CWnd* owner = nullptr);

    /// IDOK when a folder was chosen that has a path, else IDCANCEL.
    INT_PTR DoModal();
    /// The path that was chosen; empty before.
    const ov::Text& GetPathName() const { return m_path; }

  private:
    ov::Text m_title;
    HWND m_owner;
    ov::Text m_path;
};
