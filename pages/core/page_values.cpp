#include "pages/core/page_values.h"

#include "pages/core/encoding.h"
#include "pages/core/help_texts.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/page_template.h"

#include <algorithm>
#include <stdexcept>

namespace ov
{
namespace
{
void LoadNumber(const SettingStore& store, TableSelector table, const SettingRow& row, int& number)
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
} // namespace

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

PageValues::PageValues(const PageRows& rows) : m_rows(rows)
{
    m_values.reserve(rows.settings.size());
    for (const SettingRow& row : rows.settings)
        m_values.push_back({row.initialNumber, row.initialText, ChoicesOf(row.control, row.controlId)});
    m_companions.reserve(rows.companions.size());
    for (const CompanionRow& row : rows.companions)
        m_companions.push_back({row.initialNumber, row.initialText, ChoicesOf(row.control, row.controlId)});
}

int PageValues::ChoicesOf(ControlKind control, int controlId) const
{
    if (control == ControlKind::DropDownList) {
        const auto list = std::ranges::find(m_rows.entries, controlId, &EntriesRow::controlId);
        return list != m_rows.entries.end() ? static_cast<int>(list->stringIds.size()) : kAnyNumber;
    }
    if (control != ControlKind::RadioGroup)
        return kAnyNumber;
    const PageInfo* page = FindPage(m_rows.info.pageId);
    const PageTemplate* layout = page != nullptr ? FindTemplate(page->templateId) : nullptr;
    return layout != nullptr ? static_cast<int>(ButtonsOfGroup(*layout, controlId).size()) : kAnyNumber;
}

int PageValues::Shown(const Value& value)
{
    return value.choices != kAnyNumber && (value.number < 0 || value.number >= value.choices) ? -1
                                                                                              : value.number;
}

Text PageValues::Shown(ControlKind control, const Value& value)
{
    return control == ControlKind::Edit ? value.text.substr(0, value.text.find(u'\0')) : value.text;
}

int PageValues::ShownNumber(std::size_t row) const
{
    return Shown(m_values[row]);
}

Text PageValues::ShownString(std::size_t row) const
{
    return Shown(m_rows.settings[row].control, m_values[row]);
}

int PageValues::ShownCompanionNumber(std::size_t companion) const
{
    return Shown(m_companions[companion]);
}

Text PageValues::ShownCompanionString(std::size_t companion) const
{
    return Shown(m_rows.companions[companion].control, m_companions[companion]);
}

void PageValues::TakeShown()
{
    for (std::size_t row = 0; row < m_values.size(); ++row) {
        m_values[row].number = ShownNumber(row);
        m_values[row].text = ShownString(row);
    }
    for (std::size_t companion = 0; companion < m_companions.size(); ++companion) {
        m_companions[companion].number = ShownCompanionNumber(companion);
        m_companions[companion].text = ShownCompanionString(companion);
    }
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

bool PageValues::Holds(const Condition& condition) const
{
    if (condition.controlId == 0)
        return true;
    const auto setting = std::ranges::find(m_rows.settings, condition.controlId, &SettingRow::controlId);
    const Value& value = setting != m_rows.settings.end()
                             ? m_values[static_cast<std::size_t>(setting - m_rows.settings.begin())]
                             : m_companions[CompanionOf(condition.controlId)];
    return condition.number == kAnyText ? !value.text.empty() : value.number == condition.number;
}

bool PageValues::Holds(const DependencyRow& dependency) const
{
    return std::ranges::all_of(dependency.conditions,
                               [this](const Condition& condition) { return Holds(condition); });
}

void PageValues::Load(const SettingStore& store, TableSelector table)
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
        // The store keeps the comment of an existing setting.
        const bool needsComment = hasWindow && !store.HasSetting(row.variable, kCurrentTable);
        store.SetSetting(row.variable, value, row.kind, needsComment ? TextView(CommentOf(row)) : TextView(),
                         kCurrentTable);
    }
}

} // namespace ov
