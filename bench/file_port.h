#pragma once

#ifdef _WIN32
#include "config/win32_file_port.h"
#else
#include "config/core/posix_file_port.h"
#endif

namespace ov::bench
{

/// The file port of the platform on which the benchmark runs.
#ifdef _WIN32
using SystemFilePort = CWin32FilePort;
#else
using SystemFilePort = ov::PosixFilePort;
#endif

} // namespace ov::bench
