#include "inspect/core/finding.h"

#include "base/utf8.h"

namespace ov
{
namespace
{
constexpr std::size_t kLongestQuote = 80;
} // namespace

std::string FormatMessage(RuleId rule, const std::vector<MessagePart>& parts)
{
    std::string message;
    std::string_view rest = RuleOf(rule).message;
    while (!rest.empty()) {
        const std::size_t open = std::min(rest.find('{'), rest.size());
        message += rest.substr(0, open);
        rest.remove_prefix(open);
        if (rest.empty())
            break;
        const std::size_t close = rest.find('}');
        const std::string_view word = rest.substr(1, close - 1);
        for (const MessagePart& part : parts) {
            if (word == part.word)
                message += part.text;
        }
        rest.remove_prefix(close + 1);
    }
    return message;
}

std::string Quotable(TextView text)
{
    std::string quotable;
    std::size_t count = 0;
    while (!text.empty()) {
        if (count++ == kLongestQuote)
            return quotable + "...";
        const CodePoint character = ReadUtf16(text);
        text.remove_prefix(character.length);
        const bool control = character.value < 0x20 || (character.value >= 0x7F && character.value < 0xA0);
        // A byte-order mark has no width: the message would show the name that the variable appears to have.
        const bool hidden = control || character.value == 0xFEFF;
        AppendUtf8(quotable, hidden || !character.valid ? kReplacementCharacter : character.value);
    }
    return quotable;
}

} // namespace ov
