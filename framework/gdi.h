#pragma once

#include "framework/geometry.h"
#include "framework/object.h"

class CDC;

/// Owns a GDI object and deletes it in the destructor. Objects returned by FromHandle
/// belong to the framework, do not own their handle and live until the next idle time.
class CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)
    ~CGdiObject() override;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    /// Takes ownership of a handle. FALSE if it is null.
    BOOL Attach(HGDIOBJ object);
    /// Releases ownership of the handle and returns it.
    HGDIOBJ Detach();
    /// Deletes the GDI object, which must not be selected into a device context.
    BOOL DeleteObject();

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
    /// Gets the font's description. FALSE if there is no font.
    BOOL GetLogFont(LOGFONTW* description) const;
};

class CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
    explicit CBrush(COLORREF colour);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
};

class CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
    BOOL CreateCompatibleBitmap(CDC* context, int width, int height);
};

class CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    BOOL CreateRectRgnIndirect(LPCRECT rectangle);
    BOOL CreateRoundRectRgn(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight);
    BOOL CreatePolygonRgn(const POINT* points, int count, int fillMode);
    /// Sets this existing region to the combination. Returns the region type or ERROR.
    int CombineRgn(const CRgn* first, const CRgn* second, int mode);
};
