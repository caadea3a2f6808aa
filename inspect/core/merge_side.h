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

/// A variable as one of the files of a merge has it.
struct MergeVariable {
    Text name;
    std::vector<std::size_t> lines; ///< Its assignments that depend on no condition.
    std::size_t commentStart = 0;   ///< The first of the comment lines directly above the first one.
    bool conditional = false;       ///< It is also assigned between "%if" and "%endif".
    bool inherits = false;          ///< It has no "=" line, so it extends what an earlier file says.
    Text value;                     ///< As the reader takes it; for a conditional one the text of its lines.
    Text comment;                   ///< Its comment lines without blank ones and without the line that
                                    ///< says when the file was saved.
};

/// One file of a merge: its lines by the variable that they belong to, and those that belong to none.
class MergeSide
{
  public:
    MergeSide(std::string_view bytes, Charset charset);

    const Document& File() const { return m_document; }
    Charset Encoding() const { return m_charset; }
    const SettingStore& Store() const { return m_store; }

    /// All variables in the order of their first lines.
    const std::vector<MergeVariable>& Variables() const { return m_variables; }

    /// Null when the file does not assign the variable outside conditions.
    const MergeVariable* Find(const Text& name) const;

    /// The line in memory's encoding.
    Text LineText(std::size_t line) const;

    /// The value that a line by itself gives.
    Text LineValue(std::size_t line) const;

    /// The comment lines above the first blank line, when no assignment is above it: the header.
    const std::vector<std::size_t>& HeaderLines() const { return m_headerLines; }

    /// The blank line below the header; nothing without a header or a line below it.
    std::optional<std::size_t> BlankBelowHeader() const { return m_blankBelowHeader; }

    /// True when the header is as Save writes it.
    bool HasSavedHeader() const;

    /// The lines that belong to no variable and not to the header, and are not blank: directives and what
    /// is between "%if" and "%endif", lines without an operator, comments that no variable takes.
    const std::vector<std::size_t>& OtherLines() const { return m_otherLines; }

    /// The texts of lines, without white space at their ends.
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
    SettingStore m_store;
    std::vector<std::size_t> m_headerLines;
    std::optional<std::size_t> m_blankBelowHeader;
    std::vector<MergeVariable> m_variables;
    std::unordered_map<Text, std::size_t> m_byName;
    std::vector<std::size_t> m_otherLines;
};

} // namespace ov
