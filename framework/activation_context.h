#pragma once

/// Keeps the activation context of the calling thread's module active until the
/// scope ends. Outside AFX_MANAGE_STATE, and for a module without a manifest, it
/// does nothing.
///
/// Host code that runs meanwhile may activate a context of its own and leave it
/// active. Deactivating a context that is not on top raises an exception, and
/// deactivating the host's context would raise it in the host's call. Such a scope
/// therefore leaves its context on the stack. The next scope that begins or ends
/// after the host has deactivated its own context removes it.
class CActivationScope
{
  public:
    CActivationScope() noexcept;
    ~CActivationScope();
    CActivationScope(const CActivationScope&) = delete;
    CActivationScope& operator=(const CActivationScope&) = delete;
};

/// Deactivates the context of the innermost CActivationScope until this scope
/// ends. Used for a message loop, which also runs host code. A context that the
/// host activates in the loop is then on top of the host's contexts only.
class CActivationPause
{
  public:
    CActivationPause() noexcept;
    ~CActivationPause();
    CActivationPause(const CActivationPause&) = delete;
    CActivationPause& operator=(const CActivationPause&) = delete;

  private:
    const void* m_scope = nullptr; ///< the scope whose context is restored; null for none
    void* m_context = nullptr;
};
