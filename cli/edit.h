#pragma once

#include "cli/command.h"
#include "cli/input.h"
#include "document/core/variable_edit.h"

#include <functional>
#include <string>

namespace ov::cli
{

/// The common part of the commands that edit a file: its operand, their options, and reading, editing and
/// writing the file.
class FileEdit
{
  public:
    void Declare(Options& options);

    /// Reads the file, edits it and writes it, or shows the difference for --dry-run. Reports problems
    /// with the path, the edit and writing.
    ExitCode Run(Output& output, const std::function<EditResult(const EditedFile&)>& edit) const;

  private:
    std::string m_path;
    bool m_dryRun = false;
    EncodingOption m_encoding;
};

/// The text of an argument that may be written into a file. Throws Usage if the argument is not valid
/// UTF-8: the file would get other characters.
Text TextOfArgument(const std::string& argument);

} // namespace ov::cli
