#include "launch/core/path_parts.h"

namespace ov
{

PathParts SplitPath(const Text& path, const FolderPort& folders)
{
    const std::size_t separator = path.find_last_of(folders.Separators());
    const std::size_t nameBegin = separator == Text::npos ? 0 : separator + 1;
    return {path.substr(0, nameBegin), path.substr(nameBegin)};
}

Text JoinPath(const Text& folder, TextView name, const FolderPort& folders)
{
    Text path = folder;
    if (!path.empty() && folders.Separators().find(path.back()) == TextView::npos)
        path += folders.Separators().front();
    return path.append(name);
}

Text SavedPath(const Text& path, FilePort& files)
{
    Text target = files.LinkTarget(path);
    return target.empty() ? path : target;
}

Text PathKey(const Text& path, const FilePorts& ports)
{
    const PathParts parts = SplitPath(SavedPath(path, ports.files), ports.folders);
    return ports.folders.Folded(ports.folders.FullFolder(parts.folder) + parts.name);
}

} // namespace ov
