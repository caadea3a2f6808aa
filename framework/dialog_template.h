#pragma once

#include "framework/windows_api.h"

#include <optional>
#include <vector>

/// True when a dialog template of the module states no place: its position is
/// 0, 0 and no style says where the dialog is to appear. Such a dialog is
/// centred over its owner. False also when there is no such template.
bool AfxIsTemplateWithoutPlace(UINT templateId);

/// What a dialog template says of sizes and places, in dialog units.
struct AFX_TEMPLATE_LAYOUT {
    SIZE size;                  ///< of the dialog's client area
    std::vector<RECT> controls; ///< in the order in which the system creates them
};

/// Reads a dialog template of the module. None when there is no such template, or
/// it is not of the extended form (DIALOGEX).
std::optional<AFX_TEMPLATE_LAYOUT> AfxReadTemplateLayout(UINT templateId);
