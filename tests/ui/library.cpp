#include "tests/ui/library.h"

#include <string>

namespace
{

std::wstring LibraryPath()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program = path;
    return program.substr(0, program.rfind(L'\\') + 1) + OV_PREFERENCES_LIBRARY;
}

// Casts through void*, which is allowed for a function pointer where both have the
// same size.
template <typename Function>
Function FindExport(HMODULE module, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

} // namespace

Library& Library::Get()
{
    static Library library;
    return library;
}

bool Library::Load()
{
    if (!m_module)
        m_module = LoadLibraryW(LibraryPath().c_str());
    if (!m_module)
        return false;
    m_showDialog = FindExport<ovPreferences_showDialog_t>(m_module, OV_PREFERENCES_SHOW_DIALOG_NAME);
    m_showDialogEx = FindExport<ovPreferences_showDialogEx_t>(m_module, OV_PREFERENCES_SHOW_DIALOG_EX_NAME);
    return m_showDialog && m_showDialogEx;
}

bool Library::Unload()
{
    if (!m_module)
        return true;
    FreeLibrary(m_module);
    m_module = nullptr;
    m_showDialog = nullptr;
    m_showDialogEx = nullptr;
    return GetModuleHandleW(OV_PREFERENCES_LIBRARY) == nullptr;
}
