#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// How much a finding matters.
enum class Severity { Error, Warning, Note };

/// "error", "warning" or "note".
const char* SeverityName(Severity severity);

/// All rules, in the order of their ids.
enum class RuleId : std::size_t {
    DirectiveLost,
    LineIgnored,
    HeaderReplaced,
    CommentLost,
    InheritedList,
    ValueChanges,
    AssignedAgain,
    CharacterRefused,
    EntryCut,
    MalformedOperator,
    ConflictMarker,
    HeaderRepeats,
    ByteOrderMark,
    NotPlainText,
    SettingsAdded,
    UnknownVariable,
    NotAFlag,
    NotANumber,
    NoSuchChoice,
    UnbalancedQuotes,
    BadTemplate,
    ImpossibleDay,
    PathMissing,
    NoEffect,
    EqualsDefault,
    ListsDiffer,
};

/// One thing that can be wrong with a file. Ids and names are stable for ever: scripts
/// rely on them.
struct Rule {
    RuleId rule;
    const char* id;   ///< "OV101"
    const char* name; ///< "directive-lost"
    Severity severity;
    bool byDefault;              ///< whether it is looked at unless the caller selects rules
    const char* summary;         ///< in a few words
    const char* message;         ///< one sentence; words in braces are filled in for each finding
    const char* explanation;     ///< when it fires, why that matters, what to do
    const char* example;         ///< a file on which it fires, in the notation of ExampleBytes
    const char* exampleDefaults; ///< the defaults file of the example; empty for none
};

/// All rules in the order of their ids, which is that of RuleId.
std::span<const Rule> Rules();

const Rule& RuleOf(RuleId rule);

/// The bytes of an example. "{E9}" stands for the byte of that hexadecimal number,
/// "{1100 letters}" for as many letters; lines end in LF.
std::string ExampleBytes(std::string_view example);

/// Whether a rule's findings say what Save would change: those of the ids OV1xx.
bool IsLoss(const Rule& rule);

/// A set of rules.
class RuleSet
{
  public:
    /// The rules that are looked at by default.
    RuleSet();

    bool Contains(RuleId rule) const { return m_contains[static_cast<std::size_t>(rule)]; }

    /// Removes all rules.
    void Clear();

    /// Adds or removes the rules of an id ("OV101"), of the beginning of an id ("OV1"), or
    /// "all". False when no rule is meant.
    bool Set(std::string_view which, bool contains);

  private:
    std::vector<bool> m_contains;
};

} // namespace ov
