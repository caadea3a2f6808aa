#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/config_line.h"
#include "config/core/config_writer.h"
#include "document/core/document.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ov
{

/// A configuration file for the rules: its lines, and the variable that each of them
/// assigns. Lines count from 0.
class InspectedFile
{
  public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// The assignments of one variable.
    struct Variable {
        std::string_view name; ///< in the bytes of the file
        std::size_t firstLine;
        std::size_t lastLine;
        std::size_t lastSet; ///< the last line with "=", or kNone
    };

    struct Line {
        ConfigLine parts;
        std::size_t variable = kNone; ///< index of the variable that the line assigns
        bool isConflictMarker = false;
    };

    InspectedFile(std::string bytes, Charset charset);

    const std::string& Bytes() const { return m_document.Bytes(); }
    Charset Encoding() const { return m_charset; }
    const std::vector<Line>& Lines() const { return m_lines; }
    /// In the order of their first lines, without conflict markers that parse as assignments.
    const std::vector<Variable>& Variables() const { return m_variables; }

    /// The variable of that name; null if the file has none.
    const Variable* Find(TextView name) const;

    Text Decode(std::string_view bytes) const;

    /// The column of an assignment's value, in characters from 1; 1 without a value.
    std::size_t ValueColumn(std::size_t line) const;

    /// The comment lines above the first blank line, which Save replaces by its own header. Empty
    /// if there is no blank line or an assignment comes before it.
    const std::vector<std::size_t>& HeaderLines() const { return m_header; }

    /// True if these lines are a header in the form that Save writes.
    bool IsHeaderSaved() const { return m_headerIsSaved; }

    /// The data of the last save, if the file's first comment lines are a header in the form that
    /// Save writes.
    const std::optional<HeaderInfo>& SavedHeader() const { return m_savedHeader; }

  private:
    void AddLine(std::size_t line);
    void FindHeader();

    Document m_document;
    Charset m_charset;
    LocaleDecoder m_decoder;
    std::vector<Line> m_lines;
    std::vector<Variable> m_variables;
    std::unordered_map<std::string_view, std::size_t> m_variableOf;
    std::vector<std::size_t> m_header;
    bool m_headerIsSaved = false;
    std::optional<HeaderInfo> m_savedHeader;
};

} // namespace ov
