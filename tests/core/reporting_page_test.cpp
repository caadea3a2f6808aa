// Behaviour that only the Reporting page has.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "pages/reporting/ids.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using ov::kCurrentTable;
using ov::PageValues;
using ov::SettingStore;
using ov::Text;

constexpr char16_t models[] = u"_ORTHOVAL_REPORT_AUTOGETMODELS";
constexpr char16_t name[] = u"_ORTHOVAL_REPORT_NAMING";
constexpr char16_t folder[] = u"_ORTHOVAL_REPORT_OUTPUT_DEFAULT_NAME";

/// The page after reading one variable, if given, as when the page was opened.
class ReportingPage : public testing::Test
{
  protected:
    void Load(const char16_t* variable = nullptr, const char16_t* stored = u"",
              ov::TableSelector table = kCurrentTable)
    {
        if (variable != nullptr)
            m_store.SetSetting(variable, stored, ov::SettingKindText, u"", table);
        m_values.Load(m_store, table);
        Refresh();
    }
    void Refresh() { ov::kReportingRows.refresh(m_values); }
    std::string Saved(const char16_t* variable, bool hasWindow = true)
    {
        m_values.Save(m_store, hasWindow);
        return ov::Utf8FromText(m_store.GetSettingValue(variable, kCurrentTable));
    }
    int Shown(int controlId) { return m_values.CompanionNumberOf(controlId); }
    bool IsEnabled(int controlId)
    {
        for (const ov::DependencyRow& row : ov::kReportingRows.dependencies) {
            if (row.controlId == controlId)
                return m_values.Holds(row);
        }
        return true;
    }
    /// Chooses a button of a group as a click does.
    void Choose(int group, int index)
    {
        m_values.CompanionNumberOf(group) = index;
        Refresh();
    }

    SettingStore m_store;
    PageValues m_values{ov::kReportingRows};
};

TEST_F(ReportingPage, MinusThreeIsDesignModelsThatTheUserMayNotChange)
{
    Load(models, u"-3");
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS), 2);
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS_USER_DEFINABLE), 0);
    EXPECT_EQ(Saved(models), "-3");
}

TEST_F(ReportingPage, AbsentModelsPromptTheUserAndAreSavedAsSix)
{
    Load();
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS), 5);
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS_USER_DEFINABLE), 1);
    EXPECT_EQ(Saved(models), "6");
}

TEST_F(ReportingPage, ModelsThatAreNoNumberPromptTheUser)
{
    for (const char16_t* stored : {u"0", u"", u"none"}) {
        Load(models, stored);
        EXPECT_EQ(Shown(IDC_REPORTING_MODELS), 5);
        EXPECT_EQ(Shown(IDC_REPORTING_MODELS_USER_DEFINABLE), 1);
    }
}

TEST_F(ReportingPage, ModelsBeyondTheListSelectNothingAndAreSavedAsZero)
{
    Load(models, u"8");
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS), -1);
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS_USER_DEFINABLE), 1);
    EXPECT_EQ(Saved(models), "0");
    Load(models, u"-8");
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS), -1);
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS_USER_DEFINABLE), 0);
    EXPECT_EQ(Saved(models), "0");
}

TEST_F(ReportingPage, EveryModelsValueIsSavedAsItWasRead)
{
    for (int code = -7; code <= 7; ++code) {
        if (code == 0)
            continue;
        const std::string stored = std::to_string(code);
        Load(models, ov::TextFromUtf8(stored).c_str());
        EXPECT_EQ(Saved(models), stored);
    }
}

TEST_F(ReportingPage, NeverShownKeepsTheModelsThatAreThereAndAddsSixOtherwise)
{
    m_store.SetSetting(models, u"all of them", ov::SettingKindText, u"", kCurrentTable);
    EXPECT_EQ(Saved(models, false), "all of them");
    SettingStore empty;
    PageValues values(ov::kReportingRows);
    values.Save(empty, false);
    EXPECT_EQ(empty.GetSettingValue(models, kCurrentTable), u"6");
}

TEST_F(ReportingPage, ModelsAreListedInTheirOwnOrder)
{
    ASSERT_GE(ov::kReportingRows.entries.size(), 1u);
    std::vector<std::string> entries;
    for (const unsigned id : ov::kReportingRows.entries[0].stringIds)
        entries.push_back(ov::Utf8FromText(ov::FindString(id)));
    EXPECT_EQ(entries, (std::vector<std::string>{"All Models", "Active Model Only", "Design Models Only",
                                                 "Sheet Models Only", "Models With A Border",
                                                 "Prompt The User", "Default Model Only"}));
}

TEST_F(ReportingPage, NameInAnotherCaseIsThePresetAndSavedInItsOwnSpelling)
{
    Load(name, u"$$userfullname$$-$$currentfile$$");
    EXPECT_EQ(Shown(IDC_REPORTING_NAME_NONE), 1);
    EXPECT_FALSE(IsEnabled(IDC_REPORTING_NAME));
    EXPECT_EQ(Saved(name), "$$USERFULLNAME$$-$$CURRENTFILE$$");
}

TEST_F(ReportingPage, EachNameChoicePutsItsText)
{
    Load(name, u"mine");
    EXPECT_EQ(Shown(IDC_REPORTING_NAME_NONE), 4);
    EXPECT_TRUE(IsEnabled(IDC_REPORTING_NAME));
    const char* const texts[] = {"", "$$USERFULLNAME$$-$$CURRENTFILE$$", "$$USERINITIALS$$-$$CURRENTFILE$$",
                                 "$$USERINITIALS$$-$$CURRENTMODEL$$-$$CURRENTFILE$$"};
    for (int choice = 0; choice < 4; ++choice) {
        Choose(IDC_REPORTING_NAME_NONE, choice);
        EXPECT_FALSE(IsEnabled(IDC_REPORTING_NAME)) << choice;
        EXPECT_EQ(Saved(name), texts[choice]);
    }
}

TEST_F(ReportingPage, UserDefinedNameStartsFromTheTextBefore)
{
    Load(name, u"$$USERINITIALS$$-$$CURRENTFILE$$");
    Choose(IDC_REPORTING_NAME_NONE, 4);
    EXPECT_TRUE(IsEnabled(IDC_REPORTING_NAME));
    EXPECT_EQ(Saved(name), "$$USERINITIALS$$-$$CURRENTFILE$$");
}

TEST_F(ReportingPage, PresetTypedByHandIsThePresetAtTheNextLoad)
{
    Load(name, u"mine");
    m_values.TextOf(name) = u"$$UserInitials$$-$$CurrentFile$$";
    EXPECT_EQ(Saved(name), "$$UserInitials$$-$$CurrentFile$$");
    Load();
    EXPECT_EQ(Shown(IDC_REPORTING_NAME_NONE), 2);
}

TEST_F(ReportingPage, PlainFolderIsUserDefinedAndCanBeEdited)
{
    Load(folder, u"P:\\Reports");
    EXPECT_EQ(Shown(IDC_REPORTING_FOLDER_NONE), 3);
    EXPECT_TRUE(IsEnabled(IDC_REPORTING_FOLDER));
    EXPECT_EQ(Saved(folder), "P:\\Reports");
}

TEST_F(ReportingPage, EachFolderChoicePutsItsText)
{
    Load(folder, u"P:\\Reports");
    const char* const texts[] = {"", "$(ORTHOVAL_CURRENT_STANDARD)", "$(ORTHOVAL_CURRENT_DISCIPLINE)"};
    for (int choice = 0; choice < 3; ++choice) {
        Choose(IDC_REPORTING_FOLDER_NONE, choice);
        EXPECT_FALSE(IsEnabled(IDC_REPORTING_FOLDER)) << choice;
        EXPECT_EQ(Saved(folder), texts[choice]);
    }
}

TEST_F(ReportingPage, LoadingTheDefaultsForgetsWhatTheFileSaid)
{
    Load(name, u"mine");
    Load(models, u"-3");
    Load(nullptr, u"", ov::kDefaultTable);
    EXPECT_EQ(Shown(IDC_REPORTING_NAME_NONE), 0);
    EXPECT_FALSE(IsEnabled(IDC_REPORTING_NAME));
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS), 5);
    EXPECT_EQ(Shown(IDC_REPORTING_MODELS_USER_DEFINABLE), 1);
}

TEST_F(ReportingPage, NumbersAreKeptAsTyped)
{
    Load(u"_ORTHOVAL_REPORT_REFS_NESTLEVEL", u"-1");
    EXPECT_EQ(Saved(u"_ORTHOVAL_REPORT_REFS_NESTLEVEL"), "-1");
    Load(u"_ORTHOVAL_REPORT_MAXLOGGABLE", u"000123456");
    EXPECT_EQ(Saved(u"_ORTHOVAL_REPORT_MAXLOGGABLE"), "000123456");
}

TEST_F(ReportingPage, ArrowsHaveTheirRanges)
{
    ASSERT_GE(ov::kReportingRows.spins.size(), 2u);
    const ov::SpinRow& errors = ov::kReportingRows.spins[0];
    EXPECT_EQ(errors.controlId, 3105);
    EXPECT_EQ(errors.buddyId, 3103);
    EXPECT_EQ(errors.lowest, 1);
    EXPECT_EQ(errors.highest, 10000);
    const ov::SpinRow& nesting = ov::kReportingRows.spins[1];
    EXPECT_EQ(nesting.controlId, 3108);
    EXPECT_EQ(nesting.buddyId, 3107);
    EXPECT_EQ(nesting.lowest, -1);
    EXPECT_EQ(nesting.highest, 99);
}

TEST_F(ReportingPage, IsSavedFromThePromptToTheModels)
{
    std::vector<std::string> order;
    for (const ov::SettingRow& row : ov::kReportingRows.settings)
        order.push_back(ov::Utf8FromText(row.variable).substr(std::string("_ORTHOVAL_REPORT_").size()));
    EXPECT_EQ(order, (std::vector<std::string>{"PROMPTMAXLOG", "AUTOGETREFS", "MAXLOGGABLE",
                                               "IGNORED_REFFILES", "REFS_NESTLEVEL", "REFS_LEGACY_NESTING",
                                               "NAMING", "OUTPUT_DEFAULT_NAME", "AUTOGETMODELS"}));
}

} // namespace
