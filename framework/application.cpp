#include "framework/application.h"

#include "framework/wide.h"

#include <shellapi.h>

#include <memory>

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp(LPCWSTR applicationName) : m_pszAppName(applicationName)
{
    AfxGetStaticModuleState()->application = this;
}

CWinApp::~CWinApp()
{
    if (AfxGetStaticModuleState()->application == this)
        AfxGetStaticModuleState()->application = nullptr;
}

void CCommandLineInfo::ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL)
{
    if (!isFlag && m_strFileName.empty())
        m_strFileName = FromWide(parameter);
}

void CWinApp::ParseCommandLine(CCommandLineInfo& info)
{
    ParseCommandLine(info, ::GetCommandLineW());
}

void CWinApp::ParseCommandLine(CCommandLineInfo& info, LPCWSTR commandLine)
{
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> arguments(::CommandLineToArgvW(commandLine, &count),
                                                                    &::LocalFree);
    for (int i = 1; arguments != nullptr && i < count; ++i) {
        LPCWSTR parameter = arguments.get()[i];
        const BOOL isFlag = *parameter == L'-' || *parameter == L'/';
        if (isFlag)
            ++parameter;
        info.ParseParam(parameter, isFlag, i + 1 == count);
    }
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
