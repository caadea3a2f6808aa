#include "inspect/core/difference.h"

#include "document/core/line_diff.h"
#include "document/core/list_entries.h"

#include <algorithm>
#include <string>

namespace ov
{
namespace
{

std::vector<SettingRecord> RecordsOf(const SettingStore& store)
{
    std::vector<SettingRecord> records;
    store.VisitInOrder(kCurrentTable, [&records](const SettingRecord& record) {
        records.push_back(record);
        return true;
    });
    return records;
}

std::vector<std::string> TrimmedUtf8(const ListEntries& entries)
{
    std::vector<std::string> texts;
    std::transform(entries.begin(), entries.end(), std::back_inserter(texts),
                   [](const Text& entry) { return Utf8FromText(Trim(entry)); });
    return texts;
}

// Adds the entries in which the two values differ.
void CompareEntries(ChangedVariable& changed, const ListFormat& format)
{
    const ListEntries before = EntriesOf(changed.before, format);
    const ListEntries after = EntriesOf(changed.after, format);
    const std::vector<std::string> oldTexts = TrimmedUtf8(before);
    const std::vector<std::string> newTexts = TrimmedUtf8(after);
    const std::vector<std::string_view> oldLines(oldTexts.begin(), oldTexts.end());
    const std::vector<std::string_view> newLines(newTexts.begin(), newTexts.end());
    for (const LineChange& change : DiffLines(oldLines, newLines)) {
        for (std::size_t i = 0; i < change.oldCount; ++i)
            changed.removed.emplace_back(Trim(before[change.oldStart + i]));
        for (std::size_t i = 0; i < change.newCount; ++i)
            changed.added.emplace_back(Trim(after[change.newStart + i]));
    }
}

void CompareRecords(VariableDifference& difference, const SettingRecord& before, const SettingRecord& after,
                    const FactsOf& factsOf)
{
    if (before.value != after.value) {
        ChangedVariable changed{before.name, before.value, after.value, false, {}, {}};
        const VariableFacts facts = factsOf(changed.name);
        changed.isList = facts.isList || before.value.Contains(facts.list.separator) ||
                         after.value.Contains(facts.list.separator);
        if (changed.isList)
            CompareEntries(changed, facts.list);
        difference.changed.push_back(std::move(changed));
    }
    if (before.comment == after.comment)
        return;
    ChangedComment comment{before.name, CommentText(before.comment), CommentText(after.comment)};
    if (comment.before != comment.after)
        difference.comments.push_back(std::move(comment));
}

} // namespace

Text CommentText(CompactView comment)
{
    const Text all = comment;
    Text text;
    for (std::size_t start = 0; start < all.size();) {
        const std::size_t end = std::min(all.find(u'\n', start), all.size());
        if (end > start)
            text.append(all, start, end - start).push_back(u'\n');
        start = end + 1;
    }
    return text;
}

VariableDifference CompareVariables(const SettingStore& before, const SettingStore& after,
                                    const FactsOf& factsOf)
{
    const std::vector<SettingRecord> oldRecords = RecordsOf(before);
    const std::vector<SettingRecord> newRecords = RecordsOf(after);
    VariableDifference difference;
    auto oldRecord = oldRecords.begin();
    auto newRecord = newRecords.begin();
    while (oldRecord != oldRecords.end() || newRecord != newRecords.end()) {
        if (newRecord == newRecords.end() ||
            (oldRecord != oldRecords.end() && oldRecord->name < newRecord->name)) {
            difference.removed.push_back({oldRecord->name, oldRecord->value});
            ++oldRecord;
        } else if (oldRecord == oldRecords.end() || newRecord->name < oldRecord->name) {
            difference.added.push_back({newRecord->name, newRecord->value});
            ++newRecord;
        } else {
            CompareRecords(difference, *oldRecord++, *newRecord++, factsOf);
        }
    }
    return difference;
}

} // namespace ov
