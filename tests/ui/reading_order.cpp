#include "tests/ui/reading_order.h"

#include "tests/support/window_search.h"

#include <algorithm>
#include <utility>

using namespace uidriver;

namespace
{

bool IsContainer(HWND window)
{
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

// Windows that begin above the middle of a row's first window belong to that row.
std::vector<HWND> InReadingOrder(HWND parent, std::vector<HWND> windows)
{
    const auto rectOf = [parent](HWND window) { return RectIn(window, parent); };
    std::ranges::sort(windows, {}, [&](HWND window) { return rectOf(window).top; });
    for (auto row = windows.begin(); row != windows.end();) {
        const RECT first = rectOf(*row);
        const auto next = std::find_if(row, windows.end(), [&](HWND window) {
            return rectOf(window).top >= (first.top + first.bottom) / 2;
        });
        // Windows one below another, beside a high window, are read downwards.
        std::sort(row, next, [&](HWND one, HWND other) {
            const RECT a = rectOf(one);
            const RECT b = rectOf(other);
            return std::pair(a.left, a.top) < std::pair(b.left, b.top);
        });
        row = next;
    }
    return windows;
}

} // namespace

std::vector<HWND> TabStopsInReadingOrder(HWND dialog)
{
    std::vector<HWND> candidates;
    for (HWND child : Children(dialog)) {
        if (IsWindowVisible(child) && IsWindowEnabled(child) &&
            (IsContainer(child) || (GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP)))
            candidates.push_back(child);
    }
    std::vector<HWND> stops;
    for (HWND window : InReadingOrder(dialog, candidates)) {
        if (!IsContainer(window)) {
            stops.push_back(window);
            continue;
        }
        const auto inner = TabStopsInReadingOrder(window);
        stops.insert(stops.end(), inner.begin(), inner.end());
    }
    return stops;
}
