#pragma once

#include <string>

namespace ov::test
{

/// The name of a C locale whose encoding is the Windows code page with this number, for ScopedLocale.
/// On Linux such locales exist only for the code pages that the build of the tests compiles.
std::string CodePageLocale(int codePage);

} // namespace ov::test
