/// Random variables for the property tests. Portable.
#pragma once

#include "tests/pages/expected_pages.h"

#include <random>

namespace expected
{

/// How a random table is brought into the pages.
enum class Carrier {
    Store, ///< as it is, past files and controls
    File,  ///< written to a file, shown by controls: nothing that a file changes, but choices that no control
           ///< has
};

/// Some of the variables of all pages, and of the older ones, with values that
/// mean something to them, and others that do not.
Table RandomTable(std::mt19937& random, Carrier carrier);

} // namespace expected
