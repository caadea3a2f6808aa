#pragma once

#include "cli/command.h"

#include <optional>
#include <string>

namespace ov
{
class FilePort;
}

namespace ov::cli
{

class Output;

/// True if a file may be written under the path: a regular file or nothing exists there. Otherwise
/// reports the problem.
bool MayWriteTo(const std::string& path, Output& output);

/// Writes a file with the save sequence. `before` is the content that was read, or nothing if the file
/// did not exist. Never overwrites content that was not read, and never changes an existing file with
/// the backup's name. Reports failures and returns the exit code.
ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, Output& output);

/// The same through a given file port.
ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, FilePort& files, Output& output);

/// Sets the content of a file with the save sequence, whatever its present content. Does not write a file
/// that already has this content. Reports failures and returns the exit code.
ExitCode ReplaceFile(const std::string& path, const std::string& content, Output& output);

} // namespace ov::cli
