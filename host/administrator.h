#pragma once

#include "launch/core/launch_call.h"

/// Opens the file of an administrator's call; see RunLaunchSession. Returns the exit code.
int OpenForAdministrator(const ov::LaunchCall& call, const ov::Text& defaults, const ov::Text& userName);
