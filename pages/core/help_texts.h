#pragma once

#include "pages/core/setting_row.h"

namespace ov
{

/// The string id of the help text that a page's control shows while it has the
/// focus; 0 when it has none.
unsigned HelpOfControl(const PageRows& page, int controlId);

/// The comment block that a page which was shown gives a new setting: made from
/// the description of the row's help text. Empty lines and "#" alone when that
/// text has no description. The text is made once and stays.
const Text& CommentOf(const SettingRow& row);

} // namespace ov
