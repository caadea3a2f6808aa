#pragma once

#include "base/text.h"
#include "framework/command_target.h"
#include "framework/module_state.h"

class CWnd;

/// Parses a command line, one parameter at a time.
class CCommandLineInfo : public CObject
{
  public:
    /// Handles one parameter. `isFlag`: it began with "-" or "/", which has been
    /// removed. `isLast`: it is the last parameter.
    virtual void ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL isLast) = 0;
};

/// The application object. A module has one, constructed when the
/// module is loaded.
class CWinApp : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinApp)
    CWinApp();
    ~CWinApp() override;

    /// Called once, before the module's first export does its work. FALSE means
    /// failure; the next export then calls it again.
    virtual BOOL InitInstance() { return TRUE; }
    /// Called when the module is unloaded, if InitInstance succeeded.
    virtual int ExitInstance() { return 0; }

    /// Implements AfxMessageBox, and so also shows reported exceptions. A program
    /// overrides it to give its message boxes a caption of its own.
    virtual int DoMessageBox(const ov::Text& text, UINT type);

    /// Loads an icon of the module. Null if there is none. The caller must not destroy it.
    HICON LoadIcon(UINT id) const;
    /// Sets the company name of the registry key under which the program keeps its settings.
    void SetRegistryKey(LPCWSTR key);
    const ov::Text& GetRegistryKey() const { return m_registryKey; }

    CWnd* m_pMainWnd = nullptr; ///< set to null when its window is destroyed

  private:
    ov::Text m_registryKey;
};

/// The application object. Null if the module has none.
CWinApp* AfxGetApp();
/// The application's main window. Null if there is none.
CWnd* AfxGetMainWnd();
/// Does nothing, because the program's dialogs have no ActiveX controls. InitInstance
/// still calls it; an ActiveX container would be enabled here.
void AfxEnableControlContainer();
