#include "config/core/file_blocks.h"

#include <memory>

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

FileResult ReadWhole(FilePort& files, const Text& path, std::string& content)
{
    content.clear();
    return ReadBlocks(files, path, [&content](std::string_view block) { content += block; });
}

} // namespace ov
