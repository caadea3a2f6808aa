#pragma once

#include <filesystem>
#include <string>

namespace ov::bench
{

/// A folder for a benchmark's files; the destructor removes it and its contents.
class Folder
{
  public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path operator/(const char* name) const { return m_path / name; }

  private:
    std::filesystem::path m_path;
};

/// Replaces a file's content by the bytes, preceded by a group line if requested.
void WriteBytes(const std::filesystem::path& file, const std::string& bytes, bool withGroup = false);

} // namespace ov::bench
