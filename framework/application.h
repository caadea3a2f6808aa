#pragma once

#include "base/text.h"
#include "framework/command_target.h"
#include "framework/module_state.h"

class CWnd;

/// Takes a command line apart, one parameter after the other.
class CCommandLineInfo : public CObject
{
  public:
    /// Takes one parameter. `isFlag`: it began with "-" or "/", which has been
    /// removed; `isLast`: none follows.
    virtual void ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL isLast) = 0;
};

/// The application object: there is one in a module, constructed when the
/// module is loaded.
class CWinApp : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinApp)
    CWinApp();
    ~CWinApp() override;

    /// Called once before the module's first export does its work; FALSE means
    /// that it failed and is to be called again the next time.
    virtual BOOL InitInstance() { return TRUE; }
    /// Called when the module is unloaded, if InitInstance succeeded.
    virtual int ExitInstance() { return 0; }

    /// What AfxMessageBox does, and so how an exception is reported. A program
    /// overrides it to give its boxes a caption of its own.
    virtual int DoMessageBox(const ov::Text& text, UINT type);

    /// An icon of the module; null when there is none. It needs no destroying.
    HICON LoadIcon(UINT id) const;
    /// Names the company under whose registry key the program keeps its settings.
    void SetRegistryKey(LPCWSTR key);
    const ov::Text& GetRegistryKey() const { return m_registryKey; }

    CWnd* m_pMainWnd = nullptr; ///< cleared when its window is destroyed

  private:
    ov::Text m_registryKey;
};

/// The application object; null when the module has none.
CWinApp* AfxGetApp();
/// The application's main window; null when there is none.
CWnd* AfxGetMainWnd();
/// Does nothing: the program's dialogs hold no ActiveX controls. It stays in
/// InitInstance as the place where a container would be switched on.
void AfxEnableControlContainer();
