#pragma once

#include "base/text.h"

#include <optional>
#include <span>
#include <vector>

namespace ov
{

/// How the launcher was called.
struct LaunchCall {
    /// True if an administrator opened the program or gave it one file: questions and settings of the
    /// user apply. False for a call that names the file to edit by CURRENT: or as the second of several
    /// paths: the dialog opens at once, as a CAD host opens it.
    bool isAdministrators = false;
    bool noQuestions = false;         ///< --no-questions: without questions, copies and settings of the user
    bool ask = false;                 ///< --ask: show the window for files and options in any case
    bool forget = false;              ///< --forget: discard what is remembered for the user
    bool givesDefaults = false;       ///< a parameter DEFAULT: exists
    Text path;                        ///< the administrator's file; empty if the user has to choose one
    std::vector<std::size_t> rest;    ///< the parameters for CCmdLineInfo, without path and options
    std::optional<std::size_t> wrong; ///< the parameter that does not fit; the others are not set then
};

/// True for a parameter that begins with "-" or "/".
bool IsSwitch(TextView parameter);

/// True for the options --ask, --forget and --no-questions.
bool IsLaunchOption(TextView parameter);

/// Reads the parameters of a command line, without the program's name. `isKnown` decides about the
/// switches that are not the launcher's own.
LaunchCall ReadLaunchCall(std::span<const Text> parameters, bool (*isKnown)(const Text& parameter));

} // namespace ov
