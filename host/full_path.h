#pragma once

#include "base/text.h"

/// The full path of a path that may be relative to the current directory; empty for an empty one.
ov::Text FullPath(const ov::Text& path);
