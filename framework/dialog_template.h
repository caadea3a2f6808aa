#pragma once

#include "framework/windows_api.h"

/// True when a dialog template of the module states no place: its position is
/// 0, 0 and no style says where the dialog is to appear. Such a dialog is
/// centred over its owner. False also when there is no such template.
bool AfxIsTemplateWithoutPlace(UINT templateId);
