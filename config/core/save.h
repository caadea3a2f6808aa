#pragma once

#include "base/text.h"
#include "config/core/file_port.h"
#include "config/core/known_file.h"
#include "config/core/setting_store.h"

#include <ctime>
#include <optional>
#include <string>

namespace ov
{

/// What a save needs from the machine besides files.
class SaveSurroundings
{
  public:
    virtual ~SaveSurroundings() = default;

    /// The current local time. Throws std::invalid_argument if it cannot be determined.
    virtual std::tm LocalTime() = 0;

    /// The name of the user who saves.
    virtual Text UserName() = 0;

    /// The computer's name; empty if unknown.
    virtual Text ComputerName() = 0;
};

/// Why a save asks before it replaces a file.
enum class ReplaceReason {
    NotRead, ///< The file was never read: reading failed, or the file appeared later.
    Changed, ///< Its content differs from what was read.
};

/// The question and the notice that a save shows while it runs. At either time no file has been changed
/// yet. An exception thrown here propagates out of the save.
class SavePrompts
{
  public:
    virtual ~SavePrompts() = default;

    /// Asks whether the file may be replaced; its present content is then kept under `keptPath`.
    virtual bool MayReplace(ReplaceReason reason, const Text& keptPath) = 0;

    /// Warns the user that there will be no backup, with the system's message for the reason (at most 255
    /// characters; may be empty). Returns when the user has seen it.
    virtual void TellNoBackup(const Text& systemText) = 0;
};

/// How a save ended.
enum class SaveOutcome {
    Saved,
    NoPath,           ///< The path is empty. Nothing was changed.
    PathIsDirectory,  ///< The path refers to a directory. Nothing was changed.
    PathIsNoFile,     ///< It refers to a device, a pipe or a cycle of links. Nothing was changed.
    CharacterRefused, ///< The locale cannot represent a character. Nothing was changed.
    Declined,         ///< The user did not allow replacing the file. Nothing was changed.
    KeepFailed,       ///< The content to be replaced could not be kept. The file was not changed.
    CreateFailed,     ///< The file could not be created. The user sees no message.
    WriteFailed,      ///< The file could not be written completely.
    FlushFailed,      ///< The written file could not be flushed to the disk.
    CloseFailed,      ///< The written file could not be closed.
};

/// Where a file's previous content is after a failed save.
enum class OldContent {
    NoneBefore,      ///< There was no file.
    Stands,          ///< In the file, unchanged.
    UnderBackupName, ///< Complete under `backupPath`: it could not be renamed back.
    Lost,            ///< No backup could be made, the write failed, and restoring failed too.
};

/// The result of a save.
struct SaveResult {
    SaveOutcome outcome = SaveOutcome::Saved;
    OldContent oldContent = OldContent::NoneBefore; ///< Meaningful only if the save failed.
    Text systemText{};                              ///< The system's message; empty if memory ran out.
    Text backupPath{};     ///< The name given to the old content; empty if there was no backup.
    Text keptPath{};       ///< Saved: where replaced content is kept that no question mentioned.
    bool inHeader = false; ///< CharacterRefused: true if the header contains the character.
    Text variable{};       ///< CharacterRefused: otherwise the variable that contains it.
    Text character{};      ///< CharacterRefused: the character.
    Text header{};         ///< The header of the file; empty if the save ended before creating it.

    bool Saved() const { return outcome == SaveOutcome::Saved; }
};

/// The backup's path for a file: the path up to and including its last ".", followed by "bak".
Text BackupPath(TextView path);

/// Writes the store's current table to the file. Meanwhile the previous file is kept under the
/// backup's name.
///
/// `known` is what was last read from or written to a path. A file that it does not describe is replaced
/// only after a question, and is kept under a name of its own. After the save `known` describes what
/// the save left under the path, if that is new.
///
/// The whole output is prepared before any file is changed. If the file cannot be renamed to the backup's
/// name, the prompts report that and the file is overwritten in place, after its content has been read into
/// memory and disk space reserved. Any failure after that removes the unfinished file and restores the old
/// one. On success the backup is deleted, even one left by an earlier run, unless another program changed
/// the file during the save: then it is kept. A file that is its own backup, by name or by identity, is
/// written without one and not deleted. A symbolic link remains: the file that it refers to is
/// written, with its backup beside it.
///
/// Exceptions from the clock or the prompts, and std::bad_alloc, propagate before any file is changed;
/// nothing is thrown later. The store's modified mark is left to the caller.
SaveResult SaveConfigFile(const SettingStore& store, const Text& path, std::optional<KnownFile>& known,
                          FilePort& files, SaveSurroundings& surroundings, SavePrompts& prompts);

/// Writes the given bytes to a file with the steps and guarantees of SaveConfigFile. The result
/// has no header.
SaveResult SaveBytes(const std::string& bytes, const Text& path, std::optional<KnownFile>& known,
                     FilePort& files, SavePrompts& prompts);

} // namespace ov
