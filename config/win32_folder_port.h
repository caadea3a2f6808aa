#pragma once

#include "config/core/folder_port.h"

/// The folder port for Windows.
class CWin32FolderPort final : public ov::FolderPort
{
  public:
    ov::TextView Separators() const override { return u"\\/:"; }
    ov::FileResult Facts(const ov::Text& path, ov::FileFacts& facts) override;
    ov::FileResult List(const ov::Text& folder, std::vector<ov::Text>& names) override;
    ov::FileResult TryRenaming(const ov::Text& path) override;
    ov::FileResult TryWriting(const ov::Text& path) override;
    ov::Text FullFolder(const ov::Text& folder) override;
    ov::Text Folded(ov::TextView name) const override;
};
