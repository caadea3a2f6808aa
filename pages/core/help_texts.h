#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The string id of the help text for a control of the page, shown in the focus
/// fields; 0 if it has none.
unsigned HelpOfControl(const PageRows& page, int controlId);

/// The comment block of a new setting on a page that has a window, built from the
/// description in the row's help text. Without a description it has only the empty
/// line and the "#" lines. The text is built once and cached.
const Text& CommentOf(const SettingRow& row);

} // namespace ov
