#pragma once

#include "document/core/variable_edit.h"

#include <string>
#include <string_view>

namespace ov::test
{

/// An edit of one variable.
struct AnyEdit {
    enum class Kind { Set, Unset, List };

    Kind kind = Kind::Set;
    Text name;
    Text value;        ///< Of Set.
    ListChange change; ///< Of List.
};

/// The edit's outcome, with KnownFacts.
EditResult Apply(const EditedFile& file, const AnyEdit& edit);

/// Replaces the pages' facts: K_FLAG, K_PATH, K_TEXT and K_COMMAS, a list with commas, are settings with
/// a comment. Nothing is known of other variables.
VariableFacts KnownFacts(TextView name);

/// Checks the lines of a document against a slow model of its own: every byte belongs to one line, and
/// each line is of the kind that the model finds. Gives the first fault, empty when there is none.
std::string FaultOfDocument(const std::string& bytes);

/// Applies an edit and checks everything that must hold of any edit:
/// - all lines but those of the variable, and the dialog's comment where that comes or goes, stay byte
///   for byte; so do the final line end or its lack;
/// - read again, the variable has the wanted value and all others have their old ones;
/// - applied again, the edit changes nothing, unless it moves an entry of a list;
/// - a new variable that is set and then unset leaves the file as it was;
/// - variables between "%if" and "%endif" do not change; an ordinary edit elsewhere is not refused.
/// Gives the first fault, empty when there is none.
std::string FaultOfEdit(const EditedFile& file, const AnyEdit& edit);

} // namespace ov::test
