/// Files and folders for tests, byte for byte.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace uidriver
{

/// A new, empty folder; removed with all that is in it at the end.
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

/// The file's bytes; nothing when it cannot be read.
std::optional<std::string> ReadBytes(const std::wstring& path);

/// Creates or replaces the file. False when that fails.
bool WriteBytes(const std::wstring& path, const std::string& bytes);

bool PathExists(const std::wstring& path);

/// Empty when both are equal; otherwise a unified account of the lines that
/// differ, with bytes outside printable ASCII (line ends too) shown as escapes.
/// `EXPECT_EQ("", Difference(expected, actual))` prints what matters.
std::string Difference(const std::string& expected, const std::string& actual);

} // namespace uidriver
