#pragma once

#include <filesystem>
#include <string>

namespace ov::bench
{

/// A folder for a benchmark's files, removed with all that is in it.
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

/// Replaces a file's content: the bytes, after a group line where that is asked for.
void WriteBytes(const std::filesystem::path& file, const std::string& bytes, bool withGroup = false);

} // namespace ov::bench
