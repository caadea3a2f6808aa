#include "cli/platform.h"
#include "config/win32_file_port.h"
#include "config/win32_folder_port.h"
#include "framework/wide.h"

#include <windows.h>
#include <array>

namespace ov::cli
{
namespace
{

std::string ErrorText(DWORD error)
{
    return Utf8FromText(SystemErrorText(error));
}

HANDLE HandleOf(Stream stream)
{
    return ::GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

bool IsEndOfPipe(DWORD error)
{
    return error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA || error == ERROR_PIPE_NOT_CONNECTED ||
           error == ERROR_HANDLE_EOF;
}

bool ReadFrom(HANDLE file, std::string& bytes, std::string& problem)
{
    std::array<char, std::size_t{64} * 1024> buffer;
    for (;;) {
        DWORD count = 0;
        if (!::ReadFile(file, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr)) {
            const DWORD error = ::GetLastError();
            if (IsEndOfPipe(error))
                return true;
            problem = ErrorText(error);
            return false;
        }
        if (count == 0)
            return true;
        if (bytes.size() + count > kLargestInput) {
            problem = "It is larger than 1 GB";
            return false;
        }
        bytes.append(buffer.data(), count);
    }
}

// Writes UTF-16 characters, because a console shows them with any code page.
bool WriteToConsole(HANDLE console, std::string_view bytes)
{
    constexpr std::size_t kLongestPiece = 8192;
    const Text text = TextFromUtf8(bytes);
    for (std::size_t done = 0; done < text.size();) {
        const Text piece = text.substr(done, kLongestPiece);
        DWORD written = 0;
        if (!::WriteConsoleW(console, Wide(piece), static_cast<DWORD>(piece.size()), &written, nullptr) ||
            written == 0)
            return false;
        done += written;
    }
    return true;
}

} // namespace

WriteOutcome WriteBytes(Stream stream, std::string_view bytes, std::string& problem)
{
    HANDLE const file = HandleOf(stream);
    // A program without the stream, for example when started from a desktop icon, has no reader either.
    if (file == nullptr || file == INVALID_HANDLE_VALUE)
        return WriteOutcome::Closed;
    DWORD mode = 0;
    if (::GetConsoleMode(file, &mode) && WriteToConsole(file, bytes))
        return WriteOutcome::Written;
    constexpr std::size_t kLongestPiece = std::size_t{1024} * 1024;
    while (!bytes.empty()) {
        const std::string_view piece = bytes.substr(0, kLongestPiece);
        DWORD written = 0;
        if (!::WriteFile(file, piece.data(), static_cast<DWORD>(piece.size()), &written, nullptr)) {
            const DWORD error = ::GetLastError();
            if (IsEndOfPipe(error))
                return WriteOutcome::Closed;
            problem = ErrorText(error);
            return WriteOutcome::Failed;
        }
        bytes.remove_prefix(written);
    }
    return WriteOutcome::Written;
}

bool IsColourTerminal(Stream stream)
{
    HANDLE const file = HandleOf(stream);
    DWORD mode = 0;
    return ::GetConsoleMode(file, &mode) &&
           ::SetConsoleMode(file, mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

std::string EnvironmentVariable(const char* name)
{
    const Text wideName = TextFromUtf8(name);
    std::wstring value(::GetEnvironmentVariableW(Wide(wideName), nullptr, 0), L'\0');
    if (value.empty())
        return {};
    const DWORD length =
        ::GetEnvironmentVariableW(Wide(wideName), value.data(), static_cast<DWORD>(value.size()));
    return Utf8FromText(FromWide(std::wstring_view(value).substr(0, length)));
}

bool ReadAll(const std::string& path, std::string& bytes, std::string& problem)
{
    bytes.clear();
    if (path == "-")
        return ReadFrom(::GetStdHandle(STD_INPUT_HANDLE), bytes, problem);
    HANDLE const file = ::CreateFileW(Wide(TextFromUtf8(path)), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        problem = ErrorText(::GetLastError());
        return false;
    }
    const bool read = ReadFrom(file, bytes, problem);
    ::CloseHandle(file);
    return read;
}

std::unique_ptr<FilePort> MakeFilePort()
{
    return std::make_unique<CWin32FilePort>();
}

std::unique_ptr<FolderPort> MakeFolderPort()
{
    return std::make_unique<CWin32FolderPort>();
}

struct AttributeKeeper::Attributes {
};

AttributeKeeper::AttributeKeeper(const std::string& path) : m_path(path) {}

AttributeKeeper::~AttributeKeeper() = default;

} // namespace ov::cli
