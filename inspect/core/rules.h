#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// How serious a finding is.
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

/// A problem that a file can have. Ids and names never change, because scripts rely
/// on them.
struct Rule {
    RuleId rule;
    const char* id;   ///< "OV101"
    const char* name; ///< "directive-lost"
    Severity severity;
    bool byDefault;              ///< true if the rule is selected unless the caller selects rules
    const char* summary;         ///< a short description
    const char* message;         ///< one sentence; words in braces are replaced for each finding
    const char* explanation;     ///< when it fires, why that matters, what to do
    const char* example;         ///< a file on which it fires, in the notation of ExampleBytes
    const char* exampleDefaults; ///< the defaults file of the example; empty if there is none
};

/// All rules in the order of their ids, which is also that of RuleId.
std::span<const Rule> Rules();

const Rule& RuleOf(RuleId rule);

/// The bytes of an example. "{E9}" is the byte with that hexadecimal number,
/// "{1100 letters}" is that number of letters; lines end with LF.
std::string ExampleBytes(std::string_view example);

/// True if a rule's findings report what Save would change: the ids OV1xx.
bool IsLoss(const Rule& rule);

/// A set of rules.
class RuleSet
{
  public:
    /// The rules that are selected by default.
    RuleSet();

    bool Contains(RuleId rule) const { return m_contains[static_cast<std::size_t>(rule)]; }

    /// Removes all rules.
    void Clear();

    /// Adds or removes rules: an id ("OV101"), the beginning of ids ("OV1"), or
    /// "all". False if no rule matches.
    bool Set(std::string_view which, bool contains);

  private:
    std::vector<bool> m_contains;
};

} // namespace ov
