#pragma once

#include "base/text.h"
#include "launch/core/file_ports.h"

namespace ov
{

/// A path divided into a folder and a name; joined, they are the path.
struct PathParts {
    Text folder; ///< With its last separator; empty for a path without a folder.
    Text name;
};

/// Divides a path at its last separator.
PathParts SplitPath(const Text& path, const FolderPort& folders);

/// The path of a name in a folder. A missing separator is inserted.
Text JoinPath(const Text& folder, TextView name, const FolderPort& folders);

/// The file that a save of this path writes: the target of a symbolic link, otherwise the path itself.
Text SavedPath(const Text& path, FilePort& files);

/// A text that is the same for every spelling of the path of a file, as far as the system can tell: the full
/// path of the file that a save of this path writes. For comparing paths; on Windows not for display.
Text PathKey(const Text& path, const FilePorts& ports);

} // namespace ov
