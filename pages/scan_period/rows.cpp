#include "pages/scan_period/rows.h"

#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/scan_period/ids.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace ov
{
namespace
{
constexpr char16_t kOlderVariable[] = u"_ORTHOVAL_SCANPERIOD_VALUE";

// Replaces an impossible date.
constexpr ScanDate kFirstDate = {1, 8, 2007};
constexpr ScanDate kSecondDate = {6, 5, 2016};

constexpr SettingRow settings[] = {
    FlagRow(u"_ORTHOVAL_SCANPERIOD_ALLOWUSER", IDC_SCAN_PERIOD_ALLOW_USER, IDS_HELP_SCAN_PERIOD_ALLOW_USER,
            true),
    HiddenRow(kScanPeriodVariable, SettingKindText, Encoding::Verbatim, IDS_HELP_SCAN_PERIOD_SETTINGS),
};

constexpr CompanionRow companions[] = {
    {ControlKind::CheckBox, IDC_SCAN_PERIOD_FIXED, kScanPeriodVariable, 1},
    {ControlKind::DropDownList, IDC_SCAN_PERIOD_SEGMENT_1, kScanPeriodVariable, 1},
    {ControlKind::DropDownList, IDC_SCAN_PERIOD_MODE_1, kScanPeriodVariable, 0},
    {ControlKind::DatePicker, IDC_SCAN_PERIOD_DATE_1, kScanPeriodVariable},
    {ControlKind::CheckBox, IDC_SCAN_PERIOD_SECOND, kScanPeriodVariable, 0},
    {ControlKind::DropDownList, IDC_SCAN_PERIOD_OPERATOR, kScanPeriodVariable, 2},
    {ControlKind::DropDownList, IDC_SCAN_PERIOD_SEGMENT_2, kScanPeriodVariable, 0},
    {ControlKind::DropDownList, IDC_SCAN_PERIOD_MODE_2, kScanPeriodVariable, 0},
    {ControlKind::DatePicker, IDC_SCAN_PERIOD_DATE_2, kScanPeriodVariable},
    {ControlKind::DropDownList, IDC_SCAN_PERIOD_OR_SELECTOR, kScanPeriodVariable, 0},
};

constexpr HelpRow extraHelp[] = {
    {IDC_SCAN_PERIOD_FRAME, IDS_HELP_SCAN_PERIOD_SETTINGS},
    {IDC_SCAN_PERIOD_FIXED, IDS_HELP_SCAN_PERIOD_FIXED},
    {IDC_SCAN_PERIOD_SEGMENT_1, IDS_HELP_SCAN_PERIOD_SEGMENT},
    {IDC_SCAN_PERIOD_MODE_1, IDS_HELP_SCAN_PERIOD_MODE},
    {IDC_SCAN_PERIOD_DATE_1, IDS_HELP_SCAN_PERIOD_DATE},
    {IDC_SCAN_PERIOD_SECOND, IDS_HELP_SCAN_PERIOD_SECOND},
    {IDC_SCAN_PERIOD_OPERATOR, IDS_HELP_SCAN_PERIOD_OPERATOR},
    {IDC_SCAN_PERIOD_SEGMENT_2, IDS_HELP_SCAN_PERIOD_SEGMENT},
    {IDC_SCAN_PERIOD_MODE_2, IDS_HELP_SCAN_PERIOD_MODE},
    {IDC_SCAN_PERIOD_DATE_2, IDS_HELP_SCAN_PERIOD_DATE},
};

constexpr LayoutRow layout[] = {
    {IDC_SCAN_PERIOD_FRAME, kStretched}, {IDC_SCAN_PERIOD_MODE_1, kStretched},
    {IDC_SCAN_PERIOD_DATE_1, kTopRight}, {IDC_SCAN_PERIOD_MODE_2, kStretched},
    {IDC_SCAN_PERIOD_DATE_2, kTopRight},
};

constexpr unsigned segments[] = {IDS_SCAN_PERIOD_BEFORE, IDS_SCAN_PERIOD_AFTER};

constexpr unsigned modes[] = {
    IDS_SCAN_PERIOD_THIS_DATE,
    IDS_SCAN_PERIOD_V8_CONVERSION,
    IDS_SCAN_PERIOD_TODAY,
    IDS_SCAN_PERIOD_FIRST_CERTIFIED,
    IDS_SCAN_PERIOD_LAST_CERTIFIED,
    IDS_SCAN_PERIOD_FIRST_WATERMARK_INVALIDATED,
    IDS_SCAN_PERIOD_LAST_WATERMARK_INVALIDATED,
    IDS_SCAN_PERIOD_FIRST_SIGNATURE_PLACED,
    IDS_SCAN_PERIOD_LAST_SIGNATURE_PLACED,
    IDS_SCAN_PERIOD_FIRST_SIGNATURE_INVALIDATED,
    IDS_SCAN_PERIOD_LAST_SIGNATURE_INVALIDATED,
};

// The variable stores these positions, so And precedes Until although the help text
// lists them the other way round: the files are older than the help text.
constexpr unsigned operators[] = {IDS_SCAN_PERIOD_OR, IDS_SCAN_PERIOD_AND, IDS_SCAN_PERIOD_UNTIL};

constexpr unsigned orSelectors[] = {IDS_SCAN_PERIOD_FIRST, IDS_SCAN_PERIOD_LAST};

constexpr EntriesRow entries[] = {
    {IDC_SCAN_PERIOD_SEGMENT_1, segments}, {IDC_SCAN_PERIOD_MODE_1, modes},
    {IDC_SCAN_PERIOD_OPERATOR, operators}, {IDC_SCAN_PERIOD_SEGMENT_2, segments},
    {IDC_SCAN_PERIOD_MODE_2, modes},       {IDC_SCAN_PERIOD_OR_SELECTOR, orSelectors},
};

constexpr NameRow names[] = {
    {IDC_SCAN_PERIOD_SEGMENT_1, IDS_SCAN_PERIOD_NAME_SEGMENT_1},
    {IDC_SCAN_PERIOD_MODE_1, IDS_SCAN_PERIOD_NAME_MODE_1},
    {IDC_SCAN_PERIOD_DATE_1, IDS_SCAN_PERIOD_NAME_DATE_1},
    {IDC_SCAN_PERIOD_SECOND, IDS_SCAN_PERIOD_NAME_SECOND},
    {IDC_SCAN_PERIOD_OPERATOR, IDS_SCAN_PERIOD_NAME_OPERATOR},
    {IDC_SCAN_PERIOD_SEGMENT_2, IDS_SCAN_PERIOD_NAME_SEGMENT_2},
    {IDC_SCAN_PERIOD_MODE_2, IDS_SCAN_PERIOD_NAME_MODE_2},
    {IDC_SCAN_PERIOD_DATE_2, IDS_SCAN_PERIOD_NAME_DATE_2},
    {IDC_SCAN_PERIOD_OR_SELECTOR, IDS_SCAN_PERIOD_NAME_OR_SELECTOR},
};

constexpr Condition fixed = IsOn(IDC_SCAN_PERIOD_FIXED);
constexpr Condition second = IsOn(IDC_SCAN_PERIOD_SECOND);

constexpr DependencyRow dependencies[] = {
    ShownWhen(IDC_SCAN_PERIOD_SECOND, fixed),
    ShownWhen(IDC_SCAN_PERIOD_MODE_1, fixed),
    ShownWhen(IDC_SCAN_PERIOD_SEGMENT_1, fixed),
    ShownWhen(IDC_SCAN_PERIOD_OPERATOR, fixed),
    ShownWhen(IDC_SCAN_PERIOD_MODE_2, second),
    ShownWhen(IDC_SCAN_PERIOD_SEGMENT_2, second),
    ShownWhen(IDC_SCAN_PERIOD_OR_SELECTOR, fixed, second, {IDC_SCAN_PERIOD_OPERATOR, 0}),
    ShownWhen(IDC_SCAN_PERIOD_DATE_1, fixed, {IDC_SCAN_PERIOD_MODE_1, 0}),
    ShownWhen(IDC_SCAN_PERIOD_DATE_2, second, {IDC_SCAN_PERIOD_MODE_2, 0}),
    EnabledWhen(IDC_SCAN_PERIOD_SEGMENT_1, fixed),
    EnabledWhen(IDC_SCAN_PERIOD_MODE_1, fixed),
    EnabledWhen(IDC_SCAN_PERIOD_DATE_1, fixed),
    EnabledWhen(IDC_SCAN_PERIOD_SEGMENT_2, second),
    EnabledWhen(IDC_SCAN_PERIOD_MODE_2, second),
    EnabledWhen(IDC_SCAN_PERIOD_OPERATOR, second),
    EnabledWhen(IDC_SCAN_PERIOD_DATE_2, fixed, second),
};

// A year has four digits.
constexpr int kLastYear = 9999;

bool CanShow(const ScanDate& date)
{
    return IsScanDate(date) && date.year <= kLastYear;
}

bool CanShow(const ScanPeriod& period)
{
    return CanShow(period.dateOne) && CanShow(period.dateTwo);
}

ScanDate LocalDay(std::time_t time, const ScanDate& otherwise)
{
    const std::tm* day = std::localtime(&time);
    return day != nullptr ? ScanDate{day->tm_mday, day->tm_mon + 1, day->tm_year + 1900} : otherwise;
}

ScanDate Today(const PageValues& values)
{
    const auto today = values.Today();
    if (!today)
        return LocalDay(std::time(nullptr), kSecondDate);
    return {static_cast<int>(static_cast<unsigned>(today->day())),
            static_cast<int>(static_cast<unsigned>(today->month())), static_cast<int>(today->year())};
}

// Before anything was loaded, the start of the clock: the first day of 1970, or
// the day before in time zones west of Greenwich.
ScanDate ShownDate(PageValues& values, int picker)
{
    const Text& day = values.CompanionTextOf(picker);
    return day.empty() ? LocalDay(0, {1, 1, 1970}) : DateOfPicker(day);
}

ScanPeriod Shown(PageValues& values)
{
    ScanPeriod period;
    period.dateOneActive = values.CompanionNumberOf(IDC_SCAN_PERIOD_FIXED) != 0;
    period.segmentOne = values.CompanionNumberOf(IDC_SCAN_PERIOD_SEGMENT_1);
    period.modeOne = values.CompanionNumberOf(IDC_SCAN_PERIOD_MODE_1);
    period.dateOne = ShownDate(values, IDC_SCAN_PERIOD_DATE_1);
    period.dateTwoActive = values.CompanionNumberOf(IDC_SCAN_PERIOD_SECOND) != 0;
    period.operation = values.CompanionNumberOf(IDC_SCAN_PERIOD_OPERATOR);
    period.segmentTwo = values.CompanionNumberOf(IDC_SCAN_PERIOD_SEGMENT_2);
    period.modeTwo = values.CompanionNumberOf(IDC_SCAN_PERIOD_MODE_2);
    period.dateTwo = ShownDate(values, IDC_SCAN_PERIOD_DATE_2);
    period.orSelector = values.CompanionNumberOf(IDC_SCAN_PERIOD_OR_SELECTOR);
    return period;
}

void Show(PageValues& values, const ScanPeriod& period)
{
    values.CompanionNumberOf(IDC_SCAN_PERIOD_FIXED) = period.dateOneActive ? 1 : 0;
    values.CompanionNumberOf(IDC_SCAN_PERIOD_SEGMENT_1) = period.segmentOne;
    values.CompanionNumberOf(IDC_SCAN_PERIOD_MODE_1) = period.modeOne;
    values.CompanionTextOf(IDC_SCAN_PERIOD_DATE_1) = PickerText(period.dateOne);
    values.CompanionNumberOf(IDC_SCAN_PERIOD_SECOND) = period.dateTwoActive ? 1 : 0;
    values.CompanionNumberOf(IDC_SCAN_PERIOD_OPERATOR) = period.operation;
    values.CompanionNumberOf(IDC_SCAN_PERIOD_SEGMENT_2) = period.segmentTwo;
    values.CompanionNumberOf(IDC_SCAN_PERIOD_MODE_2) = period.modeTwo;
    values.CompanionTextOf(IDC_SCAN_PERIOD_DATE_2) = PickerText(period.dateTwo);
    values.CompanionNumberOf(IDC_SCAN_PERIOD_OR_SELECTOR) = period.orSelector;
}

// Lists for which neither text has a value do not change.
void TakePeriod(PageValues& values, const SettingStore& store, TableSelector table)
{
    const Text& stored = values.TextOf(kScanPeriodVariable);
    const Text older = store.GetSettingValue(kOlderVariable, table);
    const ScanDate today = Today(values);
    ScanPeriod period = Shown(values);
    ParseLegacyScanPeriod(older, period);
    ParseScanPeriod(stored, today, period);
    if (CanShow(period)) {
        Show(values, period);
        values.HoldBack(kScanPeriodVariable, false);
        return;
    }
    // The other values are kept for a user who defines a new period.
    period.dateOneActive = false;
    if (!CanShow(period.dateOne))
        period.dateOne = kFirstDate;
    if (!CanShow(period.dateTwo))
        period.dateTwo = kSecondDate;
    Show(values, period);
    values.HoldBack(kScanPeriodVariable, true);
    ScanPeriod withoutOlder;
    withoutOlder.dateOne = kFirstDate;
    ParseScanPeriod(stored, today, withoutOlder);
    if (CanShow(withoutOlder))
        throw ImpossibleDate(kOlderVariable, older);
    throw ImpossibleDate(kScanPeriodVariable, stored);
}

// Only the value changes: the hidden check box keeps its mark, so that the second
// date returns together with the first.
bool ForgetSecondDate(PageValues& values)
{
    if (values.CompanionNumberOf(IDC_SCAN_PERIOD_FIXED) == 0)
        values.CompanionNumberOf(IDC_SCAN_PERIOD_SECOND) = 0;
    return false;
}

void WritePeriod(PageValues& values)
{
    values.TextOf(kScanPeriodVariable) = FormatScanPeriod(Shown(values));
}

void AppendDigits(Text& text, int number, std::size_t width)
{
    const Text digits = FormatInteger(number);
    text.append(width - std::min(width, digits.size()), u'0');
    text += digits;
}

constexpr const char16_t* olderVariables[] = {kOlderVariable};
} // namespace

constexpr PageRows kScanPeriodRows = {
    .info = {.pageId = 20,
             .titleId = IDS_TITLE_SCAN_PERIOD,
             .templateId = IDD_PAGE_SCAN_PERIOD,
             .scrollWidth = 290,
             .scrollHeight = 320,
             .constructionRank = 180,
             .listRank = 180},
    .settings = settings,
    .extraHelp = extraHelp,
    .layout = layout,
    .companions = companions,
    .entries = entries,
    .dependencies = dependencies,
    .names = names,
    .olderVariables = olderVariables,
    .loadMarksModified = true,
    .afterLoad = TakePeriod,
    .refresh = ForgetSecondDate,
    .beforeSave = WritePeriod,
};

ImpossibleDate::ImpossibleDate(TextView variable, TextView value)
    : std::runtime_error("A variable has a date that does not exist."), m_variable(variable), m_value(value)
{
}

Text PickerText(const ScanDate& date)
{
    using namespace std::chrono;
    const year_month_day first{year{date.year}, month{static_cast<unsigned>(date.month)}, day{1}};
    const year_month_day shown{sys_days{first} + days{date.day - 1}};
    Text text;
    AppendDigits(text, static_cast<int>(shown.year()), 4);
    text += u'-';
    AppendDigits(text, static_cast<int>(static_cast<unsigned>(shown.month())), 2);
    text += u'-';
    AppendDigits(text, static_cast<int>(static_cast<unsigned>(shown.day())), 2);
    return text;
}

ScanDate DateOfPicker(TextView day)
{
    const auto part = [day](std::size_t from) { return ToInteger(day.substr(std::min(from, day.size()))); };
    return {part(8), part(5), part(0)};
}

} // namespace ov
