#pragma once

#include "pages/core/setting_row.h"
#include "pages/scan_period/scan_period.h"

#include <stdexcept>

namespace ov
{

/// Thrown while loading if a variable contains a date that the page cannot show.
/// The page then shows no fixed period, and the setting is held back so that its
/// value is not lost.
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

/// A day in the format of a date picker's value, "2016-05-06". A day that does not
/// exist in its month continues into the next month.
Text PickerText(const ScanDate& date);

/// The day in a date picker's value.
ScanDate DateOfPicker(TextView day);

} // namespace ov
