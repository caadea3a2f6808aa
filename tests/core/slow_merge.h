#pragma once

#include "base/text.h"
#include "document/core/list_entries.h"

#include <iosfwd>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace ov::test
{

/// The letters as the entries of a list.
ListEntries EntriesOfLetters(const std::string& letters);

/// Merges two lists of letters entry by entry, without regard to the time it takes. No list has a letter
/// twice. Nothing if both sides changed the order.
std::optional<std::string> SlowLists(const std::string& base, const std::string& ours,
                                     const std::string& theirs);

/// A variable of a file.
struct MergedVariable {
    Text value;
    Text comment; ///< Its lines, each with "\n".
    bool inherits = false;

    bool operator==(const MergedVariable&) const = default;
    bool SameValue(const MergedVariable& other) const
    {
        return value == other.value && inherits == other.inherits;
    }
};

/// Shows the variable in the message of a failed test.
void PrintTo(const MergedVariable& variable, std::ostream* stream);

using MergedVariables = std::map<Text, MergedVariable>;

/// The expected result of a merge, variable by variable. Variables whose names begin with "L_" are lists of
/// letters.
class SlowMerge
{
  public:
    SlowMerge(const MergedVariables& base, const MergedVariables& ours, const MergedVariables& theirs);

    /// The variables without those in conflict.
    const MergedVariables& Variables() const { return m_variables; }
    const std::set<Text>& Conflicts() const { return m_conflicts; }

  private:
    void Merge(const Text& name, const std::optional<MergedVariable>& base,
               const std::optional<MergedVariable>& ours, const std::optional<MergedVariable>& theirs);

    MergedVariables m_variables;
    std::set<Text> m_conflicts;
};

} // namespace ov::test
