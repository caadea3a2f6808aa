#pragma once

#include "base/text.h"
#include "config/core/file_port.h"
#include "config/core/setting_store.h"

#include <string_view>

namespace ov
{

/// The kind that a value read from a file gets: text (also when empty), whole number or number
/// with a decimal point.
SettingKind ClassifyValue(TextView value);

/// Reads the bytes of a configuration file into a table of the store, by the process's locale.
/// The table is replaced; no bytes at all leave it as it was.
void ReadConfig(SettingStore& store, int table, std::string_view bytes);

/// What came of reading a configuration file.
struct ReadResult {
    bool read;       ///< The file was read; an empty file counts and leaves the table as it was.
    Text systemText; ///< Why a file that exists could not be read; empty when there is nothing to tell.
};

/// Reads a configuration file into a table of the store. An empty path and a file that does not
/// exist are not read, without a word. The store is unchanged unless the whole file was read.
ReadResult ReadConfigFile(SettingStore& store, int table, const Text& path, FilePort& files);

} // namespace ov
