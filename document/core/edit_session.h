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

/// The common part of all edits of variables: the file, the lines to change, the values that the named
/// variables must have afterwards, and the check that they have them.
class EditSession
{
  public:
    EditSession(const EditedFile& file, const FactsOf& factsOf);

    const Document& File() const { return m_document; }
    LineEdits& Edits() { return m_edits; }
    const SettingStore& Before() const { return m_before; }
    VariableFacts Facts(TextView name) const { return m_factsOf(name); }

    /// The variable's lines; empty if the variable is absent.
    std::span<const VariableLine> LinesOf(TextView name) const;

    /// True if the variable's lines may be changed, or a new one appended. Otherwise refuses the edit.
    bool MayChange(TextView name);

    /// The value of a line alone, as the reader reads it.
    Text ValueOf(std::size_t line) const;

    /// Changes the operator and value of a line. Text before the value is kept unless the operator changes.
    void Rewrite(std::size_t line, char operation, TextView name, TextView valueText);

    /// Inserts a line of a variable below one of its lines, with the same indentation.
    void InsertBelow(std::size_t line, char operation, TextView name, TextView valueText);

    /// Appends the lines of a new variable, under the comment that the dialog would write.
    void AppendNew(TextView name, const VariableFacts& facts,
                   const std::vector<std::pair<char, Text>>& lines);

    /// Removes all lines of an existing variable, and its comment if the dialog wrote it.
    void RemoveVariable(TextView name);

    /// Sets the value that the variable must have afterwards; nothing if it must be absent.
    void Want(TextView name, std::optional<Text> value) { m_wanted.emplace_back(name, std::move(value)); }

    void Refuse(EditRefusal reason, TextView name, Text detail = {});

    /// Applies the edits, reads the result and checks it.
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
    LocaleEncoder m_encoder;
    LocaleDecoder m_decoder;
    Document m_document;
    VariableLines m_lines;
    std::size_t m_headerLines; ///< Before the blank line that ends the header.
    LineEdits m_edits;
    SettingStore m_before;
    std::vector<std::pair<Text, std::optional<Text>>> m_wanted;
    EditResult m_result;
};

} // namespace ov
