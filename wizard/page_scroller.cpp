#include "wizard/page_scroller.h"

#include "framework/window_resolution.h"

#include <algorithm>

CPageScroller::CPageScroller(CWnd& page, CSize displaySize) : m_page(page)
{
    SetDisplaySize(displaySize);
}

void CPageScroller::SetDisplaySize(CSize displaySize, CSize reserved)
{
    const bool hasPage = m_page.GetSafeHwnd() != nullptr;
    const CSize bars = hasPage ? BarThickness() : CSize();
    const int width = std::max(displaySize.cx, reserved.cx > 0 ? reserved.cx + bars.cx : 0);
    const int height = std::max(displaySize.cy, reserved.cy > 0 ? reserved.cy + bars.cy : 0);
    if (width == m_horizontal.displaySize && height == m_vertical.displaySize)
        return;
    m_horizontal.displaySize = width;
    m_vertical.displaySize = height;
    if (hasPage)
        UpdateScrollBars();
}

CSize CPageScroller::BarThickness() const
{
    return {AfxGetFrameMetrics(m_page, SM_CXVSCROLL), AfxGetFrameMetrics(m_page, SM_CYHSCROLL)};
}

CSize CPageScroller::AvailableSize() const
{
    CRect window;
    CRect client;
    m_page.GetWindowRect(&window);
    m_page.GetClientRect(&client);
    const CSize bars = BarThickness();
    return {ov::AvailableSize(window.Width(), client.Width(), bars.cx),
            ov::AvailableSize(window.Height(), client.Height(), bars.cy)};
}

CSize CPageScroller::ReachableSize() const
{
    CRect client;
    m_page.GetClientRect(&client);
    const CSize available = AvailableSize();
    return {ov::ReachableSize(m_horizontal, available.cx, client.Width()),
            ov::ReachableSize(m_vertical, available.cy, client.Height())};
}

void CPageScroller::OnSize()
{
    if (m_page.GetSafeHwnd() == nullptr)
        return;
    ScrollToOrigin();
    UpdateScrollBars();
}

void CPageScroller::ScrollToOrigin()
{
    if (m_page.GetSafeHwnd() == nullptr)
        return;
    for (const int bar : {SB_HORZ, SB_VERT}) {
        if (const int shift = ov::ResetAxis(AxisOf(bar)); shift != 0) {
            m_page.SetScrollPos(bar, 0, TRUE);
            ScrollAlong(bar, shift);
        }
    }
}

void CPageScroller::UpdateScrollBars()
{
    const CSize available = AvailableSize();
    const int dx = UpdateScrollBar(SB_HORZ, m_horizontal, available.cx);
    const int dy = UpdateScrollBar(SB_VERT, m_vertical, available.cy);
    if (dx != 0 || dy != 0)
        ScrollContent(dx, dy);
}

// Showing or hiding a bar resizes the page, and that updates both bars
// recursively. Each bar's state is therefore queried right before it is set.
int CPageScroller::UpdateScrollBar(int bar, ov::ScrollAxis& axis, int available)
{
    const ov::ScrollUpdate update = ov::UpdateAxis(axis, available, m_page.GetScrollPos(bar));
    SCROLLINFO info{};
    info.nMax = update.bar.maximum;
    info.nPage = static_cast<UINT>(update.bar.pageSize);
    info.nPos = update.bar.position;
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    m_page.SetScrollInfo(bar, &info, TRUE);
    return update.contentShift;
}

bool CPageScroller::Request(int bar, ov::ScrollRequest request)
{
    if (m_page.GetSafeHwnd() == nullptr)
        return false;
    SCROLLINFO info{};
    m_page.GetScrollInfo(bar, &info, SIF_TRACKPOS);
    return Request(bar, request, info.nTrackPos);
}

bool CPageScroller::Request(int bar, ov::ScrollRequest request, int trackPosition)
{
    ov::ScrollAxis& axis = AxisOf(bar);
    const int step = ov::Scroll(axis, request, trackPosition);
    if (step == 0)
        return false;
    m_page.SetScrollPos(bar, axis.position, TRUE);
    ScrollAlong(bar, -step);
    return true;
}

void CPageScroller::Show(const CRect& rectangle)
{
    CRect view;
    m_page.GetClientRect(&view);
    ShowAlong(SB_HORZ, rectangle.left, rectangle.right, view.Width());
    ShowAlong(SB_VERT, rectangle.top, rectangle.bottom, view.Height());
}

void CPageScroller::ShowAlong(int bar, int begin, int end, int visible)
{
    const ov::ScrollAxis& axis = AxisOf(bar);
    const int position = ov::PositionShowing(axis, axis.position + begin, axis.position + end, visible);
    Request(bar, ov::ScrollRequest::ThumbPosition, position);
}

void CPageScroller::ScrollAlong(int bar, int shift)
{
    if (bar == SB_HORZ)
        ScrollContent(shift, 0);
    else
        ScrollContent(0, shift);
}

void CPageScroller::ScrollContent(int dx, int dy)
{
    if (m_page.IsWindowVisible()) {
        m_page.ScrollWindow(dx, dy);
        return;
    }
    // Windows scrolls nothing in a hidden window, and a page is resized before
    // it is shown again: its controls are moved one by one.
    for (const HWND child : m_page.GetControls()) {
        CRect rect;
        ::GetWindowRect(child, &rect);
        m_page.ScreenToClient(&rect);
        ::SetWindowPos(child, nullptr, rect.left + dx, rect.top + dy, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void CPageScroller::OnHScroll(UINT code, const CWnd*)
{
    Request(SB_HORZ, static_cast<ov::ScrollRequest>(code));
}

void CPageScroller::OnVScroll(UINT code, const CWnd* sender)
{
    // Spin buttons notify their parent with vertical scroll messages.
    if (!AfxIsOfClass(AfxSafeHwnd(sender), UPDOWN_CLASSW))
        Request(SB_VERT, static_cast<ov::ScrollRequest>(code));
}

BOOL CPageScroller::OnMouseWheel(short delta)
{
    int minimum = 0;
    int maximum = 0;
    m_page.GetScrollRange(SB_VERT, &minimum, &maximum);
    if (minimum == maximum)
        return FALSE;
    UINT lines = 0;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const ov::WheelSteps steps = ov::StepsOfWheel(delta, lines);
    // After a step that moves nothing the end is reached; further steps have no effect.
    for (std::uint64_t i = 0; i < steps.count && Request(SB_VERT, steps.request); ++i) {
    }
    return TRUE;
}
