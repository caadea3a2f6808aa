#pragma once

#include "framework/dc.h"
#include "framework/window.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <unordered_map>
#include <vector>

// What the framework remembers for each thread. For the framework's own
// sources only.

struct AFX_MODULE_STATE;

/// The temporary objects for handles that belong to somebody else, in the order
/// in which they were asked for.
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

    /// The handle of the object at that address; null when none is there. Nothing is read through
    /// the pointer.
    Handle HandleAt(const void* address) const
    {
        for (const Entry& entry : m_entries) {
            if (entry.object.get() == address)
                return entry.handle;
        }
        return nullptr;
    }

    /// Deletes all but the first `count` objects; the windows themselves remain.
    void DeleteFrom(std::size_t count)
    {
        while (m_entries.size() > count) {
            m_byHandle.erase(m_entries.back().handle);
            // Without its handle the object has nothing to destroy.
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
    /// Deletes what was asked for after the mark was taken.
    void DeleteFrom(const Mark& mark);
};

class CCreationHook;
class COwnerWatch;

/// A window whose data exchange runs, as a list from the innermost outwards.
struct AFX_EXCHANGE_LOCK {
    HWND window;
    const AFX_EXCHANGE_LOCK* outer;
};

/// An activation context that this thread has activated.
struct AFX_ACTIVATION {
    HANDLE context;
    ULONG_PTR cookie;
    const void* scope; ///< the CActivationScope that it lasts for; null once that has ended
};

struct AFX_THREAD_STATE {
    std::unordered_map<HWND, CWnd*> permanentWindows;
    /// The controls that have been asked for, by dialog and id.
    std::unordered_map<HWND, std::unordered_map<int, HWND>> foundControls;
    AFX_TEMP_MAPS temporary;
    MSG currentMessage{};
    CCreationHook* creation = nullptr; ///< waits for its window
    const AFX_EXCHANGE_LOCK* exchangeLocks = nullptr;
    COwnerWatch* ownerWatches = nullptr; ///< the innermost one
    AFX_MODULE_STATE* moduleState = nullptr;
    std::vector<AFX_ACTIVATION> activations; ///< in the order of activation
    bool reportingException = false;
};

/// This thread's state; made when first asked for.
AFX_THREAD_STATE& AfxGetThreadState();
/// This thread's state if it has one, else null.
AFX_THREAD_STATE* AfxPeekThreadState();
/// Frees this thread's state. It is done by hand: a destructor registered for
/// the thread would keep a library loaded until the thread ends.
void AfxFreeThreadState();

/// Sets a variable for the life of a scope.
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
/// window's first message. When that cannot be done there is to be no window.
class CCreationHook
{
  public:
    explicit CCreationHook(CWnd* window);
    ~CCreationHook();
    CCreationHook(const CCreationHook&) = delete;
    CCreationHook& operator=(const CCreationHook&) = delete;

    /// To be called with what the system's creation gave. False when the object
    /// was not bound; then it reports why, if there is an exception, and destroys
    /// a window that was made nevertheless.
    bool Finish(HWND created) const;

  private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);
    /// False when the window must not come to be.
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

/// Unregisters the window classes of AfxRegisterWndClass.
void AfxUnregisterWndClasses();
