#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace ov::bench
{

/// A configuration file that was read.
class Document
{
  public:
    virtual ~Document() = default;

    /// The number of variables.
    virtual std::size_t Count() const = 0;

    /// Makes the bytes of the file, drops them, and returns their number.
    virtual std::size_t Write() const = 0;
};

/// A reader of configuration files: this program's, or another library's for comparison.
struct Contender {
    std::string name;
    bool needsGroup;   ///< The variables must follow a group line, "[bench]".
    bool keepsComment; ///< What is written holds the comments that were read.
    bool writes;
    bool countsMemory; ///< All that it allocates it gets by the C++ operators.
    std::unique_ptr<Document> (*read)(const std::filesystem::path& path);
};

/// This program's reader first, then those that were found when this was built.
const std::vector<Contender>& Contenders();

/// The contenders that were not found, separated by ", ".
std::string MissingContenders();

std::unique_ptr<Document> ReadWithGlib(const std::filesystem::path& path);
std::unique_ptr<Document> ReadWithSimpleIni(const std::filesystem::path& path);
std::unique_ptr<Document> ReadWithInih(const std::filesystem::path& path);

} // namespace ov::bench
