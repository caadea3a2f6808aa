#include "document/core/plain_text.h"

#include "config/core/config_line.h"

#include <algorithm>

namespace ov
{

const char* WhyNotPlainText(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return "it is in UTF-16";
    // Latin text in UTF-16 without a byte-order mark has NUL as every other byte.
    const std::string_view beginning = bytes.substr(0, 4096);
    const auto nuls = static_cast<std::size_t>(std::ranges::count(beginning, '\0'));
    if (beginning.size() >= 4 && nuls * 5 >= beginning.size() * 2)
        return "it is in UTF-16";
    const std::size_t first = bytes.find('\r');
    if (first == std::string_view::npos || bytes.find('\n') != std::string_view::npos)
        return nullptr;
    return TrimBytes(bytes.substr(first)).empty() ? nullptr : "its lines end in CR only";
}

} // namespace ov
