#include "tests/data/test_data.h"

#include <cstdlib>

namespace ov::test
{

namespace
{

std::filesystem::path Root()
{
#ifdef _WIN32
    // Wide characters, because the folder's name may contain characters that the code page lacks.
    if (const wchar_t* const root = _wgetenv(L"OV_TEST_DATA"))
        return root;
#else
    if (const char* const root = std::getenv("OV_TEST_DATA"))
        return root;
#endif
    return OV_SOURCE_ROOT;
}

} // namespace

std::filesystem::path TestData(std::string_view path)
{
    return Root() / path;
}

} // namespace ov::test
