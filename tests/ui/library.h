/// The library under test, loaded as a host loads it.
#pragma once

#include "include/ovPreferences.h"

#include <windows.h>

/// ovPreferences.dll from this program's folder. One object per process, because
/// the library keeps its texts from call to call.
class Library
{
  public:
    static Library& Get();

    /// Loads the library if it is not loaded yet. False if it or one of its two
    /// functions is missing.
    bool Load();

    /// Releases the only reference. False if the library stays in memory.
    bool Unload();

    HMODULE Module() const { return m_module; }
    ovPreferences_showDialog_t ShowDialog() const { return m_showDialog; }
    ovPreferences_showDialogEx_t ShowDialogEx() const { return m_showDialogEx; }

  private:
    HMODULE m_module = nullptr;
    ovPreferences_showDialog_t m_showDialog = nullptr;
    ovPreferences_showDialogEx_t m_showDialogEx = nullptr;
};
