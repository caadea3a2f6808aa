#pragma once

#include "base/locale_text.h"
#include "config/core/setting_store.h"
#include "document/core/document.h"
#include "document/core/list_entries.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ov
{

/// A variable in one of the files of a merge.
struct MergeVariable {
    Text name;
    std::vector<std::size_t> lines; ///< Its unconditional assignments.
    std::size_t commentStart = 0;   ///< The first of the comment lines directly above its first line.
    bool conditional = false;       ///< It is also assigned between "%if" and "%endif".
    bool inherits = false;          ///< It has no "=" line, so it extends the value from earlier files.
    Text value;                     ///< As the reader reads it; if conditional, the text of its lines.
    Text comment;                   ///< Its comment lines, without blank lines and without the line with the
                                    ///< date of the save.
};

/// One file of a merge: its lines, by the variable that they belong to, and those without one.
class MergeSide
{
  public:
    MergeSide(std::string_view bytes, Charset charset);

    const Document& File() const { return m_document; }
    Charset Encoding() const { return m_charset; }
    const SettingStore& Store() const { return m_store; }

    /// All variables in the order of their first lines.
    const std::vector<MergeVariable>& Variables() const { return m_variables; }

    /// Null if the file does not assign the variable outside conditions.
    const MergeVariable* Find(const Text& name) const;

    /// The line as text in memory.
    Text LineText(std::size_t line) const;

    /// The value of a line alone.
    Text LineValue(std::size_t line) const;

    /// The header: the comment lines above the first blank line, if no assignment is above it.
    const std::vector<std::size_t>& HeaderLines() const { return m_headerLines; }

    /// The blank line below the header; nothing if there is no header or no line below it.
    std::optional<std::size_t> BlankBelowHeader() const { return m_blankBelowHeader; }

    /// True if the header is in the form that Save writes.
    bool HasSavedHeader() const;

    /// The non-blank lines outside the header that belong to no variable: directives, lines between "%if"
    /// and "%endif", lines without an operator, comments without a variable.
    const std::vector<std::size_t>& OtherLines() const { return m_otherLines; }

    /// The texts of lines, without leading and trailing white space.
    std::vector<Text> Texts(const std::vector<std::size_t>& lines) const;

  private:
    std::size_t ReadHeader();
    void ReadLines(std::size_t first);
    void AddAssignment(std::size_t line, const ConfigLine& parts, std::vector<std::size_t>& above);
    void AddConditional(const ConfigLine& parts);
    void AddOthers(std::vector<std::size_t>& lines);
    void FinishVariables();

    Document m_document;
    Charset m_charset;
    LocaleDecoder m_decoder;
    SettingStore m_store;
    std::vector<std::size_t> m_headerLines;
    std::optional<std::size_t> m_blankBelowHeader;
    std::vector<MergeVariable> m_variables;
    std::unordered_map<Text, std::size_t> m_byName;
    std::vector<std::size_t> m_otherLines;
};

} // namespace ov
