#pragma once

#include "config/core/config_line.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// A line of a document: every byte of the file belongs to exactly one of its two parts.
struct DocumentLine {
    std::string_view text; ///< What the reader takes for the line.
    std::string_view end;  ///< "\n", "\r\n", or nothing at the end of a file without a final line end.
};

/// The bytes of a configuration file as lines, cut as the reader cuts them. Nothing is lost: the lines
/// one after the other are the file. Changes are made by LineEdits, which leaves the document as it is.
class Document
{
  public:
    explicit Document(std::string bytes);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    const std::string& Bytes() const { return m_bytes; }
    std::size_t LineCount() const { return m_lines.size(); }
    const DocumentLine& Line(std::size_t line) const { return m_lines[line]; }

    /// The line taken apart, as the reader understands it.
    ConfigLine Parts(std::size_t line) const { return ParseConfigLine(m_lines[line].text); }

    /// The line end for a new line below the given line: that of the line itself, else of the nearest
    /// line before it, else CR LF.
    std::string_view EndBelow(std::size_t line) const;

  private:
    std::string m_bytes;
    std::vector<DocumentLine> m_lines;
};

} // namespace ov
