#pragma once

#include "cli/input.h"
#include "inspect/core/inspection.h"

#include <optional>
#include <string>

namespace ov::cli
{

/// The options of the commands that look at files as the dialog would open them.
class InspectionOptions
{
  public:
    void Declare(Options& options);

    const EncodingOption& Encoding() const { return m_encoding; }

    /// Settings with the defaults file and the day that were asked for, and without rules. Nothing
    /// when the defaults file cannot be read, which has been reported then. What the settings refer
    /// to lives as long as this object. Throws Usage.
    std::optional<InspectionSettings> Settings(InputReader& reader);

  private:
    EncodingOption m_encoding;
    std::optional<std::string> m_defaultsPath;
    std::optional<std::string> m_today;
    std::optional<InputFile> m_defaults;
};

} // namespace ov::cli
