#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "document/core/edit_session.h"
#include "document/core/list_entries.h"
#include "document/core/variable_edit.h"

#include <algorithm>
#include <iterator>
#include <list>
#include <optional>
#include <unordered_set>
#include <utility>

namespace ov
{
namespace
{

using Entries = ListEntries;

// A change of a list: the entries to add that are not there yet, and the entries to remove.
class EntryChange
{
  public:
    EntryChange(const ListChange& change, Entries before, const ListFormat& format)
        : m_format(format), m_before(std::move(before)), m_entries(m_before)
    {
        for (const Text& entry : change.remove)
            m_removed.push_back(EntryKey(entry, format));
        Remove(m_entries);
        for (const Text& entry : change.prepend) {
            if (!Has(entry)) {
                m_prepended.emplace_back(Trim(entry));
                m_entries.push_back(m_prepended.back());
                std::rotate(m_entries.begin(), m_entries.end() - 1, m_entries.end());
            }
        }
        for (const Text& entry : change.append) {
            if (!Has(entry)) {
                m_appended.emplace_back(Trim(entry));
                m_entries.push_back(m_appended.back());
            }
        }
    }

    /// Removes the entries that have to go from `entries`; true if there were any.
    bool Remove(Entries& entries) const
    {
        return std::erase_if(entries, [this](const Text& entry) {
                   return std::find(m_removed.begin(), m_removed.end(), EntryKey(entry, m_format)) !=
                          m_removed.end();
               }) > 0;
    }

    /// True when the list is what it was; entries may have been removed and added again.
    bool IsNone() const { return m_entries == m_before; }
    const Entries& Prepended() const { return m_prepended; } ///< In the order of prepending.
    const Entries& Appended() const { return m_appended; }
    const Entries& Result() const { return m_entries; }

  private:
    bool Has(TextView entry) const
    {
        const Text key = EntryKey(entry, m_format);
        return std::any_of(m_entries.begin(), m_entries.end(),
                           [&](const Text& other) { return EntryKey(other, m_format) == key; });
    }

    ListFormat m_format;
    Entries m_before;
    Entries m_entries;
    Entries m_removed; // The keys of the entries to remove.
    Entries m_prepended;
    Entries m_appended;
};

// A line that the variable has after the edit: an old one, changed or not, or a new one.
struct PlannedLine {
    std::optional<std::size_t> line; // The number of an old line; nothing for a new line.
    char operation;
    Entries entries;
    bool changed = false;
};

// Plans the lines of a list with several lines: the first effective line, then lines with ">" and
// "<", each with its own entries.
class LinePlan
{
  public:
    // Reads the effective lines: from the last "=" line on. False if the entries of one cannot be determined.
    bool Read(const EditSession& session, std::span<const VariableLine> lines, const ListFormat& format)
    {
        auto first = std::find_if(lines.rbegin(), lines.rend(), [](const VariableLine& line) {
                         return line.operation == '=';
                     }).base();
        if (first != lines.begin())
            --first;
        m_inherited = first->operation != '=';
        for (; first != lines.end(); ++first) {
            if (!m_lines.empty() && first->operation == ':')
                continue; // Has no effect: the variable is already defined.
            if (first->operation == '+')
                return false;
            m_lines.push_back(
                {first->line, first->operation, EntriesOf(session.ValueOf(first->line), format)});
        }
        return true;
    }

    void Change(const EntryChange& change)
    {
        for (PlannedLine& line : m_lines)
            line.changed = change.Remove(line.entries);
        const PlannedLine base = m_lines.front();
        std::erase_if(m_lines, [](const PlannedLine& line) { return line.changed && line.entries.empty(); });
        if (m_inherited) {
            for (const Text& entry : change.Prepended())
                m_lines.push_back({std::nullopt, '<', {entry}});
        } else {
            KeepBase(base);
            Prepend(change.Prepended());
        }
        for (const Text& entry : change.Appended())
            Append(entry);
        KeepFirstPlace(*base.line);
    }

    const std::list<PlannedLine>& Lines() const { return m_lines; }

  private:
    // If the "=" line has no entries left, the entries of another line move there: ">" first, else "<".
    void KeepBase(const PlannedLine& base)
    {
        const bool there = !m_lines.empty() && m_lines.front().line == base.line;
        if (there && !m_lines.front().entries.empty())
            return;
        PlannedLine heir = base;
        heir.entries.clear();
        heir.changed = true;
        if (there)
            m_lines.erase(m_lines.begin());
        auto next = std::find_if(m_lines.begin(), m_lines.end(),
                                 [](const PlannedLine& line) { return line.operation == '>'; });
        if (next == m_lines.end())
            next = m_lines.begin();
        if (next != m_lines.end()) {
            heir.entries = next->entries;
            m_lines.erase(next);
        }
        m_lines.insert(m_lines.begin(), std::move(heir));
    }

    // Without a "<" line after it, the "=" line takes a new first entry. The single entry that it had moves
    // to a line of its own, as the writer would have it; several entries stay in the line.
    void Prepend(const Entries& entries)
    {
        const bool prepends = std::any_of(m_lines.begin(), m_lines.end(),
                                          [](const PlannedLine& line) { return line.operation == '<'; });
        for (const Text& entry : entries) {
            PlannedLine& base = m_lines.front();
            if (prepends) {
                m_lines.push_back({std::nullopt, '<', {entry}});
                continue;
            }
            base.changed = true;
            if (base.entries.size() > 1) {
                base.entries.push_back(entry);
                std::rotate(base.entries.begin(), base.entries.end() - 1, base.entries.end());
                continue;
            }
            const Entries old = std::exchange(base.entries, {entry});
            const auto place = std::next(m_lines.begin());
            for (const Text& other : old)
                m_lines.insert(place, {std::nullopt, '>', {other}});
        }
    }

    void Append(const Text& entry)
    {
        if (!m_inherited && m_lines.size() == 1 && m_lines.front().entries.empty()) {
            m_lines.front().entries = {entry};
            m_lines.front().changed = true;
        } else {
            m_lines.push_back({std::nullopt, '>', {entry}});
        }
    }

    // The variable keeps its first line, and with it the comment above that line.
    void KeepFirstPlace(std::size_t first)
    {
        if (m_lines.empty() || m_lines.front().line == first)
            return;
        m_lines.front().line = first;
        m_lines.front().changed = true;
    }

    std::list<PlannedLine> m_lines;
    bool m_inherited = false;
};

// The text of a line with these entries. The writer quotes a value that is the only line, but not
// the items of a list. A line with several entries keeps its quotes.
Text LineText(const EditSession& session, const PlannedLine& planned, bool onlyLine, const ListFormat& format)
{
    const Text text = JoinEntries(planned.entries, format);
    const bool hadQuotes = planned.line && IsQuoted(session.File().Parts(*planned.line).value);
    const bool quoted = text.empty() || (hadQuotes && (onlyLine || planned.entries.size() > 1));
    return quoted ? u'"' + text + u'"' : text;
}

void ApplyPlan(EditSession& session, TextView name, std::span<const VariableLine> lines, const LinePlan& plan,
               const ListFormat& format)
{
    std::vector<std::size_t> kept;
    for (const PlannedLine& planned : plan.Lines()) {
        const Text text = LineText(session, planned, plan.Lines().size() == 1, format);
        if (!planned.line) {
            session.InsertBelow(kept.back(), planned.operation, name, text);
            continue;
        }
        kept.push_back(*planned.line);
        if (planned.changed)
            session.Rewrite(*planned.line, planned.operation, name, text);
    }
    const std::size_t firstThatCounts = kept.front();
    const std::unordered_set<std::size_t> staying(kept.begin(), kept.end());
    for (const VariableLine& line : lines) {
        const bool dead = line.line < firstThatCounts;
        if (!dead && line.operation != ':' && !staying.contains(line.line))
            session.Edits().Erase(line.line);
    }
}

// True if all entries can be list entries. Otherwise refuses the edit.
bool AreEntries(EditSession& session, TextView name, const Entries& entries, const ListFormat& format)
{
    for (const Text& entry : entries) {
        if (Trim(entry).empty())
            session.Refuse(EditRefusal::EmptyEntry, name);
        else if (EntriesOf(Trim(entry), format) != Entries{Text(Trim(entry))})
            session.Refuse(EditRefusal::SeveralEntries, name, Text(1, format.separator));
        else
            continue;
        return false;
    }
    return true;
}

// False if the value would be split into other entries: quotes of different entries pair, so that the
// separator between them no longer separates. Empty entries at the end do not count.
bool AreKept(Entries entries, TextView value, const ListFormat& format)
{
    Entries read = EntriesOf(value, format);
    for (Entries* each : {&entries, &read}) {
        while (!each->empty() && each->back().empty())
            each->pop_back();
    }
    return read == entries;
}

// A new variable extends the value from earlier files. If its entries have to be in one line, that is
// not possible.
void AppendList(EditSession& session, TextView name, const EntryChange& change, const VariableFacts& facts)
{
    std::vector<std::pair<char, Text>> lines;
    if (facts.list.separator != u';') {
        const Text value = JoinEntries(change.Result(), facts.list);
        lines.emplace_back('=', WrittenValues(value, facts.kind.value_or(ClassifyValue(value))).front());
    } else {
        for (const Text& entry : change.Prepended())
            lines.emplace_back('<', entry);
        for (const Text& entry : change.Appended())
            lines.emplace_back('>', entry);
    }
    session.AppendNew(name, facts, lines);
}

// Changes the lines of an existing variable. False if it is unclear which entries each line has.
bool ChangeLines(EditSession& session, TextView name, const EntryChange& change, const ListFormat& format)
{
    const auto lines = session.LinesOf(name);
    if (format.separator != u';') {
        if (lines.size() != 1)
            return false;
        const PlannedLine only{lines.front().line, lines.front().operation, change.Result()};
        session.Rewrite(lines.front().line, only.operation, name, LineText(session, only, true, format));
        return true;
    }
    LinePlan plan;
    if (!plan.Read(session, lines, format))
        return false;
    plan.Change(change);
    if (plan.Lines().empty())
        session.RemoveVariable(name);
    else
        ApplyPlan(session, name, lines, plan, format);
    return true;
}

bool HasAssignment(std::span<const VariableLine> lines)
{
    return std::any_of(lines.begin(), lines.end(),
                       [](const VariableLine& line) { return line.operation == '='; });
}

} // namespace
EditResult ChangeList(const EditedFile& file, const Text& name, const ListChange& change,
                      const FactsOf& factsOf)
{
    EditSession session(file, factsOf);
    const VariableFacts facts = session.Facts(name);
    const ListFormat& format = facts.list;
    if (!AreEntries(session, name, change.remove, format) ||
        !AreEntries(session, name, change.prepend, format) ||
        !AreEntries(session, name, change.append, format))
        return session.Finish();
    const Text before = session.Before().GetSettingValue(name, kCurrentTable);
    const EntryChange entries(change, EntriesOf(before, format), format);
    if (entries.IsNone() || !session.MayChange(name))
        return session.Finish();

    const auto lines = session.LinesOf(name);
    const bool assigned = HasAssignment(lines);
    const Text wanted = JoinEntries(entries.Result(), format);
    if (!AreKept(entries.Result(), wanted, format)) {
        session.Refuse(EditRefusal::QuotesPair, name);
        return session.Finish();
    }
    const bool absent = entries.Result().empty() && !assigned && format.separator == u';';
    session.Want(name, absent ? std::nullopt : std::optional(wanted));
    bool planned = true;
    if (lines.empty())
        AppendList(session, name, entries, facts);
    else
        planned = ChangeLines(session, name, entries, format);
    if (!planned && !assigned)
        session.Refuse(EditRefusal::ListNotPlain, name);
    EditResult result = session.Finish();
    // Lines that the reader combines in another way are rewritten completely, if a "=" line shows
    // that nothing is inherited.
    if (assigned && (!planned || !result.refused.empty()))
        return SetVariables(file, {{name, wanted}}, factsOf);
    return result;
}

} // namespace ov
