#pragma once

#include "base/locale_text.h"
#include "base/text.h"
#include "document/core/variable_facts.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// Why an edit is refused.
enum class EditRefusal {
    Conditional,      ///< The variable is assigned between "%if" and "%endif".
    EndsInCondition,  ///< A new variable would be behind an open "%if".
    CharacterLacking, ///< The file's encoding lacks a character: `detail`.
    EmptyEntry,       ///< A list entry is empty.
    SeveralEntries,   ///< A list entry has the list's separator, `detail`, in it.
    ListNotPlain,     ///< The variable's lines do not show which of them has which entries.
    NameNotKept,      ///< The reader would take the name for something else.
    ValueNotKept,     ///< The value would be read back as another one.
    OtherChanged,     ///< Another variable, `name`, would be read back with another value.
    EncodingChanged,  ///< The file would be taken for one in another encoding.
};

/// A refusal with the variable that it is about.
struct RefusedEdit {
    EditRefusal reason;
    Text name;
    Text detail;
};

/// What came of an edit.
struct EditResult {
    std::string bytes;                ///< The file afterwards; of no use when something is refused.
    std::vector<RefusedEdit> refused; ///< Empty when the edit may be written.
    std::vector<Text> commentsLeft;   ///< Variables that were removed and whose comment stays.
};

/// A file that is to be edited. The encoding that was asked for, else the bytes decide, before and
/// after the edit.
struct EditedFile {
    std::string_view bytes;
    std::optional<Charset> charset;

    Charset CharsetOf(std::string_view content) const { return charset ? *charset : DetectCharset(content); }
};

/// A variable with its new value.
struct NewValue {
    Text name;
    Text value;
};

/// What is to be done to the entries of a list, in this order.
struct ListChange {
    std::vector<Text> remove;
    std::vector<Text> prepend;
    std::vector<Text> append;
};

// The edits change the lines of the named variables and no others. Afterwards the file is read again:
// an edit is refused unless the named variables have exactly the wanted values and all others their old
// ones. A value that a variable already has, a variable that is already absent and an entry that is
// already there or absent need no change.

/// Gives variables new values. A name must not occur twice.
EditResult SetVariables(const EditedFile& file, const std::vector<NewValue>& values, const FactsOf& factsOf);

/// Removes variables, with their comments where those are the dialog's.
EditResult UnsetVariables(const EditedFile& file, const std::vector<Text>& names, const FactsOf& factsOf);

/// Changes the entries of a list variable.
EditResult ChangeList(const EditedFile& file, const Text& name, const ListChange& change,
                      const FactsOf& factsOf);

} // namespace ov
