#pragma once

#include "cli/command.h"
#include "cli/input.h"
#include "document/core/variable_edit.h"

#include <functional>
#include <string>

namespace ov::cli
{

/// What the commands have in common that edit a file: its operand, their options, and the way from the
/// file to the edited one.
class FileEdit
{
  public:
    void Declare(Options& options);

    /// Reads the file, edits it and writes it, or shows the difference with --dry-run. Reports what is
    /// wrong with the path, the edit or the writing.
    ExitCode Run(Output& output, const std::function<EditResult(const EditedFile&)>& edit) const;

  private:
    std::string m_path;
    bool m_dryRun = false;
    EncodingOption m_encoding;
};

} // namespace ov::cli
