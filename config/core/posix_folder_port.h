#pragma once

#include "config/core/folder_port.h"

namespace ov
{

/// The folder port for POSIX. Paths are UTF-8 on disk.
class PosixFolderPort final : public FolderPort
{
  public:
    TextView Separators() const override { return u"/"; }
    FileResult Facts(const Text& path, FileFacts& facts) override;
    FileResult List(const Text& folder, std::vector<Text>& names) override;
    FileResult TryRenaming(const Text& path) override;
    FileResult TryWriting(const Text& path) override;
    Text FullFolder(const Text& folder) override;
    Text Folded(TextView name) const override { return Text(name); }
};

} // namespace ov
