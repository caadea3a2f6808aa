#include "pages/core/page_values.h"

#include "pages/core/encoding.h"
#include "pages/core/help_texts.h"

#include <algorithm>
#include <stdexcept>

namespace ov
{
namespace
{
void LoadNumber(const SettingStore& store, int table, const SettingRow& row, int& number)
{
    const Text stored = store.GetSettingValue(row.variable, table);
    switch (row.encoding) {
    case Encoding::Flag:
        number = store.GetSettingFlag(row.variable, table) ? 1 : 0;
        break;
    case Encoding::FlagUnlessZero:
        number = stored != u"0" ? 1 : 0;
        break;
    case Encoding::Number:
        if (!stored.empty())
            number = ToInteger(stored);
        break;
    case Encoding::AlwaysNeverUser:
        number = AlwaysNeverUserIndex(stored);
        break;
    case Encoding::NeverAlwaysUser:
        number = NeverAlwaysUserIndex(stored);
        break;
    case Encoding::Verbatim:
    case Encoding::VerbatimOrZero:
        break;
    }
}

Text NumberToStore(Encoding encoding, int number)
{
    switch (encoding) {
    case Encoding::Flag:
    case Encoding::FlagUnlessZero:
        return number != 0 ? u"1" : u"0";
    case Encoding::AlwaysNeverUser:
        return AlwaysNeverUserText(number);
    case Encoding::NeverAlwaysUser:
        return NeverAlwaysUserText(number);
    default:
        return FormatInteger(number);
    }
}
} // namespace

PageValues::PageValues(const PageRows& rows) : m_rows(rows)
{
    m_values.reserve(rows.settings.size());
    for (const SettingRow& row : rows.settings)
        m_values.push_back({row.initialNumber, row.initialText});
    m_companions.reserve(rows.companions.size());
    for (const CompanionRow& row : rows.companions)
        m_companions.push_back({row.initialNumber, row.initialText});
}

std::size_t PageValues::FindRow(TextView variable) const
{
    const auto found = std::ranges::find(m_rows.settings, variable,
                                         [](const SettingRow& row) { return TextView(row.variable); });
    return static_cast<std::size_t>(found - m_rows.settings.begin());
}

std::size_t PageValues::RowOf(TextView variable) const
{
    const std::size_t row = FindRow(variable);
    if (row == m_rows.settings.size())
        throw std::logic_error("The page has no such setting.");
    return row;
}

std::size_t PageValues::CompanionOf(int controlId) const
{
    const auto found = std::ranges::find(m_rows.companions, controlId, &CompanionRow::controlId);
    if (found == m_rows.companions.end())
        throw std::logic_error("The page has no such companion.");
    return static_cast<std::size_t>(found - m_rows.companions.begin());
}

int PageValues::NumberShownBy(int controlId) const
{
    for (std::size_t row = 0; row < m_values.size(); ++row) {
        if (m_rows.settings[row].controlId == controlId)
            return m_values[row].number;
    }
    return m_companions[CompanionOf(controlId)].number;
}

bool PageValues::Holds(const DependencyRow& dependency) const
{
    return std::ranges::all_of(dependency.conditions, [this](const Condition& condition) {
        return condition.controlId == 0 || NumberShownBy(condition.controlId) == condition.number;
    });
}

void PageValues::Load(const SettingStore& store, int table)
{
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const SettingRow& row = m_rows.settings[i];
        if (!row.HoldsText()) {
            LoadNumber(store, table, row, m_values[i].number);
            continue;
        }
        Text& text = m_values[i].text;
        text = store.GetSettingValue(row.variable, table);
        if (text.empty() && row.encoding == Encoding::VerbatimOrZero)
            text.assign(1, u'0');
    }
    if (m_rows.afterLoad != nullptr)
        m_rows.afterLoad(*this, store, table);
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

void PageValues::Save(SettingStore& store, bool hasWindow)
{
    if (m_rows.beforeSave != nullptr)
        m_rows.beforeSave(*this);
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const SettingRow& row = m_rows.settings[i];
        if (m_values[i].heldBack || !IsSaved(row, store, hasWindow))
            continue;
        const Text value =
            row.HoldsText() ? m_values[i].text : NumberToStore(row.encoding, m_values[i].number);
        // The store keeps the comment of a setting that it has.
        const bool needsComment = hasWindow && !store.HasSetting(row.variable, kCurrentTable);
        store.SetSetting(row.variable, value, row.kind, needsComment ? CommentOf(row) : Text(),
                         kCurrentTable);
    }
}

} // namespace ov
