#pragma once

#include "base/text.h"

// The texts that the application object holds for the dialog. They live as
// long as the library is loaded, so a later dialog uses what an earlier call
// has set. Defined in app/, which the wizard cannot include.

/// The path of the defaults file; empty if none was given.
const ov::Text& GetDefaultConfigPath();

/// The path of the current file; empty if none was given.
const ov::Text& GetCurrentConfigPath();

/// The user's name for the saved file's header. If none was given, the
/// logged-on user's name is queried once and kept.
const ov::Text& GetConfigUserName();
