#pragma once

#include "config/core/file_port.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace ov::test
{

/// The system message of an injected fault.
inline constexpr TextView kFaultText = u"The injected fault.";

/// A file system in memory that fails on request. Its operations are numbered from 1 in call
/// order. A failed write leaves half of its bytes.
class MemoryFilePort final : public FilePort
{
  public:
    std::map<Text, std::string> contents;
    std::set<Text> directories;
    std::set<Text> devices;
    std::set<Text> pinned;                                           ///< Cannot be renamed or removed.
    std::set<Text> readOnly;                                         ///< Cannot be opened for writing.
    std::set<Text> unreadable;                                       ///< Cannot be opened for reading.
    std::map<Text, Text> links;                                      ///< The target of each symbolic link.
    std::size_t capacity = std::numeric_limits<std::size_t>::max();  ///< The longest content that fits.
    std::size_t blockSize = std::numeric_limits<std::size_t>::max(); ///< The most bytes per read.
    std::set<int> failing;                                           ///< The numbers of the calls that fail.
    int calls = 0;
    int openFiles = 0;
    bool unflushed = false; ///< Bytes were written since the last flush.

    FileKind Kind(const Text& path) override
    {
        const Call call(*this);
        if (call.Fails())
            return FileKind::Unknown;
        if (directories.contains(path))
            return FileKind::Directory;
        if (devices.contains(path))
            return FileKind::Other;
        return contents.contains(Followed(path)) ? FileKind::File : FileKind::Absent;
    }

    Text LinkTarget(const Text& path) override
    {
        const Call call(*this);
        return call.Fails() || !links.contains(path) ? Text() : Followed(path);
    }

    bool IsSameFile(const Text& first, const Text& second) override
    {
        const Call call(*this);
        return !call.Fails() && Followed(first) == Followed(second) && contents.contains(Followed(first));
    }

    FileResult OpenForReading(const Text& path, FileHandle& file) override
    {
        const Call call(*this);
        if (call.Fails() || !contents.contains(Followed(path)) || unreadable.contains(path))
            return Fault();
        file = Open(Followed(path));
        return {};
    }

    FileResult Read(FileHandle file, std::span<char> buffer, std::size_t& count) override
    {
        const Call call(*this);
        if (call.Fails())
            return Fault();
        OpenFile& open = m_open[file];
        const std::string& content = contents[open.path];
        count = std::min({buffer.size(), blockSize, content.size() - open.position});
        std::copy_n(content.data() + open.position, count, buffer.data());
        open.position += count;
        return {};
    }

    FileResult Create(const Text& path, CreateMode mode, FileHandle& file) override
    {
        const Call call(*this);
        const bool exists = contents.contains(path) || links.contains(path);
        if (call.Fails() || directories.contains(path) || readOnly.contains(path) ||
            (mode == CreateMode::New && exists))
            return Fault();
        contents.try_emplace(Followed(path));
        file = Open(Followed(path));
        return {};
    }

    FileResult Reserve(FileHandle, std::size_t size) override
    {
        const Call call(*this);
        return call.Fails() || size > capacity ? Fault() : FileResult{};
    }

    FileResult Write(FileHandle file, std::string_view bytes) override
    {
        const Call call(*this);
        std::string& content = contents[m_open[file].path];
        unflushed = true;
        if (call.Fails() || bytes.size() > capacity) {
            const std::size_t written = std::min(bytes.size() / 2, capacity);
            content.replace(0, written, bytes, 0, written);
            return Fault();
        }
        content = bytes;
        return {};
    }

    FileResult Flush(FileHandle) override
    {
        const Call call(*this);
        if (call.Fails())
            return Fault();
        unflushed = false;
        return {};
    }

    FileResult Close(FileHandle file) override
    {
        m_open.erase(file);
        --openFiles;
        const Call call(*this);
        return call.Fails() ? Fault() : FileResult{};
    }

    FileResult Rename(const Text& from, const Text& to) override
    {
        const Call call(*this);
        if (call.Fails() || pinned.contains(from) || contents.contains(to) || links.contains(to) ||
            directories.contains(to))
            return Fault();
        if (auto link = links.extract(from)) {
            link.key() = to;
            links.insert(std::move(link));
            return {};
        }
        if (!contents.contains(from))
            return Fault();
        contents[to] = contents[from];
        contents.erase(from);
        if (readOnly.erase(from) != 0)
            readOnly.insert(to);
        if (unreadable.erase(from) != 0)
            unreadable.insert(to);
        return {};
    }

    FileResult Remove(const Text& path) override
    {
        const Call call(*this);
        if (call.Fails() || pinned.contains(path) || links.erase(path) + contents.erase(path) == 0)
            return Fault();
        readOnly.erase(path);
        return {};
    }

  private:
    struct OpenFile {
        Text path;
        std::size_t position = 0;
    };

    // Numbers a call.
    class Call
    {
      public:
        explicit Call(MemoryFilePort& port) : m_port(port), m_number(++port.calls) {}
        bool Fails() const { return m_port.failing.contains(m_number); }

      private:
        const MemoryFilePort& m_port;
        int m_number;
    };

    static FileResult Fault() { return {false, Text(kFaultText)}; }

    Text Followed(Text path) const
    {
        for (auto link = links.find(path); link != links.end(); link = links.find(path))
            path = link->second;
        return path;
    }

    FileHandle Open(const Text& path)
    {
        ++openFiles;
        m_open[++m_lastHandle] = {path, 0};
        return m_lastHandle;
    }

    std::map<FileHandle, OpenFile> m_open;
    FileHandle m_lastHandle = 0;
};

} // namespace ov::test
