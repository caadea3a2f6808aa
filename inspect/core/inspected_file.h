#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "config/core/config_line.h"
#include "config/core/config_writer.h"
#include "config/core/setting_table.h"
#include "document/core/document.h"
#include "inspect/core/setting_index.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
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
        std::string_view name;       ///< in the bytes of the file
        const SettingPlace* setting; ///< null if no page has the variable
        std::size_t firstLine;
        std::size_t lastLine;
        std::size_t lastSet; ///< the last line with "=", or kNone
    };

    /// A line that is neither blank nor a comment.
    struct Line {
        std::size_t number;
        std::size_t variable; ///< index of the variable that the line assigns, or kNone
        LineKind kind;
        char operation;       ///< as in ConfigLine
        bool isOperatorPlain; ///< true if the operator token is the operator alone
        bool isConflictMarker;
    };

    InspectedFile(std::string bytes, Charset charset);

    const std::string& Bytes() const { return m_document.Bytes(); }
    Charset Encoding() const { return m_charset; }

    /// The number of lines of all kinds.
    std::size_t LineCount() const { return m_document.LineCount(); }
    /// The line parsed as the reader parses it. Fast enough for single lines; Lines() has the facts about
    /// many.
    ConfigLine Parts(std::size_t line) const { return m_document.Parts(line); }

    /// The lines that are neither blank nor comments.
    const std::vector<Line>& Lines() const { return m_lines; }
    /// In the order of their first lines, without conflict markers that parse as assignments.
    const std::vector<Variable>& Variables() const { return m_variables; }

    /// The variable of that name; null if the file has none.
    const Variable* Find(TextView name) const;

    Text Decode(std::string_view bytes) const;

    /// The decoded bytes: a view of the bytes themselves if they are plain, otherwise of `room`.
    CompactView Decode(std::string_view bytes, Text& room) const;

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
    void AddLine(std::size_t number);
    void FindHeader();

    Document m_document;
    Charset m_charset;
    LocaleDecoder m_decoder;
    LocaleEncoder m_encoder;
    std::vector<Line> m_lines;
    std::vector<Variable> m_variables;
    SettingTable m_names; ///< The names in bytes. The index of a name is that of its variable.
    std::vector<std::size_t> m_header;
    bool m_headerIsSaved = false;
    std::optional<HeaderInfo> m_savedHeader;
};

} // namespace ov
