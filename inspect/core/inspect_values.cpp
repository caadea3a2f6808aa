// The rules about the values of single settings.

#include "controls/core/list_text.h"
#include "inspect/core/inspection.h"
#include "inspect/core/setting_index.h"
#include "match/core/pattern_check.h"
#include "pages/core/encoding.h"
#include "pages/core/page_values.h"
#include "pages/scan_period/rows.h"
#include "pages/scan_period/scan_period.h"

#include <algorithm>
#include <charconv>
#include <locale>
#include <span>
#include <sstream>

namespace ov
{
namespace
{
using Variable = InspectedFile::Variable;

/// The variables with naming templates, and those with their descriptions.
struct NamingPair {
    const char16_t* templates;
    const char16_t* descriptions;
};
constexpr NamingPair namingPairs[] = {
    {u"_ORTHOVAL_CONVENTION_FILENAME", u"_ORTHOVAL_CONVENTION_FILENAME_DESCR"},
    {u"_ORTHOVAL_CONVENTION_MODELNAME", u"_ORTHOVAL_CONVENTION_MODELNAME_DESCR"},
};
constexpr char16_t wildcardType[] = u"_ORTHOVAL_WILDCARD_TYPE";
constexpr char16_t olderScanPeriod[] = u"_ORTHOVAL_SCANPERIOD_VALUE";

/// A setting in the file and its value.
struct Stored {
    const SettingPlace& place;
    const Variable& variable;
    Text value;
};

void Explain(Inspection& inspection, RuleId rule, const Stored& stored, std::vector<MessagePart> parts)
{
    parts.push_back({"variable", Utf8FromText(stored.place.row->variable)});
    parts.push_back({"value", Quotable(stored.value)});
    inspection.AddAt(rule, stored.variable, parts);
    inspection.Explained().insert(stored.variable.name);
}

bool IsFlag(const SettingRow& row)
{
    return row.encoding == Encoding::Flag || row.encoding == Encoding::FlagUnlessZero;
}

void InspectFlag(Inspection& inspection, const Stored& stored)
{
    if (stored.value == u"0" || stored.value == u"1")
        return;
    std::string meaning = stored.place.row->encoding == Encoding::FlagUnlessZero ? "1" : "0";
    if (stored.place.row->saveRule == SaveRule::Never)
        meaning += ", and keeps the text";
    Explain(inspection, RuleId::NotAFlag, stored, {{"meaning", meaning}});
}

/// The number in the whole text, ignoring surrounding white space; nothing if it is not a number.
std::optional<double> NumberOf(TextView text)
{
    text = Trim(text);
    if (text.starts_with(u'+'))
        text.remove_prefix(1);
    const bool plain =
        std::ranges::all_of(text, [](char16_t c) { return IsDigit(c) || c == u'.' || c == u'-'; });
    // Not from_chars: libc++ has it for integers only.
    std::istringstream input(Utf8FromText(text));
    input.imbue(std::locale::classic());
    double number = 0;
    if (!plain || !(input >> number) || input.peek() != std::istringstream::traits_type::eof())
        return std::nullopt;
    return number;
}

std::string FormatNumber(double number)
{
    char digits[32];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    return {digits, result.ptr};
}

bool IsNumber(const SettingPlace& place)
{
    const SettingRow& row = *place.row;
    if (row.control == ControlKind::None)
        return RangeOf(place).has_value() && ChoicesOf(place).empty();
    return HoldsText(row.encoding) &&
           (row.kind == SettingKindInteger || row.kind == SettingKindReal || RangeOf(place).has_value());
}

void InspectNumber(Inspection& inspection, const Stored& stored)
{
    const std::optional<NumberRange> range = RangeOf(stored.place);
    const std::optional<double> number = NumberOf(stored.value);
    const std::string name = Utf8FromText(stored.place.row->variable);
    if (!number) {
        Explain(inspection, RuleId::NotANumber, stored, {{"problem", "no number, as " + name + " is"}});
    } else if (range && (*number < range->lowest || *number > range->highest)) {
        Explain(inspection, RuleId::NotANumber, stored,
                {{"problem", "outside the range of " + name + ", " + FormatNumber(range->lowest) + " to " +
                                 FormatNumber(range->highest)}});
    }
}

/// True if the file stores a choice as a whole number.
bool IsChoice(const SettingPlace& place)
{
    switch (place.row->encoding) {
    case Encoding::Number:
    case Encoding::AlwaysNeverUser:
    case Encoding::NeverAlwaysUser:
        return true;
    case Encoding::Verbatim:
        return place.row->kind == SettingKindInteger && !ChoicesOf(place).empty();
    default:
        return false;
    }
}

bool IsWholeNumber(TextView text)
{
    return NumberOf(text) && text.find(u'.') == TextView::npos;
}

void InspectChoice(Inspection& inspection, const Stored& stored)
{
    const SettingPlace& place = stored.place;
    const Text saved = inspection.SavedValueOf(place);
    const std::span<const Choice> choices = ChoicesOf(place);
    const auto find = [&](TextView value) { return std::ranges::find(choices, value, &Choice::value); };
    const auto choice = find(saved);
    // For a negative number in a range that allows them, the number without the sign is the choice.
    const auto range = RangeOf(place);
    const bool isSigned = range && range->lowest < 0 && saved.starts_with(u'-');
    const bool selects =
        choice != choices.end() || (isSigned && find(TextView(saved).substr(1)) != choices.end());
    // "02" selects the right choice, although Save writes it in another form.
    if (selects && IsWholeNumber(Trim(stored.value)) && ToInteger(stored.value) == ToInteger(saved))
        return;
    const std::string name = Utf8FromText(place.row->variable);
    std::string problem = "selects nothing in " + name + ": Save writes \"" + Utf8FromText(saved) + "\"";
    if (choice != choices.end())
        problem = "is none of the choices of " + name + ": the dialog takes it for \"" +
                  Utf8FromText(choice->caption) + "\" (" + Utf8FromText(saved) + ")";
    Explain(inspection, RuleId::NoSuchChoice, stored, {{"problem", problem}});
}

/// The length in characters of the entry's longest field before the list editor truncates it.
std::size_t LongestField(TextView entry, const ListFormat& format)
{
    std::size_t longest = 0;
    for (std::size_t field = 0; field < format.fieldCount; ++field)
        longest = std::max(longest, ReadField(entry, field, format, entry.size()).size());
    return longest;
}

/// The variable's last line whose value has more bytes than the limit, or its last line if there is none.
std::size_t LineOfLongEntry(const InspectedFile& file, const Variable& variable)
{
    const auto isLong = [&](const InspectedFile::Line& line) {
        return line.variable != InspectedFile::kNone && &file.Variables()[line.variable] == &variable &&
               file.Parts(line.number).value.size() > kLongestField;
    };
    const auto found = std::find_if(file.Lines().rbegin(), file.Lines().rend(), isLong);
    return found != file.Lines().rend() ? found->number : variable.lastLine;
}

void InspectList(Inspection& inspection, const Stored& stored, const ListFormat& format)
{
    const std::string name = Utf8FromText(stored.place.row->variable);
    if (std::ranges::count(stored.value, format.qualifier) % 2 != 0)
        inspection.AddAt(RuleId::UnbalancedQuotes, stored.variable, {{"variable", name}});
    if (stored.value.size() <= kLongestField)
        return;
    for (const TextView entry : SplitEntries(stored.value, format)) {
        const std::size_t longest = entry.size() > kLongestField ? LongestField(entry, format) : 0;
        if (longest <= kLongestField)
            continue;
        Finding* finding =
            inspection.Add(RuleId::EntryCut, LineOfLongEntry(inspection.File(), stored.variable),
                           {{"variable", name}, {"count", std::to_string(longest)}});
        if (finding != nullptr)
            finding->variable = stored.place.row->variable;
    }
}

/// The entries of a list with one field, without quotes, blanks and empty entries.
std::vector<Text> EntriesOf(TextView value)
{
    const ListFormat format;
    std::vector<Text> entries;
    for (const TextView entry : SplitEntries(value, format)) {
        Text text = ReadField(entry, 0, format, entry.size());
        if (!text.empty())
            entries.push_back(std::move(text));
    }
    return entries;
}

void InspectTemplates(Inspection& inspection, const NamingPair& pair)
{
    const Variable* variable = inspection.File().Find(pair.templates);
    const std::optional<Text> type = inspection.ValueOf(wildcardType);
    if (variable == nullptr || !type || ToInteger(*type) != WildcardTypePerl)
        return;
    for (const Text& entry : EntriesOf(inspection.ValueOf(pair.templates).value_or(Text()))) {
        if (const auto error = CheckPattern(entry, WildcardTypePerl))
            inspection.AddAt(
                RuleId::BadTemplate, *variable,
                {{"value", Quotable(entry)},
                 {"problem", error->message + " at position " + std::to_string(error->position + 1)}});
    }
}

void InspectNumberOfDescriptions(Inspection& inspection, const NamingPair& pair)
{
    const std::size_t templates = EntriesOf(inspection.ValueOf(pair.templates).value_or(Text())).size();
    const std::size_t descriptions = EntriesOf(inspection.ValueOf(pair.descriptions).value_or(Text())).size();
    if (templates == 0 || descriptions == 0 || templates == descriptions)
        return;
    inspection.AddAt(RuleId::ListsDiffer, *inspection.File().Find(pair.descriptions),
                     {{"variable", Utf8FromText(pair.descriptions)},
                      {"count", std::to_string(descriptions)},
                      {"templates", std::to_string(templates)}});
}

bool Exists(const ScanDate& date)
{
    using namespace std::chrono;
    constexpr int kLastYear = 9999;
    return IsScanDate(date) && date.year <= kLastYear &&
           year_month_day(year(date.year), month(static_cast<unsigned>(date.month)),
                          day(static_cast<unsigned>(date.day)))
               .ok();
}

std::string DayText(const ScanDate& date)
{
    return "day " + std::to_string(date.day) + ", month " + std::to_string(date.month) + ", year " +
           std::to_string(date.year);
}

void AddImpossibleDay(Inspection& inspection, TextView name, const ScanDate& date)
{
    const Variable* variable = inspection.File().Find(name);
    if (variable == nullptr || Exists(date))
        return;
    inspection.AddAt(RuleId::ImpossibleDay, *variable,
                     {{"variable", Utf8FromText(name)}, {"value", DayText(date)}});
    inspection.Explained().insert(variable->name);
}

void InspectScanPeriod(Inspection& inspection)
{
    const Text older = inspection.ValueOf(olderScanPeriod).value_or(Text());
    const Text settings = inspection.ValueOf(kScanPeriodVariable).value_or(Text());
    ScanPeriod period;
    ParseLegacyScanPeriod(older, period);
    const ScanDate olderDate = period.dateOne;
    ParseScanPeriod(settings, {1, 1, 2000}, period);
    AddImpossibleDay(inspection, olderScanPeriod, olderDate);
    // A date that the settings do not contain comes from the older variable.
    if (period.dateOne != olderDate)
        AddImpossibleDay(inspection, kScanPeriodVariable, period.dateOne);
    AddImpossibleDay(inspection, kScanPeriodVariable, period.dateTwo);
    if (const Variable* variable = inspection.File().Find(kScanPeriodVariable)) {
        for (const int selection : {period.segmentOne, period.modeOne, period.operation, period.segmentTwo,
                                    period.modeTwo, period.orSelector}) {
            if (selection != kNoSelection)
                continue;
            Explain(inspection, RuleId::NoSuchChoice,
                    {*FindSetting(kScanPeriodVariable), *variable, settings},
                    {{"problem", "has a number that none of the lists of the scan period has"}});
            return;
        }
    }
}

bool IsFolderOrFile(const BrowseRow& browse)
{
    return browse.kind != BrowseKind::List || browse.browsing != 0;
}

void InspectPaths(Inspection& inspection, const Stored& stored)
{
    const BrowseRow* browse = BrowseOf(stored.place);
    if (browse == nullptr || !IsFolderOrFile(*browse))
        return;
    const auto format = ListFormatOf(stored.place);
    std::vector<Text> paths = {stored.value};
    if (format) {
        paths.clear();
        for (const TextView entry : SplitEntries(stored.value, *format))
            paths.push_back(ReadField(entry, 0, *format, entry.size()));
    }
    for (const Text& path : paths) {
        if (path.empty() || path.find(u"$(") != Text::npos || path.find(u"://") != Text::npos ||
            path.find_first_of(u"*?") != Text::npos || inspection.Settings().pathExists(path))
            continue;
        inspection.AddAt(RuleId::PathMissing, stored.variable, {{"value", Quotable(path)}});
    }
}

void InspectSetting(Inspection& inspection, const Stored& stored)
{
    if (stored.value.empty())
        return;
    if (IsFlag(*stored.place.row))
        InspectFlag(inspection, stored);
    else if (IsChoice(stored.place))
        InspectChoice(inspection, stored);
    else if (IsNumber(stored.place))
        InspectNumber(inspection, stored);
    if (const auto format = ListFormatOf(stored.place))
        InspectList(inspection, stored, *format);
    if (inspection.Settings().rules.Contains(RuleId::PathMissing))
        InspectPaths(inspection, stored);
}

bool BeginsAsASetting(TextView name)
{
    Text folded(name.substr(0, 10));
    std::ranges::transform(folded, folded.begin(), ToUpperAscii);
    return folded.starts_with(u"_ORTHOVAL_") || folded.starts_with(u"ORTHOVAL_");
}

void InspectUnknown(Inspection& inspection, const Variable& variable)
{
    if (!MayBeSimilar(variable.name))
        return;
    const Text name = inspection.File().Decode(variable.name);
    if (PageOfOlderVariable(name) != nullptr)
        return;
    const std::optional<Text> similar = SimilarVariable(name);
    if (!similar && !BeginsAsASetting(name))
        return;
    Finding* finding = inspection.Add(
        RuleId::UnknownVariable, variable.firstLine,
        {{"variable", Quotable(name)}, {"hint", similar ? "; is it " + Utf8FromText(*similar) + "?" : ""}});
    if (finding != nullptr)
        finding->variable = name;
}

void InspectDefault(Inspection& inspection, const Variable& variable)
{
    const Text name = inspection.File().Decode(variable.name);
    const SettingStore& defaults = inspection.Defaults();
    if (defaults.HasSetting(name, kCurrentTable) &&
        inspection.ValueOf(name) == defaults.GetSettingValue(name, kCurrentTable))
        inspection.AddAt(RuleId::EqualsDefault, variable, {{"variable", Quotable(name)}});
}
} // namespace

void InspectValues(Inspection& inspection)
{
    const InspectedFile& file = inspection.File();
    const bool comparesDefaults = inspection.Settings().rules.Contains(RuleId::EqualsDefault);
    for (const Variable& variable : file.Variables()) {
        if (variable.setting == nullptr)
            InspectUnknown(inspection, variable);
        else
            InspectSetting(inspection, {*variable.setting, variable,
                                        inspection.ValueOf(*variable.setting).value_or(Text())});
        if (comparesDefaults)
            InspectDefault(inspection, variable);
    }
    InspectScanPeriod(inspection);
    for (const NamingPair& pair : namingPairs) {
        InspectTemplates(inspection, pair);
        InspectNumberOfDescriptions(inspection, pair);
    }
}

} // namespace ov
