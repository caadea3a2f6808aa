#include "pages/core/page_values.h"

namespace ov
{

PageValues::PageValues(std::span<const SettingRow> rows) : m_rows(rows)
{
    m_values.reserve(rows.size());
    for (const SettingRow& row : rows)
        m_values.push_back({row.initialNumber, row.initialText});
}

std::size_t PageValues::FindRow(TextView variable) const
{
    std::size_t row = 0;
    while (row < m_rows.size() && m_rows[row].variable != variable)
        ++row;
    return row;
}

void PageValues::Load(const SettingStore& store, int table)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const SettingRow& row = m_rows[i];
        switch (row.encoding) {
        case Encoding::Flag:
            m_values[i].number = store.GetSettingFlag(row.variable, table) ? 1 : 0;
            break;
        case Encoding::Number:
            if (const Text stored = store.GetSettingValue(row.variable, table); !stored.empty())
                m_values[i].number = ToInteger(stored);
            break;
        case Encoding::Verbatim:
            m_values[i].text = store.GetSettingValue(row.variable, table);
            break;
        }
    }
}

bool PageValues::IsSaved(const SettingRow& row, const SettingStore& store, bool hasWindow)
{
    switch (row.saveRule) {
    case SaveRule::WhenShownOrAbsent:
        return hasWindow || !store.HasSetting(row.variable, kCurrentTable);
    case SaveRule::OnlyWhenShown:
        return hasWindow;
    case SaveRule::Never:
        break;
    }
    return false;
}

void PageValues::Save(SettingStore& store, bool hasWindow, const CommentOfControl& commentOf) const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const SettingRow& row = m_rows[i];
        if (!IsSaved(row, store, hasWindow))
            continue;
        Text value;
        switch (row.encoding) {
        case Encoding::Flag:
            value = m_values[i].number != 0 ? u"1" : u"0";
            break;
        case Encoding::Number:
            value = FormatInteger(m_values[i].number);
            break;
        case Encoding::Verbatim:
            value = m_values[i].text;
            break;
        }
        store.SetSetting(row.variable, value, row.kind, commentOf(row.commentControlId), kCurrentTable);
    }
}

} // namespace ov
