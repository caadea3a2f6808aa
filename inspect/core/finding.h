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

/// One place of a file where a rule fires. Lines count from 1.
struct Finding {
    RuleId rule;
    std::size_t line;
    std::size_t column;           ///< in characters from 1; 1 where there is no value to point to
    std::string message;          ///< one line of UTF-8 without a full stop
    std::optional<Text> variable; ///< that it is about
    std::optional<Text> before;   ///< value-changes: what is read now
    std::optional<Text> after;    ///< value-changes: what is read after one Save; absent when nothing is
    std::vector<std::pair<Text, Text>> added; ///< settings-added: names and values, in name order
};

/// What fills a word in braces of a rule's message.
struct MessagePart {
    const char* word;
    std::string text;
};

/// The rule's message with its words filled in.
std::string FormatMessage(RuleId rule, const std::vector<MessagePart>& parts);

/// A text for a message: in UTF-8, on one line, and cut when it is long.
std::string Quotable(TextView text);

} // namespace ov
