#pragma once

#include "config/core/setting_store.h"
#include "document/core/variable_facts.h"

#include <vector>

namespace ov
{

/// A variable that only one of the two files has.
struct OnlyVariable {
    Text name;
    Text value;
};

/// A variable with different values.
struct ChangedVariable {
    Text name;
    Text before;
    Text after;
    bool isList = false;
    std::vector<Text> removed; ///< For a list: entries that were removed or moved away.
    std::vector<Text> added;   ///< For a list: entries that were added or moved here.
};

/// A variable in both files with different comments.
struct ChangedComment {
    Text name;
    Text before; ///< The comment lines, without blank lines.
    Text after;
};

/// The differences between two files by variable, each list in name order. Ignores the order of lines,
/// directives and headers.
struct VariableDifference {
    std::vector<OnlyVariable> added;
    std::vector<OnlyVariable> removed;
    std::vector<ChangedVariable> changed;
    std::vector<ChangedComment> comments;

    bool IsNone() const { return added.empty() && removed.empty() && changed.empty() && comments.empty(); }
};

/// Compares the current tables of two stores.
VariableDifference CompareVariables(const SettingStore& before, const SettingStore& after,
                                    const FactsOf& factsOf);

/// The non-blank lines of a variable's comment, each ending with "\n".
Text CommentText(CompactView comment);

} // namespace ov
