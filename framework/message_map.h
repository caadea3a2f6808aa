#pragma once

#include "framework/command_target.h"
#include "framework/geometry.h"

#include <type_traits>

// The message map macros. Every entry passes a member function as a template
// argument. A thunk instantiated for that function unpacks the message and calls
// it, so a handler with the wrong signature does not compile.

class CWnd;
class CDC;

/// The window object for a control handle in a message; null for none.
CWnd* AfxWindowFromParam(LPARAM handle);
/// The device context in a message parameter.
CDC* AfxContextFromParam(WPARAM handle);

template <class>
struct AfxMember;
template <class Class, class Result, class... Arguments>
struct AfxMember<Result (Class::*)(Arguments...)> {
    using Owner = Class;
    using Signature = Result(Arguments...);
};

template <auto Handler>
using AfxOwner = typename AfxMember<decltype(Handler)>::Owner;
template <auto Handler, class Signature>
constexpr bool AfxFits = std::is_same_v<typename AfxMember<decltype(Handler)>::Signature, Signature>;

template <auto Handler>
AfxOwner<Handler>& AfxTarget(CCmdTarget& target)
{
    return static_cast<AfxOwner<Handler>&>(target);
}

template <auto Handler>
void AfxThunkMessage(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, LRESULT(WPARAM, LPARAM)>, "ON_MESSAGE: LRESULT OnX(WPARAM, LPARAM)");
    call.result = (AfxTarget<Handler>(target).*Handler)(call.wParam, call.lParam);
}

template <auto Handler>
void AfxThunkCommand(CCmdTarget& target, AFX_HANDLER_CALL&)
{
    static_assert(AfxFits<Handler, void()>, "commands and controls: void OnX()");
    (AfxTarget<Handler>(target).*Handler)();
}

template <auto Handler>
void AfxThunkNotify(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, void(NMHDR*, LRESULT*)>, "ON_NOTIFY: void OnX(NMHDR*, LRESULT*)");
    (AfxTarget<Handler>(target).*Handler)(call.header, &call.result);
}

template <auto Handler>
void AfxThunkCreate(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, int(CREATESTRUCTW*)>, "ON_WM_CREATE: int OnCreate(CREATESTRUCTW*)");
    call.result = (AfxTarget<Handler>(target).*Handler)(reinterpret_cast<CREATESTRUCTW*>(call.lParam));
}

template <auto Handler>
void AfxThunkSize(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, void(UINT, int, int)>, "ON_WM_SIZE: void OnSize(UINT, int, int)");
    (AfxTarget<Handler>(target).*Handler)(static_cast<UINT>(call.wParam), LOWORD(call.lParam),
                                          HIWORD(call.lParam));
}

template <auto Handler>
void AfxThunkEraseBkgnd(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, BOOL(CDC*)>, "ON_WM_ERASEBKGND: BOOL OnEraseBkgnd(CDC*)");
    call.result = (AfxTarget<Handler>(target).*Handler)(AfxContextFromParam(call.wParam));
}

template <auto Handler>
void AfxThunkSysCommand(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, void(UINT, LPARAM)>, "ON_WM_SYSCOMMAND: void OnSysCommand(UINT, LPARAM)");
    (AfxTarget<Handler>(target).*Handler)(static_cast<UINT>(call.wParam), call.lParam);
}

template <auto Handler>
void AfxThunkGetMinMaxInfo(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, void(MINMAXINFO*)>,
                  "ON_WM_GETMINMAXINFO: void OnGetMinMaxInfo(MINMAXINFO*)");
    (AfxTarget<Handler>(target).*Handler)(reinterpret_cast<MINMAXINFO*>(call.lParam));
}

template <auto Handler>
void AfxThunkQueryDragIcon(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, HCURSOR()>, "ON_WM_QUERYDRAGICON: HCURSOR OnQueryDragIcon()");
    call.result = reinterpret_cast<LRESULT>((AfxTarget<Handler>(target).*Handler)());
}

// The sender is a CWnd*, not a CScrollBar*, because up-down controls and sliders send
// these messages too. It is a plain CWnd unless the program made an object for the
// control; use AfxIsOfClass to find out which kind of control it is.
template <auto Handler>
void AfxThunkScroll(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, void(UINT, UINT, CWnd*)>,
                  "ON_WM_HSCROLL, ON_WM_VSCROLL: void OnXScroll(UINT code, UINT position, CWnd* sender)");
    (AfxTarget<Handler>(target).*Handler)(LOWORD(call.wParam), HIWORD(call.wParam),
                                          AfxWindowFromParam(call.lParam));
}

template <auto Handler>
void AfxThunkMouseWheel(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, BOOL(UINT, short, CPoint)>,
                  "ON_WM_MOUSEWHEEL: BOOL OnMouseWheel(UINT keys, short delta, CPoint)");
    call.result = (AfxTarget<Handler>(target).*Handler)(
        LOWORD(call.wParam), static_cast<short>(HIWORD(call.wParam)), CPoint(call.lParam));
    // A wheel message that the handler does not use goes on to the parent window.
    call.handled = call.result != 0;
}

template <auto Handler>
void AfxThunkTimer(CCmdTarget& target, AFX_HANDLER_CALL& call)
{
    static_assert(AfxFits<Handler, void(UINT_PTR)>, "ON_WM_TIMER: void OnTimer(UINT_PTR id)");
    (AfxTarget<Handler>(target).*Handler)(static_cast<UINT_PTR>(call.wParam));
}

/// Declares a message map in a class. The access that follows is protected.
#define DECLARE_MESSAGE_MAP()                                                                                \
  protected:                                                                                                 \
    static const AFX_MSGMAP* GetThisMessageMap();                                                            \
    const AFX_MSGMAP* GetMessageMap() const override;

/// Begins a message map in a source file; END_MESSAGE_MAP ends it.
#define BEGIN_MESSAGE_MAP(class_name, base_class_name)                                                       \
    const AFX_MSGMAP* class_name::GetMessageMap() const                                                      \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* class_name::GetThisMessageMap()                                                        \
    {                                                                                                        \
        [[maybe_unused]] typedef class_name ThisClass;                                                       \
        typedef base_class_name TheBaseClass;                                                                \
        static constexpr AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, nullptr                                                                                  \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static constexpr AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                           \
    return &map;                                                                                             \
    }

// clang-format off
#define ON_MESSAGE(message, handler) {message, 0, 0, 0, &AfxThunkMessage<handler>},
#define ON_CONTROL(code, id, handler) {WM_COMMAND, static_cast<UINT>(code), id, id, &AfxThunkCommand<handler>},
#define ON_COMMAND(id, handler) ON_CONTROL(CN_COMMAND, id, handler)
#define ON_BN_CLICKED(id, handler) ON_CONTROL(BN_CLICKED, id, handler)
#define ON_EN_CHANGE(id, handler) ON_CONTROL(EN_CHANGE, id, handler)
#define ON_NOTIFY(code, id, handler) {WM_NOTIFY, static_cast<UINT>(code), id, id, &AfxThunkNotify<handler>},

#define ON_WM_CREATE() {WM_CREATE, 0, 0, 0, &AfxThunkCreate<&ThisClass::OnCreate>},
#define ON_WM_DESTROY() {WM_DESTROY, 0, 0, 0, &AfxThunkCommand<&ThisClass::OnDestroy>},
#define ON_WM_SIZE() {WM_SIZE, 0, 0, 0, &AfxThunkSize<&ThisClass::OnSize>},
#define ON_WM_PAINT() {WM_PAINT, 0, 0, 0, &AfxThunkCommand<&ThisClass::OnPaint>},
#define ON_WM_ERASEBKGND() {WM_ERASEBKGND, 0, 0, 0, &AfxThunkEraseBkgnd<&ThisClass::OnEraseBkgnd>},
#define ON_WM_SYSCOMMAND() {WM_SYSCOMMAND, 0, 0, 0, &AfxThunkSysCommand<&ThisClass::OnSysCommand>},
#define ON_WM_GETMINMAXINFO() {WM_GETMINMAXINFO, 0, 0, 0, &AfxThunkGetMinMaxInfo<&ThisClass::OnGetMinMaxInfo>},
#define ON_WM_QUERYDRAGICON() {WM_QUERYDRAGICON, 0, 0, 0, &AfxThunkQueryDragIcon<&ThisClass::OnQueryDragIcon>},
#define ON_WM_HSCROLL() {WM_HSCROLL, 0, 0, 0, &AfxThunkScroll<&ThisClass::OnHScroll>},
#define ON_WM_VSCROLL() {WM_VSCROLL, 0, 0, 0, &AfxThunkScroll<&ThisClass::OnVScroll>},
#define ON_WM_MOUSEWHEEL() {WM_MOUSEWHEEL, 0, 0, 0, &AfxThunkMouseWheel<&ThisClass::OnMouseWheel>},
#define ON_WM_TIMER() {WM_TIMER, 0, 0, 0, &AfxThunkTimer<&ThisClass::OnTimer>},
// clang-format on
