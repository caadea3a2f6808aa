#pragma once

#include <string_view>

namespace ov
{

/// The reason why a file is not text in 8 bits with lines that end in LF, as a clause: the dialog would
/// read nothing from it, and an edit would damage it. Null for all other files.
const char* WhyNotPlainText(std::string_view bytes);

} // namespace ov
