#pragma once

#include "config/core/config_line.h"
#include "config/core/text_lines.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// A line of a document. Every byte of the file belongs to exactly one of its two parts.
struct DocumentLine {
    std::string_view text; ///< The line as the reader parses it.
    std::string_view end;  ///< "\n", "\r\n", or empty at the end of a file without a final line end.
};

/// The lines of a configuration file, split as the reader splits them. The split is lossless: joined,
/// the lines are the file. LineEdits makes changes and does not modify the document.
class Document
{
  public:
    explicit Document(std::string bytes);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    const std::string& Bytes() const { return m_bytes; }
    std::size_t LineCount() const { return m_starts.size() - 1; }

    DocumentLine Line(std::size_t line) const
    {
        const std::string_view whole(m_bytes.data() + m_starts[line], m_starts[line + 1] - m_starts[line]);
        const std::string_view text =
            whole.back() == '\n' ? WithoutCarriageReturn(whole.substr(0, whole.size() - 1)) : whole;
        return {text, whole.substr(text.size())};
    }

    /// The line parsed as the reader parses it.
    ConfigLine Parts(std::size_t line) const { return ParseConfigLine(Line(line).text); }

    /// The line end for a new line below the given line: that line's own, else that of the nearest line
    /// before it, else CR LF.
    std::string_view EndBelow(std::size_t line) const;

  private:
    std::string m_bytes;
    std::vector<std::size_t> m_starts; ///< The position of each line, and the length of the file.
};

} // namespace ov
