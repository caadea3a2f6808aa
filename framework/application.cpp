#include "framework/application.h"

#include "framework/wide.h"

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp()
{
    AfxGetStaticModuleState()->application = this;
}

CWinApp::~CWinApp()
{
    if (AfxGetStaticModuleState()->application == this)
        AfxGetStaticModuleState()->application = nullptr;
}

HICON CWinApp::LoadIcon(UINT id) const
{
    return ::LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id));
}

void CWinApp::SetRegistryKey(LPCWSTR key)
{
    m_registryKey = FromWide(key);
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->application;
}

CWnd* AfxGetMainWnd()
{
    const CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->m_pMainWnd : nullptr;
}

void AfxEnableControlContainer() {}
