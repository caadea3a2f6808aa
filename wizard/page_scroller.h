#pragma once

#include "framework/afxwin.h"
#include "wizard/core/page_scroll.h"

/// Scrolls a page whose content is larger than its window, in both directions,
/// with the window's own scroll bars. It belongs to its page.
class CPageScroller
{
  public:
    /// `displaySize` is the size of the page's whole content in pixels.
    CPageScroller(CWnd& page, CSize displaySize);

    /// Sets the size of the whole content in pixels. The content is at least so
    /// large that `reserved` can be brought into view beside both bars. The bars
    /// follow at once.
    void SetDisplaySize(CSize displaySize, CSize reserved = {});

    /// The part of the page, from its origin, that can be brought into view.
    CSize ReachableSize() const;

    /// After a new size of the page: back to the origin, bars fitted.
    void OnSize();

    /// Moves the content, child windows included, back to the top-left corner.
    void ScrollToOrigin();

    /// Scrolls as far as it takes to bring the rectangle, in the page's client
    /// coordinates, into view.
    void Show(const CRect& rectangle);

    /// Performs a scroll-bar request; `sender` is the control that sent it, null
    /// for the page's own bar.
    void OnHScroll(UINT code, const CWnd* sender);
    void OnVScroll(UINT code, const CWnd* sender);

    /// Scrolls by a wheel movement (120 a notch). FALSE when the page has
    /// nothing to scroll vertically.
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
