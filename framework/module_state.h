#pragma once

#include "base/text.h"
#include "framework/activation_context.h"
#include "framework/windows_api.h"

#include <optional>

class CWinApp;

/// The state of one module (library or executable) that the framework is linked
/// into: its handles, its application object and its activation
/// context.
struct AFX_MODULE_STATE {
    HINSTANCE instance;
    HINSTANCE resources;
    CWinApp* application = nullptr;
    bool initialised = false; ///< InitInstance has succeeded
    bool contextTried = false;
    HANDLE context = INVALID_HANDLE_VALUE; ///< of the module's own manifest
};

/// The state of the module that this code is linked into.
AFX_MODULE_STATE* AfxGetStaticModuleState();
/// The state of the module that the calling thread currently runs.
AFX_MODULE_STATE* AfxGetModuleState();
/// True if the calling thread's current module can be used: its application's InitInstance
/// has succeeded. Call it after AFX_MANAGE_STATE, which calls InitInstance and reports an
/// exception. After a failure the next AFX_MANAGE_STATE tries again.
bool AfxModuleReady();

/// Switches the calling thread to a module's state until the scope ends, and
/// activates the activation context of the module's manifest (resource 2). The
/// module's windows then get version 6 of the common controls, independent of the
/// host's manifest. A modal loop deactivates the context while host code may
/// run (CActivationPause); the window procedure of each permanent window activates
/// it again (CActivationScope). The first scope also calls the application's InitInstance; see
/// AfxModuleReady.
class AFX_MAINTAIN_STATE2
{
  public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state);
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

  private:
    AFX_MODULE_STATE* m_previous;
    std::optional<CActivationScope> m_activation;
};

/// Belongs at the beginning of every exported function.
#define AFX_MANAGE_STATE(state) const AFX_MAINTAIN_STATE2 afxManagedState(state)

/// Call it from DllMain for DLL_PROCESS_ATTACH. It only records the instance: the loader
/// lock is held, so InitInstance waits for the first AFX_MANAGE_STATE.
BOOL AfxInitLibrary(HINSTANCE instance);
/// Call it from DllMain for DLL_PROCESS_DETACH when the library is unloaded, not when
/// the process ends. Calls ExitInstance if InitInstance succeeded, then frees what
/// the framework holds for the module and for the calling thread.
void AfxTermLibrary() noexcept;

HINSTANCE AfxGetInstanceHandle();
HINSTANCE AfxGetResourceHandle();
/// Loads a text of any length from the string table. Empty if there is none.
ov::Text AfxLoadString(UINT id);
