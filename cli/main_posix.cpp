#include "cli/run.h"

int main(int count, char** texts)
{
    return static_cast<int>(ov::cli::Run({texts + 1, texts + (count > 0 ? count : 1)}));
}
