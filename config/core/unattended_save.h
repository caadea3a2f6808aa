#pragma once

#include "base/text.h"
#include "config/core/file_port.h"
#include "config/core/save.h"

#include <optional>
#include <string>

namespace ov
{

/// How a save without a user ended.
enum class UnattendedOutcome {
    Saved,
    BackupInTheWay, ///< A file has the backup's name. It was not changed, and nothing was written.
    NoBackup,       ///< The file cannot be renamed to the backup's name. Nothing was written.
    Failed,         ///< See `save`.
};

/// The result of a save without a user.
struct UnattendedSave {
    UnattendedOutcome outcome = UnattendedOutcome::Saved;
    Text backupPath{}; ///< BackupInTheWay: that file.
    Text systemText{}; ///< NoBackup: the system's message; may be empty.
    SaveResult save{}; ///< Saved and Failed: the result of the save sequence.
};

/// Writes the bytes to a file with the save sequence. Every save that would ask or warn a user is
/// refused instead: the file is replaced only if it still has the content `before`, or does not exist
/// if that is nothing; it is never written in place; and a file with the backup's name is never deleted.
UnattendedSave SaveUnattended(const std::string& bytes, const Text& path,
                              const std::optional<std::string>& before, FilePort& files);

} // namespace ov
