// The Scan Period page in the dialog: which controls are visible, what is saved, and
// the message about an impossible date.
#include "pages/conforming/ids.h"
#include "pages/scan_period/ids.h"
#include "pages/users/ids.h"
#include "resources/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <cmath>
#include <commctrl.h>
#include <cstdlib>
#include <set>
#include <tuple>

using namespace uidriver;

namespace
{

constexpr const char* Settings = "_ORTHOVAL_SCANPERIOD_SETTINGS";
constexpr const char* AllowUser = "_ORTHOVAL_SCANPERIOD_ALLOWUSER";

// A fixed period with both dates.
constexpr const char* Both =
    "_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 1, 0, 1, 8, 2007, 1, 0, 0, 0, 6, 5, 2016, 1\"\r\n";

class ScanPeriodPageTest : public DialogSession
{
  protected:
    static constexpr int Controls[] = {
        IDC_SCAN_PERIOD_SEGMENT_1, IDC_SCAN_PERIOD_MODE_1,   IDC_SCAN_PERIOD_DATE_1,
        IDC_SCAN_PERIOD_SECOND,    IDC_SCAN_PERIOD_OPERATOR, IDC_SCAN_PERIOD_SEGMENT_2,
        IDC_SCAN_PERIOD_MODE_2,    IDC_SCAN_PERIOD_DATE_2,   IDC_SCAN_PERIOD_OR_SELECTOR};

    bool OpenPage() { return Open() && ShowPage(L"Scan Period"); }
    std::string Saved(const std::string& variable) { return AssignmentOf(CurrentBytes(), variable); }
    void Choose(int list, int entry) { SelectComboEntry(PageControl(list), entry); }
    int Chosen(int list) { return ComboSelection(PageControl(list)); }

    /// Expects only these of the period's controls to be visible.
    void ExpectInSight(const std::set<int>& expected)
    {
        for (const int id : Controls)
            EXPECT_EQ(expected.contains(id), IsShown(PageControl(id))) << id;
    }
    /// Expects only these of the period's controls to be enabled, visible or not.
    void ExpectEnabled(std::set<int> expected)
    {
        // These are never disabled.
        expected.insert({IDC_SCAN_PERIOD_SECOND, IDC_SCAN_PERIOD_OR_SELECTOR});
        for (const int id : Controls)
            EXPECT_EQ(expected.contains(id), IsWindowEnabled(PageControl(id)) != FALSE) << id;
    }
    /// Chooses a day as a user does in the calendar.
    void ChooseDay(int picker, WORD year, WORD month, WORD day)
    {
        SYSTEMTIME time = {};
        time.wYear = year;
        time.wMonth = month;
        time.wDay = day;
        const HWND control = PageControl(picker);
        SendMessageW(control, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
        NMDATETIMECHANGE change = {};
        change.nmhdr.hwndFrom = control;
        change.nmhdr.idFrom = static_cast<UINT_PTR>(picker);
        change.nmhdr.code = DTN_DATETIMECHANGE;
        change.dwFlags = GDT_VALID;
        change.st = time;
        EXPECT_EQ(0, SendMessageW(Page(), WM_NOTIFY, static_cast<WPARAM>(picker),
                                  reinterpret_cast<LPARAM>(&change)));
    }
    std::wstring Message(const std::wstring& variable, const std::wstring& value)
    {
        return L"The variable " + variable + L" has a date that does not exist.\nIts value is: " + value +
               L"\n\nThe Scan Period page shows no fixed scan period for it. Saving leaves the setting as it "
               L"is "
               L"in the file unless you change the fixed scan period on that page.";
    }
};

TEST_F(ScanPeriodPageTest, NothingOfThePeriodIsInSightWithoutOne)
{
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(IsPageChecked(IDC_SCAN_PERIOD_FIXED));
    ExpectInSight({});
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(ScanPeriodPageTest, ControlsComeIntoSightWithWhatTheyDependOn)
{
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ExpectInSight({IDC_SCAN_PERIOD_SEGMENT_1, IDC_SCAN_PERIOD_MODE_1, IDC_SCAN_PERIOD_DATE_1,
                   IDC_SCAN_PERIOD_SECOND, IDC_SCAN_PERIOD_OPERATOR});
    EXPECT_FALSE(IsWindowEnabled(PageControl(IDC_SCAN_PERIOD_OPERATOR)));
    Choose(IDC_SCAN_PERIOD_MODE_1, 3);
    ExpectInSight({IDC_SCAN_PERIOD_SEGMENT_1, IDC_SCAN_PERIOD_MODE_1, IDC_SCAN_PERIOD_SECOND,
                   IDC_SCAN_PERIOD_OPERATOR});
    ClickOnPage(IDC_SCAN_PERIOD_SECOND);
    ExpectInSight({IDC_SCAN_PERIOD_SEGMENT_1, IDC_SCAN_PERIOD_MODE_1, IDC_SCAN_PERIOD_SECOND,
                   IDC_SCAN_PERIOD_OPERATOR, IDC_SCAN_PERIOD_SEGMENT_2, IDC_SCAN_PERIOD_MODE_2,
                   IDC_SCAN_PERIOD_DATE_2});
    EXPECT_TRUE(IsWindowEnabled(PageControl(IDC_SCAN_PERIOD_OPERATOR)));
    EXPECT_TRUE(IsWindowEnabled(PageControl(IDC_SCAN_PERIOD_DATE_2)));
    EXPECT_EQ(2, Chosen(IDC_SCAN_PERIOD_OPERATOR));
    Choose(IDC_SCAN_PERIOD_OPERATOR, 0);
    EXPECT_TRUE(IsShown(PageControl(IDC_SCAN_PERIOD_OR_SELECTOR)));
    Choose(IDC_SCAN_PERIOD_MODE_2, 2);
    EXPECT_FALSE(IsShown(PageControl(IDC_SCAN_PERIOD_DATE_2)));
    Abandon();
}

TEST_F(ScanPeriodPageTest, ControlsAreEnabledWithTheirDate)
{
    const std::set<int> none;
    const std::set<int> first = {11033, 11032, 11038};
    const std::set<int> both = {11033, 11032, 11038, 11034, 11036, 11035, 9322};
    ASSERT_TRUE(OpenPage());
    ExpectEnabled(none);
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ExpectEnabled(first);
    ClickOnPage(IDC_SCAN_PERIOD_SECOND);
    ExpectEnabled(both);
    // Choosing an event hides the date but leaves it enabled.
    Choose(IDC_SCAN_PERIOD_MODE_1, 3);
    Choose(IDC_SCAN_PERIOD_MODE_2, 3);
    ExpectEnabled(both);
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ExpectEnabled(none);
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ExpectEnabled(both);
    ClickOnPage(IDC_SCAN_PERIOD_SECOND);
    ExpectEnabled(first);
    Abandon();
}

TEST_F(ScanPeriodPageTest, ControlsAreEnabledAsTheFileSays)
{
    const std::set<int> first = {11033, 11032, 11038};
    const std::set<int> both = {11033, 11032, 11038, 11034, 11036, 11035, 9322};
    const std::tuple<const char*, std::set<int>, std::set<int>> files[] = {
        {"0, 1, 0, 1, 8, 2007, 1, 0, 0, 0, 6, 5, 2016, 1", {}, {}},
        {"1, 1, 0, 1, 8, 2007, 0, 0, 0, 0, 6, 5, 2016, 1", first, {11033, 11032, 11038, 9318, 11034}},
        {"1, 1, 0, 1, 8, 2007, 1, 0, 0, 0, 6, 5, 2016, 1",
         both,
         {11033, 11032, 11038, 9318, 11034, 11036, 11035, 9322, 11037}},
        {"1, 1, 5, 1, 8, 2007, 1, 1, 0, 6, 6, 5, 2016, 1", both, {11033, 11032, 9318, 11034, 11036, 11035}},
    };
    for (const auto& [period, enabled, inSight] : files) {
        SCOPED_TRACE(period);
        UseCurrent(std::string(Settings) + " = \"" + period + "\"\r\n");
        ASSERT_TRUE(OpenPage());
        ExpectEnabled(enabled);
        ExpectInSight(inSight);
        Cancel();
    }
}

TEST_F(ScanPeriodPageTest, SecondDateComesBackWithTheFirst)
{
    UseCurrent(Both);
    ASSERT_TRUE(OpenPage());
    ExpectInSight({std::begin(Controls), std::end(Controls)});
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ExpectInSight({});
    EXPECT_TRUE(IsPageChecked(IDC_SCAN_PERIOD_SECOND));
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ExpectInSight({std::begin(Controls), std::end(Controls)});
    Save();
    EXPECT_EQ(std::string(Both), Saved(Settings) + "\r\n");
}

TEST_F(ScanPeriodPageTest, EveryChangeMarksTheDialog)
{
    UseCurrent(Both);
    // The last two hide controls of earlier changes.
    const std::function<void()> changes[] = {[&] { ClickOnPage(IDC_SCAN_PERIOD_ALLOW_USER); },
                                             [&] { Choose(IDC_SCAN_PERIOD_SEGMENT_1, 0); },
                                             [&] { Choose(IDC_SCAN_PERIOD_SEGMENT_2, 1); },
                                             [&] { Choose(IDC_SCAN_PERIOD_MODE_1, 1); },
                                             [&] { Choose(IDC_SCAN_PERIOD_MODE_2, 1); },
                                             [&] { Choose(IDC_SCAN_PERIOD_OR_SELECTOR, 0); },
                                             [&] { Choose(IDC_SCAN_PERIOD_OPERATOR, 1); },
                                             [&] { ChooseDay(IDC_SCAN_PERIOD_DATE_1, 2020, 2, 29); },
                                             [&] { ChooseDay(IDC_SCAN_PERIOD_DATE_2, 2021, 3, 28); },
                                             [&] { ClickOnPage(IDC_SCAN_PERIOD_SECOND); },
                                             [&] { ClickOnPage(IDC_SCAN_PERIOD_FIXED); }};
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(CanSave());
    for (const auto& change : changes) {
        change();
        EXPECT_TRUE(CanSave()) << &change - changes;
        TakeMarkBack();
    }
    Cancel();
}

TEST_F(ScanPeriodPageTest, WhatAPersonChoosesIsSavedAndShownAgain)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_SCAN_PERIOD_ALLOW_USER);
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    ClickOnPage(IDC_SCAN_PERIOD_SECOND);
    Choose(IDC_SCAN_PERIOD_SEGMENT_1, 0);
    Choose(IDC_SCAN_PERIOD_OPERATOR, 1);
    Choose(IDC_SCAN_PERIOD_SEGMENT_2, 1);
    Choose(IDC_SCAN_PERIOD_OR_SELECTOR, 1);
    ChooseDay(IDC_SCAN_PERIOD_DATE_1, 2020, 2, 29);
    ChooseDay(IDC_SCAN_PERIOD_DATE_2, 2021, 3, 28);
    Choose(IDC_SCAN_PERIOD_MODE_2, 10);
    Save();
    EXPECT_EQ(std::string(AllowUser) + " = 1", Saved(AllowUser));
    EXPECT_EQ(std::string(Settings) + " = \"1, 0, 0, 29, 2, 2020, 1, 1, 1, 10, 28, 3, 2021, 1\"",
              Saved(Settings));
    ASSERT_TRUE(OpenPage());
    EXPECT_EQ(1, Chosen(IDC_SCAN_PERIOD_OPERATOR));
    EXPECT_EQ(L"And", GetText(PageControl(IDC_SCAN_PERIOD_OPERATOR)));
    EXPECT_EQ(10, Chosen(IDC_SCAN_PERIOD_MODE_2));
    Cancel();
}

// The picker's own keys: Right goes to a field of the date, Up to its next value.
TEST_F(ScanPeriodPageTest, DayThatKeysChangeIsSaved)
{
    UseCurrent(std::string(Settings) + " = \"1, 0, 0, 15, 6, 2020, 0, 0, 0, 0, 28, 3, 2021, 0\"\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(CanSave());
    const HWND picker = PageControl(IDC_SCAN_PERIOD_DATE_1);
    Focus(picker);
    PostKey(Dialog(), VK_RIGHT);
    PostKey(Dialog(), VK_UP);
    SYSTEMTIME day = {};
    ASSERT_EQ(GDT_VALID, SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&day)));
    // One of the fields has changed; which one comes first depends on the system's date format.
    EXPECT_EQ(1, (day.wDay - 15) + (day.wMonth - 6) + (day.wYear - 2020));
    EXPECT_TRUE(CanSave());
    Save();
    EXPECT_EQ(std::string(Settings) + " = \"1, 0, 0, " + std::to_string(day.wDay) + ", " +
                  std::to_string(day.wMonth) + ", " + std::to_string(day.wYear) +
                  ", 0, 0, 0, 0, 28, 3, 2021, 0\"",
              Saved(Settings));
}

/// The hours by which the local time is ahead of universal time.
int HoursAhead()
{
    SYSTEMTIME local = {};
    SYSTEMTIME universal = {};
    GetLocalTime(&local);
    GetSystemTime(&universal);
    FILETIME times[2] = {};
    SystemTimeToFileTime(&local, &times[0]);
    SystemTimeToFileTime(&universal, &times[1]);
    const auto ticks = [](const FILETIME& time) {
        return static_cast<double>((static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime);
    };
    constexpr double ticksPerHour = 3600e7;
    return static_cast<int>(std::lround((ticks(times[0]) - ticks(times[1])) / ticksPerHour));
}

// A script that runs this in several time zones passes the zone in OV_ZONE_HOURS.
TEST_F(ScanPeriodPageTest, SecondDateStartsAsTodayInLocalTime)
{
    if (const char* hours = std::getenv("OV_ZONE_HOURS")) {
        ASSERT_EQ(std::atoi(hours), HoursAhead()) << "the zone is not in force";
    }
    m_currentPath = m_folder / L"new.cfg";
    SYSTEMTIME before = {};
    GetLocalTime(&before);
    ASSERT_TRUE(OpenPage());
    SYSTEMTIME shown = {};
    SendMessageW(PageControl(IDC_SCAN_PERIOD_DATE_2), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
    SYSTEMTIME after = {};
    GetLocalTime(&after);
    // Midnight may pass during the test.
    EXPECT_TRUE((shown.wDay == before.wDay && shown.wMonth == before.wMonth && shown.wYear == before.wYear) ||
                (shown.wDay == after.wDay && shown.wMonth == after.wMonth && shown.wYear == after.wYear))
        << shown.wDay << '.' << shown.wMonth << '.' << shown.wYear;
    Cancel();
}

TEST_F(ScanPeriodPageTest, ListsThatShortDefaultsDoNotReachKeepWhatThePersonChose)
{
    UseDefaults("_ORTHOVAL_SCANPERIOD_SETTINGS = 1\r\n");
    UseCurrent(Both);
    ASSERT_TRUE(OpenPage());
    Choose(IDC_SCAN_PERIOD_SEGMENT_1, 0);
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    EXPECT_EQ(0, Chosen(IDC_SCAN_PERIOD_SEGMENT_1));
    Abandon();
}

TEST_F(ScanPeriodPageTest, ImpossibleDateIsToldTheOtherPagesLoadAndNothingIsLost)
{
    UseCurrent("_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 1, 0, 1, 13, 2007\"\r\n"
               "_ORTHOVAL_SCANPERIOD_ALLOWUSER = 1\r\n"
               "_ORTHOVAL_USERS_CURRENT_GROUP = CIVIL\r\n_ORTHOVAL_CHECK_CELLS = 1\r\n");
    Begin();
    AnswerBox(Message(L"_ORTHOVAL_SCANPERIOD_SETTINGS", L"1, 1, 0, 1, 13, 2007"), {IDOK}, IDOK);
    ASSERT_TRUE(AwaitDialog());
    EXPECT_FALSE(CanSave());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_TRUE(IsPageChecked(IDC_CONFORMING_CHECK_CELLS));
    ASSERT_TRUE(ShowPage(L"Users"));
    EXPECT_EQ(L"CIVIL", PageText(IDC_USERS_CURRENT_GROUP));
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    EXPECT_TRUE(IsPageChecked(IDC_SCAN_PERIOD_ALLOW_USER));
    ExpectInSight({});
    ClickOnPage(IDC_SCAN_PERIOD_ALLOW_USER);
    Save();
    EXPECT_EQ("_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 1, 0, 1, 13, 2007\"", Saved(Settings));
    EXPECT_EQ(std::string(AllowUser) + " = 0", Saved(AllowUser));
}

TEST_F(ScanPeriodPageTest, ImpossibleDateOfTheDefaultsIsToldAtTheStartAndTheRestLoads)
{
    UseDefaults("_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 1, 0, 32, 8, 2007\"\r\n"
                "_ORTHOVAL_SCANPERIOD_ALLOWUSER = 1\r\n"
                "_ORTHOVAL_USERS_CURRENT_GROUP = CIVIL\r\n_ORTHOVAL_CHECK_CELLS = 1\r\n");
    Begin();
    AnswerBox(Message(L"_ORTHOVAL_SCANPERIOD_SETTINGS", L"1, 1, 0, 32, 8, 2007"), {IDOK}, IDOK);
    ASSERT_TRUE(AwaitDialog());
    EXPECT_FALSE(CanSave());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_TRUE(IsPageChecked(IDC_CONFORMING_CHECK_CELLS));
    ASSERT_TRUE(ShowPage(L"Users"));
    EXPECT_EQ(L"CIVIL", PageText(IDC_USERS_CURRENT_GROUP));
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    EXPECT_TRUE(IsPageChecked(IDC_SCAN_PERIOD_ALLOW_USER));
    ExpectInSight({});
    Cancel();
}

TEST_F(ScanPeriodPageTest, ImpossibleDateOfTheDefaultsLeavesThePeriodOfTheFile)
{
    UseDefaults("_ORTHOVAL_SCANPERIOD_VALUE = \"2,32,1,2011\"\r\n");
    UseCurrent(Both);
    Begin();
    AnswerBox(Message(L"_ORTHOVAL_SCANPERIOD_VALUE", L"2,32,1,2011"), {IDOK}, IDOK);
    ASSERT_TRUE(AwaitDialog());
    EXPECT_FALSE(CanSave());
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    ExpectInSight({std::begin(Controls), std::end(Controls)});
    ClickOnPage(IDC_SCAN_PERIOD_ALLOW_USER);
    Save();
    EXPECT_EQ(std::string(Both), Saved(Settings) + "\r\n");
    EXPECT_EQ(std::string(AllowUser) + " = 1", Saved(AllowUser));
}

TEST_F(ScanPeriodPageTest, ImpossibleDateOfTheDefaultsIsToldByTheButtonAndNothingIsLost)
{
    UseDefaults("_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 1, 0, 1, 0, 2007\"\r\n"
                "_ORTHOVAL_USERS_CURRENT_GROUP = CIVIL\r\n_ORTHOVAL_CHECK_CELLS = 1\r\n"
                "_ORTHOVAL_WEIGHTING_COLOUR = 4\r\n");
    UseCurrent(std::string(Both) + "_ORTHOVAL_CHECK_CELLS = 0\r\n");
    const std::wstring message = Message(L"_ORTHOVAL_SCANPERIOD_SETTINGS", L"1, 1, 0, 1, 0, 2007");
    Begin();
    AnswerBox(message, {IDOK}, IDOK);
    ASSERT_TRUE(AwaitDialog());
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    AnswerBox(message, {IDOK}, IDOK);
    ExpectOpen();
    EXPECT_TRUE(CanSave());
    // Pages before it and after it in the order of loading.
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_TRUE(IsPageChecked(IDC_CONFORMING_CHECK_CELLS));
    ASSERT_TRUE(ShowPage(L"Users"));
    EXPECT_EQ(L"CIVIL", PageText(IDC_USERS_CURRENT_GROUP));
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    ExpectInSight({});
    Save();
    EXPECT_EQ(std::string(Both), Saved(Settings) + "\r\n");
    EXPECT_EQ("_ORTHOVAL_CHECK_CELLS = 1", Saved("_ORTHOVAL_CHECK_CELLS"));
    EXPECT_EQ("_ORTHOVAL_WEIGHTING_COLOUR = 4", Saved("_ORTHOVAL_WEIGHTING_COLOUR"));
}

TEST_F(ScanPeriodPageTest, PeriodDefinedInPlaceOfAnImpossibleOneIsSaved)
{
    UseCurrent("_ORTHOVAL_SCANPERIOD_VALUE = \"2,32,1,2011\"\r\n");
    Begin();
    AnswerBox(Message(L"_ORTHOVAL_SCANPERIOD_VALUE", L"2,32,1,2011"), {IDOK}, IDOK);
    ASSERT_TRUE(AwaitDialog());
    ASSERT_TRUE(ShowPage(L"Scan Period"));
    ClickOnPage(IDC_SCAN_PERIOD_FIXED);
    Choose(IDC_SCAN_PERIOD_MODE_1, 1);
    ChooseDay(IDC_SCAN_PERIOD_DATE_2, 2021, 3, 28);
    Save();
    EXPECT_EQ("_ORTHOVAL_SCANPERIOD_SETTINGS = \"1, 1, 1, 1, 8, 2007, 0, 2, 0, 0, 28, 3, 2021, 0\"",
              Saved(Settings));
    EXPECT_NE(std::string::npos, CurrentBytes().find("2,32,1,2011"));
}

TEST_F(ScanPeriodPageTest, NoDayCanBeChosenThatCouldNotBeReadBack)
{
    ASSERT_TRUE(OpenPage());
    for (const int picker : {IDC_SCAN_PERIOD_DATE_1, IDC_SCAN_PERIOD_DATE_2}) {
        SYSTEMTIME limits[2] = {};
        EXPECT_EQ(GDTR_MIN | GDTR_MAX,
                  SendMessageW(PageControl(picker), DTM_GETRANGE, 0, reinterpret_cast<LPARAM>(limits)));
        EXPECT_EQ(1969, limits[0].wYear);
        EXPECT_EQ(12, limits[0].wMonth);
        EXPECT_EQ(31, limits[0].wDay);
        EXPECT_EQ(9999, limits[1].wYear);
    }
    Cancel();
}

} // namespace
