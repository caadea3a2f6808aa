#pragma once

#include "framework/afxwin.h"
#include "wizard/core/page_scroll.h"

/// Scrolls a page whose content is larger than its window, in both directions,
/// with the window's own scroll bars. The page owns it.
class CPageScroller
{
  public:
    /// `displaySize` is the size of the page's whole content in pixels.
    CPageScroller(CWnd& page, CSize displaySize);

    /// Sets the size of the whole content in pixels and updates the scroll bars. The
    /// content is at least large enough to make `reserved` visible while both scroll
    /// bars are shown.
    void SetDisplaySize(CSize displaySize, CSize reserved = {});

    /// The part of the page, from its origin, that scrolling can make visible.
    CSize ReachableSize() const;

    /// Called after the page was resized: scrolls to the origin and updates the bars.
    void OnSize();

    /// Scrolls the content, including child windows, back to the top-left corner.
    void ScrollToOrigin();

    /// Scrolls as far as necessary to make the rectangle, in the page's client
    /// coordinates, visible.
    void Show(const CRect& rectangle);

    /// Performs a scroll bar request. `sender` is the control that sent it; null
    /// for the page's own bar.
    void OnHScroll(UINT code, const CWnd* sender);
    void OnVScroll(UINT code, const CWnd* sender);

    /// Scrolls by a wheel movement (120 per notch). FALSE if the page cannot
    /// scroll vertically.
    BOOL OnMouseWheel(short delta);

  private:
    CSize BarThickness() const;
    CSize AvailableSize() const;
    void UpdateScrollBars();
    int UpdateScrollBar(int bar, ov::ScrollAxis& axis, int available);
    bool Request(int bar, ov::ScrollRequest request);
    bool Request(int bar, ov::ScrollRequest request, int trackPosition);
    void ShowAlong(int bar, int begin, int end, int visible);
    void ScrollContent(int dx, int dy);
    void ScrollAlong(int bar, int shift);
    ov::ScrollAxis& AxisOf(int bar) { return bar == SB_HORZ ? m_horizontal : m_vertical; }

    CWnd& m_page;
    ov::ScrollAxis m_horizontal;
    ov::ScrollAxis m_vertical;
};
