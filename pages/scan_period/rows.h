#pragma once

#include "pages/core/setting_row.h"
#include "pages/scan_period/scan_period.h"

#include <stdexcept>

namespace ov
{

/// The Scan Period page. Loading throws ImpossibleDate.
const PageRows& ScanPeriodRows();

/// Told while loading: a variable names a date that the page cannot show. The
/// values are then those of no fixed period, and the setting is held back, so
/// that what it says is not lost.
class ImpossibleDate : public std::runtime_error
{
  public:
    ImpossibleDate(TextView variable, TextView value);

    const Text& Variable() const { return m_variable; }
    const Text& Value() const { return m_value; }

  private:
    Text m_variable;
    Text m_value;
};

inline constexpr char16_t kScanPeriodVariable[] = u"_ORTHOVAL_SCANPERIOD_SETTINGS";

/// A day as a date picker's value, "2016-05-06". A day that its month does not
/// have counts on into the next.
Text PickerText(const ScanDate& date);

/// The day of a date picker's value.
ScanDate DateOfPicker(TextView day);

} // namespace ov
