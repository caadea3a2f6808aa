/// Random variables for the property tests. Portable.
#pragma once

#include "tests/pages/expected_pages.h"

#include <random>

namespace expected
{

/// How a random table is loaded into the pages.
enum class Carrier {
    Store, ///< directly, without files and controls
    File,  ///< written to a file and shown by controls: no values that a file changes, but choices that
           ///< no control has
};

/// Some of the variables of all pages, and of the older ones, with valid and
/// invalid values.
Table RandomTable(std::mt19937& random, Carrier carrier);

} // namespace expected
