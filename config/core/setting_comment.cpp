#include "config/core/setting_comment.h"

namespace ov
{
namespace
{

// Replaces the last blank before every 100th column by a line break. A longer word is not broken, and
// a blank at the very beginning is not replaced.
Text WrapAtBlanks(TextView description)
{
    constexpr std::size_t kColumns = 100;
    Text text(description);
    std::size_t blank = 0; // The last blank that may be replaced; 0 if none.
    std::size_t column = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n') {
            column = 0;
            continue;
        }
        if (text[i] == u' ')
            blank = i;
        if (column >= kColumns && blank >= 1) {
            text[blank] = u'\n';
            column = i - blank;
            blank = 0;
        } else {
            ++column;
        }
    }
    return text;
}

} // namespace

Text MakeCommentBlock(TextView description)
{
    Text block = u"\n#\n# ";
    for (const char16_t c : WrapAtBlanks(description)) {
        if (c == u'\n')
            block += u"\n# ";
        else if (c != u'\r')
            block.push_back(c);
    }
    block += u"\n#\n";
    return block;
}

} // namespace ov
