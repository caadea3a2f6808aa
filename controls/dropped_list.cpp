#include "controls/dropped_list.h"

#include "framework/window_resolution.h"

#include <algorithm>
#include <string>

void FitDroppedWidth(HWND comboBox)
{
    const HDC context = ::GetDC(comboBox);
    const HGDIOBJ before =
        ::SelectObject(context, reinterpret_cast<HFONT>(::SendMessageW(comboBox, WM_GETFONT, 0, 0)));
    WPARAM widest = 0;
    const LRESULT count = ::SendMessageW(comboBox, CB_GETCOUNT, 0, 0);
    for (LRESULT index = 0; index < count; ++index) {
        const auto entry = static_cast<WPARAM>(index);
        const LRESULT length = ::SendMessageW(comboBox, CB_GETLBTEXTLEN, entry, 0);
        std::wstring text(static_cast<size_t>(std::max<LRESULT>(length, 0)), L'\0');
        ::SendMessageW(comboBox, CB_GETLBTEXT, entry, reinterpret_cast<LPARAM>(text.data()));
        SIZE size{};
        ::GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
        widest = std::max(widest, static_cast<WPARAM>(size.cx));
    }
    ::SelectObject(context, before);
    ::ReleaseDC(comboBox, context);
    // The list's borders, the space beside its entries, and a scroll bar if needed.
    const int edges =
        4 * AfxGetFrameMetrics(comboBox, SM_CXEDGE) + AfxGetFrameMetrics(comboBox, SM_CXVSCROLL);
    ::SendMessageW(comboBox, CB_SETDROPPEDWIDTH, widest + static_cast<WPARAM>(edges), 0);
}

namespace
{
void CloseCalendar(HWND datePicker)
{
    ::SendMessageW(datePicker, DTM_CLOSEMONTHCAL, 0, 0);
    // Some systems do not support this message.
    const auto calendar = reinterpret_cast<HWND>(::SendMessageW(datePicker, DTM_GETMONTHCAL, 0, 0));
    if (calendar != nullptr && ::IsWindowVisible(calendar))
        ::ShowWindow(calendar, SW_HIDE);
}
} // namespace

void CloseDropped(const std::vector<HWND>& controls)
{
    for (const HWND control : controls) {
        if (AfxIsOfClass(control, WC_COMBOBOXW) && ::SendMessageW(control, CB_GETDROPPEDSTATE, 0, 0) != 0)
            ::SendMessageW(control, CB_SHOWDROPDOWN, FALSE, 0);
        else if (AfxIsOfClass(control, DATETIMEPICK_CLASSW))
            CloseCalendar(control);
    }
}
