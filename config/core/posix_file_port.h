#pragma once

#include "config/core/file_port.h"

namespace ov
{

/// The result of an operation that failed with an error code of the system.
FileResult PosixFailure(int error);

/// The file port for POSIX. Paths are UTF-8 on disk. An advisory lock prevents a second
/// writer. It is in this folder because the native build, which consists of the portable
/// layers, needs one port for ovprefs and the tests. The Windows build leaves it out.
class PosixFilePort final : public FilePort
{
  public:
    FileKind Kind(const Text& path) override;
    Text LinkTarget(const Text& path) override;
    bool IsSameFile(const Text& first, const Text& second) override;
    FileResult OpenForReading(const Text& path, FileHandle& file) override;
    FileResult Read(FileHandle file, std::span<char> buffer, std::size_t& count) override;
    FileResult Create(const Text& path, CreateMode mode, FileHandle& file) override;
    FileResult Reserve(FileHandle file, std::size_t size) override;
    FileResult Write(FileHandle file, std::string_view bytes) override;
    FileResult Flush(FileHandle file) override;
    FileResult Close(FileHandle file) override;
    FileResult Rename(const Text& from, const Text& to) override;
    FileResult Remove(const Text& path) override;
};

} // namespace ov
