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

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint previous;
    ::SetWindowOrgEx(m_hDC, x, y, &previous);
    return previous;
}

void CDC::FillSolidRect(LPCRECT rectangle, COLORREF colour)
{
    const COLORREF previous = ::SetBkColor(m_hDC, colour);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rectangle, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, previous);
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

CDC* AfxContextFromParam(WPARAM handle)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(handle));
}
