// Message boxes, choosers, the list editor and the pattern tester.
#include "tests/support/control_actions.h"
#include "tests/support/process.h"
#include "tests/walk/dialog_checks.h"
#include "tests/walk/walk.h"

#include <algorithm>
#include <commctrl.h>
#include <dlgs.h>
#include <functional>

using namespace uidriver;

namespace walk
{

namespace
{

/// The combo box that the file name is typed into; it lies in another one.
HWND FileNameBox(HWND chooser)
{
    return FindWindowExW(AwaitControl(chooser, cmb13), nullptr, L"ComboBox", nullptr);
}

BOOL CALLBACK FindTree(HWND window, LPARAM found)
{
    const bool isTree = ClassOf(window) == WC_TREEVIEWW;
    *reinterpret_cast<bool*>(found) = isTree;
    return isTree ? FALSE : TRUE;
}

// Its caption is in the system's language.
bool IsFolderBrowser(HWND chooser)
{
    bool hasTree = false;
    EnumChildWindows(chooser, FindTree, reinterpret_cast<LPARAM>(&hasTree));
    return hasTree;
}

int RowCount(HWND list)
{
    return static_cast<int>(Send(list, LVM_GETITEMCOUNT));
}

} // namespace

// Empty when the message has its reason in the state of the file, the dialog and its texts.
std::string Walk::FaultOfMessage(const MessageBoxContent& box) const
{
    struct Known {
        const wchar_t* begin;
        bool expected;
    };
    const bool hasFailed = m_unwritable || m_file->MayFail() || m_file->MayLackBackup();
    const Known known[] = {
        {L"Do you wish to abandon all changes?", m_wasModified},
        {L"This will delete ", true},
        {L"Text qualifier is missing.", true},
        {L"The variable _ORTHOVAL_SCANPERIOD_", m_reading || !m_defaultPath.empty()},
        {L"Error: No configuration file has been defined.", m_currentPath.empty()},
        {L"Cannot rename backup file while saving.", m_file->MayLackBackup()},
        {L"The configuration file on disk has not been read", m_file->MustAsk() && !m_file->Known()},
        {L"The configuration file on disk has changed", m_file->MustAsk()},
        {L"The configuration file has not been saved.\nThe variable ", m_unwritable},
        {L"The configuration file has not been saved.\nIt could not be ", hasFailed},
        {L"The configuration file has been saved.\nAnother program may have changed", m_file->IsHeld()},
    };
    if (box.caption != kBoxCaption)
        return m_reading && m_file->IsUnreadable() ? "" : "a message box with an unknown caption";
    for (const auto& [begin, expected] : known) {
        if (box.text.starts_with(begin))
            return expected ? "" : "a message without a reason";
    }
    return "an unknown message";
}

void Walk::AnswerMessage(HWND window)
{
    const auto box = AwaitMessageBox(GetText(window), window);
    if (!box || box.buttons.empty())
        return Fail("a message box without a button");
    const int answer = m_chance->OneOf(box.buttons).id;
    Log("message " + Printable(box.caption) + ": " + Printable(box.text) + " - answer " +
        std::to_string(answer));
    if (const std::string fault = FaultOfMessage(box); !fault.empty())
        return Fail(fault + ": " + Printable(box.text));
    if (box.text.starts_with(L"Do you wish to abandon"))
        m_abandonAnswer = answer;
    if (box.text.starts_with(L"The configuration file on disk") && answer == IDYES)
        m_mayReplace = true;
    if (!AnswerMessageBox(box.window, answer))
        Fail("the message box stays");
}

// Takes a file for the dialog's own "...", and cancels all others.
void Walk::AnswerChooser(HWND chooser)
{
    const std::wstring caption = GetText(chooser);
    Log("chooser " + Printable(caption));
    if (caption != L"Open Config File" && caption != L"Select File" && !IsFolderBrowser(chooser))
        return Fail("an unknown window has opened: " + NameOf(chooser));
    if (caption == L"Open Config File" && m_choosing) {
        SetText(FileNameBox(chooser), m_currentPath);
        Click(GetDlgItem(chooser, IDOK));
    } else {
        PostMessageW(chooser, WM_COMMAND, IDCANCEL, 0);
    }
    if (!AwaitGone(chooser))
        return Fail("the chooser stays");
    // What the system keeps of its own windows for the next time is not the dialog's.
    const unsigned now = CountGdiObjects();
    m_gdiObjects += std::max(now, m_gdiAtRest) - m_gdiAtRest;
}

std::string Walk::StepInEditor()
{
    HWND list = GetDlgItem(m_input, IDC_CONFIG_SETTING_LIST);
    HWND value = GetDlgItem(m_input, IDC_CONFIG_SETTING_VALUE);
    switch (m_chance->Number(0, 11)) {
    case 0:
    case 1: {
        const std::wstring text = m_chance->OddText();
        TypeText(value, text);
        NoteText(text);
        Click(GetDlgItem(m_input, IDC_CONFIG_SETTING_INSERT));
        return "inserts " + Printable(text);
    }
    case 2: {
        if (RowCount(list) == 0)
            return "finds no row";
        const int row = m_chance->Number(0, RowCount(list) - 1);
        SelectListViewRow(list, row);
        return "selects row " + std::to_string(row);
    }
    case 3:
    case 4:
    case 5: {
        static const std::vector<int> buttons = {IDC_CONFIG_SETTING_DELETE, IDC_CONFIG_SETTING_MOVE_UP,
                                                 IDC_CONFIG_SETTING_MOVE_DOWN, IDC_CONFIG_SETTING_BROWSE,
                                                 IDC_CONFIG_SETTING_INSERT};
        HWND button = GetDlgItem(m_input, m_chance->OneOf(buttons));
        if (IsShown(button) && IsEnabled(button))
            Click(button);
        return "presses " + NameOf(button);
    }
    case 6:
    case 7:
        return PressKey();
    case 8:
        return ResizeWindow();
    case 9:
        PostMessageW(Dialog(), WM_CLOSE, 0, 0);
        return "asks the dialog under the list editor to close";
    default: {
        const int button = m_chance->Percent(60) ? IDOK : IDCANCEL;
        Click(GetDlgItem(m_input, button));
        return button == IDOK ? "list editor: OK" : "list editor: Cancel";
    }
    }
}

std::string Walk::StepInTester()
{
    switch (m_chance->Number(0, 7)) {
    case 0:
    case 1:
        return EnterText();
    case 2:
        return ChooseEntry();
    case 3: {
        HWND button = GetDlgItem(m_input, IDC_REGEX_TESTER_TEST_MATCH);
        if (IsEnabled(button))
            Click(button);
        return "tests the pattern";
    }
    case 4:
        return PressKey();
    case 5:
        return ResizeWindow();
    case 6:
        PostMessageW(Dialog(), WM_CLOSE, 0, 0);
        return "asks the dialog under the tester to close";
    default:
        PostMessageW(m_input, WM_COMMAND, m_chance->Percent(50) ? IDOK : IDCANCEL, 0);
        return "closes the tester";
    }
}

} // namespace walk
