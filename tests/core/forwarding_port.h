#pragma once

#include "config/core/file_port.h"

namespace ov::test
{

/// Forwards every operation to another port; a test overrides the operation that it tests.
class ForwardingPort : public FilePort
{
  public:
    explicit ForwardingPort(FilePort& files) : m_files(files) {}

    FileKind Kind(const Text& path) override { return m_files.Kind(path); }
    Text LinkTarget(const Text& path) override { return m_files.LinkTarget(path); }
    bool IsSameFile(const Text& first, const Text& second) override
    {
        return m_files.IsSameFile(first, second);
    }
    FileResult OpenForReading(const Text& path, FileHandle& file) override
    {
        return m_files.OpenForReading(path, file);
    }
    FileResult Read(FileHandle file, std::span<char> buffer, std::size_t& count) override
    {
        return m_files.Read(file, buffer, count);
    }
    FileResult Create(const Text& path, CreateMode mode, FileHandle& file) override
    {
        return m_files.Create(path, mode, file);
    }
    FileResult Reserve(FileHandle file, std::size_t size) override { return m_files.Reserve(file, size); }
    FileResult Write(FileHandle file, std::string_view bytes) override { return m_files.Write(file, bytes); }
    FileResult Flush(FileHandle file) override { return m_files.Flush(file); }
    FileResult Close(FileHandle file) override { return m_files.Close(file); }
    FileResult Rename(const Text& from, const Text& to) override { return m_files.Rename(from, to); }
    FileResult Remove(const Text& path) override { return m_files.Remove(path); }

  private:
    FilePort& m_files;
};

} // namespace ov::test
