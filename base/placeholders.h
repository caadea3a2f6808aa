#pragma once

#include "base/text.h"

#include <initializer_list>

namespace ov
{

/// Replaces "%1" in the pattern by the first value, "%2" by the second and so on. A placeholder
/// without a value remains. Placeholders inside the values are not replaced.
Text FillPlaces(TextView pattern, std::initializer_list<TextView> values);

/// Replaces the first "%d" in the pattern by the number.
Text FillNumber(TextView pattern, int number);

} // namespace ov
