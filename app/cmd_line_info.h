#pragma once

#include "base/text.h"
#include "framework/afxwin.h"

/// Picks the dialog's three texts out of command-line parameters: behind the
/// keywords "DEFAULT:", "CURRENT:" and "USER:", or by position.
class CCmdLineInfo : public CCommandLineInfo
{
  public:
    /// Takes one parameter. `isFlag`: it had a switch character (already
    /// removed); `isLast`: none follows.
    void ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL isLast) override;

    ov::Text m_defaultPath; ///< the file of default values
    ov::Text m_currentPath; ///< the file to edit
    ov::Text m_userName;    ///< the name in the saved file's header

  private:
    int m_positional = 0;
};
