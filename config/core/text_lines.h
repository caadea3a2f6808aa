#pragma once

#include <string>
#include <string_view>

namespace ov
{

/// Removes the CR of a CR LF line end from a line that was cut at LF.
inline std::string_view WithoutCarriageReturn(std::string_view line)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// Splits bytes that arrive in blocks into lines.
///
/// LF ends a line, and one CR before it belongs to the line end. Every other byte is part of its
/// line: a CR elsewhere, NUL, and also 0x1A, which some runtimes treat as the end of the file. Stopping
/// there would lose the rest of the file at the next save. The last line needs no line end. A
/// byte-order mark is not recognised: its bytes are the beginning of the first line.
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
    std::string m_rest; ///< The beginning of a line whose end has not arrived yet.
};

/// Appends bytes with every LF replaced by CR LF, as on disk.
void AppendWithLineEnds(std::string_view bytes, std::string& out);

} // namespace ov
