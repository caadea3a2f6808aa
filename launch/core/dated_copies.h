#pragma once

#include "base/text.h"
#include "config/core/local_time.h"
#include "launch/core/file_ports.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ov
{

// Dated copies of a file: its content before each change. Their names are described at CopyNames. No
// function here changes the file itself, and only files with the name of a copy of this very file are
// removed.

/// The number of copies that are kept unless the user chooses another one.
inline constexpr std::size_t kUsualCopies = 10;

/// Where the copies of a file are, and how many of them are kept.
struct CopyPlace {
    Text folder{};                    ///< Must exist; empty for the file's own folder.
    std::size_t count = kUsualCopies; ///< The most copies that are kept; 0 counts as 1.
};

/// A copy of a file.
struct DatedCopy {
    Text path;
    LocalTime time;     ///< When it was made, by its name.
    int number;         ///< 1, or more for a further copy with the same time.
    std::uint64_t size; ///< In bytes.
};

/// The copies of a file, newest first.
struct CopyList {
    FileResult result; ///< Failure if the folder cannot be listed.
    std::vector<DatedCopy> copies;
};

CopyList ListDatedCopies(const Text& path, const Text& folder, const FilePorts& ports);

/// How taking a copy ended.
enum class CopyOutcome {
    Made,
    NotNeeded, ///< The newest copy has the same content.
    NoFile,    ///< There is no file under the path, so there is nothing to copy.

    // Failures. No copy was made.
    FileUnreadable,
    FolderUnreadable, ///< The folder of the copies does not exist or cannot be listed.
    WriteFailed,      ///< The copy could not be created, written, or given its name.
    NotVerified,      ///< The written copy could not be read back with the same content.
};

/// The result of taking a copy.
struct CopyResult {
    CopyOutcome outcome = CopyOutcome::Made;
    Text path{};           ///< Made, NotNeeded: the copy with the file's content.
    Text systemText{};     ///< For a failure: the system's message; may be empty.
    std::string content{}; ///< From TakeDatedCopy if it succeeded: the content of the file.

    /// True if the file's content can be lost without a loss.
    bool Succeeded() const { return outcome <= CopyOutcome::NoFile; }
};

/// Copies the present content of the file, unless the newest copy has it already. The copy gets its name only
/// when it is complete on the disk and has been read back. Removes no copy. `now` becomes part of the name;
/// if the newest copy is not older, the name continues that one's time with a number, so that copies remain
/// in order when the clock is set back.
CopyResult TakeDatedCopy(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports);

/// The same for content that the caller has read from the file.
CopyResult TakeDatedCopyOf(const std::string& content, const Text& path, const CopyPlace& place,
                           LocalTime now, const FilePorts& ports);

/// Removes the oldest copies beyond the number that is kept, and parts of copies that were left by a
/// process that ended more than a day before `now`. Returns the copies that could not be removed; a folder
/// that cannot be listed has none.
std::vector<Text> PruneDatedCopies(const Text& path, const CopyPlace& place, LocalTime now,
                                   const FilePorts& ports);

/// To be called after a program that `taken` was made for has ended. Removes the copy again if it was made
/// and the file still has the same content. Otherwise prunes, and first copies the earlier content once more
/// if its copy is gone.
void SettleDatedCopy(const Text& path, const CopyResult& taken, const CopyPlace& place, LocalTime now,
                     const FilePorts& ports);

} // namespace ov
