#include "config/core/text_lines.h"

#include "base/locale_text.h"

#include <memory>
#include <utility>

namespace ov
{
FileResult ReadBlocks(FilePort& files, const Text& path, const std::function<void(std::string_view)>& block)
{
    constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
    FileHandle file{};
    FileResult result = files.OpenForReading(path, file);
    if (!result)
        return result;
    try {
        const auto buffer = std::make_unique_for_overwrite<char[]>(kBlockSize);
        for (;;) {
            std::size_t count = 0;
            result = files.Read(file, {buffer.get(), kBlockSize}, count);
            if (!result || count == 0)
                break;
            block(std::string_view(buffer.get(), count));
        }
    } catch (...) {
        files.Close(file);
        throw;
    }
    // Nothing was written, so a failure to close loses nothing.
    files.Close(file);
    return result;
}

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

void AppendWithLineEnds(std::string_view bytes, std::string& out)
{
    std::size_t done = 0;
    for (;;) {
        const std::size_t end = bytes.find('\n', done);
        if (end == std::string_view::npos)
            break;
        out.append(bytes, done, end - done);
        out.append("\r\n", 2);
        done = end + 1;
    }
    out.append(bytes, done);
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
