// What a dialog needs for a new resolution: metrics and its template.
#include "framework/afxwin.h"
#include "framework/dialog_template.h"
#include "framework/window_resolution.h"
#include "tests/framework/ids.h"

#include <gtest/gtest.h>

namespace
{

void ExpectRect(const CRect& expected, const RECT& rect)
{
    EXPECT_TRUE(expected == CRect(rect))
        << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

TEST(TemplateLayout, HasTheSizesOfTheTemplateInUnits)
{
    const auto layout = AfxReadTemplateLayout(IDD_FIELDS);
    ASSERT_TRUE(layout);
    EXPECT_TRUE(CSize(layout->size) == CSize(200, 160));
    ASSERT_EQ(10u, layout->controls.size());
    ExpectRect({7, 7, 87, 21}, layout->controls[0]);
    ExpectRect({90, 38, 170, 48}, layout->controls[3]);
    ExpectRect({7, 76, 87, 136}, layout->controls[6]);
    ExpectRect({60, 130, 110, 144}, layout->controls[9]);
}

TEST(TemplateLayout, IsThatOfAChildDialogToo)
{
    const auto layout = AfxReadTemplateLayout(IDD_INNER);
    ASSERT_TRUE(layout);
    EXPECT_TRUE(CSize(layout->size) == CSize(180, 90));
    ASSERT_EQ(4u, layout->controls.size());
    ExpectRect({90, 7, 170, 21}, layout->controls[3]);
}

TEST(TemplateLayout, IsNothingWithoutATemplate)
{
    EXPECT_FALSE(AfxReadTemplateLayout(IDD_MISSING));
}

TEST(WindowResolution, IsThatOfTheScreenInAProcessThatFollowsNoMonitor)
{
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    const HDC screen = ::GetDC(nullptr);
    const auto resolution = static_cast<UINT>(::GetDeviceCaps(screen, LOGPIXELSY));
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(resolution, AfxGetWindowResolution(window));
    EXPECT_EQ(resolution, AfxGetFrameResolution(window));
    EXPECT_EQ(::GetSystemMetrics(SM_CXVSCROLL), AfxGetFrameMetrics(window, SM_CXVSCROLL));
    window.DestroyWindow();
}

TEST(WindowResolution, MetricsGrowWithIt)
{
    EXPECT_EQ(32, AfxGetMetrics(SM_CXICON, 96));
    EXPECT_EQ(48, AfxGetMetrics(SM_CXICON, 144));
    EXPECT_EQ(64, AfxGetMetrics(SM_CXICON, 192));
}

} // namespace
