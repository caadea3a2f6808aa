#pragma once

#include <functional>

#include "base/text.h"
#include "config/core/save.h"

namespace ov
{

/// The text of the string table with that id.
using StringLoader = std::function<Text(unsigned id)>;

/// What to tell the person about a save that failed: what failed, and where the
/// file's old content is. Empty for a save that succeeded, and for a file that
/// could not be created while the old one stands: the dialog just stays open.
Text SaveFailureText(const SaveResult& result, const StringLoader& load);

/// What to tell the person when a save goes on without a backup.
Text NoBackupText(TextView systemText, const StringLoader& load);

} // namespace ov
