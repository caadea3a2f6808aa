#include "inspect/core/inspection.h"

#include "config/core/config_reader.h"
#include "document/core/plain_text.h"

#include <algorithm>
#include <tuple>

namespace ov
{

HeaderInfo HeaderToWrite(const InspectedFile& file, const HeaderSources& sources)
{
    HeaderInfo header = file.SavedHeader().value_or(sources.machine);
    header.date = sources.date.value_or(header.date);
    header.user = sources.user.value_or(header.user);
    header.computer = sources.computer.value_or(header.computer);
    return header;
}

void Inspection::SavePages()
{
    const SettingStore& store = m_dialog.Store();
    for (const SettingPlace& place : AllSettings()) {
        std::optional<Text>& value = m_values.emplace_back();
        if (store.HasSetting(place.row->variable, kCurrentTable))
            value = store.GetSettingValue(place.row->variable, kCurrentTable);
    }
    m_dialog.SavePages();
}

const std::optional<Text>& Inspection::ValueOf(const SettingPlace& place) const
{
    return m_values[static_cast<std::size_t>(&place - AllSettings().data())];
}

Text Inspection::SavedValueOf(const SettingPlace& place) const
{
    return m_dialog.Store().GetSettingValue(place.row->variable, kCurrentTable);
}

std::optional<Text> Inspection::ValueOf(TextView variable) const
{
    if (const SettingPlace* place = FindSetting(variable))
        return ValueOf(*place);
    // Pages write their own settings only.
    if (!m_dialog.Store().HasSetting(variable, kCurrentTable))
        return std::nullopt;
    return m_dialog.Store().GetSettingValue(variable, kCurrentTable);
}

Finding* Inspection::Add(RuleId rule, std::size_t line, const std::vector<MessagePart>& parts)
{
    if (!m_settings.rules.Contains(rule))
        return nullptr;
    Finding finding{rule, line + 1, 1, FormatMessage(rule, parts), {}, {}, {}, {}};
    if (line < m_file.LineCount())
        finding.column = m_file.ValueColumn(line);
    m_findings.push_back(std::move(finding));
    return &m_findings.back();
}

Finding* Inspection::AddToFile(RuleId rule, const std::vector<MessagePart>& parts)
{
    Finding* finding = Add(rule, 0, parts);
    if (finding != nullptr)
        finding->column = 1;
    return finding;
}

Finding* Inspection::AddAt(RuleId rule, const InspectedFile::Variable& variable,
                           const std::vector<MessagePart>& parts)
{
    Finding* finding = Add(rule, variable.lastLine, parts);
    if (finding != nullptr)
        finding->variable = m_file.Decode(variable.name);
    return finding;
}

Inspector::Inspector(const InspectionSettings& settings)
    : m_settings(settings), m_dialog(settings.defaults, settings.today)
{
    if (settings.defaults)
        ReadConfig(m_defaults, kCurrentTable, settings.defaults->bytes, settings.defaults->charset);
}

std::vector<Finding> Inspector::Inspect(const InspectedFile& file)
{
    Inspection inspection(m_settings, file, m_dialog, m_defaults);
    if (const char* reason = WhyNotPlainText(file.Bytes())) {
        inspection.AddToFile(RuleId::NotPlainText, {{"reason", reason}});
        return std::move(inspection.Findings());
    }
    m_dialog.Open({file.Bytes(), file.Encoding()});
    InspectLines(inspection);
    InspectPages(inspection);
    inspection.SavePages();
    InspectValues(inspection);
    InspectSave(inspection);
    std::ranges::stable_sort(inspection.Findings(), {},
                             [](const Finding& finding) { return std::tuple(finding.line, finding.rule); });
    return std::move(inspection.Findings());
}

} // namespace ov
