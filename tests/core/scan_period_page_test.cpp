// The Scan Period page: one variable edited by ten controls, and impossible
// dates.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "pages/scan_period/ids.h"
#include "pages/scan_period/rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

namespace
{
using ov::kCurrentTable;

constexpr char16_t kAllowUser[] = u"_ORTHOVAL_SCANPERIOD_ALLOWUSER";
constexpr char16_t kSettings[] = u"_ORTHOVAL_SCANPERIOD_SETTINGS";
constexpr char16_t kOlder[] = u"_ORTHOVAL_SCANPERIOD_VALUE";

void SetZone(const char* zone)
{
#ifdef _WIN32
    _putenv_s("TZ", zone);
    _tzset();
#else
    if (*zone != '\0')
        setenv("TZ", zone, 1);
    else
        unsetenv("TZ");
    tzset();
#endif
}

/// Sets a time zone until the scope ends.
class Zone
{
  public:
    explicit Zone(const char* zone)
    {
        if (const char* before = std::getenv("TZ"))
            m_before = before;
        SetZone(zone);
    }
    ~Zone() { SetZone(m_before.c_str()); }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;

  private:
    std::string m_before;
};

class ScanPeriodPage : public testing::Test
{
  protected:
    void Put(ov::TextView variable, ov::TextView value, ov::TableSelector table = kCurrentTable)
    {
        store.SetSetting(variable, value, ov::SettingKindText, u"", table);
    }
    void Load(ov::TableSelector table = kCurrentTable)
    {
        values.Load(store, table);
        ov::kScanPeriodRows.refresh(values);
    }
    void Save(bool hasWindow = true) { values.Save(store, hasWindow); }
    std::string Stored(ov::TextView variable)
    {
        EXPECT_TRUE(store.HasSetting(variable, kCurrentTable));
        return ov::Utf8FromText(store.GetSettingValue(variable, kCurrentTable));
    }
    std::string SavedPeriod(ov::TextView stored)
    {
        Put(kSettings, stored);
        Load();
        Save();
        return Stored(kSettings);
    }
    int Number(int control) { return values.CompanionNumberOf(control); }
    std::string Day(int control) { return ov::Utf8FromText(values.CompanionTextOf(control)); }

    /// Loads a file with an impossible date; returns the variable and value that the exception names.
    std::pair<std::string, std::string> Refusal()
    {
        try {
            values.Load(store, kCurrentTable);
        } catch (const ov::ImpossibleDate& error) {
            return {ov::Utf8FromText(error.Variable()), ov::Utf8FromText(error.Value())};
        }
        ADD_FAILURE() << "nothing was refused";
        return {};
    }

    ov::SettingStore store;
    ov::PageValues values{ov::kScanPeriodRows};
};

std::vector<std::string> EntriesOf(int control)
{
    std::vector<std::string> texts;
    const auto entries = ov::kScanPeriodRows.entries;
    const auto row = std::ranges::find(entries, control, &ov::EntriesRow::controlId);
    EXPECT_NE(row, entries.end());
    for (const unsigned id : row->stringIds)
        texts.push_back(ov::Utf8FromText(ov::FindString(id)));
    return texts;
}

TEST_F(ScanPeriodPage, StartsWithTheSelectionsOfTheProduct)
{
    EXPECT_EQ(values.NumberOf(kAllowUser), 1);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_FIXED), 1);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_SECOND), 0);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_SEGMENT_1), 1);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_SEGMENT_2), 0);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_MODE_1), 0);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_MODE_2), 0);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_OPERATOR), 2);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_OR_SELECTOR), 0);
}

TEST_F(ScanPeriodPage, AbsentSettingsAndAbsentOlderFormAreNoFixedPeriod)
{
    Load();
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_FIXED), 0);
    Save();
    EXPECT_EQ(Stored(kSettings), "");
    EXPECT_EQ(Stored(kAllowUser), "0");
    EXPECT_FALSE(store.HasSetting(kOlder, kCurrentTable));
}

TEST_F(ScanPeriodPage, UnseenPageLeavesWhatIsThere)
{
    Put(kSettings, u"1, 0");
    Put(kAllowUser, u"yes");
    Save(false);
    EXPECT_EQ(Stored(kSettings), "1, 0");
    EXPECT_EQ(Stored(kAllowUser), "yes");
}

TEST_F(ScanPeriodPage, UnseenPageAddsTheFixedPeriodThatItStartsWith)
{
    // Both dates begin at the start of the clock, which is the day before in time zones
    // west of Greenwich.
    for (const auto& [zone, day] :
         {std::pair{"UTC0", "1, 1, 1970"}, {"AAA-9", "1, 1, 1970"}, {"BBB5", "31, 12, 1969"}}) {
        const Zone inZone(zone);
        ov::SettingStore empty;
        ov::PageValues unseen{ov::kScanPeriodRows};
        unseen.Save(empty, false);
        EXPECT_EQ(ov::Utf8FromText(empty.GetSettingValue(kAllowUser, kCurrentTable)), "1");
        EXPECT_EQ(ov::Utf8FromText(empty.GetSettingValue(kSettings, kCurrentTable)),
                  std::string("1, 1, 0, ") + day + ", 0, 2, 0, 0, " + day + ", 0")
            << zone;
        EXPECT_FALSE(empty.HasSetting(kOlder, kCurrentTable));
    }
}

TEST_F(ScanPeriodPage, UnseenPageAddsOnlyWhatIsAbsent)
{
    Put(kSettings, u"1, 0");
    Save(false);
    EXPECT_EQ(Stored(kAllowUser), "1");
    EXPECT_EQ(Stored(kSettings), "1, 0");
}

TEST_F(ScanPeriodPage, AllFourteenNumbersComeBackIdentically)
{
    EXPECT_EQ(SavedPeriod(u"1, 1, 1, 1, 8, 2007, 0, 2, 1, 3, 6, 5, 2016, 0"),
              "1, 1, 1, 1, 8, 2007, 0, 2, 1, 3, 6, 5, 2016, 0");
    EXPECT_EQ(SavedPeriod(u"1, 0, 10, 29, 2, 2016, 1, 0, 1, 10, 31, 12, 1969, 1"),
              "1, 0, 10, 29, 2, 2016, 1, 0, 1, 10, 31, 12, 1969, 1");
}

TEST_F(ScanPeriodPage, OnlyAOneKeepsTheListsAndTheDatesOfTheProduct)
{
    EXPECT_EQ(SavedPeriod(u"1"), "1, 1, 0, 1, 8, 2007, 0, 2, 0, 0, 6, 5, 2016, 0");
}

TEST_F(ScanPeriodPage, OnlyAOneTakesTheFirstDateFromTheOlderForm)
{
    Put(kOlder, u"2,3,4,2011");
    EXPECT_EQ(SavedPeriod(u"1"), "1, 1, 0, 3, 4, 2011, 0, 2, 0, 0, 6, 5, 2016, 0");
}

TEST_F(ScanPeriodPage, EmptyFieldsShiftLaterNumbersLeft)
{
    EXPECT_EQ(SavedPeriod(u"1,,1"), "1, 1, 0, 1, 8, 2007, 0, 2, 0, 0, 6, 5, 2016, 0");
    EXPECT_EQ(SavedPeriod(u"1,,0"), "1, 0, 0, 1, 8, 2007, 0, 2, 0, 0, 6, 5, 2016, 0");
}

TEST_F(ScanPeriodPage, OlderFormIsConvertedAndLeftAlone)
{
    Put(kOlder, u"6,3,4,2011");
    Load();
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_FIXED), 1);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_SEGMENT_1), 1);
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_MODE_1), 1);
    EXPECT_EQ(Day(IDC_SCAN_PERIOD_DATE_1), "2011-04-03");
    Save();
    EXPECT_EQ(Stored(kOlder), "6,3,4,2011");
}

TEST_F(ScanPeriodPage, SecondDateOfAnAbsentPeriodIsTodayInLocalTime)
{
    // At any time of day, the date differs between these two zones.
    for (const auto& [zone, hours] : {std::pair{"AAA-14", 14}, {"BBB12", -12}}) {
        const Zone inZone(zone);
        const auto local = std::chrono::system_clock::now() + std::chrono::hours(hours);
        const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(local));
        Load();
        EXPECT_EQ(ov::DateOfPicker(values.CompanionTextOf(IDC_SCAN_PERIOD_DATE_2)),
                  (ov::ScanDate{static_cast<int>(static_cast<unsigned>(day.day())),
                                static_cast<int>(static_cast<unsigned>(day.month())),
                                static_cast<int>(day.year())}))
            << zone;
    }
}

TEST_F(ScanPeriodPage, SecondDateOfAnAbsentPeriodIsTheDayThatIsGivenForToday)
{
    Put(kOlder, u"6,3,4,2011");
    values.SetToday({std::chrono::year(2030), std::chrono::month(2), std::chrono::day(28)});
    Load();
    Save();
    EXPECT_EQ(Stored(kSettings), "1, 1, 1, 3, 4, 2011, 0, 2, 0, 0, 28, 2, 2030, 0");
}

TEST_F(ScanPeriodPage, DatesStayTheSameInEveryZoneAndWhereClocksChange)
{
    for (const char* zone :
         {"UTC0", "AAA-14", "BBB12", "EST5EDT,M3.2.0,M11.1.0", "BRT3BRST,M10.3.0/0,M2.3.0/0"}) {
        const Zone inZone(zone);
        for (const char* days :
             {"8, 3, 2026, 0, 2, 0, 0, 1, 11, 2026", "18, 10, 2026, 0, 2, 0, 0, 15, 2, 2026",
              "1, 1, 1970, 0, 2, 0, 0, 31, 12, 1969"}) {
            const std::string text = std::string("1, 1, 0, ") + days + ", 0";
            EXPECT_EQ(SavedPeriod(ov::TextFromUtf8(text)), text) << zone;
        }
    }
}

TEST_F(ScanPeriodPage, DayThatItsMonthLacksCountsOn)
{
    EXPECT_EQ(SavedPeriod(u"1, 1, 0, 31, 2, 2015, 0, 2, 0, 0, 31, 4, 2016, 0"),
              "1, 1, 0, 3, 3, 2015, 0, 2, 0, 0, 1, 5, 2016, 0");
}

TEST_F(ScanPeriodPage, LastDayOf1969IsAcceptedAndNoDateBeforeIt)
{
    EXPECT_EQ(SavedPeriod(u"1, 1, 0, 31, 12, 1969"), "1, 1, 0, 31, 12, 1969, 0, 2, 0, 0, 6, 5, 2016, 0");
    for (const char16_t* stored :
         {u"1, 1, 0, 30, 12, 1969", u"1, 1, 0, 31, 11, 1969", u"1, 1, 0, 1, 1, 1968"}) {
        Put(kSettings, stored);
        EXPECT_EQ(Refusal().first, "_ORTHOVAL_SCANPERIOD_SETTINGS");
    }
}

TEST_F(ScanPeriodPage, ImpossibleDateIsNamedWithItsVariableAndValue)
{
    for (const char* stored :
         {"1, 1, 0, 0, 8, 2007", "1, 1, 0, 32, 8, 2007", "1, 1, 0, 1, 0, 2007", "1, 1, 0, 1, 13, 2007",
          "1, 1, 0, 1, 8, 12345", "1, 1, 0, 1, 8, 2007, 1, 2, 0, 0, 99, 1, 2016, 0", "1,1,0,now"}) {
        Put(kSettings, ov::TextFromUtf8(stored));
        EXPECT_EQ(Refusal(), std::pair(std::string("_ORTHOVAL_SCANPERIOD_SETTINGS"), std::string(stored)));
    }
}

TEST_F(ScanPeriodPage, ImpossibleDateOfTheOlderFormIsNamed)
{
    Put(kOlder, u"0,31,13,2011");
    EXPECT_EQ(Refusal(), std::pair(std::string("_ORTHOVAL_SCANPERIOD_VALUE"), std::string("0,31,13,2011")));
    // The older variable is also the cause if the newer one does not contain the date.
    Put(kSettings, u"1, 0");
    EXPECT_EQ(Refusal().first, "_ORTHOVAL_SCANPERIOD_VALUE");
}

TEST_F(ScanPeriodPage, SettingWithAnImpossibleDateIsLeftAsItIs)
{
    Put(kSettings, u"1, 0, 0, 99, 8, 2007, 1");
    Put(kAllowUser, u"1");
    Refusal();
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_FIXED), 0);
    EXPECT_EQ(values.NumberOf(kAllowUser), 1);
    values.NumberOf(kAllowUser) = 0;
    Save();
    EXPECT_EQ(Stored(kSettings), "1, 0, 0, 99, 8, 2007, 1");
    EXPECT_EQ(Stored(kAllowUser), "0");
}

TEST_F(ScanPeriodPage, SettingStaysAbsentWhenAnotherTableHasTheImpossibleDate)
{
    Put(kSettings, u"1, 0, 0, 99, 8, 2007", ov::kDefaultTable);
    EXPECT_THROW(values.Load(store, ov::kDefaultTable), ov::ImpossibleDate);
    Save();
    EXPECT_FALSE(store.HasSetting(kSettings, kCurrentTable));
}

TEST_F(ScanPeriodPage, NextPeriodThatCanBeShownIsSavedAgain)
{
    Put(kSettings, u"1, 0, 0, 99, 8, 2007", ov::kDefaultTable);
    EXPECT_THROW(values.Load(store, ov::kDefaultTable), ov::ImpossibleDate);
    EXPECT_EQ(SavedPeriod(u"0"), "");
}

TEST_F(ScanPeriodPage, NewPeriodInPlaceOfAnImpossibleOneStartsWithWhatCouldBeRead)
{
    Put(kSettings, u"1, 0, 0, 99, 8, 2007, 1, 1, 1, 4, 7, 6, 2017, 0");
    Refusal();
    values.CompanionNumberOf(IDC_SCAN_PERIOD_FIXED) = 1;
    values.HoldBack(kSettings, false);
    Save();
    EXPECT_EQ(Stored(kSettings), "1, 0, 0, 1, 8, 2007, 1, 1, 1, 4, 7, 6, 2017, 0");
}

TEST_F(ScanPeriodPage, NumberThatIsNoEntryIsSavedAsNoSelection)
{
    EXPECT_EQ(SavedPeriod(u"1, 2, 11, 1, 8, 2007, 0, 3, 2, 11, 6, 5, 2016, 2"),
              "1, 4294967295, 4294967295, 1, 8, 2007, 0, 4294967295, 4294967295, 4294967295, 6, 5, 2016, "
              "4294967295");
}

TEST_F(ScanPeriodPage, SecondDateGoesWithTheFirst)
{
    Put(kSettings, u"0, 1, 1, 1, 8, 2007, 1");
    Load();
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_SECOND), 0);
    Put(kSettings, u"1, 1, 1, 1, 8, 2007, 1");
    Load();
    EXPECT_EQ(Number(IDC_SCAN_PERIOD_SECOND), 1);
}

// The help text lists the codes in another order and is kept; its examples are correct.
TEST_F(ScanPeriodPage, OperatorOneIsAndWhateverTheHelpSays)
{
    EXPECT_EQ(EntriesOf(IDC_SCAN_PERIOD_OPERATOR), (std::vector<std::string>{"Or", "And", "Until"}));
    const std::string help = ov::Utf8FromText(ov::FindString(10008));
    EXPECT_NE(help.find("0: Or, 1: Until, 2: And"), std::string::npos);
    EXPECT_NE(help.find("\"1, 1, 1, 1, 8, 2007, 1, 2, 0, 3, 6, 5, 2016, 0\""), std::string::npos);
}

TEST_F(ScanPeriodPage, ListsHaveTheirEntriesInOrder)
{
    const std::vector<std::string> events = {"This date...",
                                             "V8 Conversion",
                                             "Today",
                                             "First Certified",
                                             "Last Certified",
                                             "First Certification Watermark Invalidated",
                                             "Last Certification Watermark Invalidated",
                                             "First Digital Signature Placed",
                                             "Last Digital Signature Placed",
                                             "First Digital Signature Invalidated",
                                             "Last Digital Signature Invalidated"};
    EXPECT_EQ(EntriesOf(IDC_SCAN_PERIOD_MODE_1), events);
    EXPECT_EQ(EntriesOf(IDC_SCAN_PERIOD_MODE_2), events);
    EXPECT_EQ(EntriesOf(IDC_SCAN_PERIOD_SEGMENT_1), (std::vector<std::string>{"Before", "After"}));
    EXPECT_EQ(EntriesOf(IDC_SCAN_PERIOD_SEGMENT_2), (std::vector<std::string>{"Before", "After"}));
    EXPECT_EQ(EntriesOf(IDC_SCAN_PERIOD_OR_SELECTOR),
              (std::vector<std::string>{"Whichever is first", "Whichever is last"}));
}

TEST_F(ScanPeriodPage, OlderCodesHaveTheirNames)
{
    const std::vector<std::string> names = {"Before this date...",      "On this date...",
                                            "After this date...",       "On or Before this date...",
                                            "On or After this date...", "Before v8 conversion",
                                            "After v8 conversion",      "On or Before v8 conversion",
                                            "On or After v8 conversion"};
    for (unsigned code = 0; code < names.size(); ++code)
        EXPECT_EQ(ov::Utf8FromText(ov::FindString(5021 + code)), names[code]);
}

} // namespace
