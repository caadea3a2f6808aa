#include "framework/thread_state.h"
#include "framework/wide.h"

IMPLEMENT_DYNAMIC(CDC, CObject)

namespace
{
HGDIOBJ HandleOf(const CGdiObject* object)
{
    return object != nullptr ? object->GetSafeHandle() : nullptr;
}

int Length(const ov::Text& text)
{
    return static_cast<int>(text.size());
}
} // namespace

CDC::~CDC()
{
    CDC::DeleteDC();
}

CDC* CDC::FromHandle(HDC context)
{
    return AfxGetThreadState().temporary.contexts.FromHandle(context);
}

BOOL CDC::Attach(HDC context)
{
    DeleteDC();
    m_hDC = context;
    return context != nullptr;
}

HDC CDC::Detach()
{
    const HDC context = m_hDC;
    m_hDC = nullptr;
    return context;
}

BOOL CDC::CreateCompatibleDC(CDC* context)
{
    return Attach(::CreateCompatibleDC(context != nullptr ? context->m_hDC : nullptr));
}

BOOL CDC::DeleteDC()
{
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

CFont* CDC::SelectObject(CFont* font)
{
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, HandleOf(font))));
}

CBrush* CDC::SelectObject(CBrush* brush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, HandleOf(brush))));
}

CPen* CDC::SelectObject(CPen* pen)
{
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, HandleOf(pen))));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap)
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, HandleOf(bitmap))));
}

// For a region the system answers with its kind, not with the previous one.
int CDC::SelectObject(CRgn* region)
{
    return ::SelectClipRgn(m_hDC, static_cast<HRGN>(HandleOf(region)));
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint previous;
    ::SetViewportOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint previous;
    ::SetWindowOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint previous;
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

BOOL CDC::TextOut(int x, int y, const ov::Text& text)
{
    return ::TextOutW(m_hDC, x, y, Wide(text), Length(text));
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rectangle, const ov::Text& text, const int* widths)
{
    return ::ExtTextOutW(m_hDC, x, y, options, rectangle, Wide(text), static_cast<UINT>(text.size()), widths);
}

int CDC::DrawText(const ov::Text& text, LPRECT rectangle, UINT format)
{
    return ::DrawTextW(m_hDC, Wide(text), Length(text), rectangle, format);
}

CSize CDC::GetTextExtent(const ov::Text& text) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, Wide(text), Length(text), &size);
    return size;
}

void CDC::FillRect(LPCRECT rectangle, CBrush* brush)
{
    ::FillRect(m_hDC, rectangle, static_cast<HBRUSH>(HandleOf(brush)));
}

void CDC::FillSolidRect(LPCRECT rectangle, COLORREF colour)
{
    const COLORREF previous = SetBkColor(colour);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rectangle, nullptr, 0, nullptr);
    SetBkColor(previous);
}

void CDC::Draw3dRect(LPCRECT rectangle, COLORREF topLeft, COLORREF bottomRight)
{
    const CRect r(*rectangle);
    FillSolidRect(CRect(r.left, r.top, r.right - 1, r.top + 1), topLeft);
    FillSolidRect(CRect(r.left, r.top, r.left + 1, r.bottom - 1), topLeft);
    FillSolidRect(CRect(r.right - 1, r.top, r.right, r.bottom), bottomRight);
    FillSolidRect(CRect(r.left, r.bottom - 1, r.right, r.bottom), bottomRight);
}

BOOL CDC::FillRgn(CRgn* region, CBrush* brush)
{
    return ::FillRgn(m_hDC, *region, *brush);
}

BOOL CDC::FrameRgn(CRgn* region, CBrush* brush, int width, int height)
{
    return ::FrameRgn(m_hDC, *region, *brush, width, height);
}

BOOL CDC::DrawIconEx(int x, int y, HICON icon, int width, int height)
{
    return ::DrawIconEx(m_hDC, x, y, icon, width, height, 0, nullptr, DI_NORMAL);
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation)
{
    return ::BitBlt(m_hDC, x, y, width, height, source != nullptr ? source->m_hDC : nullptr, sourceX, sourceY,
                    operation);
}

CPaintDC::CPaintDC(CWnd* window) : m_window(window->m_hWnd)
{
    m_hDC = ::BeginPaint(m_window, &m_ps);
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_window, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* window) : m_window(AfxSafeHwnd(window))
{
    m_hDC = ::GetDC(m_window);
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_window, Detach());
}

CDC* AfxContextFromParam(WPARAM handle)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(handle));
}
