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

/// The kind of a value read from a file: text (also if empty), whole number, or number with a
/// decimal point.
SettingKind ClassifyValue(CompactView value);

/// Reads the bytes of a configuration file into a table of the store, replacing the table. Empty input
/// leaves the table unchanged.
void ReadConfig(SettingStore& store, TableSelector table, std::string_view bytes,
                Charset charset = Charset::OfProcess);

/// How reading a configuration file ended.
enum class ReadOutcome {
    Read,          ///< The whole file was read. An empty file counts and leaves the table unchanged.
    NothingToRead, ///< The path is empty, the file does not exist, or it is a device or a pipe.
    Failed,        ///< The file exists but could not be read.
};

/// The result of reading a configuration file.
struct ReadResult {
    ReadOutcome outcome;
    Text systemText{}; ///< Failed: the system's error message; may be empty.
};

/// Reads a configuration file into a table of the store. An empty path, a missing file and a path to
/// something other than a file give NothingToRead. The store changes only if the whole file was read.
/// `known`, if given, then receives the path and the bytes that were read; otherwise it is unchanged
/// as well.
ReadResult ReadConfigFile(SettingStore& store, TableSelector table, const Text& path, FilePort& files,
                          std::optional<KnownFile>* known = nullptr);

} // namespace ov
