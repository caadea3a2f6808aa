#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/config_writer.h"
#include "inspect/core/finding.h"
#include "launch/core/interrupted_save.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace ov
{

/// What prevents a path from being opened as a configuration file.
enum class PathProblem {
    None,
    NoPath,     ///< The path is empty.
    NoFile,     ///< The folder exists, but no file in it has this name. The dialog would create it.
    NoFolder,   ///< The folder does not exist.
    IsFolder,   ///< The path is that of a folder.
    NotRegular, ///< A device, a pipe, or a symbolic link that refers back to itself.
    CannotRead, ///< The file exists and cannot be read; see the system's message.
};

/// What a path refers to.
struct PathCheck {
    PathProblem problem = PathProblem::None;
    Text systemText{}; ///< CannotRead: the system's message; may be empty.
};

/// How a save could change the file.
enum class SaveAccess {
    Full,
    NoBackup, ///< It cannot be renamed, so that a save would write it in place, without a backup.
    None,     ///< It can be neither renamed nor written.
};

/// The findings of one rule about what a save changes.
struct LossCount {
    RuleId rule;         ///< See RuleOf for its id and summary.
    std::size_t count;   ///< The number of findings.
    std::string message; ///< The first finding's message: one line of UTF-8 without a full stop.
    std::size_t line;    ///< The first finding's line, from 1.
};

/// What a look at a file depends on besides the file.
struct LookSettings {
    Text defaultsPath{};                  ///< The defaults file; empty if there is none.
    Charset charset = Charset::OfProcess; ///< The encoding in which the dialog reads files.
    HeaderInfo header{};                  ///< For a file without the header of an earlier save.
    std::chrono::year_month_day today{};  ///< The end of a scan period without an end date.
};

/// What an administrator should know before the dialog opens a file.
struct FileLook {
    PathCheck file;
    PathCheck defaults; ///< NoPath if there is no defaults file.

    // The following is meaningful unless the folder or the file cannot be used.
    InterruptedSave interrupted; ///< Also if the file does not exist.

    // The following is meaningful only if the file has no problem.
    bool readOnly = false; ///< Marked as read-only, or this user has no permission to write it.
    SaveAccess access = SaveAccess::Full;
    Text accessText{};               ///< NoBackup, None: the system's message; may be empty.
    std::vector<Finding> findings{}; ///< What a save changes (the rules OV1xx), in line order.
    std::vector<LossCount> losses{}; ///< The same by rule, in the order of the ids.

    /// True if the file would be saved by the dialog. Otherwise the finding OV108 says why it would be
    /// refused.
    bool canSave = true;
    /// The unified difference that a save would make, in UTF-8 with LF. Empty if there is none.
    std::string difference{};

    /// Identifies the state of the files that the look has found; for AskedFiles.
    Text state{};

    /// True if there is something that the user should know and may have been told before.
    bool HasRemarks() const
    {
        return interrupted.found || readOnly || access != SaveAccess::Full || !losses.empty();
    }
};

/// Checks what a path refers to.
PathCheck CheckPath(const Text& path, const FilePorts& ports);

/// Examines a file and changes nothing.
FileLook LookBeforeOpen(const Text& path, const LookSettings& settings, const FilePorts& ports);

} // namespace ov
