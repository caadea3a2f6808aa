#pragma once

#include "config/core/file_port.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <new>
#include <set>
#include <string>

namespace ov::test
{

/// What the memory file port says about a fault.
inline constexpr TextView kFaultText = u"The injected fault.";

/// Thrown by the memory file port where the process shall end.
struct Crash {
};

/// A file system in memory that fails on request. Its operations are numbered from 1 in the order
/// of their calls. A write that fails or in which the process ends leaves half of its bytes behind.
class MemoryFilePort final : public FilePort
{
  public:
    std::map<Text, std::string> contents;
    std::set<Text> directories;
    std::map<Text, Text> links;                                      ///< Which path a symbolic link leads to.
    std::size_t blockSize = std::numeric_limits<std::size_t>::max(); ///< At most so many bytes a read.
    std::set<int> failing;                                           ///< Numbers of the calls that fail.
    int crashing = 0; ///< Number of the call in which the process ends; 0 is none.
    int throwing = 0; ///< Number of the call that runs out of memory; 0 is none.
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
        return contents.contains(path) ? FileKind::File : FileKind::Absent;
    }

    Text LinkTarget(const Text& path) override
    {
        const Call call(*this);
        const auto link = links.find(path);
        return call.Fails() || link == links.end() ? Text() : link->second;
    }

    bool IsSameFile(const Text& first, const Text& second) override
    {
        const Call call(*this);
        return !call.Fails() && first == second && contents.contains(first);
    }

    FileResult OpenForReading(const Text& path, FileHandle& file) override
    {
        const Call call(*this);
        if (call.Fails() || !contents.contains(path))
            return Fault();
        file = Open(path);
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
        if (call.Fails() || directories.contains(path) ||
            (mode == CreateMode::New && contents.contains(path)))
            return Fault();
        contents[path].clear();
        file = Open(path);
        return {};
    }

    FileResult Write(FileHandle file, std::string_view bytes) override
    {
        const Call call(*this, true);
        const bool whole = !call.Fails() && calls != crashing;
        contents[m_open[file].path].append(bytes, 0, whole ? bytes.size() : bytes.size() / 2);
        unflushed = true;
        call.EndHere();
        return call.Fails() ? Fault() : FileResult{};
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
        if (call.Fails() || !contents.contains(from) || contents.contains(to) || directories.contains(to))
            return Fault();
        contents[to] = contents[from];
        contents.erase(from);
        return {};
    }

    FileResult Remove(const Text& path) override
    {
        const Call call(*this);
        if (call.Fails() || contents.erase(path) == 0)
            return Fault();
        return {};
    }

  private:
    struct OpenFile {
        Text path;
        std::size_t position = 0;
    };

    // Numbers a call and ends the process where that is asked for.
    class Call
    {
      public:
        explicit Call(MemoryFilePort& port, bool halfDone = false) : m_port(port), m_number(++port.calls)
        {
            // What has ended makes no more calls.
            const bool ended = port.crashing != 0 && m_number > port.crashing;
            if (ended || (m_number == port.crashing && !halfDone))
                throw Crash();
            if (m_number == port.throwing)
                throw std::bad_alloc();
        }
        void EndHere() const
        {
            if (m_number == m_port.crashing)
                throw Crash();
        }
        bool Fails() const { return m_port.failing.contains(m_number); }

      private:
        MemoryFilePort& m_port;
        int m_number;
    };

    static FileResult Fault() { return {false, Text(kFaultText)}; }

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
