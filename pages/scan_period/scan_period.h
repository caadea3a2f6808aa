#pragma once

#include "base/text.h"

namespace ov
{

/// A day of the calendar as written in a scan period: the numbers that were read, which need not
/// be an existing day. See IsScanDate.
struct ScanDate {
    int day = 0;   ///< 1 to 31
    int month = 0; ///< 1 to 12
    int year = 0;  ///< four digits

    bool operator==(const ScanDate&) const = default;
};

/// The value of a list without a selection; written as 4294967295.
inline constexpr int kNoSelection = -1;

/// A fixed scan period: a date or an event, and optionally a second one, joined by an operator. The
/// selections are positions in the page's lists, kNoSelection for none. The defaults are the page's.
struct ScanPeriod {
    bool dateOneActive = true;
    int segmentOne = 1; ///< 0 before, 1 after
    int modeOne = 0;    ///< 0 the date itself, 1 to 10 an event
    ScanDate dateOne;
    bool dateTwoActive = false;
    int operation = 2;  ///< 0 or, 1 and, 2 until
    int segmentTwo = 0; ///< as segmentOne
    int modeTwo = 0;    ///< as modeOne
    ScanDate dateTwo;
    int orSelector = 0; ///< 0 for the earlier one, 1 for the later one

    bool operator==(const ScanPeriod&) const = default;
};

/// Reads the older variable: a code, then the day, month and year of the first date, separated
/// by commas. Sets the first date, with the parts of 1 August 2007 for those that are missing, and
/// makes it active if and only if the text is not empty. The codes 0 to 8 change
/// selections; any other code leaves them unchanged.
void ParseLegacyScanPeriod(TextView value, ScanPeriod& period);

/// Reads the setting: up to 14 numbers separated by commas, in the order of ScanPeriod's
/// members. Empty fields do not count: the numbers after them move up. Members that the text does not
/// reach are unchanged, except for the second date: it becomes `today` for an empty text, otherwise
/// 6 May 2016. A number that is not a position of its list selects nothing. An active mark is on for
/// any number but 0.
void ParseScanPeriod(TextView settings, const ScanDate& today, ScanPeriod& period);

/// The text of the setting: all 14 numbers, including those of inactive dates. Empty if
/// there is no fixed period.
Text FormatScanPeriod(const ScanPeriod& period);

/// True if the page accepts the date: a day of 1 to 31 and a month of 1 to 12 from 1970 on, or 31
/// December 1969, which is the start of the clock in western time zones. Days that a month
/// does not have are left to the calendar.
bool IsScanDate(const ScanDate& date);

} // namespace ov
