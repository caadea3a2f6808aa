// ovDrive: a command line for the dialog driver, for scripts. One command per
// call; the dialog is in another process. The exit code is 0, or 1 with the reason
// on stderr.
#include "tests/support/category_list.h"
#include "tests/support/control_actions.h"
#include "tests/support/control_state.h"
#include "tests/support/message_box.h"
#include "tests/support/process.h"
#include "tests/support/window_search.h"

#include <cstdio>
#include <cwchar>
#include <span>

using namespace uidriver;

namespace
{

// The window that the commands drive; the option "in" selects another one.
const wchar_t* dialogCaption = L"Preferences";
constexpr const wchar_t* BoxCaption = L"Orthoval for MicroStation Preferences";

// Controls appear with their page, for which the commands have already waited.
constexpr unsigned ControlDeadline = 2000;

constexpr const char* Usage = R"(usage: ovDrive COMMAND
  start EXE [ARGUMENT...]  start the host, wait until the dialog is up, and print
                           the milliseconds that took
  categories               print the titles of the categories, one a line
  select TITLE             select a category and wait for its page
  focus                    give the page's first control the keyboard focus
  click ID                 press a button or a check box
  type ID TEXT             replace the text of an edit control by typing
  text ID                  print a control's text
  state ID                 print checked, unchecked or mixed, and whether enabled
  size WIDTH HEIGHT        set the dialog's outer size in pixels
  wait-close [ID]          wait until the host has ended, after pressing button
                           ID, and print its exit code when it can still be had
  answer BUTTON-ID         print a message box's text and press its button
  in CAPTION COMMAND       one of click, type, text, state and size in another
                           window than the Preferences dialog
)";

using Arguments = std::span<wchar_t*>;

std::string Utf8(const std::wstring& text)
{
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

int Fail(const std::string& reason)
{
    std::fprintf(stderr, "ovDrive: %s\n", reason.c_str());
    return 1;
}

int ToInt(const wchar_t* text)
{
    return static_cast<int>(std::wcstol(text, nullptr, 10));
}

// Waits for the dialog and returns it; reports an error if it does not appear.
HWND OpenDialog()
{
    HWND dialog = AwaitTopWindow(dialogCaption);
    if (!dialog)
        Fail("no window \"" + Utf8(dialogCaption) + "\" came up");
    return dialog;
}

HWND ControlOf(HWND dialog, const wchar_t* id)
{
    HWND control = dialog ? AwaitControl(dialog, ToInt(id), ControlDeadline) : nullptr;
    if (dialog && !control)
        Fail("the dialog has no control " + Utf8(id));
    return control;
}

int Start(Arguments arguments)
{
    const ULONGLONG begin = GetTickCount64();
    const Process host(arguments[0], {arguments.begin() + 1, arguments.end()});
    if (!host.IsStarted())
        return Fail("cannot start " + Utf8(arguments[0]));
    HWND dialog = nullptr;
    Await([&] {
        dialog = FindTopWindow(dialogCaption, host.Id());
        return dialog || !host.IsRunning();
    });
    if (!dialog && !host.IsRunning())
        return Fail("the host ended with exit code " + std::to_string(host.ExitCode()));
    if (!dialog || !IsResponsive(dialog))
        return Fail("no dialog came up");
    std::printf("%llu\n", GetTickCount64() - begin);
    return 0;
}

int PrintCategories(Arguments)
{
    HWND dialog = OpenDialog();
    HWND list = dialog ? AwaitControl(dialog, CategoryListId, ControlDeadline) : nullptr;
    if (!list)
        return 1;
    for (const auto& title : ListViewTexts(list))
        std::printf("%s\n", Utf8(title).c_str());
    return 0;
}

int Select(Arguments arguments)
{
    HWND dialog = OpenDialog();
    if (!dialog)
        return 1;
    return SelectCategory(dialog, arguments[0]) ? 0 : Fail("no page for category " + Utf8(arguments[0]));
}

int FocusPage(Arguments)
{
    HWND dialog = OpenDialog();
    HWND page = dialog ? VisiblePage(dialog) : nullptr;
    HWND control = page ? GetNextDlgTabItem(page, nullptr, FALSE) : nullptr;
    if (dialog && !control)
        return Fail("no page with a control is shown");
    if (!control)
        return 1;
    Focus(control);
    return Await([&] { return FocusIn(dialog) == control; }) ? 0 : Fail("the page does not take the focus");
}

int Press(Arguments arguments)
{
    HWND button = ControlOf(OpenDialog(), arguments[0]);
    if (!button)
        return 1;
    if (!IsShown(button) || !IsEnabled(button))
        return Fail("control " + Utf8(arguments[0]) + " is hidden or disabled");
    const auto type = GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK;
    const int before = CheckState(button);
    Click(button);
    if ((type == BS_AUTOCHECKBOX || type == BS_AUTO3STATE) &&
        !Await([&] { return CheckState(button) != before; }))
        return Fail("check box " + Utf8(arguments[0]) + " did not change");
    return 0;
}

int Type(Arguments arguments)
{
    HWND edit = ControlOf(OpenDialog(), arguments[0]);
    if (!edit)
        return 1;
    TypeText(edit, arguments[1]);
    return Await([&] { return GetText(edit) == arguments[1]; })
               ? 0
               : Fail("control " + Utf8(arguments[0]) + " now reads: " + Utf8(GetText(edit)));
}

int PrintText(Arguments arguments)
{
    HWND control = ControlOf(OpenDialog(), arguments[0]);
    if (!control)
        return 1;
    std::printf("%s\n", Utf8(GetText(control)).c_str());
    return 0;
}

int PrintState(Arguments arguments)
{
    HWND control = ControlOf(OpenDialog(), arguments[0]);
    if (!control)
        return 1;
    constexpr const char* states[] = {"unchecked", "checked", "mixed"};
    std::printf("%s %s\n", states[CheckState(control) % 3], IsEnabled(control) ? "enabled" : "disabled");
    return 0;
}

int Size(Arguments arguments)
{
    HWND dialog = OpenDialog();
    if (!dialog)
        return 1;
    Resize(dialog, ToInt(arguments[0]), ToInt(arguments[1]));
    RECT rect = {};
    GetWindowRect(dialog, &rect);
    std::printf("%ld %ld\n", rect.right - rect.left, rect.bottom - rect.top);
    return 0;
}

int WaitClose(Arguments arguments)
{
    HWND dialog = FindTopWindow(dialogCaption);
    if (!dialog)
        return 0;
    DWORD processId = 0;
    GetWindowThreadProcessId(dialog, &processId);
    // Opened before the press, because a process that has ended cannot be opened.
    HANDLE host = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
    if (!arguments.empty() && Press(arguments) != 0)
        return 1;
    if (!host)
        return AwaitGone(dialog) ? 0 : Fail("the dialog is still open");
    const bool ended = Await([host] { return WaitForSingleObject(host, 0) == WAIT_OBJECT_0; });
    DWORD code = STILL_ACTIVE;
    GetExitCodeProcess(host, &code);
    CloseHandle(host);
    if (!ended)
        return Fail("the host is still running");
    std::printf("%lu\n", code);
    return 0;
}

int Answer(Arguments arguments)
{
    const auto box = AwaitMessageBox(BoxCaption);
    if (!box)
        return Fail("no message box came up");
    std::printf("%s\n", Utf8(box.text).c_str());
    return AnswerMessageBox(box.window, ToInt(arguments[0]))
               ? 0
               : Fail("the message box has no button " + Utf8(arguments[0]) + ", or stays open");
}

struct Command {
    const wchar_t* name;
    std::size_t least;
    std::size_t most;
    int (*run)(Arguments);
};

constexpr Command Commands[] = {
    {L"categories", 0, 0, PrintCategories},
    {L"start", 1, 64, Start},
    {L"select", 1, 1, Select},
    {L"focus", 0, 0, FocusPage},
    {L"click", 1, 1, Press},
    {L"type", 2, 2, Type},
    {L"text", 1, 1, PrintText},
    {L"state", 1, 1, PrintState},
    {L"size", 2, 2, Size},
    {L"wait-close", 0, 1, WaitClose},
    {L"answer", 1, 1, Answer},
};

} // namespace

int wmain(int count, wchar_t** texts)
{
    Arguments all(texts, static_cast<std::size_t>(count));
    if (all.size() >= 4 && std::wcscmp(all[1], L"in") == 0) {
        dialogCaption = all[2];
        all = all.subspan(2);
    }
    if (all.size() >= 2) {
        const auto arguments = all.subspan(2);
        for (const auto& command : Commands) {
            if (std::wcscmp(command.name, all[1]) == 0 && arguments.size() >= command.least &&
                arguments.size() <= command.most)
                return command.run(arguments);
        }
    }
    std::fputs(Usage, stderr);
    return 1;
}
