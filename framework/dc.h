#pragma once

#include "base/text.h"
#include "framework/gdi.h"

class CWnd;

/// A device context. The destructor deletes a context that the object owns; CPaintDC
/// and CClientDC release theirs instead.
class CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)
    CDC() = default;
    ~CDC() override;

    /// A context object for a handle. It does not own the handle and lives until the
    /// next idle time.
    static CDC* FromHandle(HDC context);
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL Attach(HDC context);
    HDC Detach();

    /// Creates a memory context compatible with the given one; null for the screen.
    BOOL CreateCompatibleDC(CDC* context);
    BOOL DeleteDC();
    BOOL IsPrinting() const { return ::GetDeviceCaps(m_hDC, TECHNOLOGY) == DT_RASPRINTER; }

    /// Selects the font. Returns the one that was selected before, or null on failure.
    CFont* SelectObject(CFont* font);
    COLORREF SetTextColor(COLORREF colour) { return ::SetTextColor(m_hDC, colour); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    CPoint SetWindowOrg(int x, int y);

    /// Draws into the rectangle or, with DT_CALCRECT, measures. Returns the text's height.
    int DrawText(ov::TextView text, LPRECT rectangle, UINT format);

    void FillSolidRect(LPCRECT rectangle, COLORREF colour);
    void Draw3dRect(LPCRECT rectangle, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rectangle, UINT edge, UINT flags)
    {
        return ::DrawEdge(m_hDC, rectangle, edge, flags);
    }
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
    /// Draws a border along the inside of the region.
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height)
    {
        return ::FrameRgn(m_hDC, *region, *brush, width, height);
    }
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation);

    HDC m_hDC = nullptr;
};

/// Paints a window during WM_PAINT.
class CPaintDC : public CDC
{
  public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

  private:
    HWND m_window;
};

/// Draws into a window's client area.
class CClientDC : public CDC
{
  public:
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

  private:
    HWND m_window;
};
