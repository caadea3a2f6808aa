#include "wizard/prefs_mem_dc.h"

CPrefsMemDC::CPrefsMemDC(CDC* target, const CRect& rectangle) : m_target(target), m_rectangle(rectangle)
{
    if (!target->IsPrinting() && CreateCompatibleDC(target)) {
        if (m_bitmap.CreateCompatibleBitmap(target, rectangle.Width(), rectangle.Height())) {
            m_previousBitmap = ::SelectObject(m_hDC, m_bitmap.GetSafeHandle());
            SetWindowOrg(rectangle.left, rectangle.top);
            return;
        }
        DeleteDC();
    }
    // Drawing with flicker is better than not drawing.
    Attach(target->GetSafeHdc());
}

CPrefsMemDC::~CPrefsMemDC()
{
    if (m_previousBitmap == nullptr) {
        Detach();
        return;
    }
    m_target->BitBlt(m_rectangle.left, m_rectangle.top, m_rectangle.Width(), m_rectangle.Height(), this,
                     m_rectangle.left, m_rectangle.top, SRCCOPY);
    // A bitmap that is still selected cannot be deleted.
    ::SelectObject(m_hDC, m_previousBitmap);
}
