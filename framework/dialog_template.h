#pragma once

#include "framework/windows_api.h"

#include <optional>
#include <vector>

/// True if a dialog template of the module specifies no position: its origin is
/// 0, 0 and no style determines where the dialog appears. Such a dialog is
/// centred over its owner. Also false if the template does not exist.
bool AfxIsTemplateWithoutPlace(UINT templateId);

/// Sizes and positions in a dialog template, in dialog units.
struct AFX_TEMPLATE_LAYOUT {
    SIZE size;                  ///< the size of the dialog's client area
    std::vector<RECT> controls; ///< the controls' rectangles, in the order of creation
};

/// Reads a dialog template of the module. Returns nothing if the template does not exist
/// or is not in the extended form (DIALOGEX).
std::optional<AFX_TEMPLATE_LAYOUT> AfxReadTemplateLayout(UINT templateId);
