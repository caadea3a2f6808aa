#pragma once

#include "config/core/file_port.h"
#include "config/core/folder_port.h"

namespace ov
{

/// The access to files and folders of the functions in this layer.
struct FilePorts {
    FilePort& files;
    FolderPort& folders;
};

} // namespace ov
