#pragma once

#include "base/text.h"
#include "config/core/config_writer.h"
#include "launch/core/file_ports.h"
#include "launch/core/launch_windows.h"

#include <functional>
#include <optional>

namespace ov
{

/// What an administrator requested on the command line.
struct LaunchRequest {
    Text path{};                  ///< The full path of the file; empty if the user has to choose one.
    std::optional<Text> defaults; ///< The defaults file of this call only; empty for none.
    bool ask = false;             ///< Show the window for files and options even if they are known.
    bool forget = false;          ///< First forget what is remembered for the user.
};

/// What a session needs from the system.
struct LaunchSurroundings {
    FilePorts ports;
    LaunchMemory& memory;
    LaunchWindows& windows;
    std::function<LocalTime()> now;
    HeaderInfo header{}; ///< For the preview of a save.
};

/// Opens a file for an administrator: asks for what is missing, asks about what the user should know
/// before the dialog opens, keeps a dated copy of a file that changes, and remembers the answers. Returns
/// the exit code.
int RunLaunchSession(const LaunchRequest& request, const LaunchSurroundings& surroundings);

} // namespace ov
