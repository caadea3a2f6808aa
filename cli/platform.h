#pragma once

#include "config/core/file_port.h"
#include "config/core/folder_port.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ov::cli
{

/// Whether a backslash divides the names in a path, and a drive may come first.
#ifdef _WIN32
inline constexpr bool kBackslashDivides = true;
#else
inline constexpr bool kBackslashDivides = false;
#endif

/// The two streams that the program writes to.
enum class Stream { Output, Error };

/// How a write to a stream ended.
enum class WriteOutcome {
    Written,
    Closed, ///< The reader of the stream is gone.
    Failed,
};

/// Writes all bytes to the stream: unchanged to a file or a pipe, as UTF-8 text to a terminal.
/// If the outcome is Failed, `problem` receives the system's message.
WriteOutcome WriteBytes(Stream stream, std::string_view bytes, std::string& problem);

/// True if the stream is a terminal that supports colour escape sequences.
bool IsColourTerminal(Stream stream);

/// The environment variable's value in UTF-8; empty if it is not set.
std::string EnvironmentVariable(const char* name);

/// The most bytes that are read from one input, because a device may have no end.
inline constexpr std::size_t kLargestInput = std::size_t{1} << 30;

/// Sets `bytes` to everything that can be read from the path: a file, a pipe or a device. The path "-"
/// is the standard input. On failure returns false, with the system's message in `problem`.
bool ReadAll(const std::string& path, std::string& bytes, std::string& problem);

/// The file port of this system, for writing.
std::unique_ptr<FilePort> MakeFilePort();

/// The folder port of this system.
std::unique_ptr<FolderPort> MakeFolderPort();

/// Restores the permissions and owner of a file after it was replaced, as far as the system allows. Has
/// no effect on Windows, where the folder decides. While the object exists, new files of the process are
/// not more accessible than the file.
class AttributeKeeper
{
  public:
    /// Records the attributes of the file, if it exists.
    explicit AttributeKeeper(const std::string& path);
    AttributeKeeper(const AttributeKeeper&) = delete;
    AttributeKeeper& operator=(const AttributeKeeper&) = delete;
    ~AttributeKeeper();

  private:
    struct Attributes;
    std::string m_path;
    std::unique_ptr<Attributes> m_attributes; ///< Null if there is no file, and on Windows.
};

} // namespace ov::cli
