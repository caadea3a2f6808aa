#pragma once

#include "framework/dc.h"
#include "framework/window.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <unordered_map>
#include <vector>

// The framework's state of each thread. Only for the framework's own
// sources.

struct AFX_MODULE_STATE;

/// The temporary objects for handles that the framework does not own, in the
/// order of creation.
template <class Handle, class Object, auto Member>
class CTempMap
{
  public:
    CTempMap() = default;
    ~CTempMap() { DeleteFrom(0); }
    CTempMap(const CTempMap&) = delete;
    CTempMap& operator=(const CTempMap&) = delete;

    Object* FromHandle(Handle handle)
    {
        if (handle == nullptr)
            return nullptr;
        if (const auto found = m_byHandle.find(handle); found != m_byHandle.end())
            return found->second;
        m_entries.push_back({handle, std::make_unique<Object>()});
        Object* const object = m_entries.back().object.get();
        object->*Member = handle;
        m_byHandle.emplace(handle, object);
        return object;
    }

    std::size_t Count() const { return m_entries.size(); }

    /// The handle of the object at that address; null if there is none. The pointer is not
    /// dereferenced.
    Handle HandleAt(const void* address) const
    {
        for (const Entry& entry : m_entries) {
            if (entry.object.get() == address)
                return entry.handle;
        }
        return nullptr;
    }

    /// Deletes all but the first `count` objects. The windows themselves remain.
    void DeleteFrom(std::size_t count)
    {
        while (m_entries.size() > count) {
            m_byHandle.erase(m_entries.back().handle);
            // Without a handle the destructor has nothing to destroy.
            (*m_entries.back().object).*Member = nullptr;
            m_entries.pop_back();
        }
    }

  private:
    struct Entry {
        Handle handle;
        std::unique_ptr<Object> object;
    };
    std::vector<Entry> m_entries;
    std::unordered_map<Handle, Object*> m_byHandle;
};

/// All temporary objects of a thread.
struct AFX_TEMP_MAPS {
    CTempMap<HWND, CWnd, &CWnd::m_hWnd> windows;
    CTempMap<HDC, CDC, &CDC::m_hDC> contexts;
    CTempMap<HGDIOBJ, CFont, &CFont::m_hObject> fonts;

    struct Mark {
        std::size_t windows = 0, contexts = 0, fonts = 0;
    };
    Mark GetMark() const;
    /// Deletes the objects created after the mark was taken.
    void DeleteFrom(const Mark& mark);
};

class CCreationHook;
class COwnerWatch;

/// A window whose data exchange is running. The locks form a list, innermost first.
struct AFX_EXCHANGE_LOCK {
    HWND window;
    const AFX_EXCHANGE_LOCK* outer;
};

/// An activation context that this thread has activated.
struct AFX_ACTIVATION {
    HANDLE context;
    ULONG_PTR cookie;
    const void* scope; ///< the CActivationScope that activated it; null once that has ended
};

/// The direct children that a window had when they were last enumerated.
struct AFX_CONTROLS {
    std::vector<HWND> windows; ///< in Z order, from the top
    std::unordered_map<int, HWND> byId;
};

struct AFX_THREAD_STATE {
    std::unordered_map<HWND, CWnd*> permanentWindows;
    std::unordered_map<HWND, AFX_CONTROLS> controls; ///< by parent window
    AFX_TEMP_MAPS temporary;
    MSG currentMessage{};
    CCreationHook* creation = nullptr; ///< waiting for its window to be created
    const AFX_EXCHANGE_LOCK* exchangeLocks = nullptr;
    COwnerWatch* ownerWatches = nullptr; ///< the innermost one
    AFX_MODULE_STATE* moduleState = nullptr;
    std::vector<AFX_ACTIVATION> activations; ///< in order of activation
    bool reportingException = false;
};

/// This thread's state, created on the first call.
AFX_THREAD_STATE& AfxGetThreadState();
/// This thread's state if it has one, else null.
AFX_THREAD_STATE* AfxPeekThreadState();
/// Frees this thread's state. This is explicit, because a destructor registered for
/// the thread would keep the library loaded until the thread ends.
void AfxFreeThreadState();

/// Sets a variable until the scope ends, then restores the old value.
template <class Value>
class CRestoreValue
{
  public:
    CRestoreValue(Value& variable, Value value) : m_variable(variable), m_previous(variable)
    {
        variable = value;
    }
    ~CRestoreValue() { m_variable = m_previous; }
    CRestoreValue(const CRestoreValue&) = delete;
    CRestoreValue& operator=(const CRestoreValue&) = delete;

  private:
    Value& m_variable;
    Value m_previous;
};

/// Binds the object to the next window that this thread creates, before that
/// window's first message. If binding fails, the window is not created.
class CCreationHook
{
  public:
    explicit CCreationHook(CWnd* window);
    ~CCreationHook();
    CCreationHook(const CCreationHook&) = delete;
    CCreationHook& operator=(const CCreationHook&) = delete;

    /// Call it with the result of the system's creation function. False if the object
    /// was not bound: it then reports the exception, if any, and destroys the
    /// window if one was created nevertheless.
    bool Finish(HWND created) const;

  private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);
    /// False if the window must not be created.
    bool Meet(HWND window) noexcept;
    void Unhook() noexcept;

    CWnd* m_window;
    CRestoreValue<CCreationHook*> m_pending;
    HHOOK m_hook;
    bool m_bound = false;
    std::exception_ptr m_failure;
};

/// The window procedure of every window with a permanent object.
LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Unregisters all window classes registered by AfxRegisterWndClass.
void AfxUnregisterWndClasses();
