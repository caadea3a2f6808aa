#include "config/final_path.h"

#include "framework/afxwin.h"

#include <string>
#include <string_view>

namespace
{
/// A full path without the prefix that the system adds, because other programs and
/// users do not know it.
ov::Text WithoutPrefix(ov::Text path)
{
    constexpr ov::TextView network = u"\\\\?\\UNC\\";
    constexpr ov::TextView local = u"\\\\?\\";
    if (path.starts_with(network))
        path.replace(0, network.size(), u"\\\\");
    else if (path.starts_with(local))
        path.erase(0, local.size());
    return path;
}
} // namespace

ov::Text FinalPathOf(const ov::Text& path)
{
    const HANDLE file = ::CreateFileW(Wide(path), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    std::wstring target(::GetFinalPathNameByHandleW(file, nullptr, 0, VOLUME_NAME_DOS), L'\0');
    const DWORD length =
        ::GetFinalPathNameByHandleW(file, target.data(), static_cast<DWORD>(target.size()), VOLUME_NAME_DOS);
    ::CloseHandle(file);
    if (length == 0 || length >= target.size())
        return {};
    return WithoutPrefix(FromWide(std::wstring_view(target).substr(0, length)));
}
