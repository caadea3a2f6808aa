#include "config/core/known_file.h"

#include "config/core/file_blocks.h"

#include <string_view>

namespace ov
{
namespace
{

constexpr int kMostNames = 99;

} // namespace

ContentMatch CompareContent(FilePort& files, const Text& path, const std::string& known)
{
    std::size_t compared = 0;
    bool same = true;
    const FileResult reading = ReadBlocks(files, path, [&](std::string_view block) {
        same = same && std::string_view(known).substr(compared, block.size()) == block;
        compared += same ? block.size() : 0;
    });
    if (!reading)
        return ContentMatch::Unreadable;
    return same && compared == known.size() ? ContentMatch::Same : ContentMatch::Different;
}

Text FreeNameBeside(FilePort& files, TextView path)
{
    const std::size_t folderEnd = path.find_last_of(u"/\\:");
    const std::size_t nameBegin = folderEnd == TextView::npos ? 0 : folderEnd + 1;
    const std::size_t dot = path.rfind(u'.');
    const std::size_t nameEnd = dot == TextView::npos || dot < nameBegin ? path.size() : dot;
    Text begin(path.substr(0, nameEnd));
    begin += u" (replaced";
    Text end(u")");
    end += path.substr(nameEnd);
    Text name = begin + end;
    for (int number = 2; number <= kMostNames && files.Kind(name) != FileKind::Absent; ++number) {
        name = begin;
        name.append(u" ").append(FormatInteger(number)).append(end);
    }
    return name;
}

} // namespace ov
