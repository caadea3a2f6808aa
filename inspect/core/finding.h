#pragma once

#include "base/text.h"
#include "inspect/core/rules.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ov
{

/// A place in a file where a rule fires. Lines count from 1.
struct Finding {
    RuleId rule;
    std::size_t line;
    std::size_t column;           ///< in characters, from 1; 1 if there is no value to point to
    std::string message;          ///< one line of UTF-8 without a full stop
    std::optional<Text> variable; ///< the variable that the finding concerns
    std::optional<Text> before;   ///< value-changes: the value read now
    std::optional<Text> after;    ///< value-changes: the value read after one Save; nothing if there is none
    std::vector<std::pair<Text, Text>> added; ///< settings-added: names and values, in name order
};

/// The replacement for a word in braces in a rule's message.
struct MessagePart {
    const char* word;
    std::string text;
};

/// The rule's message with the words in braces replaced.
std::string FormatMessage(RuleId rule, const std::vector<MessagePart>& parts);

/// Prepares a text for a message: UTF-8, on one line, and truncated if long.
std::string Quotable(TextView text);

} // namespace ov
