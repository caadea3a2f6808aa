#pragma once

#include "base/text.h"

namespace ov
{

/// What the user enters before a file is opened.
struct StartChoice {
    Text file;
    Text defaults;   ///< Empty: the office has no defaults file.
    int copies = 0;  ///< How many dated copies are kept; 0 for none.
    Text copyFolder; ///< Empty: the file's own folder.
};

} // namespace ov
