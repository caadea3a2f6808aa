#pragma once

#include "config/core/file_port.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ov::cli
{

/// The two streams that the program writes to.
enum class Stream { Output, Error };

/// How a write to a stream ended.
enum class WriteOutcome {
    Written,
    Closed, ///< Nobody reads the stream any more.
    Failed,
};

/// Writes all bytes to the stream: as they are into a file or a pipe, as UTF-8 text to a terminal.
/// `problem` gets the system's words when the outcome is Failed.
WriteOutcome WriteBytes(Stream stream, std::string_view bytes, std::string& problem);

/// True when the stream is a terminal that understands the escape sequences of colours.
bool IsColourTerminal(Stream stream);

/// The environment variable's value in UTF-8; empty when it is not set.
std::string EnvironmentVariable(const char* name);

/// The most bytes that are read of one input: a device may have no end.
inline constexpr std::size_t kLargestInput = std::size_t{1} << 30;

/// Sets `bytes` to all that can be read under the path: a file, a pipe, a device. The path "-" is the
/// standard input. Returns false, with the system's words in `problem`, when reading fails.
bool ReadAll(const std::string& path, std::string& bytes, std::string& problem);

/// The file port of this system, for writing.
std::unique_ptr<FilePort> MakeFilePort();

/// Gives a file that is replaced by another one its permissions and owner again, as far as the system
/// allows. Without effect on Windows, where the folder decides. Meanwhile new files of the process are
/// not more accessible than the file.
class AttributeKeeper
{
  public:
    /// Notes the attributes of the file, if there is one.
    explicit AttributeKeeper(const std::string& path);
    AttributeKeeper(const AttributeKeeper&) = delete;
    AttributeKeeper& operator=(const AttributeKeeper&) = delete;
    ~AttributeKeeper();

  private:
    struct Attributes;
    std::string m_path;
    std::unique_ptr<Attributes> m_attributes; ///< Null without a file, and on Windows.
};

} // namespace ov::cli
