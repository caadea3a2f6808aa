/// The pages that the library under test has.
#pragma once

#include "tests/pages/expected_pages.h"

#include <string>
#include <vector>

/// From the top of the category list to its bottom; known by their templates.
std::vector<const expected::Page*> BuiltPages();

/// Their titles, as the category list shows them.
std::vector<std::wstring> BuiltTitles();
