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

/// Why an edit was refused.
enum class EditRefusal {
    NotPlainText,     ///< The file is not plain text: `detail` says why.
    Conditional,      ///< The variable is assigned between "%if" and "%endif".
    EndsInCondition,  ///< A new variable would come after an open "%if".
    CharacterLacking, ///< The file's encoding lacks the character in `detail`.
    EmptyEntry,       ///< A list entry is empty.
    SeveralEntries,   ///< A list entry contains the list's separator, which is in `detail`, outside quotes.
    QuotesPair,       ///< Quotes in different entries would pair, and the list would have other entries.
    ListNotPlain,     ///< The variable's lines do not show which line has which entries.
    NameNotKept,      ///< The reader would not read the name back as a name.
    ValueNotKept,     ///< The value would read back as another one.
    OtherChanged,     ///< Another variable, `name`, would read back with another value.
    EncodingChanged,  ///< The file would appear to have another encoding.
};

/// A refusal and the variable that it concerns.
struct RefusedEdit {
    EditRefusal reason;
    Text name;
    Text detail;
};

/// The result of an edit.
struct EditResult {
    std::string bytes;                ///< The file after the edit; unspecified if something was refused.
    std::vector<RefusedEdit> refused; ///< Empty if the edit may be written.
    std::vector<Text> commentsLeft;   ///< Removed variables whose comments remain.
};

/// The file to edit. Its encoding is the requested one, otherwise it is detected from the bytes, before
/// and after the edit.
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

/// Changes of a list's entries, applied in this order.
struct ListChange {
    std::vector<Text> remove;
    std::vector<Text> prepend;
    std::vector<Text> append;
};

// The edits change the lines of the named variables only. Afterwards the result is read back: an edit
// is refused unless the named variables have exactly the wanted values and all others their old ones.
// A variable that already has the value, or is already absent, and an entry that is already
// there, or already absent, need no change.

/// Sets variables to new values. A name must not occur twice.
EditResult SetVariables(const EditedFile& file, const std::vector<NewValue>& values, const FactsOf& factsOf);

/// Removes variables, with their comments if the dialog wrote them.
EditResult UnsetVariables(const EditedFile& file, const std::vector<Text>& names, const FactsOf& factsOf);

/// Changes the entries of a list variable.
EditResult ChangeList(const EditedFile& file, const Text& name, const ListChange& change,
                      const FactsOf& factsOf);

} // namespace ov
