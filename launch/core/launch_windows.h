#pragma once

#include "base/text.h"
#include "launch/core/dated_copies.h"
#include "launch/core/file_look.h"
#include "launch/core/interrupted_save.h"
#include "launch/core/start_choice.h"

#include <string>
#include <string_view>
#include <variant>

namespace ov
{

/// The defaults file cannot be used. Yes: choose another one; No: open the file without one.
struct DefaultsGone {
    Text path;
    PathCheck check;
};

/// The file does not exist. Yes: open the dialog, whose Save creates it.
struct NewFile {
    Text path;
};

/// A save of the file was interrupted. Yes: restore the backup; No, offered only if the file exists: keep
/// the file.
struct BackupFound {
    const InterruptedSave& save;
};

/// There is something that the user should know about the file. Yes: open it.
struct FileRemarks {
    Text path;
    const FileLook& look;
};

/// The dated copy could not be made. Yes: open the file without a copy.
struct CopyNotMade {
    CopyResult result;
    Text folder; ///< Of the copies; empty for the file's own folder.
};

/// A question before the dialog opens.
using LaunchQuestion = std::variant<DefaultsGone, NewFile, BackupFound, FileRemarks, CopyNotMade>;

enum class LaunchAnswer { Yes, No, Cancel };

struct LaunchReply {
    LaunchAnswer answer = LaunchAnswer::Cancel;
    bool silenced = false; ///< FileRemarks: the user does not want to be asked again about this file.
};

/// The file cannot be opened.
struct UnusablePath {
    Text path;
    PathCheck check;
};

/// Neither the backup nor the file could be put into place as the user wanted.
struct BackupUnresolved {
    const InterruptedSave& save;
    ResolveResult result;
};

using LaunchNotice = std::variant<UnusablePath, BackupUnresolved>;

/// The launcher's windows.
class LaunchWindows
{
  public:
    virtual ~LaunchWindows() = default;

    /// Lets the user choose the files and options. False if the user cancelled; otherwise the file
    /// can be opened.
    virtual bool AskStart(StartChoice& choice) = 0;

    virtual LaunchReply Ask(const LaunchQuestion& question) = 0;

    /// Says why the dialog does not open.
    virtual void Tell(const LaunchNotice& notice) = 0;

    /// Shows the dialog of the library. Returns when the user has closed it, with the exit code.
    virtual int ShowDialog(const Text& defaults, const Text& file) = 0;
};

/// The files of the launcher's own in which it remembers something for the user.
class LaunchMemory
{
  public:
    virtual ~LaunchMemory() = default;

    /// The content; empty if there is none or it cannot be read.
    virtual std::string Load(std::string_view name) = 0;

    /// Replaces the content. A failure has no consequence but that nothing is remembered.
    virtual void Store(std::string_view name, const std::string& bytes) = 0;
};

} // namespace ov
