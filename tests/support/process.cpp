#include "tests/support/process.h"

#include <psapi.h>

namespace uidriver
{

namespace
{

// The first fields of the process environment block up to the table of GDI
// handles, and an entry of that table, in the layout of 64-bit Windows.
struct EnvironmentBlock {
    unsigned char before[0xF8];
    struct GdiEntry* gdiHandles;
};

struct GdiEntry {
    ULONGLONG object;
    USHORT processId;
    USHORT locks;
    USHORT unique;
    UCHAR type; // 0: free
    UCHAR flags;
    ULONGLONG userPointer;
};

EnvironmentBlock* CurrentEnvironmentBlock()
{
    EnvironmentBlock* block = nullptr;
    __asm__("movq %%gs:0x60, %0" : "=r"(block));
    return block;
}

bool IsOwnUserHandle(HANDLE handle)
{
    auto* window = static_cast<HWND>(handle);
    DWORD processId = 0;
    if (GetWindowThreadProcessId(window, &processId))
        return processId == GetCurrentProcessId();
    if (IsMenu(static_cast<HMENU>(handle)))
        return true;
    ICONINFO icon = {};
    if (!GetIconInfo(static_cast<HICON>(handle), &icon))
        return false;
    DeleteObject(icon.hbmMask);
    if (icon.hbmColor)
        DeleteObject(icon.hbmColor);
    return true;
}

std::size_t CountHeapBytes()
{
    HANDLE heaps[64] = {};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(std::size(heaps)), heaps);
    std::size_t bytes = 0;
    for (DWORD index = 0; index < count && index < std::size(heaps); ++index) {
        if (!HeapLock(heaps[index]))
            continue;
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heaps[index], &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData;
        }
        HeapUnlock(heaps[index]);
    }
    return bytes;
}

} // namespace

// Wine does not count handles, but fills the handle table.
unsigned CountGdiObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return counted;
    constexpr int tableSize = 0x4000;
    const GdiEntry* table = CurrentEnvironmentBlock()->gdiHandles;
    unsigned count = 0;
    for (int index = 0; table && index < tableSize; ++index)
        count += table[index].type != 0;
    return count;
}

// If the system does not count them, checks every possible handle value. The low
// word identifies the object; a high word of 0 matches any generation.
unsigned CountUserObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS))
        return counted;
    constexpr ULONG_PTR first = 0x20;
    constexpr ULONG_PTR last = 0x4000;
    unsigned count = 0;
    for (ULONG_PTR value = first; value < last; value += 2)
        count += IsOwnUserHandle(reinterpret_cast<HANDLE>(value));
    return count;
}

Resources MeasureResources()
{
    Resources resources;
    resources.gdiObjects = CountGdiObjects();
    resources.userObjects = CountUserObjects();
    resources.heapBytes = CountHeapBytes();
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    if (K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters))
        resources.privateBytes = counters.PagefileUsage;
    return resources;
}

std::string Describe(const Resources& resources)
{
    return std::to_string(resources.gdiObjects) + " GDI objects, " + std::to_string(resources.userObjects) +
           " USER objects, " + std::to_string(resources.heapBytes) + " heap bytes, " +
           std::to_string(resources.privateBytes) + " private bytes";
}

Process::Process(const std::wstring& program, const std::vector<std::wstring>& arguments)
{
    std::wstring commandLine = QuoteArgument(program);
    for (const auto& argument : arguments)
        commandLine += L' ' + QuoteArgument(argument);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    // It uses our standard error but not our output: otherwise a reader of our output
    // through a pipe would have to wait for both processes to end.
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE nowhere = CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                 &inherited, OPEN_EXISTING, 0, nullptr);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = startup.hStdOutput = nowhere;
    startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION information = {};
    const BOOL started = CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0,
                                        nullptr, nullptr, &startup, &information);
    CloseHandle(nowhere);
    if (!started)
        return;
    CloseHandle(information.hThread);
    m_handle = information.hProcess;
    m_id = information.dwProcessId;
}

Process::~Process()
{
    if (m_handle)
        CloseHandle(m_handle);
}

bool Process::IsRunning() const
{
    return m_handle && WaitForSingleObject(m_handle, 0) == WAIT_TIMEOUT;
}

bool Process::AwaitEnd(unsigned deadline) const
{
    return Await([this] { return !IsRunning(); }, deadline);
}

DWORD Process::ExitCode() const
{
    DWORD code = 0;
    GetExitCodeProcess(m_handle, &code);
    return code;
}

std::wstring QuoteArgument(const std::wstring& argument)
{
    if (!argument.empty() && argument.find_first_of(L" \t\"") == std::wstring::npos)
        return argument;
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (wchar_t character : argument) {
        if (character == L'\\') {
            ++backslashes;
            continue;
        }
        // Backslashes are literal unless a quote follows.
        quoted.append(character == L'"' ? 2 * backslashes + 1 : backslashes, L'\\');
        backslashes = 0;
        quoted += character;
    }
    quoted.append(2 * backslashes, L'\\');
    return quoted + L'"';
}

} // namespace uidriver
