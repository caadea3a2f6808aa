#pragma once

#include "base/text.h"
#include "config/core/local_time.h"
#include "launch/core/file_ports.h"

#include <optional>
#include <tuple>

namespace ov
{

/// Which copy of a file: the time in its name, and its number if the time is that of an earlier copy. The
/// order of the stamps of a file is the order in which its copies were made.
struct CopyStamp {
    LocalTime time{};
    int number = 1;

    bool operator==(const CopyStamp&) const = default;
    bool operator<(const CopyStamp& other) const
    {
        return std::tie(time, number) < std::tie(other.time, other.number);
    }
};

/// The names of the dated copies of one file: "office.cfg 2026-11-22 13.05.12.copy", and
/// "office.cfg 2026-11-22 13.05.12-2.copy" for a further copy with the same time. They do not end
/// like the file, because the CAD host may read every *.cfg of a folder.
///
/// In a folder of choice, which can contain copies of files with the same name from several folders, a
/// digest of the file's path follows: "office.cfg 2026-11-22 13.05.12 0a1b2c3d.copy". While a copy is
/// being written, its name ends in ".part".
class CopyNames
{
  public:
    /// `folder` contains the copies; empty for the file's own folder.
    CopyNames(const Text& path, const Text& folder, const FilePorts& ports);

    /// The folder of the copies, for JoinPath.
    const Text& Folder() const { return m_folder; }

    Text NameOf(const CopyStamp& stamp) const;
    Text UnfinishedNameOf(const CopyStamp& stamp) const;

    /// The stamp of a name that NameOf returns for this file; nothing for every other name.
    std::optional<CopyStamp> StampOf(TextView name) const;

    /// The same for UnfinishedNameOf.
    std::optional<CopyStamp> StampOfUnfinished(TextView name) const;

  private:
    Text Format(const CopyStamp& stamp, TextView ending) const;
    std::optional<CopyStamp> Parse(TextView name, TextView ending) const;

    const FolderPort& m_folders;
    Text m_folder;
    Text m_name; ///< The file's name.
    Text m_mark; ///< The digest of its path after a blank; empty beside the file.
};

} // namespace ov
