#include "cli/run.h"
#include "framework/wide.h"

#include <string>
#include <vector>

// Arguments may be patterns such as "*.dgn"; the C runtime must not expand them to the names of
// files.
extern "C" {
extern int _dowildcard;
int _dowildcard = 0;
}

int wmain(int count, wchar_t** texts)
{
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(ov::Utf8FromText(FromWide(texts[i])));
    return static_cast<int>(ov::cli::Run(arguments));
}
