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
    Text systemText; ///< The system's message for a failure, without a line end; may be empty.

    explicit operator bool() const { return ok; }
};

/// An open file. Only the port that returned it knows its meaning.
using FileHandle = std::intptr_t;

/// What kind of object a path refers to.
enum class FileKind {
    Absent,
    File,
    Directory,
    Other,   ///< None of these: a device, a pipe, or symbolic links that form a cycle.
    Unknown, ///< The system does not report it.
};

/// What Create does with an existing file.
enum class CreateMode {
    New,      ///< Fails and leaves the file unchanged.
    Truncate, ///< Opens the file; its content remains until something is written.
};

/// The file system operations for reading and saving. Every operation reports failure in its result;
/// none shows a message, and none throws except std::bad_alloc. Paths are in the system's notation.
class FilePort
{
  public:
    virtual ~FilePort() = default;

    /// The kind of object that the path refers to.
    virtual FileKind Kind(const Text& path) = 0;

    /// The full path of a symbolic link's target, which need not exist; empty if the path is not a link
    /// or the link cannot be followed.
    virtual Text LinkTarget(const Text& path) = 0;

    /// True if both paths are known to refer to the same file.
    virtual bool IsSameFile(const Text& first, const Text& second) = 0;

    /// Opens a file for reading; other programs may read and write it meanwhile.
    virtual FileResult OpenForReading(const Text& path, FileHandle& file) = 0;

    /// Reads the next bytes; `count` is 0 at the end of the file.
    virtual FileResult Read(FileHandle file, std::span<char> buffer, std::size_t& count) = 0;

    /// Opens a file for writing and prevents a second writer. On failure nothing is changed.
    virtual FileResult Create(const Text& path, CreateMode mode, FileHandle& file) = 0;

    /// Reserves disk space for a content of `size` bytes; the file's present content remains. Succeeds on
    /// a system that cannot report whether there is enough space.
    virtual FileResult Reserve(FileHandle file, std::size_t size) = 0;

    /// Replaces the whole content of the file by the bytes; a partial write is a failure.
    virtual FileResult Write(FileHandle file, std::string_view bytes) = 0;

    /// Forces the written bytes to the disk.
    virtual FileResult Flush(FileHandle file) = 0;

    /// Closes the file, even if it reports a failure.
    virtual FileResult Close(FileHandle file) = 0;

    /// Renames a file. Never replaces an existing file: that is a failure.
    virtual FileResult Rename(const Text& from, const Text& to) = 0;

    /// Deletes a file, even a read-only one.
    virtual FileResult Remove(const Text& path) = 0;
};

} // namespace ov
