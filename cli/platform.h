#pragma once

#include "config/core/file_port.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ov::cli
{

/// The two streams that the program writes to.
enum class Stream { Output, Error };

/// How a write to a stream ended.
enum class WriteOutcome {
    Written,
    Closed, ///< Nobody reads the stream any more.
    Failed,
};

/// Writes all bytes to the stream: as they are into a file or a pipe, as UTF-8 text to a terminal.
/// `problem` gets the system's words when the outcome is Failed.
WriteOutcome WriteBytes(Stream stream, std::string_view bytes, std::string& problem);

/// True when the stream is a terminal that understands the escape sequences of colours.
bool IsColourTerminal(Stream stream);

/// The environment variable's value in UTF-8; empty when it is not set.
std::string EnvironmentVariable(const char* name);

/// The most bytes that are read of one input: a device may have no end.
inline constexpr std::size_t kLargestInput = std::size_t{1} << 30;

/// Sets `bytes` to all that can be read under the path: a file, a pipe, a device. The path "-" is the
/// standard input. Returns false, with the system's words in `problem`, when reading fails.
bool ReadAll(const std::string& path, std::string& bytes, std::string& problem);

/// The file port of this system, for writing.
std::unique_ptr<FilePort> MakeFilePort();

} // namespace ov::cli
