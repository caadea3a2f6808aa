// What users, other programs and the system do to the dialog.
#include "tests/pages/random_file.h"
#include "tests/walk/dialog_checks.h"
#include "tests/walk/walk.h"

#include <algorithm>
#include <commctrl.h>

using namespace uidriver;

namespace walk
{

namespace
{

const std::vector<std::wstring> everyClass = {};
const std::vector<std::wstring> edits = {L"Edit"};
const std::vector<std::wstring> comboBoxes = {L"ComboBox"};

/// Whether the control only shows something.
bool IsMere(HWND control, const std::wstring& name)
{
    return name == L"Static" ||
           (name == L"Button" && (GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX);
}

void CollectUsable(HWND window, const std::vector<std::wstring>& classes, std::vector<HWND>& controls)
{
    for (HWND child : Children(window)) {
        if (!IsWindowVisible(child) || !IsWindowEnabled(child))
            continue;
        const std::wstring name = ClassOf(child);
        if (name == L"#32770")
            CollectUsable(child, classes, controls);
        else if (!IsMere(child, name) &&
                 (classes.empty() || std::ranges::find(classes, name) != classes.end()))
            controls.push_back(child);
    }
}

POINT SomePoint(HWND window, Chance& chance)
{
    RECT client = {};
    GetClientRect(window, &client);
    return {chance.Number(0, std::max(client.right - 1, 0L)),
            chance.Number(0, std::max(client.bottom - 1, 0L))};
}

} // namespace

struct Walk::Step {
    int weight;
    std::string (Walk::*take)();
};

const std::vector<Walk::Step>& Walk::Steps()
{
    static const std::vector<Step> steps = {
        {8, &Walk::SelectCategory}, {6, &Walk::ClickCategory},      {18, &Walk::PressKey},
        {2, &Walk::PressMnemonic},  {24, &Walk::ClickControl},      {3, &Walk::PressHiddenBox},
        {12, &Walk::EnterText},     {6, &Walk::ChooseEntry},        {4, &Walk::ResizeWindow},
        {4, &Walk::ScrollPage},     {1, &Walk::MinimiseAndRestore}, {2, &Walk::ChangeColours},
        {3, &Walk::AskToClose},     {2, &Walk::LoadDefaults},       {2, &Walk::ChangeResolution},
        {4, &Walk::DisturbFile},    {1, &Walk::ChooseFile},         {3, &Walk::PressSave},
        {1, &Walk::PressCancel},
    };
    return steps;
}

std::string Walk::StepInDialog()
{
    int total = 0;
    for (const Step& step : Steps())
        total += step.weight;
    int chosen = m_chance->Number(1, total);
    for (const Step& step : Steps()) {
        chosen -= step.weight;
        if (chosen <= 0)
            return (this->*step.take)();
    }
    return "";
}

std::vector<HWND> Walk::UsableControls(const std::vector<std::wstring>& classes) const
{
    std::vector<HWND> controls;
    CollectUsable(m_input, classes, controls);
    return controls;
}

// By a message, as accessibility tools do: the list need not have the focus.
std::string Walk::SelectCategory()
{
    const int row = m_chance->Number(0, static_cast<int>(Send(List(), LVM_GETITEMCOUNT)) - 1);
    SelectListViewRow(List(), row);
    return "selects category " + std::to_string(row);
}

std::string Walk::ClickCategory()
{
    const POINT point = SomePoint(List(), *m_chance);
    ClickAt(List(), point);
    return "clicks at the category list, line " + std::to_string(point.y);
}

std::string Walk::PressKey()
{
    static const std::vector<WORD> keys = {
        VK_TAB,  VK_TAB,  VK_TAB,  VK_TAB, VK_SPACE,  VK_SPACE, VK_RETURN, VK_ESCAPE, VK_UP,
        VK_DOWN, VK_LEFT, VK_HOME, VK_END, VK_PRIOR,  VK_NEXT,  VK_DELETE, VK_BACK,   VK_F4,
        'A',     'Z',     '5',     VK_F1,  VK_INSERT, VK_RIGHT, 'S',       'C',       'D'};
    const WORD key = m_chance->OneOf(keys);
    const std::string target = NameOf(FocusIn(m_input));
    PostKey(m_input, key);
    return "presses key " + std::to_string(key) + " at " + target;
}

std::string Walk::PressMnemonic()
{
    static const std::vector<wchar_t> letters = {L's', L'd', L'c', L'x'};
    constexpr LPARAM withAlt = 1 << 29;
    const wchar_t letter = m_chance->OneOf(letters);
    if (letter == L's' || letter == L'c')
        m_shown = ValuesOf(Dialog());
    PostMessageW(FocusIn(m_input), WM_SYSCHAR, letter, withAlt | 1);
    return std::string("presses Alt+") + static_cast<char>(letter);
}

std::string Walk::ClickControl()
{
    const auto controls = UsableControls(everyClass);
    if (controls.empty())
        return "finds no control";
    HWND control = m_chance->OneOf(controls);
    const std::string name = NameOf(control);
    const bool isButton = ClassOf(control) == L"Button";
    const POINT point = SomePoint(control, *m_chance);
    if (isButton)
        PostMessageW(control, BM_CLICK, 0, 0);
    else
        ClickAt(control, point, m_chance->Percent(20));
    return "clicks " + name + " at " + std::to_string(point.x) + "," + std::to_string(point.y);
}

// By a message, as accessibility tools do: on any page, without the focus.
std::string Walk::PressHiddenBox()
{
    std::vector<HWND> boxes;
    for (HWND page : Children(Dialog())) {
        for (HWND child : ClassOf(page) == L"#32770" ? Children(page) : std::vector<HWND>{}) {
            if ((GetWindowLongPtrW(child, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX &&
                ClassOf(child) == L"Button")
                boxes.push_back(child);
        }
    }
    HWND box = m_chance->OneOf(boxes);
    Send(box, BM_CLICK);
    return "sends a click to " + NameOf(box);
}

void Walk::NoteText(const std::wstring& text)
{
    m_unwritable = m_unwritable || IsUnwritable(text);
    m_emptyList = m_emptyList || IsEmptyList(text);
}

std::string Walk::EnterText()
{
    auto found = UsableControls(edits);
    std::erase_if(found, [](HWND edit) { return (GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY) != 0; });
    if (found.empty())
        return "finds no edit";
    HWND edit = m_chance->OneOf(found);
    const std::wstring text = m_chance->OddText();
    NoteText(text);
    if (m_chance->Percent(50))
        TypeText(edit, text);
    else
        SetText(edit, text);
    return "enters " + Printable(text) + " into " + NameOf(edit);
}

std::string Walk::ChooseEntry()
{
    const auto found = UsableControls(comboBoxes);
    if (found.empty())
        return "finds no list";
    HWND comboBox = m_chance->OneOf(found);
    const int entry = m_chance->Number(0, std::max(static_cast<int>(Send(comboBox, CB_GETCOUNT)) - 1, 0));
    if (m_chance->Percent(30))
        Send(comboBox, CB_SHOWDROPDOWN, TRUE);
    SelectComboEntry(comboBox, entry);
    return "chooses entry " + std::to_string(entry) + " of " + NameOf(comboBox);
}

std::string Walk::ResizeWindow()
{
    const int width = m_chance->Number(50, 1500);
    const int height = m_chance->Number(50, 1200);
    Resize(m_input, width, height);
    return "resizes to " + std::to_string(width) + " x " + std::to_string(height);
}

std::string Walk::MinimiseAndRestore()
{
    ShowWindow(Dialog(), SW_MINIMIZE);
    const bool minimised = Await([this] { return IsIconic(Dialog()) != FALSE; });
    ShowWindow(Dialog(), SW_RESTORE);
    Await([this] { return IsIconic(Dialog()) == FALSE; });
    return minimised ? "minimises and restores" : "cannot minimise";
}

std::string Walk::ChangeColours()
{
    Send(Dialog(), WM_SYSCOLORCHANGE);
    Send(Dialog(), WM_SETTINGCHANGE);
    Send(Dialog(), WM_THEMECHANGED);
    return "tells of other colours, settings and a theme";
}

std::string Walk::ChangeResolution()
{
    static const std::vector<UINT> resolutions = {96, 120, 144, 192};
    const UINT resolution = m_chance->OneOf(resolutions);
    RECT place = {0, 0, m_chance->Number(200, 1500), m_chance->Number(200, 1200)};
    Send(Dialog(), WM_DPICHANGED, MAKEWPARAM(resolution, resolution), reinterpret_cast<LPARAM>(&place));
    return "tells of " + std::to_string(resolution) + " dpi and a place of " + std::to_string(place.right) +
           " x " + std::to_string(place.bottom);
}

std::string Walk::ScrollPage()
{
    static const std::vector<WORD> requests = {SB_LINEDOWN, SB_LINEUP, SB_PAGEDOWN, SB_PAGEUP};
    constexpr int notch = 120;
    const WORD request = m_chance->OneOf(requests);
    const int notches = m_chance->Number(-10, 10);
    PostMessageW(Page(), m_chance->Percent(50) ? WM_VSCROLL : WM_HSCROLL, request, 0);
    PostMessageW(Page(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(notches * notch)), 0);
    return "scrolls by request " + std::to_string(request) + " and " + std::to_string(notches) + " notches";
}

std::string Walk::AskToClose()
{
    m_shown = ValuesOf(Dialog());
    switch (m_chance->Number(0, 3)) {
    case 0:
        PostMessageW(Page(), WM_CLOSE, 0, 0);
        return "asks the page to close";
    case 1:
        PostMessageW(GetParent(List()), WM_COMMAND, m_chance->Percent(50) ? IDOK : IDCANCEL, 0);
        return "sends the pane a command to close";
    case 2:
        PostMessageW(Dialog(), WM_SYSCOMMAND, SC_CLOSE, 0);
        return "asks the dialog to close by its menu";
    default:
        PostMessageW(Dialog(), WM_CLOSE, 0, 0);
        return "asks the dialog to close";
    }
}

std::string Walk::LoadDefaults()
{
    if (!CanLoadDefaults())
        return "cannot load defaults";
    Click(Control(IDC_PREFERENCES_LOAD_DEFAULTS));
    return "loads the defaults";
}

std::string Walk::DisturbFile()
{
    return m_file->Disturb(*m_chance);
}

// Another file by the dialog's own "...", or the name of a new one.
std::string Walk::ChooseFile()
{
    std::optional<std::string> bytes;
    if (m_chance->Percent(70))
        bytes = expected::RandomFile(m_chance->Generator());
    m_file = std::make_unique<OfficeFile>(m_folder / std::to_wstring(++m_files), bytes);
    m_currentPath = m_file->Path();
    m_choosing = m_reading = true;
    Click(Control(IDC_PREFERENCES_BROWSE));
    ComeToRest();
    m_choosing = m_reading = false;
    m_file->NoteReading();
    // A file without lines leaves what the dialog has read before.
    if (bytes && !bytes->empty())
        m_read = bytes;
    return bytes ? "chooses another file" : "chooses the name of a new file";
}

std::string Walk::PressSave()
{
    if (!CanSave())
        return "cannot save";
    m_shown = ValuesOf(Dialog());
    Click(Control(IDC_PREFERENCES_SAVE));
    return "presses Save";
}

std::string Walk::PressCancel()
{
    m_shown = ValuesOf(Dialog());
    Click(Control(IDC_PREFERENCES_CANCEL));
    return "presses Cancel";
}

} // namespace walk
