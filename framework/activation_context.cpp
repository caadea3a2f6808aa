#include "framework/activation_context.h"

#include "framework/module_state.h"
#include "framework/thread_state.h"

#include <algorithm>
#include <new>

namespace
{
HANDLE CurrentContext()
{
    HANDLE context = nullptr;
    ::GetCurrentActCtx(&context);
    // The handle is only compared; the code that activated the context keeps a reference.
    if (context != nullptr)
        ::ReleaseActCtx(context);
    return context;
}

void Activate(AFX_THREAD_STATE& thread, HANDLE context, const void* scope) noexcept
{
    try {
        thread.activations.reserve(thread.activations.size() + 1);
    } catch (const std::bad_alloc&) {
        return; // without the context the controls only look old-fashioned
    }
    ULONG_PTR cookie = 0;
    if (::ActivateActCtx(context, &cookie))
        thread.activations.push_back({context, cookie, scope});
}

/// True if the last context that this thread activated here is the active one.
bool IsLastOnTop(const AFX_THREAD_STATE& thread)
{
    return !thread.activations.empty() && thread.activations.back().context == CurrentContext();
}

void DeactivateLast(AFX_THREAD_STATE& thread)
{
    const AFX_ACTIVATION last = thread.activations.back();
    thread.activations.pop_back();
    // The host may have activated this same context on top; the flag avoids the exception.
    ::DeactivateActCtx(DEACTIVATE_ACTCTX_FLAG_FORCE_EARLY_DEACTIVATION, last.cookie);
}

void DeactivateEnded(AFX_THREAD_STATE& thread)
{
    while (IsLastOnTop(thread) && thread.activations.back().scope == nullptr)
        DeactivateLast(thread);
}
} // namespace

CActivationScope::CActivationScope() noexcept
{
    AFX_THREAD_STATE* const thread = AfxPeekThreadState();
    if (thread == nullptr || thread->moduleState == nullptr)
        return;
    DeactivateEnded(*thread);
    const HANDLE context = thread->moduleState->context;
    if (context != INVALID_HANDLE_VALUE && context != CurrentContext())
        Activate(*thread, context, this);
}

CActivationScope::~CActivationScope()
{
    AFX_THREAD_STATE* const thread = AfxPeekThreadState();
    if (thread == nullptr)
        return;
    const auto own = std::ranges::find(thread->activations, this, &AFX_ACTIVATION::scope);
    if (own != thread->activations.end())
        own->scope = nullptr;
    DeactivateEnded(*thread);
}

CActivationPause::CActivationPause() noexcept
{
    AFX_THREAD_STATE* const thread = AfxPeekThreadState();
    if (thread == nullptr)
        return;
    DeactivateEnded(*thread);
    if (!IsLastOnTop(*thread))
        return;
    m_scope = thread->activations.back().scope;
    m_context = thread->activations.back().context;
    DeactivateLast(*thread);
}

CActivationPause::~CActivationPause()
{
    AFX_THREAD_STATE* const thread = AfxPeekThreadState();
    if (thread != nullptr && m_scope != nullptr)
        Activate(*thread, m_context, m_scope);
}
