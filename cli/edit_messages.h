#pragma once

#include "document/core/variable_edit.h"

#include <string>

namespace ov::cli
{

/// Why an edit is refused, as a clause that begins with the variable's name.
std::string RefusalText(const RefusedEdit& refused);

} // namespace ov::cli
