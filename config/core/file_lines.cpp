#include "config/core/file_lines.h"

#include "base/locale_text.h"
#include "config/core/file_blocks.h"
#include "config/core/text_lines.h"

#include <utility>

namespace ov
{

FileResult ReadLines(FilePort& files, const Text& path, std::vector<Text>& lines)
{
    const LocaleDecoder decoder;
    std::vector<Text> found;
    LineSplitter splitter;
    const auto add = [&](std::string_view line) { decoder.Append(line, found.emplace_back()); };
    FileResult result = ReadBlocks(files, path, [&](std::string_view block) { splitter.Feed(block, add); });
    if (!result)
        return result;
    splitter.Finish(add);
    lines = std::move(found);
    return result;
}

FileResult WriteLines(FilePort& files, const Text& path, std::span<const Text> lines)
{
    const LocaleEncoder encoder;
    std::string bytes;
    std::string encoded;
    for (const Text& line : lines) {
        encoded.clear();
        if (!encoder.Append(line, encoded))
            return {false, Text()};
        AppendWithLineEnds(encoded, bytes);
        bytes += "\r\n";
    }
    FileHandle file{};
    FileResult result = files.Create(path, CreateMode::Truncate, file);
    if (!result)
        return result;
    result = files.Write(file, bytes);
    FileResult closed = files.Close(file);
    return result ? closed : result;
}

} // namespace ov
