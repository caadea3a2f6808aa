#include "framework/thread_state.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
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
    return m_hObject != nullptr && GetObject(sizeof *description, description) != 0;
}

CBrush* CBrush::FromHandle(HBRUSH brush)
{
    return AfxGetThreadState().temporary.brushes.FromHandle(brush);
}

BOOL CBrush::CreateSolidBrush(COLORREF colour)
{
    return Attach(::CreateSolidBrush(colour));
}

CPen* CPen::FromHandle(HPEN pen)
{
    return AfxGetThreadState().temporary.pens.FromHandle(pen);
}

BOOL CPen::CreatePen(int style, int width, COLORREF colour)
{
    return Attach(::CreatePen(style, width, colour));
}

CBitmap* CBitmap::FromHandle(HBITMAP bitmap)
{
    return AfxGetThreadState().temporary.bitmaps.FromHandle(bitmap);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* context, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(context->m_hDC, width, height));
}

BOOL CRgn::CreateRectRgn(int left, int top, int right, int bottom)
{
    return Attach(::CreateRectRgn(left, top, right, bottom));
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
    return ::CombineRgn(*this, *first, second != nullptr ? static_cast<HRGN>(*second) : nullptr, mode);
}

int CRgn::GetRgnBox(LPRECT rectangle) const
{
    return ::GetRgnBox(*this, rectangle);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return ::PtInRegion(*this, point.x, point.y);
}
