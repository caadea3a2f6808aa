#pragma once

#include "base/text.h"

/// The path under which the system knows an existing file or folder: in its real case, with links resolved.
/// Empty if it cannot be opened.
ov::Text FinalPathOf(const ov::Text& path);
