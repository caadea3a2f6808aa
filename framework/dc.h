#pragma once

#include "framework/gdi.h"

class CWnd;

/// A drawing context. It deletes the context that it owns; CPaintDC gives its
/// own back instead.
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
    BOOL IsPrinting() const { return ::GetDeviceCaps(m_hDC, TECHNOLOGY) == DT_RASPRINTER; }

    CPoint SetWindowOrg(int x, int y);

    void FillSolidRect(LPCRECT rectangle, COLORREF colour);
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
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
