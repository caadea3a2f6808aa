#pragma once

#include "base/text.h"
#include "framework/activation_context.h"
#include "framework/windows_api.h"

#include <optional>

class CWinApp;

/// What belongs to one program file (library or executable) that the framework
/// is linked into: its handles, its application object and its activation
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
/// The state that the calling thread works with at present.
AFX_MODULE_STATE* AfxGetModuleState();
/// Whether the calling thread's present module can be worked with: false when its
/// application's InitInstance has not succeeded. To be asked after AFX_MANAGE_STATE,
/// which has called it and reported an exception; the next AFX_MANAGE_STATE tries again.
bool AfxModuleReady();

/// Switches the calling thread to a module's state until the scope ends, and
/// activates the activation context of the module's manifest (resource 2), so
/// that its windows get version 6 of the common controls whatever the host's
/// manifest says. A modal loop takes the context away while the host's code may
/// run (CActivationPause); the window procedure of each permanent window brings
/// it back (CActivationScope). The first time it also runs the application's InitInstance, see
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

/// At the start of every exported function.
#define AFX_MANAGE_STATE(state) const AFX_MAINTAIN_STATE2 afxManagedState(state)

/// For DllMain at DLL_PROCESS_ATTACH. It only records the instance: the loader
/// lock is held, so InitInstance waits for the first AFX_MANAGE_STATE.
BOOL AfxInitLibrary(HINSTANCE instance);
/// For DllMain at DLL_PROCESS_DETACH, when the library is unloaded and not when
/// the whole process ends: ExitInstance if InitInstance ran, then gives back what
/// the framework holds for the module and for the calling thread.
void AfxTermLibrary() noexcept;

HINSTANCE AfxGetInstanceHandle();
HINSTANCE AfxGetResourceHandle();
/// A text of the string table, of any length; empty when there is none.
ov::Text AfxLoadString(UINT id);
