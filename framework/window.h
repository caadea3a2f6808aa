#pragma once

#include "base/text.h"
#include "framework/geometry.h"
#include "framework/message_map.h"
#include "framework/wide.h"

#include <vector>

class CDataExchange;
class CFont;
class CRgn;

/// A window. The object and its window are bound by a handle map of the thread:
/// a permanent entry for objects that the program made, a temporary one for
/// windows that FromHandle was asked about (such an object lives until the next
/// idle time and handles no messages). Deleting an object destroys its window.
class CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)
    CWnd() = default;
    ~CWnd() override;

    // --- the handle -------------------------------------------------------
    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    /// The object for a window, a temporary one when the program made none;
    /// null for null.
    static CWnd* FromHandle(HWND window);
    /// The object that the program made for a window, else null.
    static CWnd* FromHandlePermanent(HWND window);
    /// The window object that a caller from outside means by a pointer that may be anything: one of
    /// this thread's objects, or a window handle in an object's place. Null for anything else. Nothing
    /// is read through the pointer.
    static CWnd* FromForeign(const void* pointer);
    /// Binds the object to a window, without taking over its messages.
    BOOL Attach(HWND window);
    /// Undoes Attach; the window stays.
    HWND Detach();
    /// Binds the object to a window and takes over its messages.
    BOOL SubclassWindow(HWND window);
    /// Undoes SubclassWindow. A procedure that somebody has put before ours stays.
    HWND UnsubclassWindow();

    // --- creation and destruction -----------------------------------------
    /// Creates a child window. The object handles its messages from the first on.
    BOOL Create(LPCWSTR className, LPCWSTR text, DWORD style, const RECT& rectangle, CWnd* parent, UINT id);
    /// Creates any window; `menuOrId` is the id for a child. A null class name
    /// means a plain class of the framework.
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menuOrId);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, const RECT& rectangle,
                  CWnd* parent, UINT id);
    virtual BOOL DestroyWindow();

    // --- text, state, style -------------------------------------------------
    void SetWindowText(const ov::Text& text);
    ov::Text GetWindowText() const;
    /// A control that is disabled or hidden by these two gives the focus away first, see AfxReleaseFocus.
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL ShowWindow(int command);
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    HICON SetIcon(HICON icon, BOOL big);
    CFont* GetFont() const;

    // --- size and place -----------------------------------------------------
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rectangle, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags);
    void GetWindowRect(LPRECT rectangle) const { ::GetWindowRect(m_hWnd, rectangle); }
    void GetClientRect(LPRECT rectangle) const { ::GetClientRect(m_hWnd, rectangle); }
    void ScreenToClient(LPRECT rectangle) const;
    /// Cuts the window to a region in its own coordinates, which belongs to the
    /// window from then on; 0 when that failed.
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    /// Centres a top-level window over its owner, else on the screen, within
    /// the work area.
    void CenterWindow();

    // --- the tree ------------------------------------------------------------
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetDlgItem(int id) const { return FromHandle(FindControl(id)); }
    /// The child window of that id, or null. What was found is remembered, since the
    /// system looks through all the children each time.
    HWND FindControl(int id) const;

    // --- painting --------------------------------------------------------------
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    /// Sends the message to the window's children, to theirs, and so on.
    static void SendMessageToDescendants(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL RedrawWindow(LPCRECT rectangle = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw), 0); }

    // --- messages, focus, timers ----------------------------------------------
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    /// Starts or restarts a timer of the window; 0 on failure.
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds)
    {
        return ::SetTimer(m_hWnd, id, milliseconds, nullptr);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    /// Does nothing for a control that is hidden or disabled. Returns the window that had the focus.
    CWnd* SetFocus();

    // --- scrolling -----------------------------------------------------------
    BOOL GetScrollInfo(int bar, SCROLLINFO* info, UINT mask = SIF_ALL) const;
    BOOL SetScrollInfo(int bar, SCROLLINFO* info, BOOL redraw = TRUE);
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
    int SetScrollPos(int bar, int position, BOOL redraw = TRUE)
    {
        return ::SetScrollPos(m_hWnd, bar, position, redraw);
    }
    void GetScrollRange(int bar, int* minimum, int* maximum) const;
    /// Scrolls the contents, child windows included.
    void ScrollWindow(int dx, int dy, LPCRECT rectangle = nullptr, LPCRECT clip = nullptr)
    {
        ::ScrollWindow(m_hWnd, dx, dy, rectangle, clip);
    }

    // --- controls by id --------------------------------------------------------
    ov::Text GetDlgItemText(int id) const;

    // --- data exchange ---------------------------------------------------------
    /// Moves values from the controls into the members (TRUE) or back. While it
    /// runs, notifications of this window's controls are not handled. False when
    /// a value was refused; the user has then seen a message.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    // --- pre-translation and modal loops --------------------------------------
    /// Looks at a message before it is dispatched; TRUE takes it away.
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Lets the permanent objects of the message's window, of its parents and of their owners look
    /// at the message, innermost first, until one takes it. The object of `stop` is the last one;
    /// null asks all of them. Modal loops stop at the application's main window.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);
    /// Dispatches messages until EndModalLoop; returns its result. WM_QUIT calls
    /// OnQuit; once the loop has ended, the message is posted again for the loop
    /// outside.
    int RunModalLoop();
    virtual void EndModalLoop(int result);

  protected:
    DECLARE_MESSAGE_MAP()

    // --- the way of a message ---------------------------------------------
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The default handling of the message that is being handled.
    LRESULT Default();

    virtual void DoDataExchange(CDataExchange*) {}
    /// The program is to end while the object's modal loop runs. Ends the loop as if cancelled; an
    /// override may go on and end it later.
    virtual void OnQuit() { EndModalLoop(IDCANCEL); }
    /// Called when the object is bound, before the window's messages are taken over.
    virtual void PreSubclassWindow() {}
    /// Called last when the window is gone; the object may delete itself.
    virtual void PostNcDestroy() {}
    /// IsDialogMessage for keyboard and mouse messages.
    virtual BOOL PreTranslateInput(MSG* message);

    // --- handlers; each does the default handling -------------------------
    int OnCreate(CREATESTRUCTW*) { return static_cast<int>(Default()); }
    void OnDestroy() { Default(); }
    void OnSize(UINT, int, int) { Default(); }
    void OnPaint() { Default(); }
    BOOL OnEraseBkgnd(CDC*) { return Default() != 0; }
    void OnSysCommand(UINT, LPARAM) { Default(); }
    void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    void OnHScroll(UINT, UINT, CWnd*) { Default(); }
    void OnVScroll(UINT, UINT, CWnd*) { Default(); }
    BOOL OnMouseWheel(UINT, short, CPoint) { return Default() != 0; }
    void OnTimer(UINT_PTR) { Default(); }

    bool m_continueModal = false; ///< a modal loop runs or may begin
    int m_nModalResult = -1;      ///< what EndModalLoop was given, else -1

  private:
    friend class CCreationHook;
    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    /// Attach, PreSubclassWindow, then the window procedure. False, and nothing
    /// bound, when Attach refuses; the same before PreSubclassWindow's exception.
    bool Bind(HWND window);
    void FinishNcDestroy();

    WNDPROC m_superWndProc = nullptr;
};

/// The handle of a window object that may be null.
inline HWND AfxSafeHwnd(const CWnd* window)
{
    return window != nullptr ? window->m_hWnd : nullptr;
}

/// The direct children of a window in Z order, from the top. One request to the
/// system, where a walk from sibling to sibling takes one for each.
std::vector<HWND> AfxChildWindows(HWND parent);

/// Whether a window is of the class, whose name is compared without regard to
/// case; false for null.
bool AfxIsOfClass(HWND window, LPCWSTR className);

/// Registers a plain window class of the framework's, once for each combination;
/// its name.
LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                            HICON icon = nullptr);

/// Deletes the objects that FromHandle made, of windows and drawing objects.
/// Modal loops do it when idle; pointers are good until then.
void AfxDeleteTempMap();
