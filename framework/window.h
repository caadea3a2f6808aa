#pragma once

#include "base/text.h"
#include "framework/geometry.h"
#include "framework/message_map.h"
#include "framework/wide.h"

#include <vector>

class CDataExchange;
class CFont;
class CRgn;

/// A window. The thread's handle map links the object and its window: with a
/// permanent entry for objects that the program made, with a temporary one for
/// windows passed to FromHandle (such an object lives until the next idle time
/// and handles no messages). Deleting a permanent object destroys its window.
class CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)
    CWnd() = default;
    ~CWnd() override;

    // --- the handle -------------------------------------------------------
    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    /// The object for a window, a temporary one if the program made none;
    /// null for null.
    static CWnd* FromHandle(HWND window);
    /// The object that the program made for a window, or null.
    static CWnd* FromHandlePermanent(HWND window);
    /// The window object for a pointer from a caller outside the module, which may have any value: one
    /// of this thread's objects, or a window handle passed in place of an object. Null for anything
    /// else. The pointer is not dereferenced.
    static CWnd* FromForeign(const void* pointer);
    /// Binds the object to a window without subclassing it.
    BOOL Attach(HWND window);
    /// Undoes Attach. The window remains.
    HWND Detach();
    /// Binds the object to a window and handles its messages.
    BOOL SubclassWindow(HWND window);
    /// Undoes SubclassWindow. A window procedure that was installed over ours remains.
    HWND UnsubclassWindow();

    // --- creation and destruction -----------------------------------------
    /// Creates a child window. The object handles its messages from the first one on.
    BOOL Create(LPCWSTR className, LPCWSTR text, DWORD style, const RECT& rectangle, CWnd* parent, UINT id);
    /// Creates a window of any kind; `menuOrId` is the id of a child window. A null
    /// class name selects a plain window class of the framework.
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menuOrId);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, const RECT& rectangle,
                  CWnd* parent, UINT id);
    virtual BOOL DestroyWindow();

    // --- text, state, style -------------------------------------------------
    void SetWindowText(const ov::Text& text);
    ov::Text GetWindowText() const;
    /// A focused control that one of these two disables or hides passes the focus on first; see
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL ShowWindow(int command);
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    HICON SetIcon(HICON icon, BOOL big);
    CFont* GetFont() const;

    // --- size and position --------------------------------------------------
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rectangle, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags);
    void GetWindowRect(LPRECT rectangle) const { ::GetWindowRect(m_hWnd, rectangle); }
    void GetClientRect(LPRECT rectangle) const { ::GetClientRect(m_hWnd, rectangle); }
    void ScreenToClient(LPRECT rectangle) const;
    /// Sets the window's region, in window coordinates. On success the window owns
    /// the region; 0 means failure.
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    /// Centres a top-level window over its owner, or on the screen if it has none. The
    /// window stays inside the work area.
    void CenterWindow();

    // --- parents and children ------------------------------------------------
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetDlgItem(int id) const { return FromHandle(FindControl(id)); }
    /// The direct child with that id, or null. The children are cached, because the
    /// system enumerates all of them for each search.
    HWND FindControl(int id) const;
    /// The direct children in Z order, topmost first, from the same cache: it may miss
    /// changes of the Z order and children that CWnd::Create did not create.
    std::vector<HWND> GetControls() const;
    /// Clears the cache of FindControl and GetControls.
    void ForgetControls() const;

    // --- painting --------------------------------------------------------------
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    /// Sends the message to all descendants of the window.
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
    /// Starts or restarts a timer of the window. Returns 0 on failure.
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds)
    {
        return ::SetTimer(m_hWnd, id, milliseconds, nullptr);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    /// Does nothing for a hidden or disabled control. Returns the window that had the focus.
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
    /// Scrolls the contents, including child windows.
    void ScrollWindow(int dx, int dy, LPCRECT rectangle = nullptr, LPCRECT clip = nullptr)
    {
        ::ScrollWindow(m_hWnd, dx, dy, rectangle, clip);
    }

    // --- controls by id --------------------------------------------------------
    ov::Text GetDlgItemText(int id) const;

    // --- data exchange ---------------------------------------------------------
    /// Transfers values from the controls into the members (TRUE) or back (FALSE).
    /// While it runs, notifications of this window's controls are not handled. FALSE
    /// if a value was rejected; the user has then seen a message.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    // --- pre-translation and modal loops --------------------------------------
    /// Inspects a message before it is dispatched. TRUE means that it was handled.
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Calls PreTranslateMessage of the permanent objects for the message's window and for its parents
    /// and owners, innermost first, until one returns TRUE. `stop` is the last window that is asked;
    /// null asks all of them. Modal loops stop at the application's main window.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);
    /// Dispatches messages until EndModalLoop is called, and returns its result. WM_QUIT
    /// calls OnQuit and is posted again when the loop has ended, for the loop
    /// outside.
    int RunModalLoop();
    virtual void EndModalLoop(int result);

  protected:
    DECLARE_MESSAGE_MAP()

    // --- message handling --------------------------------------------------
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Performs the default handling of the current message.
    LRESULT Default();

    virtual void DoDataExchange(CDataExchange*) {}
    /// WM_QUIT arrived while the object's modal loop runs. Ends the loop with IDCANCEL; an
    /// override may keep the loop running and end it later.
    virtual void OnQuit() { EndModalLoop(IDCANCEL); }
    /// Called when the object is bound, before the window is subclassed.
    virtual void PreSubclassWindow() {}
    /// Called last, after the window is destroyed. The object may delete itself.
    virtual void PostNcDestroy() {}
    /// Calls IsDialogMessage for keyboard and mouse messages.
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

    bool m_continueModal = false; ///< a modal loop is running or may begin
    int m_nModalResult = -1;      ///< the result passed to EndModalLoop, initially -1

  private:
    friend class CCreationHook;
    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    /// Attaches, calls PreSubclassWindow, then replaces the window procedure. False, with
    /// nothing bound, if Attach fails; also unbound if PreSubclassWindow throws.
    bool Bind(HWND window);
    void FinishNcDestroy();

    WNDPROC m_superWndProc = nullptr;
};

/// The handle of a window object, which may be null.
inline HWND AfxSafeHwnd(const CWnd* window)
{
    return window != nullptr ? window->m_hWnd : nullptr;
}

/// The direct children of a window in Z order, topmost first, without a cache. Wine
/// takes one request to its server for each window inside.
std::vector<HWND> AfxChildWindows(HWND parent);

/// True if the window is of the given class; the name is compared without regard to
/// case. False for null.
bool AfxIsOfClass(HWND window, LPCWSTR className);

/// Registers a plain window class of the framework, once for each combination of
/// arguments. Returns its name.
LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                            HICON icon = nullptr);

/// Deletes the objects that FromHandle made, for windows and GDI objects.
/// Modal loops call it when idle; pointers from FromHandle are valid until then.
void AfxDeleteTempMap();
