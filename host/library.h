/// The library with the dialog.
#pragma once

#include "base/text.h"

/// Loads the library, shows the dialog and returns when the user has closed it. Empty texts are
/// passed as null. Returns the exit code; the user has seen why the library could not be loaded.
int ShowDialog(const ov::Text& defaultPath, const ov::Text& currentPath, const ov::Text& userName);
