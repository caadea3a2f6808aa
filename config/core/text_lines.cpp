#include "config/core/text_lines.h"

namespace ov
{

void AppendWithLineEnds(std::string_view bytes, std::string& out)
{
    std::size_t done = 0;
    for (;;) {
        const std::size_t end = bytes.find('\n', done);
        if (end == std::string_view::npos)
            break;
        out.append(bytes, done, end - done);
        out.append("\r\n", 2);
        done = end + 1;
    }
    out.append(bytes, done);
}

} // namespace ov
