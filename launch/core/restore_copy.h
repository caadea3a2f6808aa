#pragma once

#include "base/text.h"
#include "config/core/unattended_save.h"
#include "launch/core/dated_copies.h"

namespace ov
{

/// How bringing back a copy ended.
enum class RestoreOutcome {
    Restored,
    NotNeeded, ///< The file has the copy's content already.

    // Failures. The file was not changed, except possibly by a failed save; see its result.
    CopyUnreadable,
    FileUnreadable, ///< The present content could not be read, and would be lost.
    NotKept,        ///< The present content could not be copied; see `kept`.
    NotSaved,       ///< See `save`.
};

/// The result of bringing back a copy.
struct RestoreResult {
    RestoreOutcome outcome = RestoreOutcome::Restored;
    CopyResult kept{};     ///< The copy of the replaced content.
    UnattendedSave save{}; ///< Restored, NotSaved: the result of writing the file.
    Text systemText{};     ///< CopyUnreadable, FileUnreadable: the system's message; may be empty.
};

/// Gives a file the content of one of its copies. First copies the content that is replaced, unless the
/// newest copy has it. The file is written by SaveUnattended, with its guarantees. No copy is
/// removed.
RestoreResult RestoreCopy(const Text& path, const Text& copyPath, const CopyPlace& place, LocalTime now,
                          const FilePorts& ports);

} // namespace ov
