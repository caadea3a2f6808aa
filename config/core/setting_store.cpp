#include "config/core/setting_store.h"

#include <utility>

namespace ov
{

Text SettingStore::GetSettingValue(TextView name, TableSelector table) const
{
    const auto record = FindSetting(name, table);
    return record ? Text(record->value) : Text();
}

bool SettingStore::GetSettingFlag(TextView name, TableSelector table) const
{
    const auto record = FindSetting(name, table);
    return record && record->value == u"1";
}

bool SettingStore::HasSetting(TextView name, TableSelector table) const
{
    return Table(table).Find(name) != SettingTable::kNone;
}

void SettingStore::SetSetting(TextView name, TextView value, std::int32_t kind, TextView comment,
                              TableSelector table)
{
    SettingTable& records = Table(table);
    const SettingTable::Index index = records.Find(name);
    const bool changed = index == SettingTable::kNone || records.At(index).value != value;
    if (table == kCurrentTable && changed)
        m_modified = true;
    if (index == SettingTable::kNone)
        records.Insert(name, value, kind, comment);
    else
        records.SetValue(index, value, kind);
}

std::optional<SettingRecord> SettingStore::FindSetting(CompactView name, TableSelector table) const
{
    const SettingTable& records = Table(table);
    const SettingTable::Index index = records.Find(name);
    if (index == SettingTable::kNone)
        return std::nullopt;
    return records.At(index);
}

void SettingStore::Replace(TableSelector table, SettingTable&& records)
{
    SettingTable& target = Table(table);
    target = std::move(records);
    if (table == kCurrentTable)
        m_modified = target.Count() > 0;
}

void SettingStore::VisitInOrder(TableSelector table,
                                const std::function<bool(const SettingRecord&)>& visit) const
{
    Table(table).VisitInOrder(visit);
}

} // namespace ov
