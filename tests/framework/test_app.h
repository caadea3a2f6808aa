#pragma once

#include "framework/afxwin.h"

/// The tests' application object; it counts its calls.
class CTestApp : public CWinApp
{
  public:
    BOOL InitInstance() override;
    int ExitInstance() override;

    int m_initialised = 0;
    int m_ended = 0;
};

extern CTestApp theTestApp;

/// Makes a window the application's main window until the scope ends.
class CMainWindowScope
{
  public:
    explicit CMainWindowScope(CWnd* window) : m_previous(theTestApp.m_pMainWnd)
    {
        theTestApp.m_pMainWnd = window;
    }
    ~CMainWindowScope() { theTestApp.m_pMainWnd = m_previous; }
    CMainWindowScope(const CMainWindowScope&) = delete;
    CMainWindowScope& operator=(const CMainWindowScope&) = delete;

  private:
    CWnd* m_previous;
};

/// A visible top-level window in the role of the host's.
class CHostWindow : public CWnd
{
  public:
    CHostWindow();
};
