#pragma once

#include "base/text.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace ov
{

/// The result of a file operation.
struct FileResult {
    bool ok = true;
    Text systemText; ///< The system's words for a failure, without a line end; may be empty.

    explicit operator bool() const { return ok; }
};

/// An open file, in the port's own meaning.
using FileHandle = std::intptr_t;

/// What a path leads to.
enum class FileKind {
    Absent,
    File,
    Directory,
    Other,   ///< Neither: a device, a pipe, links that lead in a circle.
    Unknown, ///< The system would not say.
};

/// What Create does with a file that is already there.
enum class CreateMode {
    New,      ///< Fails and leaves it alone.
    Truncate, ///< Opens it; its content stays until something is written.
};

/// The file system as reading and saving need it. Every operation reports failure by its result;
/// none shows anything, and none throws except std::bad_alloc. Paths are in the system's notation.
class FilePort
{
  public:
    virtual ~FilePort() = default;

    /// What the path leads to.
    virtual FileKind Kind(const Text& path) = 0;

    /// The full path of what a symbolic link leads to, which need not be there; empty when the path
    /// is no link or the link cannot be followed.
    virtual Text LinkTarget(const Text& path) = 0;

    /// True when both paths are known to lead to one and the same file.
    virtual bool IsSameFile(const Text& first, const Text& second) = 0;

    /// Opens a file for reading; others may read and write it meanwhile.
    virtual FileResult OpenForReading(const Text& path, FileHandle& file) = 0;

    /// Reads the next bytes; `count` 0 is the end of the file.
    virtual FileResult Read(FileHandle file, std::span<char> buffer, std::size_t& count) = 0;

    /// Opens a file for writing and shuts out a second writer. On failure nothing is changed.
    virtual FileResult Create(const Text& path, CreateMode mode, FileHandle& file) = 0;

    /// Makes room for a content of so many bytes; what the file holds stays. A system that cannot
    /// say whether there is room succeeds.
    virtual FileResult Reserve(FileHandle file, std::size_t size) = 0;

    /// Makes the bytes the whole content of the file; anything less is a failure.
    virtual FileResult Write(FileHandle file, std::string_view bytes) = 0;

    /// Has the written bytes put on the disk.
    virtual FileResult Flush(FileHandle file) = 0;

    /// Closes the file, even when it reports a failure.
    virtual FileResult Close(FileHandle file) = 0;

    /// Renames a file. Never replaces an existing file: that is a failure.
    virtual FileResult Rename(const Text& from, const Text& to) = 0;

    /// Deletes a file, also a read-only one.
    virtual FileResult Remove(const Text& path) = 0;
};

} // namespace ov
