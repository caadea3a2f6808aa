#include "framework/thread_state.h"

IMPLEMENT_DYNAMIC(CDC, CObject)

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
    const HGDIOBJ handle = font != nullptr ? font->GetSafeHandle() : nullptr;
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, handle)));
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint previous;
    ::SetWindowOrgEx(m_hDC, x, y, &previous);
    return previous;
}

int CDC::DrawText(ov::TextView text, LPRECT rectangle, UINT format)
{
    return ::DrawTextW(m_hDC, reinterpret_cast<const wchar_t*>(text.data()), static_cast<int>(text.size()),
                       rectangle, format);
}

void CDC::FillSolidRect(LPCRECT rectangle, COLORREF colour)
{
    const COLORREF previous = ::SetBkColor(m_hDC, colour);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rectangle, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, previous);
}

void CDC::Draw3dRect(LPCRECT rectangle, COLORREF topLeft, COLORREF bottomRight)
{
    const CRect r(*rectangle);
    FillSolidRect(CRect(r.left, r.top, r.right - 1, r.top + 1), topLeft);
    FillSolidRect(CRect(r.left, r.top, r.left + 1, r.bottom - 1), topLeft);
    FillSolidRect(CRect(r.right - 1, r.top, r.right, r.bottom), bottomRight);
    FillSolidRect(CRect(r.left, r.bottom - 1, r.right, r.bottom), bottomRight);
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

CClientDC::CClientDC(CWnd* window) : m_window(window->m_hWnd)
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
