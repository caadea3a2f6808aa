#pragma once

#include "base/text.h"
#include "config/core/file_port.h"
#include "config/core/setting_store.h"

#include <ctime>
#include <functional>

namespace ov
{

/// What a save takes from the machine besides files.
class SaveSurroundings
{
  public:
    virtual ~SaveSurroundings() = default;

    /// The local time now. Throws std::invalid_argument when it cannot be told.
    virtual std::tm LocalTime() = 0;

    /// Who saves.
    virtual Text UserName() = 0;

    /// On which computer; empty when unknown.
    virtual Text ComputerName() = 0;
};

/// How a save ended.
enum class SaveOutcome {
    Saved,
    NoPath,           ///< No file has been named. Nothing was touched.
    PathIsDirectory,  ///< The path leads to a directory. Nothing was touched.
    PathIsNoFile,     ///< The path leads to a device or a pipe, or in a circle. Nothing was touched.
    CharacterRefused, ///< The locale cannot write a character. Nothing was touched.
    CreateFailed,     ///< The file could not be created. The person is told nothing.
    WriteFailed,      ///< The file could not be written to its end.
    FlushFailed,      ///< The written file could not be put on the disk.
    CloseFailed,      ///< The written file could not be closed.
};

/// Where the content is that the file had before a save that failed.
enum class OldContent {
    NoneBefore,      ///< There was no file.
    Stands,          ///< In the file, as before.
    UnderBackupName, ///< Complete under the backup's name: it could not be renamed back.
    Lost,            ///< No backup could be made, the write failed, and putting it back did too.
};

/// What came of a save.
struct SaveResult {
    SaveOutcome outcome = SaveOutcome::Saved;
    OldContent oldContent = OldContent::NoneBefore; ///< Only of meaning when the save failed.
    Text systemText{};                              ///< The system's words; empty when it ran out of memory.
    Text backupPath{};                              ///< The backup's name; empty when none was to be made.
    bool inHeader = false;                          ///< CharacterRefused: the character stands in the header.
    Text variable{};                                ///< CharacterRefused: else the variable that holds it.
    Text character{};                               ///< CharacterRefused: the character.
    Text header{}; ///< The header of the file; empty when the save did not come that far.

    bool Saved() const { return outcome == SaveOutcome::Saved; }
};

/// Tells the person, during the save, that there will be no backup, with the system's words for the
/// reason (at most 255 characters; may be empty). Returns when the person has seen it.
using SaveNotice = std::function<void(const Text& systemText)>;

/// The backup's name for a file: the path up to its last "." and "bak".
Text BackupPath(TextView path);

/// Writes the store's current table to the file, with the previous file kept under the backup's
/// name meanwhile.
///
/// The whole output exists before anything is touched. A file that cannot be renamed to the
/// backup's name is told through `notice` and then overwritten in place, its content held in
/// memory and room made for the new one first. Any failure after that takes the unfinished file away and
/// brings the old one back. On success the backup, also one left by an earlier run, is deleted. A file that
/// is its own backup by name or by identity is written without one and not deleted. A symbolic link stays:
/// the file that it leads to is written, its backup beside it. What the clock or the notice throws, and
/// std::bad_alloc, come out before anything is touched; nothing is thrown later. The store's modified
/// mark is left to the caller.
SaveResult SaveConfigFile(const SettingStore& store, const Text& path, FilePort& files,
                          SaveSurroundings& surroundings, const SaveNotice& notice);

} // namespace ov
