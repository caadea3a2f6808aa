#include "config/win32_file_port.h"

#include "config/final_path.h"
#include "framework/afxwin.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

namespace
{
// The most characters of a system message that a message box shows.
constexpr std::size_t systemTextCapacity = 256;

// The system's error code for an exhausted disk quota; the headers lack it.
constexpr DWORD diskQuotaExceeded = 1295;

ov::FileResult Result(BOOL succeeded)
{
    return succeeded ? ov::FileResult{} : Win32Failure(::GetLastError());
}

HANDLE Handle(ov::FileHandle file)
{
    return reinterpret_cast<HANDLE>(file);
}

DWORD PieceOf(std::size_t size)
{
    return static_cast<DWORD>(std::min<std::size_t>(size, std::numeric_limits<DWORD>::max()));
}

/// True for the path of a device or a pipe: NUL, COM1, \\.\pipe\name. It is not
/// opened, because opening alone may have effects.
bool IsDevice(const ov::Text& path)
{
    std::wstring full(::GetFullPathNameW(Wide(path), 0, nullptr, nullptr), L'\0');
    const DWORD length =
        ::GetFullPathNameW(Wide(path), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return length < full.size() && full.starts_with(L"\\\\.\\");
}

/// Identifies a file independently of its path.
bool IdentityOf(const ov::Text& path, BY_HANDLE_FILE_INFORMATION& identity)
{
    const HANDLE file = ::CreateFileW(Wide(path), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const bool asked = ::GetFileInformationByHandle(file, &identity) != FALSE;
    ::CloseHandle(file);
    // A file system without file ids returns 0 for every file.
    return asked && (identity.nFileIndexHigh != 0 || identity.nFileIndexLow != 0);
}
} // namespace

ov::Text SystemErrorText(unsigned long error)
{
    wchar_t* buffer = nullptr;
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                                              FORMAT_MESSAGE_IGNORE_INSERTS,
                                          nullptr, error, 0, reinterpret_cast<LPWSTR>(&buffer), 0, nullptr);
    const std::unique_ptr<wchar_t, decltype(&::LocalFree)> owner(buffer, &::LocalFree);
    const ov::Text text = length != 0 ? FromWide(std::wstring_view(buffer, length)) : ov::Text();
    const ov::TextView words = ov::Trim(text).substr(0, systemTextCapacity);
    return words.empty() ? u"Error " + FromWide(std::to_wstring(error)) + u"." : ov::Text(words);
}

ov::FileResult Win32Failure(unsigned long error)
{
    return {false, SystemErrorText(error)};
}

ov::FileKind CWin32FilePort::Kind(const ov::Text& path)
{
    if (IsDevice(path))
        return ov::FileKind::Other;
    const DWORD attributes = ::GetFileAttributesW(Wide(path));
    if (attributes != INVALID_FILE_ATTRIBUTES)
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? ov::FileKind::Directory : ov::FileKind::File;
    switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_UNIT:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return ov::FileKind::Absent;
    default:
        return ov::FileKind::Unknown;
    }
}

ov::Text CWin32FilePort::LinkTarget(const ov::Text& path)
{
    const DWORD attributes = ::GetFileAttributesW(Wide(path));
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return {};
    return FinalPathOf(path);
}

bool CWin32FilePort::IsSameFile(const ov::Text& first, const ov::Text& second)
{
    BY_HANDLE_FILE_INFORMATION one{};
    BY_HANDLE_FILE_INFORMATION other{};
    return IdentityOf(first, one) && IdentityOf(second, other) &&
           one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
           one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

ov::FileResult CWin32FilePort::OpenForReading(const ov::Text& path, ov::FileHandle& file)
{
    const HANDLE opened =
        ::CreateFileW(Wide(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return Win32Failure(::GetLastError());
    file = reinterpret_cast<ov::FileHandle>(opened);
    return {};
}

ov::FileResult CWin32FilePort::Read(ov::FileHandle file, std::span<char> buffer, std::size_t& count)
{
    DWORD got = 0;
    const BOOL succeeded = ::ReadFile(Handle(file), buffer.data(), PieceOf(buffer.size()), &got, nullptr);
    count = got;
    return Result(succeeded);
}

ov::FileResult CWin32FilePort::Create(const ov::Text& path, ov::CreateMode mode, ov::FileHandle& file)
{
    // OPEN_ALWAYS instead of CREATE_ALWAYS, which empties the file, fails for
    // hidden files and drops the file's attributes.
    const DWORD disposition = mode == ov::CreateMode::New ? CREATE_NEW : OPEN_ALWAYS;
    const HANDLE created = ::CreateFileW(Wide(path), GENERIC_WRITE, FILE_SHARE_READ, nullptr, disposition,
                                         FILE_ATTRIBUTE_NORMAL, nullptr);
    if (created == INVALID_HANDLE_VALUE)
        return Win32Failure(::GetLastError());
    file = reinterpret_cast<ov::FileHandle>(created);
    return {};
}

ov::FileResult CWin32FilePort::Reserve(ov::FileHandle file, std::size_t size)
{
    LARGE_INTEGER current{};
    FILE_ALLOCATION_INFO room{};
    room.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
    // An allocation smaller than the file would truncate it.
    if (!::GetFileSizeEx(Handle(file), &current) || current.QuadPart >= room.AllocationSize.QuadPart ||
        ::SetFileInformationByHandle(Handle(file), FileAllocationInfo, &room, sizeof room))
        return {};
    switch (const DWORD error = ::GetLastError()) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case diskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
        return Win32Failure(error);
    default:
        return {};
    }
}

ov::FileResult CWin32FilePort::Write(ov::FileHandle file, std::string_view bytes)
{
    if (!::SetFilePointerEx(Handle(file), LARGE_INTEGER{}, nullptr, FILE_BEGIN))
        return Win32Failure(::GetLastError());
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(Handle(file), bytes.data(), PieceOf(bytes.size()), &written, nullptr))
            return Win32Failure(::GetLastError());
        if (written == 0)
            return Win32Failure(ERROR_WRITE_FAULT);
        bytes.remove_prefix(written);
    }
    return Result(::SetEndOfFile(Handle(file)));
}

ov::FileResult CWin32FilePort::Flush(ov::FileHandle file)
{
    return Result(::FlushFileBuffers(Handle(file)));
}

ov::FileResult CWin32FilePort::Close(ov::FileHandle file)
{
    return Result(::CloseHandle(Handle(file)));
}

ov::FileResult CWin32FilePort::Rename(const ov::Text& from, const ov::Text& to)
{
    return Result(::MoveFileExW(Wide(from), Wide(to), MOVEFILE_WRITE_THROUGH));
}

ov::FileResult CWin32FilePort::Remove(const ov::Text& path)
{
    const DWORD attributes = ::GetFileAttributesW(Wide(path));
    const bool isReadOnlyFile = attributes != INVALID_FILE_ATTRIBUTES &&
                                (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
                                (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    if (isReadOnlyFile)
        ::SetFileAttributesW(Wide(path), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if (::DeleteFileW(Wide(path)))
        return {};
    const DWORD error = ::GetLastError();
    if (isReadOnlyFile)
        ::SetFileAttributesW(Wide(path), attributes);
    return Win32Failure(error);
}
