#pragma once

#include "cli/input.h"
#include "inspect/core/inspection.h"

#include <optional>
#include <string>

namespace ov::cli
{

/// The options of the commands that treat files as the dialog would.
class InspectionOptions
{
  public:
    void Declare(Options& options);

    const EncodingOption& Encoding() const { return m_encoding; }

    /// The settings for the requested defaults file and day, without rules. Nothing if the defaults
    /// file cannot be read, which is then reported. The settings refer to data in this object
    /// and are valid while it exists. Throws Usage.
    std::optional<InspectionSettings> Settings(InputReader& reader);

  private:
    EncodingOption m_encoding;
    std::optional<std::string> m_defaultsPath;
    std::optional<std::string> m_today;
    std::optional<InputFile> m_defaults;
};

} // namespace ov::cli
