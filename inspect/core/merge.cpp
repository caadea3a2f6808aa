#include "inspect/core/merge.h"

#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "inspect/core/list_merge.h"
#include "inspect/core/merge_others.h"
#include "inspect/core/merge_output.h"
#include "inspect/core/merge_side.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace ov
{
namespace
{

// True if two files assign a variable the same value, ignoring comments, or if neither assigns it.
bool SameValue(const MergeVariable* first, const MergeVariable* second)
{
    if (first == nullptr || second == nullptr)
        return first == second;
    return first->value == second->value && first->inherits == second->inherits &&
           first->conditional == second->conditional;
}

// The side whose version of a variable, or of its comment, is used.
enum class Winner { Ours, Theirs, Both };

Winner ChooseValue(const MergeVariable* base, const MergeVariable* ours, const MergeVariable* theirs)
{
    if (SameValue(theirs, base) || SameValue(theirs, ours))
        return Winner::Ours;
    return SameValue(ours, base) ? Winner::Theirs : Winner::Both;
}

// Both files assign the variable. Without a common version, having a comment is better than having none.
Winner ChooseComment(const MergeVariable* base, const MergeVariable& ours, const MergeVariable& theirs)
{
    const Text common = base != nullptr ? base->comment : Text();
    if (theirs.comment == common || theirs.comment == ours.comment)
        return Winner::Ours;
    return ours.comment == common ? Winner::Theirs : Winner::Both;
}

// The entries of a list, by the lines that add them: before the inherited entries or after them.
struct ListParts {
    ListEntries front;
    ListEntries back;
};

std::optional<ListParts> PartsOf(const MergeSide& side, const MergeVariable* variable,
                                 const ListFormat& format)
{
    ListParts parts;
    if (variable == nullptr)
        return parts;
    if (!variable->inherits) {
        parts.back = EntriesOf(variable->value, format);
        return parts;
    }
    for (const std::size_t line : variable->lines) {
        const char operation = side.File().Parts(line).operation;
        if (operation != '>' && operation != '<')
            return std::nullopt;
        const ListEntries entries = EntriesOf(side.LineValue(line), format);
        ListEntries& part = operation == '<' ? parts.front : parts.back;
        part.insert(operation == '<' ? part.begin() : part.end(), entries.begin(), entries.end());
    }
    return parts;
}

class Merger
{
  public:
    Merger(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs, const FactsOf& factsOf,
           std::set<Text> refused)
        : m_base(base), m_ours(ours), m_theirs(theirs), m_factsOf(factsOf), m_refused(std::move(refused)),
          m_output(ours, theirs)
    {
    }

    MergeResult Run()
    {
        m_result.otherLines = !MergeOtherLines(m_base, m_ours, m_theirs, m_output);
        // What is inserted first is above what is inserted later: these go above the comment of the variable
        // that follows them, which may be new too.
        MergeNewOnes(NewPlace::AboveAllCommon);
        for (const MergeVariable& ours : m_ours.Variables()) {
            if (!ours.lines.empty())
                MergeOurs(ours);
        }
        MergeNewOnes(NewPlace::BelowACommon);
        m_result.bytes = m_output.Finish();
        std::sort(m_result.conflicts.begin(), m_result.conflicts.end());
        return m_result;
    }

    // The variables that do not read back from the result as they were merged.
    std::set<Text> NotKept() const
    {
        SettingStore store;
        ReadConfig(store, kCurrentTable, m_result.bytes, m_output.Encoding());
        std::set<Text> names;
        for (const auto& [name, value] : m_wanted) {
            const bool there = store.HasSetting(name, kCurrentTable);
            if (there != value.has_value() || (there && store.GetSettingValue(name, kCurrentTable) != *value))
                names.insert(name);
        }
        return names;
    }

  private:
    void MergeOurs(const MergeVariable& ours)
    {
        const MergeVariable* const base = m_base.Find(ours.name);
        const MergeVariable* const theirs = m_theirs.Find(ours.name);
        const Winner choice = ChooseValue(base, &ours, theirs);
        if (theirs == nullptr) {
            if (choice == Winner::Ours)
                Want(ours.name, &ours);
            else
                RemoveOurs(ours,
                           choice == Winner::Theirs && base != nullptr && base->comment == ours.comment);
            return;
        }
        Winner comment = ChooseComment(base, ours, *theirs);
        if (m_refused.contains(ours.name))
            comment = Winner::Both;
        if (comment == Winner::Both) {
            PutConflict(ours, theirs, true);
            return;
        }
        if (comment == Winner::Theirs)
            ReplaceComment(ours, *theirs);
        if (choice == Winner::Ours)
            Want(ours.name, &ours);
        else if (choice == Winner::Theirs)
            TakeTheirs(ours, *theirs);
        else if (!MergeLists(base, ours, *theirs))
            PutConflict(ours, theirs, false);
    }

    // It is a conflict if we changed the variable that they removed.
    void RemoveOurs(const MergeVariable& ours, bool unchanged)
    {
        if (!unchanged || m_refused.contains(ours.name)) {
            PutConflict(ours, nullptr, true);
            return;
        }
        RemoveLines(ours);
    }

    void RemoveLines(const MergeVariable& ours)
    {
        Want(ours.name, nullptr);
        m_output.Replace(ours.lines, {});
        m_output.EraseComment(ours);
    }

    void TakeTheirs(const MergeVariable& ours, const MergeVariable& theirs)
    {
        const std::vector<std::string> lines = m_output.TheirLines(theirs.lines);
        if (m_output.TakeLossy()) {
            PutConflict(ours, &theirs, false);
            return;
        }
        Want(ours.name, &theirs);
        m_output.Replace(ours.lines, lines);
    }

    void ReplaceComment(const MergeVariable& ours, const MergeVariable& theirs)
    {
        std::vector<std::size_t> lines = LineNumbers(theirs.commentStart, theirs.lines.front());
        const bool belowHeader = ours.commentStart == m_ours.BlankBelowHeader();
        if (belowHeader && !lines.empty() && m_theirs.File().Parts(lines.front()).kind == LineKind::Blank)
            lines.erase(lines.begin());
        m_output.EraseComment(ours);
        m_output.InsertAbove(ours.lines.front(), m_output.TheirLines(lines));
    }

    // False if the variable is not a list, or if its lines cannot be merged entry by entry.
    bool MergeLists(const MergeVariable* base, const MergeVariable& ours, const MergeVariable& theirs)
    {
        const VariableFacts facts = m_factsOf(ours.name);
        const auto holdsSeveral = [&](const MergeVariable* variable) {
            return variable != nullptr && variable->value.find(facts.list.separator) != Text::npos;
        };
        if (!(facts.isList || holdsSeveral(base) || holdsSeveral(&ours) || holdsSeveral(&theirs)) ||
            ours.inherits != theirs.inherits || ours.conditional || theirs.conditional ||
            (base != nullptr && base->conditional))
            return false;
        const auto baseParts = PartsOf(m_base, base, facts.list);
        const auto ourParts = PartsOf(m_ours, &ours, facts.list);
        const auto theirParts = PartsOf(m_theirs, &theirs, facts.list);
        if (!baseParts || !ourParts || !theirParts)
            return false;
        const auto front = MergeEntries(baseParts->front, ourParts->front, theirParts->front, facts.list);
        const auto back = MergeEntries(baseParts->back, ourParts->back, theirParts->back, facts.list);
        return front && back && WriteList(ours, *front, *back, facts);
    }

    bool WriteList(const MergeVariable& ours, const ListEntries& front, const ListEntries& back,
                   const VariableFacts& facts)
    {
        ListEntries entries = front;
        entries.insert(entries.end(), back.begin(), back.end());
        if (ours.inherits && entries.empty()) {
            RemoveLines(ours);
            return true;
        }
        const Text first = ours.name + u" = ";
        const Text before = ours.name + u" < ";
        const Text after = ours.name + u" > ";
        std::vector<Text> lines;
        const Text value = JoinEntries(entries, facts.list);
        if (ours.inherits) {
            std::transform(front.rbegin(), front.rend(), std::back_inserter(lines),
                           [&](const Text& entry) { return before + entry; });
            for (const Text& entry : back)
                lines.push_back(Text(after).append(entry));
        } else {
            for (const Text& text : WrittenValues(value, facts.kind.value_or(ClassifyValue(value))))
                lines.push_back(Text(lines.empty() ? first : after).append(text));
        }
        std::vector<std::string> bytes;
        std::transform(lines.begin(), lines.end(), std::back_inserter(bytes),
                       [this](const Text& line) { return m_output.NewLine(line); });
        if (m_output.TakeLossy() || lines.empty())
            return false;
        m_wanted[ours.name] = value;
        m_output.Replace(ours.lines, bytes);
        return true;
    }

    // Where a variable is in their file that only they have.
    enum class NewPlace { AboveAllCommon, BelowACommon };

    // Variables that only they have are placed below the variable that is above them in their file. Those
    // above all common variables are placed above the first common one.
    void MergeNewOnes(NewPlace place)
    {
        const MergeVariable* above = nullptr;
        const MergeVariable* first = nullptr;
        for (const MergeVariable& theirs : m_theirs.Variables()) {
            if (first == nullptr)
                first = m_ours.Find(theirs.name);
        }
        for (const MergeVariable& theirs : m_theirs.Variables()) {
            if (const MergeVariable* const ours = m_ours.Find(theirs.name))
                above = ours;
            else if (!theirs.lines.empty() && (above == nullptr) == (place == NewPlace::AboveAllCommon))
                MergeNew(theirs, above, first);
        }
    }

    // They added it, or we removed it.
    void MergeNew(const MergeVariable& theirs, const MergeVariable* above, const MergeVariable* first)
    {
        const MergeVariable* const base = m_base.Find(theirs.name);
        if (SameValue(&theirs, base) && theirs.comment == base->comment && !m_refused.contains(theirs.name)) {
            Want(theirs.name, nullptr);
            return;
        }
        std::vector<std::string> lines =
            m_output.TheirLines(LineNumbers(theirs.commentStart, theirs.lines.front()));
        const std::vector<std::string> assignments = m_output.TheirLines(theirs.lines);
        lines.insert(lines.end(), assignments.begin(), assignments.end());
        if (m_output.TakeLossy() || base != nullptr || m_refused.contains(theirs.name)) {
            m_result.conflicts.push_back(theirs.name);
            lines = MergeOutput::Conflict({}, lines);
        } else {
            Want(theirs.name, &theirs);
        }
        if (above != nullptr)
            m_output.InsertBelow(above->lines.back(), lines);
        else
            InsertAboveFirst(first, lines);
    }

    void InsertAboveFirst(const MergeVariable* first, const std::vector<std::string>& lines)
    {
        const std::size_t place = first != nullptr ? first->commentStart : m_ours.File().LineCount();
        // Without a blank line the header above would become their comment.
        if (!m_ours.HeaderLines().empty() && !TrimBytes(lines.front()).empty())
            m_output.InsertAbove(place, {std::string()});
        m_output.InsertAbove(place, lines);
    }

    void PutConflict(const MergeVariable& ours, const MergeVariable* theirs, bool withComments)
    {
        std::size_t ourStart = withComments ? ours.commentStart : ours.lines.front();
        std::vector<std::size_t> theirLines;
        if (theirs != nullptr) {
            theirLines = LineNumbers(withComments ? theirs->commentStart : theirs->lines.front(),
                                     theirs->lines.front());
            theirLines.insert(theirLines.end(), theirs->lines.begin(), theirs->lines.end());
        } else {
            // Blank lines that separate what is above are not part of the variable.
            while (m_ours.File().Parts(ourStart).kind == LineKind::Blank)
                ++ourStart;
        }
        std::vector<std::size_t> ourLines = LineNumbers(ourStart, ours.lines.front());
        ourLines.insert(ourLines.end(), ours.lines.begin(), ours.lines.end());
        m_result.conflicts.push_back(ours.name);
        m_output.Replace(ourLines,
                         MergeOutput::Conflict(m_output.OurLines(ourLines), m_output.TheirLines(theirLines)));
        m_output.TakeLossy();
    }

    // Records the value that the variable must have afterwards; conditional variables are not checked.
    void Want(const Text& name, const MergeVariable* variable)
    {
        if (variable == nullptr)
            m_wanted[name] = std::nullopt;
        else if (!variable->conditional)
            m_wanted[name] = variable->value;
    }

    const MergeSide& m_base;
    const MergeSide& m_ours;
    const MergeSide& m_theirs;
    const FactsOf& m_factsOf;
    const std::set<Text> m_refused; // Variables that a first attempt did not keep.
    MergeOutput m_output;
    MergeResult m_result;
    std::map<Text, std::optional<Text>> m_wanted;
};

} // namespace

MergeResult MergeFiles(const MergeInput& base, const MergeInput& ours, const MergeInput& theirs,
                       const FactsOf& factsOf)
{
    if (theirs.bytes == base.bytes || theirs.bytes == ours.bytes)
        return {std::string(ours.bytes), {}, false};
    if (ours.bytes == base.bytes)
        return {std::string(theirs.bytes), {}, false};
    const MergeSide baseSide(base.bytes, base.charset);
    const MergeSide ourSide(ours.bytes, ours.charset);
    const MergeSide theirSide(theirs.bytes, theirs.charset);
    std::set<Text> refused;
    for (;;) {
        Merger merger(baseSide, ourSide, theirSide, factsOf, refused);
        MergeResult result = merger.Run();
        const std::size_t before = refused.size();
        refused.merge(merger.NotKept());
        if (refused.size() == before)
            return result;
    }
}

} // namespace ov
