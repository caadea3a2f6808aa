#include "tests/support/test_files.h"

#include <windows.h>
#include <algorithm>

namespace uidriver
{

namespace
{

std::vector<std::wstring> NamesIn(const std::wstring& folder)
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data = {};
    HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        const std::wstring name = data.cFileName;
        if (name != L"." && name != L"..")
            names.push_back(name);
    } while (FindNextFileW(search, &data));
    FindClose(search);
    std::ranges::sort(names);
    return names;
}

void RemoveTree(const std::wstring& folder)
{
    for (const auto& name : NamesIn(folder)) {
        const auto path = folder + L'\\' + name;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (!DeleteFileW(path.c_str()))
            RemoveTree(path);
    }
    SetFileAttributesW(folder.c_str(), FILE_ATTRIBUTE_NORMAL);
    RemoveDirectoryW(folder.c_str());
}

std::string Printable(const std::string& line)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (char character : line) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '\r')
            text += "\\r";
        else if (character == '\n')
            text += "\\n";
        else if (byte < 0x20 || byte > 0x7E)
            text += {'\\', 'x', digits[byte / 16], digits[byte % 16]};
        else
            text += character;
    }
    return text;
}

// Splits a text into lines, including their line ends.
std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t feed = text.find('\n', start);
        const std::size_t end = feed == std::string::npos ? text.size() : feed + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

} // namespace

TempFolder::TempFolder()
{
    static unsigned count = 0;
    wchar_t folder[MAX_PATH + 1] = {};
    GetTempPathW(static_cast<DWORD>(std::size(folder)), folder);
    do {
        m_path = folder;
        m_path.append(L"ov").append(std::to_wstring(GetCurrentProcessId()));
        m_path.append(L"-").append(std::to_wstring(++count));
    } while (!CreateDirectoryW(m_path.c_str(), nullptr) && GetLastError() == ERROR_ALREADY_EXISTS);
}

TempFolder::~TempFolder()
{
    RemoveTree(m_path);
}

std::vector<std::wstring> TempFolder::Names() const
{
    return NamesIn(m_path);
}

std::optional<std::string> ReadBytes(const std::wstring& path)
{
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    LARGE_INTEGER size = {};
    GetFileSizeEx(file, &size);
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    const bool complete = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) &&
                          read == bytes.size();
    CloseHandle(file);
    return complete ? std::optional(std::move(bytes)) : std::nullopt;
}

bool WriteBytes(const std::wstring& path, const std::string& bytes)
{
    HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool complete =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
        written == bytes.size();
    return CloseHandle(file) && complete;
}

bool PathExists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string Difference(const std::string& expected, const std::string& actual)
{
    if (expected == actual)
        return {};
    const auto before = Lines(expected);
    const auto after = Lines(actual);
    // Omits the common lines at the beginning and at the end.
    const auto heads = std::ranges::mismatch(before, after);
    const auto start = heads.in1 - before.begin();
    auto beforeEnd = before.end();
    auto afterEnd = after.end();
    while (beforeEnd > heads.in1 && afterEnd > heads.in2 && beforeEnd[-1] == afterEnd[-1]) {
        --beforeEnd;
        --afterEnd;
    }
    std::string account = "\n@@ from line " + std::to_string(start + 1) + " @@\n";
    for (auto line = heads.in1; line != beforeEnd; ++line)
        account.append("-").append(Printable(*line)).append("\n");
    for (auto line = heads.in2; line != afterEnd; ++line)
        account.append("+").append(Printable(*line)).append("\n");
    return account;
}

} // namespace uidriver
