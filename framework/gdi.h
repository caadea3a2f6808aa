#pragma once

#include "base/text.h"
#include "framework/geometry.h"
#include "framework/object.h"

class CDC;

/// Owns a drawing object; deletes it when destroyed. Objects that FromHandle
/// gives belong to the framework, own nothing and live until the next idle time.
class CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)
    ~CGdiObject() override;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    /// Takes ownership of a handle; false when it is null.
    BOOL Attach(HGDIOBJ object);
    /// Gives ownership away.
    HGDIOBJ Detach();
    /// Deletes the drawing object; it must not be selected anywhere.
    BOOL DeleteObject();
    int GetObject(int size, void* data) const { return ::GetObjectW(m_hObject, size, data); }

    HGDIOBJ m_hObject = nullptr;

  protected:
    CGdiObject() = default;
};

class CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
    static CFont* FromHandle(HFONT font);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    BOOL CreateFontIndirect(const LOGFONTW* description);
    /// Describes the font; false when there is none.
    BOOL GetLogFont(LOGFONTW* description) const;
};

class CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
    CBrush() = default;
    explicit CBrush(COLORREF colour) { CreateSolidBrush(colour); }
    static CBrush* FromHandle(HBRUSH brush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF colour);
};

class CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
    static CPen* FromHandle(HPEN pen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int style, int width, COLORREF colour);
};

class CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
    static CBitmap* FromHandle(HBITMAP bitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    BOOL CreateCompatibleBitmap(CDC* context, int width, int height);
};

class CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    BOOL CreateRectRgn(int left, int top, int right, int bottom);
    BOOL CreateRectRgnIndirect(LPCRECT rectangle);
    BOOL CreateRoundRectRgn(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight);
    BOOL CreatePolygonRgn(const POINT* points, int count, int fillMode);
    /// Makes this existing region the combination; the region type or ERROR.
    int CombineRgn(const CRgn* first, const CRgn* second, int mode);
    int GetRgnBox(LPRECT rectangle) const;
    BOOL PtInRegion(POINT point) const;
};
