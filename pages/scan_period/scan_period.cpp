#include "pages/scan_period/scan_period.h"

#include <algorithm>
#include <optional>

namespace ov
{
namespace
{

// The number of entries of each list: before and after, the date and ten events, three operators,
// first and last.
constexpr int kSegments = 2;
constexpr int kModes = 11;
constexpr int kOperators = 3;
constexpr int kOrSelectors = 2;

constexpr int kBefore = 0;
constexpr int kAfter = 1;
constexpr int kThisDate = 0;
constexpr int kConversion = 1;

// The numbers between the commas. Consecutive commas count as one.
class NumberTokens
{
  public:
    explicit NumberTokens(TextView text) : m_rest(text) {}

    // The next number; nothing at the end of the text.
    std::optional<int> Next()
    {
        const std::size_t start = std::min(m_rest.find_first_not_of(u','), m_rest.size());
        m_rest.remove_prefix(start);
        if (m_rest.empty())
            return std::nullopt;
        const TextView token = m_rest.substr(0, m_rest.find(u','));
        m_rest.remove_prefix(token.size());
        return ToInteger(token);
    }

    // Each overload sets its target to the next number and returns false if there is none.
    bool Into(int& number)
    {
        const auto next = Next();
        number = next.value_or(number);
        return next.has_value();
    }
    bool Into(bool& mark)
    {
        const auto next = Next();
        mark = next ? *next != 0 : mark;
        return next.has_value();
    }
    bool Into(int& selection, int positions)
    {
        const auto next = Next();
        if (next)
            selection = *next >= 0 && *next < positions ? *next : kNoSelection;
        return next.has_value();
    }
    bool Into(ScanDate& date) { return Into(date.day) && Into(date.month) && Into(date.year); }

  private:
    TextView m_rest;
};

// The older variable distinguished a day from the time before and after it; the newer one does not.
void SelectByCode(int code, ScanPeriod& period)
{
    switch (code) {
    case 0: // Before this date; the choice between date and event does not change.
        period.segmentOne = kBefore;
        break;
    case 1: // On this date: from it on. The second row is prepared but not active.
        period.segmentOne = kAfter;
        period.modeOne = kThisDate;
        period.segmentTwo = kBefore;
        period.modeTwo = kThisDate;
        break;
    case 2: // After this date.
    case 4: // On or after it.
        period.segmentOne = kAfter;
        period.modeOne = kThisDate;
        break;
    case 3: // On or before this date.
        period.segmentOne = kBefore;
        period.modeOne = kThisDate;
        break;
    case 5: // Before the conversion.
    case 7: // On or before it.
        period.segmentOne = kBefore;
        period.modeOne = kConversion;
        break;
    case 6: // After the conversion.
    case 8: // On or after it.
        period.segmentOne = kAfter;
        period.modeOne = kConversion;
        break;
    default:
        break;
    }
}

void AppendNumber(Text& text, int number)
{
    if (!text.empty())
        text += u", ";
    const std::string digits = std::to_string(static_cast<unsigned>(number));
    text.append(digits.begin(), digits.end());
}

} // namespace

void ParseLegacyScanPeriod(TextView value, ScanPeriod& period)
{
    period.dateOne = {1, 8, 2007};
    period.dateOneActive = !value.empty();
    NumberTokens tokens(value);
    const auto code = tokens.Next();
    if (!code)
        return;
    SelectByCode(*code, period);
    tokens.Into(period.dateOne);
}

void ParseScanPeriod(TextView settings, const ScanDate& today, ScanPeriod& period)
{
    if (settings.empty()) {
        period.dateTwo = today;
        return;
    }
    period.dateTwo = {6, 5, 2016};
    NumberTokens tokens(settings);
    // Stops at the first missing number.
    static_cast<void>(tokens.Into(period.dateOneActive) && tokens.Into(period.segmentOne, kSegments) &&
                      tokens.Into(period.modeOne, kModes) && tokens.Into(period.dateOne) &&
                      tokens.Into(period.dateTwoActive) && tokens.Into(period.operation, kOperators) &&
                      tokens.Into(period.segmentTwo, kSegments) && tokens.Into(period.modeTwo, kModes) &&
                      tokens.Into(period.dateTwo) && tokens.Into(period.orSelector, kOrSelectors));
}

Text FormatScanPeriod(const ScanPeriod& period)
{
    Text text;
    if (!period.dateOneActive)
        return text;
    for (const int number : {int{period.dateOneActive}, period.segmentOne, period.modeOne, period.dateOne.day,
                             period.dateOne.month, period.dateOne.year, int{period.dateTwoActive},
                             period.operation, period.segmentTwo, period.modeTwo, period.dateTwo.day,
                             period.dateTwo.month, period.dateTwo.year, period.orSelector})
        AppendNumber(text, number);
    return text;
}

bool IsScanDate(const ScanDate& date)
{
    if (date == ScanDate{31, 12, 1969})
        return true;
    return date.year >= 1970 && date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= 31;
}

} // namespace ov
