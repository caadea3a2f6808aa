#include "host/user_memory.h"

#include "config/core/file_blocks.h"
#include "config/win32_file_port.h"
#include "framework/wide.h"

#include <windows.h>

namespace
{

constexpr const wchar_t* folderVariable = L"APPDATA";

ov::Text FolderOfUser()
{
    std::wstring folder(GetEnvironmentVariableW(folderVariable, nullptr, 0), L'\0');
    folder.resize(GetEnvironmentVariableW(folderVariable, folder.data(), static_cast<DWORD>(folder.size())));
    return FromWide(folder);
}

} // namespace

UserMemory::UserMemory() : m_folder(FolderOfUser()) {}

ov::Text UserMemory::PathOf(std::string_view name) const
{
    return m_folder + u"\\Orthoval\\Preferences\\" + ov::TextFromUtf8(name);
}

std::string UserMemory::Load(std::string_view name)
{
    std::string bytes;
    CWin32FilePort files;
    if (!m_folder.empty() &&
        !ov::ReadBlocks(files, PathOf(name), [&](std::string_view block) { bytes += block; }))
        bytes.clear();
    return bytes;
}

void UserMemory::Store(std::string_view name, const std::string& bytes)
{
    if (m_folder.empty())
        return;
    for (const wchar_t* const folder : {L"\\Orthoval", L"\\Orthoval\\Preferences"})
        CreateDirectoryW((Wide(m_folder) + std::wstring(folder)).c_str(), nullptr);
    CWin32FilePort files;
    ov::FileHandle file = 0;
    if (!files.Create(PathOf(name), ov::CreateMode::Truncate, file))
        return;
    files.Write(file, bytes);
    files.Close(file);
}
