#pragma once

#include "base/text.h"

// The texts that the application object carries for the dialog. They live as
// long as the library is loaded, so a later dialog finds what an earlier one
// was given. Defined in app/, which the wizard cannot see.

/// Path of the file of default values; empty when none was given.
const ov::Text& GetDefaultConfigPath();

/// Path of the file to edit; empty when none was given.
const ov::Text& GetCurrentConfigPath();

/// The user's name for the saved file's header. When none was given, the
/// logged-on user's name is asked for once and kept.
const ov::Text& GetConfigUserName();
