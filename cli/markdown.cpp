#include "cli/markdown.h"

namespace ov::cli
{

std::string EscapedMarkdown(std::string_view text)
{
    constexpr std::string_view kMarks = "\\`*[]|$";
    std::string escaped;
    for (const char c : text) {
        if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (c == '&')
            escaped += "&amp;";
        else
            escaped.append(kMarks.find(c) != std::string_view::npos ? 1 : 0, '\\').append(1, c);
    }
    return escaped;
}

std::string AddressOfHeading(std::string_view heading)
{
    constexpr std::string_view kLeftOut = "/,.&()`";
    std::string address = "#";
    for (const char c : heading) {
        if (c == ' ')
            address += '-';
        else if (c >= 'A' && c <= 'Z')
            address += static_cast<char>(c - 'A' + 'a');
        else if (kLeftOut.find(c) == std::string_view::npos)
            address += c;
    }
    return address;
}

} // namespace ov::cli
