#pragma once

#include "base/text.h"
#include "config/core/save.h"

#include <functional>

namespace ov
{

/// Returns the text of the string table with that id.
using StringLoader = std::function<Text(unsigned id)>;

/// The message about a failed save: what failed, and where the file's old content
/// is. Empty for a save that succeeded or was declined, and also if a file could
/// not be created while the old one is unchanged: the dialog then only stays
/// open.
Text SaveFailureText(const SaveResult& result, const StringLoader& load);

/// The message about replaced content that was kept although no question
/// mentioned it; empty if there is none.
Text KeptFileText(const SaveResult& result, const StringLoader& load);

/// The question before the file `path` is replaced and its content kept under
/// `keptPath`.
Text ReplaceQuestionText(ReplaceReason reason, TextView path, TextView keptPath, const StringLoader& load);

/// The notice that a save continues without a backup.
Text NoBackupText(TextView systemText, const StringLoader& load);

} // namespace ov
