#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/file_port.h"
#include "config/core/known_file.h"
#include "config/core/setting_store.h"

#include <optional>
#include <string_view>

namespace ov
{

/// The kind that a value read from a file gets: text (also when empty), whole number or number
/// with a decimal point.
SettingKind ClassifyValue(CompactView value);

/// Reads the bytes of a configuration file into a table of the store. The table is replaced; no bytes
/// at all leave it as it was.
void ReadConfig(SettingStore& store, int table, std::string_view bytes, Charset charset = Charset::OfProcess);

/// How the reading of a configuration file ended.
enum class ReadOutcome {
    Read,          ///< To the file's end; an empty file counts and leaves the table as it was.
    NothingToRead, ///< No file is named, or there is none, or it is a device or a pipe.
    Failed,        ///< There is a file, but it could not be read.
};

/// What came of reading a configuration file.
struct ReadResult {
    ReadOutcome outcome;
    Text systemText{}; ///< Failed: the system's words for it; may be empty.
};

/// Reads a configuration file into a table of the store. An empty path, a file that does not exist
/// and what is no file are nothing to read. The store is unchanged unless the whole file was read.
/// `known`, if given, then receives the path and the bytes that were read; otherwise it is unchanged
/// too.
ReadResult ReadConfigFile(SettingStore& store, int table, const Text& path, FilePort& files,
                          std::optional<KnownFile>* known = nullptr);

} // namespace ov
