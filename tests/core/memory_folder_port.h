#pragma once

#include "config/core/folder_port.h"
#include "tests/core/memory_file_port.h"

#include <map>
#include <set>

namespace ov::test
{

/// The folders of a file system in memory. "/" separates names; the empty path is the current folder,
/// "/office/". Its operations are numbered from 1 in call order and fail on request.
class MemoryFolderPort final : public FolderPort
{
  public:
    explicit MemoryFolderPort(MemoryFilePort& files) : m_files(files) {}

    std::map<Text, LocalTime> times; ///< Of the last change; the beginning of 1970 for every other file.
    std::set<int> failing;           ///< The numbers of the calls that fail.
    int calls = 0;
    bool ignoresCase = false; ///< Names are compared as on Windows, for ASCII.

    TextView Separators() const override { return u"/"; }

    FileResult Facts(const Text& path, FileFacts& facts) override
    {
        if (Fails())
            return Fault();
        facts = {};
        if (m_files.directories.contains(path))
            facts.kind = FileKind::Directory;
        else if (m_files.contents.contains(path))
            facts = {FileKind::File, m_files.contents[path].size(), times[path],
                     m_files.readOnly.contains(path)};
        return {};
    }

    FileResult List(const Text& folder, std::vector<Text>& names) override
    {
        const Text prefix = folder.empty() || folder.ends_with(u'/') ? folder : folder + u'/';
        if (Fails() ||
            (!prefix.empty() && !m_files.directories.contains(prefix.substr(0, prefix.size() - 1))))
            return Fault();
        names.clear();
        const auto add = [&](const Text& path) {
            if (path.starts_with(prefix) && path.find(u'/', prefix.size()) == Text::npos)
                names.push_back(path.substr(prefix.size()));
        };
        for (const auto& [path, content] : m_files.contents)
            add(path);
        for (const Text& path : m_files.directories)
            add(path);
        return {};
    }

    FileResult TryRenaming(const Text& path) override
    {
        return Fails() || m_files.pinned.contains(path) ? Fault() : FileResult{};
    }

    FileResult TryWriting(const Text& path) override
    {
        return Fails() || m_files.readOnly.contains(path) ? Fault() : FileResult{};
    }

    Text FullFolder(const Text& folder) override
    {
        Text full = folder.starts_with(u'/') ? folder : u"/office/" + folder;
        if (!full.ends_with(u'/'))
            full += u'/';
        return full;
    }

    Text Folded(TextView name) const override
    {
        Text folded(name);
        for (char16_t& c : folded)
            c = ignoresCase ? ToUpperAscii(c) : c;
        return folded;
    }

  private:
    static FileResult Fault() { return {false, Text(kFaultText)}; }
    bool Fails() { return failing.contains(++calls); }

    MemoryFilePort& m_files;
};

} // namespace ov::test
