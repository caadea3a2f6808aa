#pragma once

#include "base/text.h"
#include "config/core/file_port.h"
#include "config/core/local_time.h"

#include <cstdint>
#include <vector>

namespace ov
{

/// What the system knows about a file without opening it.
struct FileFacts {
    FileKind kind = FileKind::Absent;
    std::uint64_t size = 0; ///< In bytes.
    LocalTime changed{};    ///< The time of the last change of the content.
    bool readOnly = false;  ///< Marked as read-only, or this user has no permission to write it.
};

/// The operations on folders, and on files as entries of folders, that the file port does not need for
/// reading and saving. Every operation reports failure in its result; none shows a message, and none throws
/// except std::bad_alloc. No operation changes a file or a folder.
class FolderPort
{
  public:
    virtual ~FolderPort() = default;

    /// The characters that separate the names in a path. The first one joins them.
    virtual TextView Separators() const = 0;

    /// The facts about a file; a symbolic link is followed. Succeeds with FileKind::Absent if there is no
    /// file.
    virtual FileResult Facts(const Text& path, FileFacts& facts) = 0;

    /// The names of all entries of a folder, in no particular order. An empty path is the current folder.
    virtual FileResult List(const Text& folder, std::vector<Text>& names) = 0;

    /// Fails with the system's reason if a save could not rename the file, for example because another
    /// program has it open.
    virtual FileResult TryRenaming(const Text& path) = 0;

    /// Fails with the system's reason if a save could not open the file for writing.
    virtual FileResult TryWriting(const Text& path) = 0;

    /// The full path of a folder, with links resolved and a separator at its end. An empty path is the
    /// current folder. If the system cannot resolve the path, returns it as given.
    virtual Text FullFolder(const Text& folder) = 0;

    /// The text in a form that is equal for two names if the system takes them for the same name: in upper
    /// case on Windows.
    virtual Text Folded(TextView name) const = 0;
};

} // namespace ov
