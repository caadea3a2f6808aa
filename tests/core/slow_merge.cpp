#include "tests/core/slow_merge.h"

#include <ostream>

namespace ov::test
{
namespace
{

std::optional<MergedVariable> Find(const MergedVariables& variables, const Text& name)
{
    const auto found = variables.find(name);
    return found == variables.end() ? std::nullopt : std::optional(found->second);
}

// Each entry of a list is one letter.
std::string Letters(const MergedVariable& variable)
{
    std::string letters = Utf8FromText(variable.value);
    std::erase(letters, ';');
    return letters;
}

bool MergeList(MergedVariable& merged, const Text& name, const std::optional<MergedVariable>& base,
               const MergedVariable& ours, const MergedVariable& theirs)
{
    const MergedVariable before = base.value_or(MergedVariable{});
    if (!name.starts_with(u"L_") || ours.inherits != theirs.inherits)
        return false;
    const auto list = SlowLists(Letters(before), Letters(ours), Letters(theirs));
    if (!list)
        return false;
    merged.value = JoinEntries(EntriesOfLetters(*list), {});
    merged.inherits = ours.inherits;
    return true;
}

} // namespace

ListEntries EntriesOfLetters(const std::string& letters)
{
    ListEntries entries;
    for (const char c : letters)
        entries.emplace_back(1, static_cast<char16_t>(c));
    return entries;
}

std::optional<std::string> SlowLists(const std::string& base, const std::string& ours,
                                     const std::string& theirs)
{
    const auto common = [&](const std::string& list) {
        std::string letters;
        for (const char c : list) {
            if (base.find(c) != base.npos && ours.find(c) != ours.npos && theirs.find(c) != theirs.npos)
                letters += c;
        }
        return letters;
    };
    const bool theyMoved = common(theirs) != common(base) && common(theirs) != common(ours);
    if (theyMoved && common(ours) != common(base))
        return std::nullopt;
    const std::string& kept = theyMoved ? theirs : ours;
    const std::string& other = theyMoved ? ours : theirs;
    std::string result = kept;
    for (const char c : base) {
        if (other.find(c) == other.npos)
            std::erase(result, c);
    }
    std::size_t place = 0;
    for (const char c : other) {
        const std::size_t found = result.find(c);
        if (found != result.npos)
            place = found + 1;
        else if (base.find(c) == base.npos)
            result.insert(place++, 1, c);
    }
    return result;
}

void PrintTo(const MergedVariable& variable, std::ostream* stream)
{
    *stream << (variable.inherits ? "> " : "= ") << Utf8FromText(variable.value) << " "
            << Utf8FromText(variable.comment);
}

SlowMerge::SlowMerge(const MergedVariables& base, const MergedVariables& ours, const MergedVariables& theirs)
{
    std::set<Text> names;
    for (const MergedVariables* side : {&base, &ours, &theirs}) {
        for (const auto& [name, variable] : *side)
            names.insert(name);
    }
    for (const Text& name : names)
        Merge(name, Find(base, name), Find(ours, name), Find(theirs, name));
}

void SlowMerge::Merge(const Text& name, const std::optional<MergedVariable>& base,
                      const std::optional<MergedVariable>& ours, const std::optional<MergedVariable>& theirs)
{
    if (!ours || !theirs) {
        const std::optional<MergedVariable>& only = ours ? ours : theirs;
        if (only && base && only != base)
            m_conflicts.insert(name);
        else if (only && !base)
            m_variables[name] = *only;
        return;
    }
    const MergedVariable before = base.value_or(MergedVariable{});
    const bool theyComment = theirs->comment != before.comment && theirs->comment != ours->comment;
    const bool weComment = ours->comment != before.comment && theirs->comment != ours->comment;
    MergedVariable merged = *ours;
    if (theyComment)
        merged.comment = theirs->comment;
    const bool theySet = !(base && theirs->SameValue(*base)) && !theirs->SameValue(*ours);
    const bool weSet = !(base && ours->SameValue(*base)) && !theirs->SameValue(*ours);
    if (theySet) {
        merged.value = theirs->value;
        merged.inherits = theirs->inherits;
    }
    if ((theyComment && weComment) || (theySet && weSet && !MergeList(merged, name, base, *ours, *theirs)))
        m_conflicts.insert(name);
    else
        m_variables[name] = merged;
}

} // namespace ov::test
