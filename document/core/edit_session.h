#pragma once

#include "config/core/setting_store.h"
#include "document/core/document.h"
#include "document/core/line_edits.h"
#include "document/core/variable_edit.h"
#include "document/core/variable_lines.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ov
{

/// What all edits of variables share: the file, the lines that are to change, what the named variables
/// are to be afterwards, and the check that they are.
class EditSession
{
  public:
    EditSession(const EditedFile& file, const FactsOf& factsOf);

    const Document& File() const { return m_document; }
    LineEdits& Edits() { return m_edits; }
    const SettingStore& Before() const { return m_before; }
    VariableFacts Facts(TextView name) const { return m_factsOf(name); }

    /// The variable's lines; none when it is absent.
    std::span<const VariableLine> LinesOf(TextView name) const;

    /// True when the variable's lines may be changed, or a new one be appended. Else refuses the edit.
    bool MayChange(TextView name);

    /// The value that a line by itself gives, as the reader takes it.
    Text ValueOf(std::size_t line) const;

    /// Gives a line another operator and value. What is before the value stays where the operator does.
    void Rewrite(std::size_t line, char operation, TextView name, TextView valueText);

    /// Inserts a line of a variable below one of its lines, with the same indentation.
    void InsertBelow(std::size_t line, char operation, TextView name, TextView valueText);

    /// Appends lines of a variable that is not there yet, under the dialog's comment.
    void AppendNew(TextView name, const VariableFacts& facts,
                   const std::vector<std::pair<char, Text>>& lines);

    /// Removes all lines of a variable that is there, and its comment if that is the dialog's.
    void RemoveVariable(TextView name);

    /// Says which value the variable is to have afterwards; nothing when it is to be absent.
    void Want(TextView name, std::optional<Text> value) { m_wanted.emplace_back(name, std::move(value)); }

    void Refuse(EditRefusal reason, TextView name, Text detail = {});

    /// Applies the edits and reads the result again.
    EditResult Finish();

  private:
    std::optional<std::string> Encoded(TextView name, TextView text);
    std::string Indentation(std::size_t line) const;
    std::size_t DialogCommentAbove(std::size_t line, const Text& comment) const;
    bool SeparatesHeader(std::size_t blankLine, std::size_t lastRemoved) const;
    void Check();

    const EditedFile& m_file;
    const FactsOf& m_factsOf;
    Charset m_charset;
    Document m_document;
    VariableLines m_lines;
    std::size_t m_headerLines; ///< Above the blank line that ends the header.
    LineEdits m_edits;
    SettingStore m_before;
    std::vector<std::pair<Text, std::optional<Text>>> m_wanted;
    EditResult m_result;
};

} // namespace ov
