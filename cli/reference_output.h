#pragma once

#include <string>

namespace ov::cli
{

// The reference of all settings, in the order of the category list.

std::string ReferenceAsMarkdown();

/// A page that needs no other file.
std::string ReferenceAsHtml();

/// {"version", "settings": [...], "olderVariables": [...]}; what does not apply to a setting is null.
std::string ReferenceAsJson();

/// A JSON Schema of the object that "get --format json" prints.
std::string ReferenceAsSchema();

} // namespace ov::cli
