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

/// What a save takes from the machine besides files.
class SaveSurroundings
{
  public:
    virtual ~SaveSurroundings() = default;

    /// The local time now. Throws std::invalid_argument when it cannot be determined.
    virtual std::tm LocalTime() = 0;

    /// Who saves.
    virtual Text UserName() = 0;

    /// On which computer; empty when unknown.
    virtual Text ComputerName() = 0;
};

/// Why a save asks before it replaces a file.
enum class ReplaceReason {
    NotRead, ///< The file was never read: it could not be, or it appeared later.
    Changed, ///< Its content differs from what was read.
};

/// What a save asks and tells the user while it runs. No file has been changed at either time. An
/// exception from here propagates out of the save.
class SavePrompts
{
  public:
    virtual ~SavePrompts() = default;

    /// Asks whether the file may be replaced; its present content is then kept under `keptPath`.
    virtual bool MayReplace(ReplaceReason reason, const Text& keptPath) = 0;

    /// Tells that there will be no backup, with the system's words for the reason (at most 255
    /// characters; may be empty). Returns when the user has seen it.
    virtual void TellNoBackup(const Text& systemText) = 0;
};

/// How a save ended.
enum class SaveOutcome {
    Saved,
    NoPath,           ///< No file has been named. Nothing was touched.
    PathIsDirectory,  ///< The path leads to a directory. Nothing was touched.
    PathIsNoFile,     ///< The path leads to a device or a pipe, or in a circle. Nothing was touched.
    CharacterRefused, ///< The locale cannot write a character. Nothing was touched.
    Declined,         ///< The user does not want the file replaced. Nothing was touched.
    KeepFailed,       ///< The content to replace could not be kept. The file was not touched.
    CreateFailed,     ///< The file could not be created. The user is told nothing.
    WriteFailed,      ///< The file could not be written to its end.
    FlushFailed,      ///< The written file could not be put on the disk.
    CloseFailed,      ///< The written file could not be closed.
};

/// Where the content is that the file had before a save that failed.
enum class OldContent {
    NoneBefore,      ///< There was no file.
    Stands,          ///< In the file, as before.
    UnderBackupName, ///< Complete under `backupPath`: it could not be renamed back.
    Lost,            ///< No backup could be made, the write failed, and putting it back did too.
};

/// The result of a save.
struct SaveResult {
    SaveOutcome outcome = SaveOutcome::Saved;
    OldContent oldContent = OldContent::NoneBefore; ///< Meaningful only when the save failed.
    Text systemText{};                              ///< The system's words; empty when it ran out of memory.
    Text backupPath{};     ///< The name that the old content got; empty when none was to be made.
    Text keptPath{};       ///< Saved: where replaced content is kept that no question announced.
    bool inHeader = false; ///< CharacterRefused: the header contains the character.
    Text variable{};       ///< CharacterRefused: else the variable that contains it.
    Text character{};      ///< CharacterRefused: the character.
    Text header{};         ///< The header of the file; empty when the save did not come that far.

    bool Saved() const { return outcome == SaveOutcome::Saved; }
};

/// The backup's name for a file: the path up to its last "." and "bak".
Text BackupPath(TextView path);

/// Writes the store's current table to the file, with the previous file kept under the backup's
/// name meanwhile.
///
/// `known` is what was last read or left under a path. A file that it does not describe is replaced
/// only after a question, and is kept under a name of its own. After the save `known` describes what
/// the save left under the path, if that is new.
///
/// The whole output exists before anything is touched. When a file cannot be renamed to the backup's
/// name, the prompts tell so and the file is overwritten in place, its content held in memory and room
/// made for the new one first. Any failure after that removes the unfinished file and brings the old
/// one back. On success the backup, also one left by an earlier run, is deleted, unless another program
/// changed the file within the save: then it is kept. A file that is its own backup by name or by
/// identity is written without one and not deleted. A symbolic link stays: the file that it leads to is
/// written, its backup beside it.
///
/// Exceptions from the clock or the prompts, and std::bad_alloc, propagate before any file is changed;
/// nothing is thrown later. The store's modified mark is left to the caller.
SaveResult SaveConfigFile(const SettingStore& store, const Text& path, std::optional<KnownFile>& known,
                          FilePort& files, SaveSurroundings& surroundings, SavePrompts& prompts);

/// Writes other bytes to a file by the steps of SaveConfigFile, with the same guarantees. The result
/// has no header.
SaveResult SaveBytes(const std::string& bytes, const Text& path, std::optional<KnownFile>& known,
                     FilePort& files, SavePrompts& prompts);

} // namespace ov
