#pragma once

/// Keeps the activation context of the calling thread's module active until the
/// scope ends. Outside AFX_MANAGE_STATE, and for a module without a manifest, it
/// does nothing.
///
/// A host's code that runs meanwhile may activate a context of its own and leave
/// it active. Deactivating a context below another one raises an exception, and
/// taking the host's away would raise it in the host. So such a scope leaves its
/// context where it is; the next scope that begins or ends after the host has
/// deactivated its own removes it.
class CActivationScope
{
  public:
    CActivationScope() noexcept;
    ~CActivationScope();
    CActivationScope(const CActivationScope&) = delete;
    CActivationScope& operator=(const CActivationScope&) = delete;
};

/// Takes the context of the innermost CActivationScope away until this scope
/// ends: for a message loop, which runs the host's code too. What the host
/// activates in the loop then lies above its own contexts only.
class CActivationPause
{
  public:
    CActivationPause() noexcept;
    ~CActivationPause();
    CActivationPause(const CActivationPause&) = delete;
    CActivationPause& operator=(const CActivationPause&) = delete;

  private:
    const void* m_scope = nullptr; ///< whose context is to come back; null for none
    void* m_context = nullptr;
};
