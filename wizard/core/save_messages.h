#pragma once

#include <functional>

#include "base/text.h"
#include "config/core/save.h"

namespace ov
{

/// The text of the string table with that id.
using StringLoader = std::function<Text(unsigned id)>;

/// What to tell the user about a save that failed: what failed, and where the
/// file's old content is. Empty for a save that succeeded or was declined, and
/// for a file that could not be created while the old one is in place: the
/// dialog just stays open.
Text SaveFailureText(const SaveResult& result, const StringLoader& load);

/// What to tell the user about replaced content that was kept and no question
/// announced; empty when there is none.
Text KeptFileText(const SaveResult& result, const StringLoader& load);

/// What to ask before the file under `path` is replaced and its content kept
/// under `keptPath`.
Text ReplaceQuestionText(ReplaceReason reason, TextView path, TextView keptPath, const StringLoader& load);

/// What to tell the user when a save goes on without a backup.
Text NoBackupText(TextView systemText, const StringLoader& load);

} // namespace ov
