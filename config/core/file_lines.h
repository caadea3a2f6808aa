#pragma once

#include "base/text.h"
#include "config/core/file_port.h"

#include <span>
#include <vector>

namespace ov
{

// A file's lines as texts, for the operations of CTextFileEx with the same names.
// They are part of the design's contract and used by tests only. The program reads
// and saves by config_reader.h and save.h.

/// Replaces `lines` by the file's lines, decoded in the locale of the process. If the file cannot be
/// opened or read, `lines` is unchanged and the result contains the reason.
FileResult ReadLines(FilePort& files, const Text& path, std::vector<Text>& lines);

/// Creates or empties the file and writes each text followed by a line end, in the locale of the
/// process. If the locale cannot represent a text, the call fails before the file is changed.
FileResult WriteLines(FilePort& files, const Text& path, std::span<const Text> lines);

} // namespace ov
