#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace ov::bench
{

/// A configuration file that has been read.
class Document
{
  public:
    virtual ~Document() = default;

    /// The number of variables.
    virtual std::size_t Count() const = 0;

    /// Creates the bytes of the file, discards them, and returns their number.
    virtual std::size_t Write() const = 0;
};

/// A reader of configuration files: this program's, or a peer from another library.
struct Contender {
    std::string name;
    bool needsGroup;   ///< The variables must follow a group line, "[bench]".
    bool keepsComment; ///< The written file contains the comments that were read.
    bool writes;
    bool countsMemory; ///< It allocates all its memory with the C++ operators.
    std::unique_ptr<Document> (*read)(const std::filesystem::path& path);
};

/// This program's reader first, then the peers that were found at configuration time.
const std::vector<Contender>& Contenders();

/// The peers that were not found, separated by ", ".
std::string MissingContenders();

std::unique_ptr<Document> ReadWithGlib(const std::filesystem::path& path);
std::unique_ptr<Document> ReadWithSimpleIni(const std::filesystem::path& path);
std::unique_ptr<Document> ReadWithInih(const std::filesystem::path& path);

} // namespace ov::bench
