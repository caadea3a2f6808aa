#include "framework/thread_state.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject::~CGdiObject()
{
    CGdiObject::DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    DeleteObject();
    m_hObject = object;
    return object != nullptr;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ object = m_hObject;
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

CFont* CFont::FromHandle(HFONT font)
{
    return AfxGetThreadState().temporary.fonts.FromHandle(font);
}

BOOL CFont::CreateFontIndirect(const LOGFONTW* description)
{
    return Attach(::CreateFontIndirectW(description));
}

BOOL CFont::GetLogFont(LOGFONTW* description) const
{
    return m_hObject != nullptr && ::GetObjectW(m_hObject, sizeof *description, description) != 0;
}

CBrush::CBrush(COLORREF colour)
{
    Attach(::CreateSolidBrush(colour));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* context, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(context->m_hDC, width, height));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT rectangle)
{
    return Attach(::CreateRectRgnIndirect(rectangle));
}

BOOL CRgn::CreateRoundRectRgn(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight)
{
    return Attach(::CreateRoundRectRgn(left, top, right, bottom, ellipseWidth, ellipseHeight));
}

BOOL CRgn::CreatePolygonRgn(const POINT* points, int count, int fillMode)
{
    return Attach(::CreatePolygonRgn(points, count, fillMode));
}

int CRgn::CombineRgn(const CRgn* first, const CRgn* second, int mode)
{
    return ::CombineRgn(*this, *first, *second, mode);
}
