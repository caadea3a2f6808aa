#pragma once

#include "base/text.h"

namespace ov
{

/// A day of the calendar as a scan period names it: the numbers as they were read, which need not
/// be a day that exists. See IsScanDate.
struct ScanDate {
    int day = 0;   ///< 1 to 31
    int month = 0; ///< 1 to 12
    int year = 0;  ///< four digits

    bool operator==(const ScanDate&) const = default;
};

/// What a list without a selection holds; written as 4294967295.
inline constexpr int kNoSelection = -1;

/// A fixed scan period: a date or an event, and perhaps a second one, joined by an operator. The
/// selections are positions in the page's lists, kNoSelection for none. Starts as the page does.
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
    int orSelector = 0; ///< 0 whichever is first, 1 whichever is last

    bool operator==(const ScanPeriod&) const = default;
};

/// Takes over the older form of the setting: a code, and then the day, month and year of the first
/// date, separated by commas. Sets the first date, to 1 August 2007 as far as the text does not
/// name it, and makes it active exactly when the text is not empty. A code of 0 to 8 makes
/// selections; all others stay as they are.
void ParseLegacyScanPeriod(TextView value, ScanPeriod& period);

/// Takes over the setting: up to 14 numbers separated by commas, in the order of ScanPeriod's
/// members. Empty fields do not count: the numbers behind them move up. What the text does not
/// reach stays as it is, but for the second date, which is `today` for an empty text and else 6 May
/// 2016. A number that is no position of its list is no selection; an active mark is on for any
/// number but 0.
void ParseScanPeriod(TextView settings, const ScanDate& today, ScanPeriod& period);

/// The text of the setting: all 14 numbers, also those of a date that is not active. Empty when
/// there is no fixed period.
Text FormatScanPeriod(const ScanPeriod& period);

/// Whether the page takes the date: a day of 1 to 31 and a month of 1 to 12 from 1970 on, or 31
/// December 1969, which is the clock's start in western time zones. Days that a month
/// does not have are left to the calendar.
bool IsScanDate(const ScanDate& date);

} // namespace ov
