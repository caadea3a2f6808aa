#pragma once

#include "base/text.h"
#include "config/core/file_port.h"

#include <string>

namespace ov
{

/// What the program knows about a file's content: the bytes that it last read from the path or wrote
/// there.
struct KnownFile {
    Text path;
    std::string content;
};

/// The result of comparing a file on disk with known content.
enum class ContentMatch {
    Same,
    Different,
    Unreadable, ///< The file could not be read completely.
};

/// Compares the bytes of a file with the known ones. Throws std::bad_alloc.
ContentMatch CompareContent(FilePort& files, const Text& path, const std::string& known);

/// An unused name in the file's folder: "office (replaced).cfg", then "office (replaced 2).cfg" and so on
/// up to 99. If all exist, returns the last of them. A name counts as used if the port cannot determine
/// whether it exists.
Text FreeNameBeside(FilePort& files, TextView path);

} // namespace ov
