#include "host/administrator.h"

#include "config/core/config_writer.h"
#include "config/system_info.h"
#include "config/win32_file_port.h"
#include "config/win32_folder_port.h"
#include "host/full_path.h"
#include "host/host_windows.h"
#include "host/user_memory.h"
#include "launch/core/launch_session.h"

int OpenForAdministrator(const ov::LaunchCall& call, const ov::Text& defaults, const ov::Text& userName)
{
    CWin32FilePort files;
    CWin32FolderPort folders;
    const ov::FilePorts ports{files, folders};
    UserMemory memory;
    HostWindows windows(ports, userName);
    ov::LaunchRequest request;
    request.path = FullPath(call.path);
    if (call.givesDefaults)
        request.defaults = FullPath(defaults);
    request.ask = call.ask;
    request.forget = call.forget;
    const ov::Text user = userName.empty() ? GetLogonUserName() : userName;
    return ov::RunLaunchSession(request,
                                {.ports = ports,
                                 .memory = memory,
                                 .windows = windows,
                                 .now = [] { return ov::LocalTimeOf(GetLocalTimeNow()); },
                                 .header = {ov::FormatSaveDate(GetLocalTimeNow()), user, GetMachineName()}});
}
