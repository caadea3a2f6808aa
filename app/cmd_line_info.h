#pragma once

#include "base/text.h"
#include "framework/afxwin.h"

/// Extracts the dialog's three texts from command-line parameters: after the
/// keywords "DEFAULT:", "CURRENT:" and "USER:", or by position.
class CCmdLineInfo : public CCommandLineInfo
{
  public:
    /// Handles one parameter. `isFlag`: it had a switch character, which has been
    /// removed. `isLast`: it is the last parameter.
    void ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL isLast) override;

    ov::Text m_defaultPath; ///< the path of the defaults file
    ov::Text m_currentPath; ///< the path of the current file
    ov::Text m_userName;    ///< the name in the saved file's header

  private:
    int m_positional = 0;
};
