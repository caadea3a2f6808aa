#include "include/ovPreferences.h"

#include "app/preferences_app.h"

namespace
{
void Store(ov::Text& target, const wchar_t* text)
{
    if (text != nullptr)
        target = FromWide(text);
}

unsigned int Show(CWnd* parent)
{
    // A C++ exception must not unwind into a host that may be built by another
    // compiler.
    try {
        return theApp.ShowPreferences(parent);
    } catch (...) {
        AfxReportCurrentException();
        return 1;
    }
}
} // namespace

extern "C" unsigned int ovPreferences_showDialog(void)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Show(nullptr);
}

extern "C" unsigned int ovPreferences_showDialogEx(CWnd* parent, const wchar_t* defaultPath,
                                                   const wchar_t* currentPath, const wchar_t* userName)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    Store(theCommandLine.m_defaultPath, defaultPath);
    Store(theCommandLine.m_currentPath, currentPath);
    Store(theCommandLine.m_userName, userName);
    return Show(parent);
}
