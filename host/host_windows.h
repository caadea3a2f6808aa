#pragma once

#include "launch/core/file_ports.h"
#include "launch/core/launch_windows.h"

/// The launcher's windows on the screen.
class HostWindows final : public ov::LaunchWindows
{
  public:
    HostWindows(const ov::FilePorts& ports, ov::Text userName);

    bool AskStart(ov::StartChoice& choice) override;
    ov::LaunchReply Ask(const ov::LaunchQuestion& question) override;
    void Tell(const ov::LaunchNotice& notice) override;
    int ShowDialog(const ov::Text& defaults, const ov::Text& file) override;

  private:
    ov::FilePorts m_ports;
    ov::Text m_userName; ///< For the header of the saved file; empty: the Windows user.
};
