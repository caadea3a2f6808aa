/// The launcher's output: to the console or to redirected output if there is one,
/// otherwise into a message box.
#pragma once

#include "base/text.h"

/// Detaches from a console that Windows opened for this process alone, as it does
/// when the launcher is started from a folder or a shortcut: the user asked for the
/// dialog only. Call it once, before anything else.
void DropOwnConsole();

/// Shows text that the user asked for (stdout, or an information box).
void ShowText(const ov::Text& text);

/// Shows an error (stderr, or a message box with the warning icon).
void ShowError(const ov::Text& text);
