#pragma once

#include "config/core/file_port.h"

/// The system's message for one of its error codes, at most 256 characters; "Error N." if it has
/// none.
ov::Text SystemErrorText(unsigned long error);

/// The result of an operation that failed with an error code of the system.
ov::FileResult Win32Failure(unsigned long error);

/// The file port for Windows.
class CWin32FilePort final : public ov::FilePort
{
  public:
    ov::FileKind Kind(const ov::Text& path) override;
    ov::Text LinkTarget(const ov::Text& path) override;
    bool IsSameFile(const ov::Text& first, const ov::Text& second) override;
    ov::FileResult OpenForReading(const ov::Text& path, ov::FileHandle& file) override;
    ov::FileResult Read(ov::FileHandle file, std::span<char> buffer, std::size_t& count) override;
    ov::FileResult Create(const ov::Text& path, ov::CreateMode mode, ov::FileHandle& file) override;
    ov::FileResult Reserve(ov::FileHandle file, std::size_t size) override;
    ov::FileResult Write(ov::FileHandle file, std::string_view bytes) override;
    ov::FileResult Flush(ov::FileHandle file) override;
    ov::FileResult Close(ov::FileHandle file) override;
    ov::FileResult Rename(const ov::Text& from, const ov::Text& to) override;
    ov::FileResult Remove(const ov::Text& path) override;
};
