#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/local_time.h"
#include "launch/core/dated_copies.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ov
{

/// Whether a file looks as a finished save leaves it.
enum class Completeness {
    Complete,   ///< It begins and ends as Save writes a file.
    Unfinished, ///< It looks like the beginning of a saved file; see its sign.
    Unknown,    ///< It cannot be told: the file is not in the form that Save writes.
};

/// What shows that a file is unfinished.
enum class UnfinishedSign {
    None,
    Empty,          ///< It has no bytes.
    ZeroBytes,      ///< It contains bytes with the value 0, as a disk leaves them after a power failure.
    EndsInLine,     ///< Its last line has no end.
    EndsInComment,  ///< A comment without its variable is at its end.
    LacksVariables, ///< The variables of the backup that follow its last one in name order are missing.
};

/// A judgement about the bytes of a file.
struct FileJudgement {
    Completeness completeness = Completeness::Unknown;
    UnfinishedSign sign = UnfinishedSign::None;
    std::size_t lacking = 0; ///< LacksVariables: their number.
};

/// Judges a file beside a backup of it. Save writes variables in name order, each line with its end, so
/// that the beginning of a saved file usually shows. `charset` is the encoding of both.
FileJudgement JudgeSavedFile(std::string_view file, std::string_view backup, Charset charset);

/// One of the two files beside each other.
struct SaveRemnant {
    Text path;
    bool exists = false;
    bool readable = false;
    std::uint64_t size = 0;  ///< In bytes.
    LocalTime changed{};     ///< The time of the last change of the content.
    FileJudgement judgement; ///< For a backup that can be read: Complete unless there is a sign.
};

/// A backup that a save has left beside the file, because the process was killed or the backup could not
/// be deleted. Any file with the backup's name is reported: its origin cannot be determined.
struct InterruptedSave {
    bool found = false; ///< A backup exists. Everything else is meaningful only then.
    SaveRemnant file;
    SaveRemnant backup;
    bool sameContent = false; ///< Both can be read and have the same bytes.

    /// True if the file should not be used before a decision: it is missing or unfinished.
    bool IsFileBroken() const
    {
        return found && (!file.exists || file.judgement.completeness == Completeness::Unfinished);
    }
};

/// Looks for the backup of an interrupted save beside the file. `charset` is the encoding in which the dialog
/// reads the file.
InterruptedSave ExamineInterruptedSave(const Text& path, Charset charset, const FilePorts& ports);

/// How an interrupted save was resolved.
enum class ResolveOutcome {
    Resolved,

    // Failures. No content is lost. Both files are as before, unless `asidePath` is set.
    NoBackup,     ///< The backup does not exist any more.
    NotKept,      ///< The content that is to go could not be copied; see `kept`.
    RenameFailed, ///< A file could not be renamed.
    RemoveFailed, ///< The backup could not be removed. Its content is in the copy.
};

/// The result of resolving an interrupted save.
struct ResolveResult {
    ResolveOutcome outcome = ResolveOutcome::Resolved;
    CopyResult kept{}; ///< The dated copy of the content that was replaced or removed.
    Text asidePath{};  ///< A name that the replaced file still has: it could not be removed or renamed back,
                       ///< or another program was writing it.
    Text systemText{}; ///< The system's message for a failure; may be empty.
};

/// Makes the backup the file again, by renaming. Before that the content of the file, if it has any, is
/// kept as a dated copy. The copies are not pruned.
ResolveResult RestoreBackup(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports);

/// Keeps the file and removes the backup, whose content is kept as a dated copy. The copies are not pruned.
ResolveResult KeepFile(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports);

} // namespace ov
