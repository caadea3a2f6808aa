#include "inspect/core/saved_header.h"

#include <algorithm>
#include <vector>

namespace ov
{
namespace
{
std::vector<Text> HeaderLines(const HeaderInfo& info)
{
    std::vector<Text> lines;
    const Text header = MakeHeader(info);
    for (std::size_t start = 0; start <= header.size();) {
        const std::size_t end = std::min(header.find(u'\n', start), header.size());
        lines.push_back(header.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

/// The text up to the first occurrence of a mark, which is removed too; nothing if there is no mark.
std::optional<Text> Between(TextView& line, TextView mark)
{
    const std::size_t found = line.find(mark);
    if (found == TextView::npos)
        return std::nullopt;
    Text text(line.substr(0, found));
    line.remove_prefix(found + mark.size());
    return text;
}
} // namespace

std::optional<HeaderInfo> ReadSavedHeader(std::span<const Text> lines)
{
    // The marks around the three texts are taken from the header itself.
    static const std::vector<Text> pattern = HeaderLines({u"\1", u"\2", u"\3"});
    const auto line =
        std::ranges::find_if(pattern, [](const Text& each) { return each.find(u'\1') != Text::npos; });
    const auto index = static_cast<std::size_t>(line - pattern.begin());
    if (lines.size() != pattern.size())
        return std::nullopt;
    const std::size_t date = line->find(u'\1');
    const std::size_t user = line->find(u'\2');
    const std::size_t computer = line->find(u'\3');
    TextView rest = lines[index];
    HeaderInfo info;
    const TextView end = TextView(*line).substr(computer + 1);
    if (!rest.starts_with(TextView(*line).substr(0, date)) || !rest.ends_with(end))
        return std::nullopt;
    rest.remove_prefix(date);
    const auto foundDate = Between(rest, TextView(*line).substr(date + 1, user - date - 1));
    const auto foundUser = Between(rest, TextView(*line).substr(user + 1, computer - user - 1));
    if (!foundDate || !foundUser || rest.size() < end.size())
        return std::nullopt;
    info = {*foundDate, *foundUser, Text(rest.substr(0, rest.size() - end.size()))};
    return std::ranges::equal(lines, HeaderLines(info)) ? std::optional(info) : std::nullopt;
}

} // namespace ov
