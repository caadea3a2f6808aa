#pragma once

#include "framework/gdi.h"

class CWnd;

/// A drawing context. It deletes the context that it owns; CPaintDC and
/// CClientDC give theirs back instead. The text operations are virtual, so that
/// a context drawing into memory can pass them on.
class CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)
    CDC() = default;
    ~CDC() override;

    /// A context object for a handle; it owns nothing and lives until the next
    /// idle time.
    static CDC* FromHandle(HDC context);
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL Attach(HDC context);
    HDC Detach();

    /// A context that draws into memory like the given one; null is the screen.
    BOOL CreateCompatibleDC(CDC* context);
    BOOL DeleteDC();
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }
    BOOL IsPrinting() const { return GetDeviceCaps(TECHNOLOGY) == DT_RASPRINTER; }

    CFont* SelectObject(CFont* font);
    CBrush* SelectObject(CBrush* brush);
    CPen* SelectObject(CPen* pen);
    CBitmap* SelectObject(CBitmap* bitmap);
    int SelectObject(CRgn* region);

    COLORREF SetTextColor(COLORREF colour) { return ::SetTextColor(m_hDC, colour); }
    COLORREF SetBkColor(COLORREF colour) { return ::SetBkColor(m_hDC, colour); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    CPoint SetViewportOrg(int x, int y);
    CPoint SetWindowOrg(int x, int y);
    CPoint SetBrushOrg(int x, int y);
    int GetClipBox(LPRECT rectangle) const { return ::GetClipBox(m_hDC, rectangle); }

    virtual BOOL TextOut(int x, int y, const ov::Text& text);
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rectangle, const ov::Text& text,
                            const int* widths);
    /// Draws or, with DT_CALCRECT, measures into the rectangle; the text's height.
    virtual int DrawText(const ov::Text& text, LPRECT rectangle, UINT format);
    CSize GetTextExtent(const ov::Text& text) const;
    BOOL GetTextMetrics(TEXTMETRICW* metrics) const { return ::GetTextMetricsW(m_hDC, metrics); }

    void FillRect(LPCRECT rectangle, CBrush* brush);
    void FillSolidRect(LPCRECT rectangle, COLORREF colour);
    void Draw3dRect(LPCRECT rectangle, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rectangle, UINT edge, UINT flags)
    {
        return ::DrawEdge(m_hDC, rectangle, edge, flags);
    }
    BOOL FillRgn(CRgn* region, CBrush* brush);
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height);
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL DrawIconEx(int x, int y, HICON icon, int width, int height);
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation);

    HDC m_hDC = nullptr;
};

/// Paints a window while WM_PAINT is handled.
class CPaintDC : public CDC
{
  public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

  private:
    HWND m_window;
};

/// Draws into a window's client area; null is the screen.
class CClientDC : public CDC
{
  public:
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

  private:
    HWND m_window;
};
