#include "framework/thread_state.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

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

BOOL CBitmap::CreateCompatibleBitmap(CDC* context, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(context->m_hDC, width, height));
}
