#pragma once

#include "inspect/core/reference.h"

#include <string>
#include <vector>

namespace ov::cli
{

/// The allowed values of a setting, on one line: "0 = off, 1 = on", "1 to 10000".
std::string AllowedValues(const SettingDescription& setting);

/// The setting as a few lines with its help text.
std::string SettingAsText(const SettingDescription& setting);

std::string ReferenceAsMarkdown();
std::string ReferenceAsHtml();
std::string ReferenceAsJson();

/// A JSON Schema of the object that "get --format json" prints.
std::string ReferenceAsSchema();

} // namespace ov::cli
