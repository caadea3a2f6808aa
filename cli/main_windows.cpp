#include "cli/run.h"

#include "framework/wide.h"

#include <string>
#include <vector>

// Templates such as "*.dgn" are arguments of commands: the C runtime must not replace them by the
// names of files.
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
