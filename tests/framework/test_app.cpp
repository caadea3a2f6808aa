#include "tests/framework/test_app.h"

CTestApp theTestApp;

BOOL CTestApp::InitInstance()
{
    ++m_initialised;
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&controls);
    return CWinApp::InitInstance();
}

int CTestApp::ExitInstance()
{
    ++m_ended;
    return CWinApp::ExitInstance();
}

CHostWindow::CHostWindow()
{
    CreateEx(0, nullptr, L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(10, 10, 410, 310), nullptr, 0);
}
