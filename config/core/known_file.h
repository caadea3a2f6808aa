#pragma once

#include "base/text.h"
#include "config/core/file_port.h"

#include <string>

namespace ov
{

/// What the program knows of a file's content: the bytes that it last read from the path, or left
/// there itself.
struct KnownFile {
    Text path;
    std::string content;
};

/// How a file on the disk compares with known content.
enum class ContentMatch {
    Same,
    Different,
    Unreadable, ///< The file could not be read to its end.
};

/// Compares the bytes of a file with the known ones. Throws std::bad_alloc.
ContentMatch CompareContent(FilePort& files, const Text& path, const std::string& known);

/// A name beside the file under which nothing exists: "office (replaced).cfg", then
/// "office (replaced 2).cfg" and so on up to 99. When all are taken, the last of them. A name whose
/// existence the port cannot determine counts as taken.
Text FreeNameBeside(FilePort& files, TextView path);

} // namespace ov
