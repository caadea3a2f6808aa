#pragma once

#include "base/text.h"
#include "cli/command.h"
#include "config/core/unattended_save.h"

#include <optional>
#include <string>

namespace ov::cli
{

class Output;

/// The system's message after a colon, or nothing if it is empty.
std::string Because(const Text& systemText);

/// Reports how a save ended and returns the exit code.
ExitCode ReportSave(const std::string& path, const UnattendedSave& save, Output& output);

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
