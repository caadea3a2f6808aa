#include "tests/walk/shown_values.h"

#include "tests/support/control_state.h"
#include "tests/support/window_search.h"
#include "tests/walk/dialog_checks.h"

#include <algorithm>
#include <commctrl.h>
#include <set>
#include <string_view>

using namespace uidriver;

namespace walk
{

namespace
{

/// What the control holds; empty for labels and frames.
std::wstring ContentOf(HWND control)
{
    const std::wstring name = ClassOf(control);
    // A read-only edit of a page shows what no save writes.
    if (name == L"Edit" && (GetWindowLongPtrW(control, GWL_STYLE) & ES_READONLY) == 0)
        return L"text " + GetText(control);
    if (name == L"ComboBox")
        return L"entry " + std::to_wstring(ComboSelection(control));
    if (name == L"Button")
        return L"state " + std::to_wstring(CheckState(control));
    if (name == TRACKBAR_CLASSW)
        return L"position " + std::to_wstring(TrackbarPosition(control));
    if (name == DATETIMEPICK_CLASSW) {
        SYSTEMTIME day = {};
        SendMessageW(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&day));
        return L"day " + std::to_wstring(day.wYear * 10000 + day.wMonth * 100 + day.wDay);
    }
    return L"";
}

std::wstring LookOf(HWND control)
{
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    // What a hidden control holds may go with the dialog.
    if ((style & WS_VISIBLE) == 0)
        return L"(hidden)";
    std::wstring look;
    if ((style & WS_DISABLED) != 0)
        look += L"(disabled) ";
    return look + ContentOf(control);
}

std::string PageOf(const std::string& control)
{
    return control.substr(0, control.find('/'));
}

} // namespace

ShownValues ValuesOf(HWND dialog)
{
    ShownValues values;
    int page = 0;
    for (HWND child : Children(dialog)) {
        if (ClassOf(child) != L"#32770" || GetDlgItem(child, CategoryListId))
            continue;
        ++page;
        for (HWND control : Children(child)) {
            const std::string name = std::to_string(page) + "/" + std::to_string(GetDlgCtrlID(control));
            values[name] += LookOf(control);
        }
    }
    return values;
}

void ForgetPageOf(int control, ShownValues& values)
{
    const std::string end = "/" + std::to_string(control);
    const auto found =
        std::ranges::find_if(values, [&](const auto& value) { return value.first.ends_with(end); });
    if (found == values.end())
        return;
    const std::string page = PageOf(found->first);
    std::erase_if(values, [&](const auto& value) { return PageOf(value.first) == page; });
}

bool ComesBack(const std::wstring& text)
{
    if (text.empty())
        return true;
    const std::wstring around = L" \t\r\n";
    return text.find_first_of(L"\"#\r\n\t\u00A0") == text.npos && around.find(text.front()) == around.npos &&
           around.find(text.back()) == around.npos && text.front() != L';' && text.back() != L';' &&
           text.find(L";;") == text.npos && text.find(L" ;") == text.npos && text.find(L"; ") == text.npos;
}

std::string DifferenceAfterSave(const ShownValues& earlier, const ShownValues& later)
{
    constexpr std::wstring_view text = L"text ";
    std::set<std::string> uncertain;
    for (const auto& [control, look] : earlier) {
        const std::size_t found = look.find(text);
        // A list without a selection is saved as a number, and some numbers have an entry of their own.
        if (look.ends_with(L"entry -1") ||
            (found != look.npos && !ComesBack(look.substr(found + text.size()))))
            uncertain.insert(PageOf(control));
    }
    std::string difference;
    for (const auto& [control, look] : earlier) {
        const auto found = later.find(control);
        if (found != later.end() && found->second == look)
            continue;
        if (!uncertain.contains(PageOf(control)))
            difference += "control " + control + " showed " + Printable(look) + ", after the save " +
                          (found == later.end() ? "nothing" : Printable(found->second)) + "\n";
    }
    return difference;
}

} // namespace walk
