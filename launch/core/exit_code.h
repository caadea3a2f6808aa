#pragma once

namespace ov
{

/// The exit codes of the launcher.
enum ExitCode {
    kExitShown = 0,      ///< The dialog was shown. The library returns it.
    kExitNotSetUp = 1,   ///< The dialog could not be set up. The library returns it.
    kExitNotStarted = 2, ///< A wrong option, or the library is missing or not the right one.
    kExitCancelled = 3,  ///< The user cancelled before the dialog opened.
    kExitNoFile = 4,     ///< The file cannot be opened.
};

} // namespace ov
