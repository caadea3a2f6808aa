#pragma once

#include "base/text.h"
#include "config/core/file_port.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// A line that was ended by LF without the CR that belongs to its line end, if there is one.
inline std::string_view WithoutCarriageReturn(std::string_view line)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// Cuts bytes that come in blocks into lines.
///
/// LF ends a line, and one CR before it belongs to the line end. Every other byte is part of its
/// line: a CR elsewhere, NUL, and also 0x1A, which some runtimes take for the end of the file;
/// ending there would lose what follows at the next save. The last line needs no line end. No
/// byte-order mark is recognised: its bytes are the beginning of the first line.
class LineSplitter
{
  public:
    /// Calls `line`, a function of a std::string_view, for each line that the block completes,
    /// without its line end. The line is valid during the call.
    template <typename LineFunction>
    void Feed(std::string_view block, const LineFunction& line)
    {
        while (!block.empty()) {
            const std::size_t length = block.find('\n');
            if (length == std::string_view::npos) {
                m_rest.append(block);
                return;
            }
            if (m_rest.empty()) {
                line(WithoutCarriageReturn(block.substr(0, length)));
            } else {
                m_rest.append(block, 0, length);
                line(WithoutCarriageReturn(m_rest));
                m_rest.clear();
            }
            block.remove_prefix(length + 1);
        }
    }

    /// Calls the function for a last line without a line end.
    template <typename LineFunction>
    void Finish(const LineFunction& line)
    {
        if (!m_rest.empty())
            line(std::string_view(m_rest));
        m_rest.clear();
    }

  private:
    std::string m_rest; ///< The beginning of a line whose end has not come yet.
};

/// Reads a file from beginning to end and gives its bytes in blocks.
FileResult ReadBlocks(FilePort& files, const Text& path, const std::function<void(std::string_view)>& block);

/// Empties `lines` and reads the file into it, a text for each line, by the process's locale. When
/// the file cannot be opened or read, `lines` is left as it was and the result says why.
FileResult ReadLines(FilePort& files, const Text& path, std::vector<Text>& lines);

/// Appends bytes with every LF as CR LF, as on disk.
void AppendWithLineEnds(std::string_view bytes, std::string& out);

/// Creates the file, emptying one that exists, and writes each text followed by a line end, by the
/// process's locale. A text that the locale cannot write is a failure before the file is touched.
FileResult WriteLines(FilePort& files, const Text& path, std::span<const Text> lines);

} // namespace ov
