/// The pages in the library under test.
#pragma once

#include "tests/pages/expected_pages.h"

#include <string>
#include <vector>

/// In the order of the category pane, identified by their templates.
std::vector<const expected::Page*> BuiltPages();

/// Their titles, as the category pane shows them.
std::vector<std::wstring> BuiltTitles();
