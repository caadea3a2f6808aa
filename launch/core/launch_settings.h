#pragma once

#include "base/text.h"
#include "launch/core/dated_copies.h"

#include <optional>
#include <string>
#include <string_view>

namespace ov
{

/// What the launcher remembers for a user.
struct LaunchSettings {
    static constexpr int kMostCopies = 999;

    /// The path of the office's defaults file; empty if the office has none. Nothing if the user
    /// was never asked.
    std::optional<Text> defaults;
    Text file; ///< the file that was opened last; empty for none
    int copies =
        static_cast<int>(kUsualCopies); ///< how many dated copies of a file are kept; 0 for no copies
    Text copyFolder;                    ///< the folder for the copies; empty for the file's own folder
};

/// The settings from the bytes of the launcher's own file: UTF-8, lines of "name = value". Unknown and
/// invalid lines are ignored, so that older and newer versions can share the file.
LaunchSettings ParseLaunchSettings(std::string_view bytes);

/// The bytes for the launcher's own file.
std::string FormatLaunchSettings(const LaunchSettings& settings);

} // namespace ov
