#pragma once

#include "cli/command.h"

#include <optional>
#include <string>

namespace ov::cli
{

class Output;

/// True when a file may be written under the path: there is a regular file or nothing. Else reports
/// what is wrong with it.
bool MayWriteTo(const std::string& path, Output& output);

/// Writes a file by the save sequence. `before` is the content that was read, absent for a file that
/// was not there. Nothing is overwritten that was not read, and no file under the backup's name is
/// touched. Reports what fails; gives the exit code.
ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, Output& output);

/// Gives the file under the path a content, whatever it has now, by the save sequence. A file that has
/// this content already is not written. Reports what fails; gives the exit code.
ExitCode ReplaceFile(const std::string& path, const std::string& content, Output& output);

} // namespace ov::cli
