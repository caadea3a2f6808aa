#pragma once

#include "config/core/setting_store.h"
#include "document/core/variable_facts.h"

#include <vector>

namespace ov
{

/// A variable that only one of two files has.
struct OnlyVariable {
    Text name;
    Text value;
};

/// A variable whose value differs.
struct ChangedVariable {
    Text name;
    Text before;
    Text after;
    bool isList = false;
    std::vector<Text> removed; ///< Of a list: entries that went, also those that are now elsewhere.
    std::vector<Text> added;   ///< Of a list: entries that came, also those that were elsewhere.
};

/// A variable of both files whose comment differs.
struct ChangedComment {
    Text name;
    Text before; ///< The comment lines, without blank lines.
    Text after;
};

/// How two files differ, variable by variable, each list in name order. The order of lines in the files,
/// their directives and their headers do not matter.
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

/// The lines of a variable's comment that are not blank, each with "\n".
Text CommentText(CompactView comment);

} // namespace ov
