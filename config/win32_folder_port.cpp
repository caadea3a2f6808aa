#include "config/win32_folder_port.h"

#include "config/final_path.h"
#include "config/system_info.h"
#include "config/win32_file_port.h"
#include "framework/afxwin.h"

#include <string>

namespace
{
ov::FileResult TryOpening(const ov::Text& path, DWORD access, DWORD sharing)
{
    const HANDLE file =
        ::CreateFileW(Wide(path), access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return Win32Failure(::GetLastError());
    ::CloseHandle(file);
    return {};
}

ov::LocalTime LocalTimeOfFile(const FILETIME& time)
{
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (!::FileTimeToSystemTime(&time, &universal) ||
        !::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return {};
    return ov::LocalTimeOf(TimeFields(local));
}

ov::Text WithSeparator(ov::Text folder)
{
    if (!folder.ends_with(u'\\') && !folder.ends_with(u'/'))
        folder += u'\\';
    return folder;
}

/// The full path in the notation of the caller, for a folder that cannot be opened.
ov::Text FullPathOf(const ov::Text& path)
{
    std::wstring full(::GetFullPathNameW(Wide(path), 0, nullptr, nullptr), L'\0');
    const DWORD length =
        ::GetFullPathNameW(Wide(path), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return length == 0 || length >= full.size() ? path : FromWide(full.substr(0, length));
}
} // namespace

ov::FileResult CWin32FolderPort::Facts(const ov::Text& path, ov::FileFacts& facts)
{
    facts = {};
    facts.kind = CWin32FilePort().Kind(path);
    if (facts.kind == ov::FileKind::Absent || facts.kind == ov::FileKind::Other)
        return {};
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(Wide(path), GetFileExInfoStandard, &data))
        return Win32Failure(::GetLastError());
    facts.size = (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    facts.readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    facts.changed = LocalTimeOfFile(data.ftLastWriteTime);
    return {};
}

ov::FileResult CWin32FolderPort::List(const ov::Text& folder, std::vector<ov::Text>& names)
{
    names.clear();
    // "C:" is the current folder of the drive.
    const bool isComplete = folder.empty() || folder.ends_with(u':');
    const ov::Text pattern = (isComplete ? folder : WithSeparator(folder)) + u"*";
    WIN32_FIND_DATAW entry{};
    const HANDLE search = ::FindFirstFileW(Wide(pattern), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        const DWORD error = ::GetLastError();
        // The root of a drive can be empty: only other folders contain "." and "..".
        return error == ERROR_FILE_NOT_FOUND ? ov::FileResult{} : Win32Failure(error);
    }
    do {
        ov::Text name = FromWide(entry.cFileName);
        if (name != u"." && name != u"..")
            names.push_back(std::move(name));
    } while (::FindNextFileW(search, &entry));
    const DWORD error = ::GetLastError();
    ::FindClose(search);
    return error == ERROR_NO_MORE_FILES ? ov::FileResult{} : Win32Failure(error);
}

ov::FileResult CWin32FolderPort::TryRenaming(const ov::Text& path)
{
    return TryOpening(path, DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
}

ov::FileResult CWin32FolderPort::TryWriting(const ov::Text& path)
{
    return TryOpening(path, GENERIC_WRITE, FILE_SHARE_READ);
}

ov::Text CWin32FolderPort::FullFolder(const ov::Text& folder)
{
    const ov::Text path = folder.empty() ? ov::Text(u".") : folder;
    ov::Text full = FinalPathOf(path);
    return WithSeparator(full.empty() ? FullPathOf(path) : std::move(full));
}

ov::Text CWin32FolderPort::Folded(ov::TextView name) const
{
    const std::wstring text(reinterpret_cast<const wchar_t*>(name.data()), name.size());
    const int length = static_cast<int>(text.size());
    std::wstring upper(text.size(), L'\0');
    if (length == 0 || ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.c_str(), length,
                                       upper.data(), length, nullptr, nullptr, 0) != length)
        return ov::Text(name);
    return FromWide(upper);
}
