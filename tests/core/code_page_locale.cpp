#include "tests/core/code_page_locale.h"

#include <cstdlib>

namespace ov::test
{

std::string CodePageLocale(int codePage)
{
#ifdef _WIN32
    return "." + std::to_string(codePage);
#else
    // The C library looks there for locales, instead of in the system's folder.
    setenv("LOCPATH", OV_TEST_LOCALES, 1);
    return "CP" + std::to_string(codePage);
#endif
}

} // namespace ov::test
