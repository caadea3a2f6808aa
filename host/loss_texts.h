/// The words for what Save would do to a file.
#pragma once

#include "launch/core/file_look.h"

/// What the user should know before the file opens, as a list.
ov::Text RemarksText(const ov::Text& path, const ov::FileLook& look);

/// The difference that Save would make, with CRLF; empty if there is none.
ov::Text DetailsText(const ov::FileLook& look);
