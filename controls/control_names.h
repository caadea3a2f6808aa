#pragma once

#include "framework/afxwin.h"
#include "framework/window_names.h"

#include <functional>
#include <span>

/// Gives accessible names to those of the dialog's controls that need one (see
/// controls/core/accessible_names.h). `windows` are its children in Z order;
/// `nameId` gives the string of a name that a control is to have, 0 for none.
void NameControls(std::span<const HWND> windows, const std::function<UINT(int controlId)>& nameId,
                  CWindowNames& names);
