#include "tests/ui/tab_walk.h"

#include "tests/support/control_actions.h"
#include "tests/support/window_search.h"
#include "tests/ui/reading_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace uidriver;

namespace
{

std::vector<int> IdsOf(const std::vector<HWND>& controls)
{
    std::vector<int> ids;
    std::ranges::transform(controls, std::back_inserter(ids), GetDlgCtrlID);
    return ids;
}

std::vector<HWND> Walk(HWND window, std::size_t steps, bool backwards, const std::function<void(HWND)>& look)
{
    std::vector<HWND> visited;
    for (std::size_t step = 0; step < steps; ++step) {
        if (backwards)
            EXPECT_TRUE(PressKey(window, VK_TAB, VK_SHIFT));
        else
            PostKey(window, VK_TAB);
        visited.push_back(FocusIn(window));
        EXPECT_TRUE(IsWindowVisible(visited.back())) << GetDlgCtrlID(visited.back());
        if (look)
            look(visited.back());
    }
    return visited;
}

} // namespace

void ExpectTabCycle(HWND window, HWND start, const std::function<void(HWND)>& look)
{
    auto expected = TabStopsInReadingOrder(window);
    const auto found = std::ranges::find(expected, start);
    ASSERT_NE(expected.end(), found) << "Tab does not stop where the walk is to begin";
    std::ranges::rotate(expected, found + 1); // the start comes last
    Focus(start);
    // Ids are repeated from page to page, so the windows themselves are compared.
    auto visited = Walk(window, expected.size(), false, look);
    EXPECT_TRUE(expected == visited) << testing::PrintToString(IdsOf(expected)) << " expected, not\n"
                                     << testing::PrintToString(IdsOf(visited));
    std::ranges::reverse(expected);
    std::ranges::rotate(expected, expected.begin() + 1);
    visited = Walk(window, expected.size(), true, look);
    EXPECT_TRUE(expected == visited) << "backwards: " << testing::PrintToString(IdsOf(expected))
                                     << " expected, not\n"
                                     << testing::PrintToString(IdsOf(visited));
    EXPECT_EQ(start, FocusIn(window));
}
