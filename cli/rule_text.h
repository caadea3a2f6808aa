#pragma once

#include "inspect/core/rules.h"

#include <string>

namespace ov::cli
{

/// A line for each rule: id, severity, name, summary.
std::string TableOfRules();

/// A rule with its explanation and example.
std::string RuleAsText(const Rule& rule);

/// All rules as a page of the documentation.
std::string RulesAsMarkdown();

/// Breaks a text at its blanks so that lines have at most so many characters.
std::string Wrapped(const std::string& text, std::size_t width);

} // namespace ov::cli
