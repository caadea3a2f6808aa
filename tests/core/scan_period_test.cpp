// The texts of a fixed scan period: the 14 numbers, the older variable, the accepted dates.
#include "pages/scan_period/scan_period.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <ostream>
#include <string>

namespace ov
{

// GoogleTest finds this by argument-dependent lookup.
static void PrintTo(const ScanDate& date, std::ostream* out)
{
    *out << date.day << '.' << date.month << '.' << date.year;
}

static void PrintTo(const ScanPeriod& period, std::ostream* out)
{
    *out << period.dateOneActive << ' ' << period.segmentOne << ' ' << period.modeOne << ' ';
    PrintTo(period.dateOne, out);
    *out << ' ' << period.dateTwoActive << ' ' << period.operation << ' ' << period.segmentTwo << ' '
         << period.modeTwo << ' ';
    PrintTo(period.dateTwo, out);
    *out << ' ' << period.orSelector;
}

namespace
{

constexpr ScanDate kToday{21, 11, 2026};
constexpr ScanDate kFirstStart{1, 8, 2007};
constexpr ScanDate kSecondStart{6, 5, 2016};

// Loads both variables into the initial state, as the page does.
ScanPeriod Loaded(const std::string& settings, const std::string& value = "")
{
    ScanPeriod period;
    ParseLegacyScanPeriod(TextFromUtf8(value), period);
    ParseScanPeriod(TextFromUtf8(settings), kToday, period);
    return period;
}

std::string Saved(const ScanPeriod& period)
{
    return Utf8FromText(FormatScanPeriod(period));
}

TEST(ScanPeriod, StartsAsThePageDoes)
{
    const ScanPeriod period;
    EXPECT_TRUE(period.dateOneActive);
    EXPECT_FALSE(period.dateTwoActive);
    EXPECT_EQ(period.segmentOne, 1);
    EXPECT_EQ(period.segmentTwo, 0);
    EXPECT_EQ(period.modeOne, 0);
    EXPECT_EQ(period.modeTwo, 0);
    EXPECT_EQ(period.operation, 2);
    EXPECT_EQ(period.orSelector, 0);
    EXPECT_EQ(period.dateOne, ScanDate());
    EXPECT_EQ(period.dateTwo, ScanDate());
}

TEST(ScanPeriod, BothAbsentMeansNoFixedPeriodAndAnEmptyText)
{
    ScanPeriod expected;
    expected.dateOneActive = false;
    expected.dateOne = kFirstStart;
    expected.dateTwo = kToday;
    EXPECT_EQ(Loaded(""), expected);
    EXPECT_EQ(Saved(Loaded("")), "");
}

TEST(ScanPeriod, FourteenNumbersComeBackAsTheyAre)
{
    const std::string settings = "1, 1, 1, 1, 8, 2007, 0, 2, 1, 3, 6, 5, 2016, 0";
    EXPECT_EQ(Saved(Loaded(settings)), settings);
    // After the conversion, until before the first certification.
    const std::string example = "1, 1, 1, 1, 8, 2007, 1, 2, 0, 3, 6, 5, 2016, 0";
    EXPECT_EQ(Saved(Loaded(example)), example);
}

TEST(ScanPeriod, EachPositionHasItsMember)
{
    const ScanPeriod expected{.dateOneActive = true,
                              .segmentOne = 0,
                              .modeOne = 10,
                              .dateOne = {2, 3, 2004},
                              .dateTwoActive = true,
                              .operation = 1,
                              .segmentTwo = 1,
                              .modeTwo = 9,
                              .dateTwo = {5, 6, 2007},
                              .orSelector = 1};
    EXPECT_EQ(Loaded("1,0,10,2,3,2004,1,1,1,9,5,6,2007,1"), expected);
    EXPECT_EQ(Saved(expected), "1, 0, 10, 2, 3, 2004, 1, 1, 1, 9, 5, 6, 2007, 1");
}

TEST(ScanPeriod, PositionsThatAreNotReachedKeepWhatTheyWere)
{
    // All fourteen values differ from the initial ones; each text has one number more.
    const std::array<std::string, 14> numbers{"1", "0", "10", "2", "3", "2004", "1",
                                              "1", "1", "9",  "5", "6", "2007", "1"};
    ScanPeriod expected;
    expected.dateOneActive = false;
    expected.dateOne = kFirstStart;
    expected.dateTwo = kSecondStart;
    std::string settings;
    for (std::size_t reached = 0; reached < numbers.size(); ++reached) {
        settings += (reached > 0 ? ", " : "") + numbers[reached];
        switch (reached) {
        case 0:
            expected.dateOneActive = true;
            break;
        case 1:
            expected.segmentOne = 0;
            break;
        case 2:
            expected.modeOne = 10;
            break;
        case 3:
            expected.dateOne.day = 2;
            break;
        case 4:
            expected.dateOne.month = 3;
            break;
        case 5:
            expected.dateOne.year = 2004;
            break;
        case 6:
            expected.dateTwoActive = true;
            break;
        case 7:
            expected.operation = 1;
            break;
        case 8:
            expected.segmentTwo = 1;
            break;
        case 9:
            expected.modeTwo = 9;
            break;
        case 10:
            expected.dateTwo.day = 5;
            break;
        case 11:
            expected.dateTwo.month = 6;
            break;
        case 12:
            expected.dateTwo.year = 2007;
            break;
        default:
            expected.orSelector = 1;
            break;
        }
        EXPECT_EQ(Loaded(settings), expected) << settings;
    }
    EXPECT_EQ(Loaded(settings + ", 7, x"), expected);
}

TEST(ScanPeriod, OnlyAOneLeavesTheListsAndTheDatesAtTheirStart)
{
    ScanPeriod expected;
    expected.dateOne = kFirstStart;
    expected.dateTwo = kSecondStart;
    EXPECT_EQ(Loaded("1"), expected);
}

TEST(ScanPeriod, OnlyAOneLeavesTheFirstDateOfTheOlderForm)
{
    const ScanPeriod period = Loaded("1", "0,3,4,2011");
    EXPECT_EQ(period.dateOne, (ScanDate{3, 4, 2011}));
    EXPECT_EQ(period.dateTwo, kSecondStart);
}

TEST(ScanPeriod, EmptyFieldsMoveLaterNumbersUp)
{
    const ScanPeriod period = Loaded("1,,1");
    EXPECT_TRUE(period.dateOneActive);
    EXPECT_EQ(period.segmentOne, 1);
    EXPECT_EQ(period.modeOne, 0);
    EXPECT_EQ(Loaded(",,1,,,0,"), Loaded("1,0"));
    // A field with only a blank counts as a field.
    EXPECT_EQ(Loaded("1, ,2").segmentOne, 0);
    EXPECT_EQ(Loaded("1, ,2").modeOne, 2);
}

TEST(ScanPeriod, CommasAloneAreNeitherEmptyNorANumber)
{
    const ScanPeriod period = Loaded(",,,", ",");
    EXPECT_TRUE(period.dateOneActive);
    EXPECT_EQ(period.dateOne, kFirstStart);
    EXPECT_EQ(period.dateTwo, kSecondStart);
    EXPECT_FALSE(Loaded(",,,").dateOneActive);
}

TEST(ScanPeriod, OneOfTheOperatorIsAndNeverUntil)
{
    EXPECT_EQ(Loaded("1,1,1,1,8,2007,1,1").operation, 1);
    EXPECT_EQ(Loaded("1,1,1,1,8,2007,1,0").operation, 0);
    EXPECT_EQ(Loaded("1,1,1,1,8,2007,1,2").operation, 2);
}

TEST(ScanPeriod, NumbersOutsideAListAreNoSelection)
{
    const ScanPeriod period = Loaded("1,2,11,1,8,2007,1,3,-1,4294967295,6,5,2016,2");
    EXPECT_EQ(period.segmentOne, kNoSelection);
    EXPECT_EQ(period.modeOne, kNoSelection);
    EXPECT_EQ(period.operation, kNoSelection);
    EXPECT_EQ(period.segmentTwo, kNoSelection);
    EXPECT_EQ(period.modeTwo, kNoSelection);
    EXPECT_EQ(period.orSelector, kNoSelection);
    const std::string saved = "1, 4294967295, 4294967295, 1, 8, 2007, 1, 4294967295, 4294967295, 4294967295, "
                              "6, 5, 2016, 4294967295";
    EXPECT_EQ(Saved(period), saved);
    EXPECT_EQ(Saved(Loaded(saved)), saved);
}

TEST(ScanPeriod, WhatIsNoNumberReadsAsNothing)
{
    const ScanPeriod period = Loaded("1, x,\t+3th,+12,-4,1e9");
    EXPECT_EQ(period.segmentOne, 0);
    EXPECT_EQ(period.modeOne, 3);
    EXPECT_EQ(period.dateOne, (ScanDate{12, -4, 1}));
    EXPECT_FALSE(Loaded("x").dateOneActive);
}

TEST(ScanPeriod, SwitchedOffIsSavedAsAnEmptyText)
{
    EXPECT_EQ(Saved(Loaded("0, 1, 1, 1, 8, 2007, 1, 2, 0, 3, 6, 5, 2016, 0")), "");
}

TEST(ScanPeriod, SecondDateThatIsOffIsSavedAllTheSame)
{
    ScanPeriod period = Loaded("1");
    period.dateTwo = {29, 2, 2024};
    EXPECT_EQ(Saved(period), "1, 1, 0, 1, 8, 2007, 0, 2, 0, 0, 29, 2, 2024, 0");
}

struct LegacyCode {
    int code;
    int segmentOne;
    int modeOne;
    int segmentTwo;
    int modeTwo;
};

class LegacyScanPeriod : public testing::TestWithParam<LegacyCode>
{
};

// Starts with selections that no code makes; 7 and 8 mark those that do not change.
TEST_P(LegacyScanPeriod, MakesTheSelectionsOfItsCode)
{
    const LegacyCode& code = GetParam();
    for (const int start : {0, 1}) {
        ScanPeriod period;
        period.segmentOne = start;
        period.modeOne = 7;
        period.segmentTwo = 1;
        period.modeTwo = 8;
        ScanPeriod expected = period;
        if (code.segmentOne >= 0)
            expected.segmentOne = code.segmentOne;
        if (code.modeOne >= 0)
            expected.modeOne = code.modeOne;
        if (code.segmentTwo >= 0)
            expected.segmentTwo = code.segmentTwo;
        if (code.modeTwo >= 0)
            expected.modeTwo = code.modeTwo;
        expected.dateOne = kFirstStart;
        ParseLegacyScanPeriod(FormatInteger(code.code), period);
        EXPECT_EQ(period, expected);
    }
}

// The columns: code, segment #1, mode #1, segment #2, mode #2; -1 means unchanged.
INSTANTIATE_TEST_SUITE_P(
    Codes, LegacyScanPeriod,
    testing::Values(LegacyCode{0, 0, -1, -1, -1}, LegacyCode{1, 1, 0, 0, 0}, LegacyCode{2, 1, 0, -1, -1},
                    LegacyCode{3, 0, 0, -1, -1}, LegacyCode{4, 1, 0, -1, -1}, LegacyCode{5, 0, 1, -1, -1},
                    LegacyCode{6, 1, 1, -1, -1}, LegacyCode{7, 0, 1, -1, -1}, LegacyCode{8, 1, 1, -1, -1},
                    LegacyCode{9, -1, -1, -1, -1}, LegacyCode{-1, -1, -1, -1, -1},
                    LegacyCode{std::numeric_limits<int>::max(), -1, -1, -1, -1}),
    [](const testing::TestParamInfo<LegacyCode>& code) {
        return code.param.code < 0 ? std::string("Negative") : "Code" + std::to_string(code.param.code);
    });

TEST(LegacyScanPeriod, CodeAndDateAloneMakeAFixedPeriod)
{
    ScanPeriod expected;
    expected.segmentOne = 1;
    expected.modeOne = 1;
    expected.dateOne = {3, 4, 2011};
    expected.dateTwo = kToday;
    EXPECT_EQ(Loaded("", "6,3,4,2011"), expected);
}

TEST(LegacyScanPeriod, DateGoesAsFarAsTheTextDoes)
{
    EXPECT_EQ(Loaded("", "2").dateOne, kFirstStart);
    EXPECT_EQ(Loaded("", "2, 3").dateOne, (ScanDate{3, 8, 2007}));
    EXPECT_EQ(Loaded("", "2,,3,4,").dateOne, (ScanDate{3, 4, 2007}));
    EXPECT_EQ(Loaded("", "2,3,4,2011,5").dateOne, (ScanDate{3, 4, 2011}));
    // An unknown code is followed by a date nevertheless.
    EXPECT_EQ(Loaded("", "12,3,4,2011").dateOne, (ScanDate{3, 4, 2011}));
}

TEST(LegacyScanPeriod, SecondDateIsNeverSwitchedOn)
{
    for (int code = 0; code <= 8; ++code)
        EXPECT_FALSE(Loaded("", std::to_string(code)).dateTwoActive) << code;
}

TEST(ScanDate, TakenFromNineteenSeventyOnAndTheDayBefore)
{
    EXPECT_TRUE(IsScanDate({1, 1, 1970}));
    EXPECT_TRUE(IsScanDate({31, 12, 2026}));
    EXPECT_TRUE(IsScanDate({31, 2, 2026}));
    EXPECT_TRUE(IsScanDate({31, 12, 1969}));
    EXPECT_FALSE(IsScanDate({30, 12, 1969}));
    EXPECT_FALSE(IsScanDate({31, 11, 1969}));
    EXPECT_FALSE(IsScanDate({31, 12, 1968}));
    EXPECT_FALSE(IsScanDate({0, 1, 2026}));
    EXPECT_FALSE(IsScanDate({32, 1, 2026}));
    EXPECT_FALSE(IsScanDate({1, 0, 2026}));
    EXPECT_FALSE(IsScanDate({1, 13, 2026}));
    EXPECT_FALSE(IsScanDate({-1, -1, -1}));
    EXPECT_FALSE(IsScanDate(ScanDate()));
}

} // namespace
} // namespace ov
