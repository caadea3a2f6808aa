#include "framework/module_state.h"

#include "framework/application.h"
#include "framework/exceptions.h"
#include "framework/thread_state.h"

#include <utility>

namespace
{
// The resource id of a library's manifest; an executable's is 1.
constexpr WORD libraryManifestId = 2;

/// The module that this code is linked into.
HINSTANCE OwnModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&libraryManifestId), &module);
    return module;
}

void CreateContext(AFX_MODULE_STATE& state)
{
    if (std::exchange(state.contextTried, true))
        return;
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = state.instance;
    description.lpResourceName = MAKEINTRESOURCEW(libraryManifestId);
    // Without a manifest there is no context, and the host's stays active.
    state.context = ::CreateActCtxW(&description);
}

void InitialiseOnce(AFX_MODULE_STATE& state) noexcept
{
    if (state.initialised || state.application == nullptr)
        return;
    try {
        state.initialised = state.application->InitInstance() != FALSE;
    } catch (...) {
        AfxReportCurrentException();
    }
}
} // namespace

AFX_MODULE_STATE* AfxGetStaticModuleState()
{
    static AFX_MODULE_STATE state{OwnModule(), OwnModule()};
    return &state;
}

AFX_MODULE_STATE* AfxGetModuleState()
{
    const AFX_THREAD_STATE* const thread = AfxPeekThreadState();
    return thread != nullptr && thread->moduleState != nullptr ? thread->moduleState
                                                               : AfxGetStaticModuleState();
}

bool AfxModuleReady()
{
    const AFX_MODULE_STATE& state = *AfxGetModuleState();
    return state.application == nullptr || state.initialised;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state)
    : m_previous(std::exchange(AfxGetThreadState().moduleState, state))
{
    CreateContext(*state);
    m_activation.emplace();
    // Last, because a constructor that throws never runs the destructor that deactivates
    // the context. InitialiseOnce throws nothing.
    InitialiseOnce(*state);
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2()
{
    m_activation.reset();
    AfxGetThreadState().moduleState = m_previous;
    // After the outermost call no code can hold a temporary object.
    if (m_previous == nullptr)
        AfxDeleteTempMap();
}

BOOL AfxInitLibrary(HINSTANCE instance)
{
    AFX_MODULE_STATE& state = *AfxGetStaticModuleState();
    state.instance = instance;
    state.resources = instance;
    return TRUE;
}

void AfxTermLibrary() noexcept
{
    AFX_MODULE_STATE& state = *AfxGetStaticModuleState();
    if (std::exchange(state.initialised, false) && state.application != nullptr) {
        try {
            state.application->ExitInstance();
        } catch (...) {
            // No message box while the loader lock is held: it would deadlock.
            ::OutputDebugStringW(L"ExitInstance failed.\n");
        }
    }
    if (state.context != INVALID_HANDLE_VALUE)
        ::ReleaseActCtx(std::exchange(state.context, INVALID_HANDLE_VALUE));
    state.contextTried = false;
    AfxUnregisterWndClasses();
    AfxFreeThreadState();
}

HINSTANCE AfxGetInstanceHandle()
{
    return AfxGetModuleState()->instance;
}

HINSTANCE AfxGetResourceHandle()
{
    return AfxGetModuleState()->resources;
}

ov::Text AfxLoadString(UINT id)
{
    // A buffer size of 0 returns a pointer to the text itself, inside the module.
    const wchar_t* text = nullptr;
    const int length = ::LoadStringW(AfxGetResourceHandle(), id, reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0)
        return {};
    return FromWide(std::wstring_view(text, static_cast<std::size_t>(length)));
}
