/// The words for what the portable part of the launcher has found.
#pragma once

#include "host/question_window.h"
#include "launch/core/launch_windows.h"

/// Why the path cannot be used, as one or two sentences.
ov::Text PathText(const ov::Text& path, const ov::PathCheck& check);

QuestionWords WordsOf(const ov::LaunchQuestion& question);

ov::Text TextOf(const ov::LaunchNotice& notice);
