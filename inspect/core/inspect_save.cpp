// The rules about changes that Save makes to the file.

#include "config/core/config_reader.h"
#include "inspect/core/inspection.h"
#include "inspect/core/saved_header.h"

#include <algorithm>

namespace ov
{
namespace
{
using Variable = InspectedFile::Variable;

/// True if the value certainly survives writing and reading. If not, the writer and the reader
/// have to be run.
bool IsSurelyKept(CompactView value, std::int32_t kind)
{
    if (value.empty())
        return true;
    const bool quoted = kind == SettingKindText;
    if (!quoted && (IsWhiteSpace(value[0]) || IsWhiteSpace(value[value.size() - 1])))
        return false;
    return !value.Contains(u';') && !value.Contains(u'"') && !(quoted && value.Contains(u'#'));
}

/// Writes values to a file and reads them back, all at once.
class RoundTrip
{
  public:
    void Add(TextView name, const SettingRecord& record)
    {
        m_written.SetSetting(name, Text(record.value), record.kind, {}, kCurrentTable);
    }

    void Run()
    {
        if (m_written.Count(kCurrentTable) == 0)
            return;
        // Any encoding that has every character will do; the choice does not affect values.
        std::string bytes;
        WriteConfig(m_written, u"#", bytes, Charset::Utf8);
        ReadConfig(m_read, kCurrentTable, bytes, Charset::Utf8);
    }

    /// The value that was read back; nothing if the variable was lost.
    std::optional<Text> ValueOf(TextView name) const
    {
        if (!m_read.HasSetting(name, kCurrentTable))
            return std::nullopt;
        return m_read.GetSettingValue(name, kCurrentTable);
    }

  private:
    SettingStore m_written;
    SettingStore m_read;
};

std::string Quoted(TextView text)
{
    std::string quoted(1, '"');
    quoted += Quotable(text);
    quoted += '"';
    return quoted;
}

void AddChange(Inspection& inspection, const Variable& variable, const Text& before,
               const std::optional<Text>& after)
{
    std::string change = Quoted(before);
    change += after ? " becomes " + Quoted(*after) : " is written nowhere";
    Finding* finding = inspection.AddAt(
        RuleId::ValueChanges, variable,
        {{"variable", Quotable(inspection.File().Decode(variable.name))}, {"change", change}});
    if (finding != nullptr) {
        finding->before = before;
        finding->after = after;
    }
}

void FindChangedValues(Inspection& inspection)
{
    const InspectedFile& file = inspection.File();
    const SettingStore& store = inspection.Dialog().Store();
    RoundTrip roundTrip;
    Text room;
    std::vector<std::pair<const Variable*, Text>> doubtful;
    for (const Variable& variable : file.Variables()) {
        if (inspection.Explained().contains(variable.name))
            continue;
        const CompactView name = file.Decode(variable.name, room);
        const auto record = store.FindSetting(name, kCurrentTable);
        if (!record)
            continue;
        if (!IsSurelyKept(record->value, record->kind)) {
            doubtful.emplace_back(&variable, name);
            roundTrip.Add(doubtful.back().second, *record);
        } else if (variable.setting != nullptr) {
            const Text before = inspection.ValueOf(*variable.setting).value_or(Text());
            if (record->value != before)
                AddChange(inspection, variable, before, Text(record->value));
        }
    }
    roundTrip.Run();
    for (const auto& [variable, name] : doubtful) {
        const Text before = inspection.ValueOf(name).value_or(Text());
        const std::optional<Text> after = roundTrip.ValueOf(name);
        if (after != before)
            AddChange(inspection, *variable, before, after);
    }
}

void FindAddedSettings(Inspection& inspection)
{
    std::vector<std::pair<Text, Text>> added;
    for (const SettingPlace& place : AllSettings()) {
        const TextView variable = place.row->variable;
        if (!inspection.ValueOf(place) && inspection.Dialog().Store().HasSetting(variable, kCurrentTable))
            added.emplace_back(variable, inspection.SavedValueOf(place));
    }
    if (added.empty())
        return;
    std::ranges::sort(added);
    Finding* finding = inspection.AddToFile(RuleId::SettingsAdded, {{"count", std::to_string(added.size())}});
    if (finding != nullptr)
        finding->added = std::move(added);
}

/// The variable that Save writes first.
Text FirstVariable(const Inspection& inspection, const SettingStore& store)
{
    Text first;
    for (const SettingPlace& place : AllSettings()) {
        const TextView variable = place.row->variable;
        if ((first.empty() || variable < first) && store.HasSetting(variable, kCurrentTable))
            first = variable;
    }
    Text room;
    for (const Variable& variable : inspection.File().Variables()) {
        const CompactView name = inspection.File().Decode(variable.name, room);
        if (first.empty() || name < CompactView(first))
            first = name;
    }
    return first;
}

/// True if a comment consists only of headers from earlier saves.
bool IsOnlyHeaders(const Text& comment)
{
    std::vector<Text> lines;
    for (std::size_t start = 0; start < comment.size();) {
        const std::size_t end = std::min(comment.find(u'\n', start), comment.size());
        lines.push_back(comment.substr(start, end - start));
        start = end + 1;
    }
    for (std::size_t line = 0; line < lines.size(); line += kSavedHeaderLines) {
        const std::size_t count = std::min(kSavedHeaderLines, lines.size() - line);
        if (!ReadSavedHeader(std::span(lines).subspan(line, count)))
            return false;
    }
    return true;
}

void FindRepeatedHeader(Inspection& inspection)
{
    const SettingStore& store = inspection.Dialog().Store();
    const Text name = FirstVariable(inspection, store);
    const InspectedFile::Variable* variable = inspection.File().Find(name);
    if (variable == nullptr)
        return;
    const auto record = store.FindSetting(TextView(name), kCurrentTable);
    const auto other = store.FindSetting(TextView(name), kDefaultTable);
    if (!record || !IsOnlyHeaders(Text(record->comment)) || (other && !other->comment.empty()))
        return;
    Finding* finding =
        inspection.Add(RuleId::HeaderRepeats, variable->firstLine, {{"variable", Quotable(name)}});
    if (finding != nullptr)
        finding->variable = name;
}

void FindRefusedCharacter(Inspection& inspection)
{
    std::string bytes;
    const WriteResult result =
        inspection.Dialog().Write(HeaderToWrite(inspection.File(), inspection.Settings().header), bytes);
    if (result)
        return;
    const std::string place = result.inHeader ? "the header" : "the lines of " + Quotable(result.variable);
    Finding* finding = inspection.AddToFile(RuleId::CharacterRefused,
                                            {{"character", Quotable(result.character)}, {"place", place}});
    if (finding != nullptr && !result.inHeader)
        finding->variable = result.variable;
}

bool IsAscii(TextView text)
{
    return std::ranges::all_of(text, [](char16_t c) { return c < 0x80; });
}

/// True if Save may meet a character that the file's encoding lacks. Everything from the file
/// itself can be written again.
bool MayRefuse(const Inspection& inspection)
{
    const HeaderInfo header = HeaderToWrite(inspection.File(), inspection.Settings().header);
    const bool plainHeader = IsAscii(header.date) && IsAscii(header.user) && IsAscii(header.computer);
    return !plainHeader || inspection.Settings().defaults;
}
} // namespace

void InspectSave(Inspection& inspection)
{
    FindChangedValues(inspection);
    FindAddedSettings(inspection);
    FindRepeatedHeader(inspection);
    if (MayRefuse(inspection))
        FindRefusedCharacter(inspection);
}

} // namespace ov
