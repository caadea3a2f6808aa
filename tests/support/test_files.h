/// Files and folders for tests, byte for byte.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace uidriver
{

/// A new, empty folder; the destructor removes it and its contents.
class TempFolder
{
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::wstring& Path() const { return m_path; }
    /// The path of a file in the folder.
    std::wstring operator/(const std::wstring& name) const { return m_path + L'\\' + name; }
    /// The names in the folder, in alphabetical order.
    std::vector<std::wstring> Names() const;

  private:
    std::wstring m_path;
};

/// The file's bytes; nothing if it cannot be read.
std::optional<std::string> ReadBytes(const std::wstring& path);

/// Creates or replaces the file. False on failure.
bool WriteBytes(const std::wstring& path, const std::string& bytes);

bool PathExists(const std::wstring& path);

/// Empty if both are equal; otherwise a unified difference of the lines, with
/// bytes outside printable ASCII (including line ends) shown as escapes.
/// `EXPECT_EQ("", Difference(expected, actual))` then prints what differs.
std::string Difference(const std::string& expected, const std::string& actual);

} // namespace uidriver
