#pragma once

#include "inspect/core/rules.h"

#include <string>

namespace ov::cli
{

/// One line for each rule: id, severity, name, summary.
std::string TableOfRules();

/// A rule with its explanation and example.
std::string RuleAsText(const Rule& rule);

/// All rules as a page of the documentation.
std::string RulesAsMarkdown();

/// The longest line of prose on a terminal, and in a document.
inline constexpr std::size_t kTerminalWidth = 80;
inline constexpr std::size_t kDocumentWidth = 110;

/// Breaks a text at blanks so that no line has more than `width` characters, if possible.
std::string Wrapped(const std::string& text, std::size_t width);

} // namespace ov::cli
