// Properties that the rows of every page must have. New pages are checked as soon
// as they have rows.
#include "controls/core/tooltip_markup.h"
#include "pages/core/help_texts.h"
#include "pages/core/page_catalogue.h"
#include "pages/core/page_layout.h"
#include "pages/core/page_template.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"
#include "tests/pages/expected_controls.h"
#include "tests/pages/expected_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace
{
using ov::ControlKind;
using ov::Encoding;
using ov::PageRows;
using ov::SettingRow;

/// Calls `check` with every page.
template <class Check>
void ForEachPage(Check check)
{
    ASSERT_FALSE(ov::AllPageRows().empty());
    for (const PageRows* page : ov::AllPageRows()) {
        SCOPED_TRACE(expected::PageOf(page->info.pageId).title);
        check(*page);
    }
}

/// Calls `check` with every setting of every page.
template <class Check>
void ForEachSetting(Check check)
{
    ForEachPage([&](const PageRows& page) {
        for (const SettingRow& row : page.settings) {
            SCOPED_TRACE(ov::Utf8FromText(row.variable));
            check(page, row);
        }
    });
}

/// Pages with help texts that are older than the rules for writing them.
bool HasTextsOfOld(const PageRows& page)
{
    static const std::set<int> pages = {10, 12, 15, 16, 17, 21, 22, 23, 24, 25, 26};
    return pages.contains(page.info.pageId);
}

std::map<int, unsigned> HelpByControl(const PageRows& page)
{
    std::map<int, unsigned> help;
    for (const SettingRow& row : page.settings) {
        if (row.helpId != 0)
            help[row.controlId] = row.helpId;
    }
    for (const ov::HelpRow& row : page.extraHelp)
        help[row.controlId] = row.helpId;
    return help;
}

/// The kind of the control that shows a number or a text; None if no row has it.
ControlKind KindOfControl(const PageRows& page, int controlId)
{
    for (const SettingRow& row : page.settings) {
        if (row.controlId == controlId)
            return row.control;
    }
    for (const ov::CompanionRow& row : page.companions) {
        if (row.controlId == controlId)
            return row.control;
    }
    return ControlKind::None;
}

Encoding ExpectedEncoding(const expected::Setting& setting)
{
    switch (setting.meaning) {
    case expected::Meaning::Flag:
        return Encoding::Flag;
    case expected::Meaning::UnlessZero:
        return Encoding::FlagUnlessZero;
    case expected::Meaning::TextOrZero:
        return Encoding::VerbatimOrZero;
    case expected::Meaning::Index:
        return Encoding::Number;
    case expected::Meaning::ListOfThree:
        return Encoding::AlwaysNeverUser;
    case expected::Meaning::ButtonsOfThree:
        return Encoding::NeverAlwaysUser;
    case expected::Meaning::LeftAlone:
        return setting.kind == ov::SettingKindFlag ? Encoding::Flag : Encoding::Verbatim;
    default:
        return Encoding::Verbatim;
    }
}

ControlKind ExpectedControl(expected::Control control)
{
    switch (control) {
    case expected::Control::None:
        return ControlKind::None;
    case expected::Control::Check:
        return ControlKind::CheckBox;
    case expected::Control::Edit:
        return ControlKind::Edit;
    case expected::Control::List:
        return ControlKind::DropDownList;
    case expected::Control::Radio:
        return ControlKind::RadioGroup;
    }
    return ControlKind::None;
}

TEST(ExpectedPages, HoldEveryVariableOnce)
{
    std::set<std::string> variables;
    for (const expected::Page& page : expected::Pages()) {
        for (const expected::Setting& setting : page.settings)
            EXPECT_TRUE(variables.insert(setting.variable).second) << setting.variable;
    }
    for (const char* variable : expected::OlderVariables())
        EXPECT_TRUE(variables.insert(variable).second) << variable;
}

TEST(AllRows, AreTheSettingsOfTheirPage)
{
    ForEachPage([](const PageRows& page) {
        std::set<std::string> wanted;
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings)
            wanted.insert(setting.variable);
        std::set<std::string> found;
        for (const SettingRow& row : page.settings)
            EXPECT_TRUE(found.insert(ov::Utf8FromText(row.variable)).second)
                << ov::Utf8FromText(row.variable);
        EXPECT_EQ(found, wanted);
    });
}

TEST(AllRows, EqualWhatIsExpectedOfTheirSetting)
{
    ForEachPage([](const PageRows& page) {
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            SCOPED_TRACE(setting.variable);
            const auto row = std::ranges::find(page.settings, setting.variable, [](const SettingRow& found) {
                return ov::Utf8FromText(found.variable);
            });
            ASSERT_NE(row, page.settings.end());
            EXPECT_EQ(row->kind, setting.kind);
            EXPECT_EQ(row->encoding, ExpectedEncoding(setting));
            EXPECT_EQ(row->control, ExpectedControl(setting.control));
            EXPECT_EQ(row->controlId, setting.controlId);
            EXPECT_EQ(ov::HelpOfControl(page, setting.commentId), setting.helpId);
            EXPECT_EQ(row->commentHelpId, setting.helpId);
            EXPECT_EQ(row->saveRule == ov::SaveRule::Never, setting.meaning == expected::Meaning::LeftAlone);
        }
    });
}

TEST(ExpectedControls, HoldEveryControlOfTheExpectedSettings)
{
    ASSERT_EQ(expected::ControlPages().size(), expected::Pages().size());
    for (std::size_t i = 0; i < expected::Pages().size(); ++i) {
        const expected::Page& page = expected::Pages()[i];
        const expected::ControlPage& controls = expected::ControlPages()[i];
        SCOPED_TRACE(page.title);
        ASSERT_EQ(controls.pageId, page.pageId);
        std::map<int, unsigned> help;
        for (const expected::ControlRow& control : controls.controls) {
            EXPECT_TRUE(control.id == expected::kAnyId || help.emplace(control.id, control.help).second)
                << control.id;
        }
        for (const expected::Setting& setting : page.settings) {
            SCOPED_TRACE(setting.variable);
            EXPECT_TRUE(setting.controlId == 0 || help.contains(setting.controlId));
            ASSERT_TRUE(help.contains(setting.commentId));
            EXPECT_TRUE(help[setting.commentId] == setting.helpId ||
                        help[setting.commentId] == expected::kAnyHelp);
        }
    }
}

TEST(AllRows, GiveEachControlTheHelpThatIsExpectedOrNone)
{
    ForEachPage([](const PageRows& page) {
        for (const expected::ControlRow& control : expected::ControlsOf(page.info.pageId).controls) {
            if (control.id != expected::kAnyId && control.help != expected::kAnyHelp) {
                EXPECT_EQ(ov::HelpOfControl(page, control.id), control.help) << control.id;
            }
        }
    });
}

/// The id of the control with the expected caption; 0 for none.
int IdByCaption(const ov::PageTemplate& dialog, const expected::ControlRow& wanted)
{
    for (const ov::TemplateControl& control : dialog.controls) {
        if (wanted.caption != nullptr && control.caption == wanted.caption)
            return control.id;
    }
    return 0;
}

TEST(AllRows, LayEveryControlOutAsExpected)
{
    ForEachPage([](const PageRows& page) {
        const auto& controls = expected::ControlsOf(page.info.pageId).controls;
        std::map<int, std::uint32_t> wanted;
        for (const expected::ControlRow& control : controls) {
            const bool isNumbered = control.id != expected::kAnyId;
            const int id =
                isNumbered ? control.id : IdByCaption(*ov::FindTemplate(page.info.templateId), control);
            EXPECT_TRUE(wanted.emplace(id, control.layout).second) << id;
        }
        std::map<int, std::uint32_t> found;
        for (const ov::LayoutRow& row : ov::LayoutOf(page))
            EXPECT_TRUE(found.emplace(row.controlId, row.layoutFlags).second) << row.controlId;
        EXPECT_EQ(found, wanted);
    });
}

TEST(AllRows, NameOnlyControlsWhoseLayoutTheRuleDoesNotGive)
{
    ForEachPage([](const PageRows& page) {
        PageRows byRule = page;
        byRule.layout = {};
        std::map<int, std::uint32_t> rule;
        for (const ov::LayoutRow& row : ov::LayoutOf(byRule))
            rule[row.controlId] = row.layoutFlags;
        for (const ov::LayoutRow& row : page.layout) {
            ASSERT_TRUE(rule.contains(row.controlId)) << row.controlId << " is not in the template";
            EXPECT_NE(rule[row.controlId], row.layoutFlags) << row.controlId << " needs no row";
        }
    });
}

TEST(AllRows, FillTheirListsWithWhatIsExpected)
{
    ForEachPage([](const PageRows& page) {
        for (const expected::ControlRow& control : expected::ControlsOf(page.info.pageId).controls) {
            if (control.controlClass != expected::ControlClass::List)
                continue;
            const auto row = std::ranges::find(page.entries, control.id, &ov::EntriesRow::controlId);
            ASSERT_NE(row, page.entries.end()) << control.id;
            std::vector<std::string> entries;
            for (const unsigned id : row->stringIds)
                entries.push_back(ov::Utf8FromText(ov::FindString(id)));
            EXPECT_EQ(entries, std::vector<std::string>(control.entries.begin(), control.entries.end()))
                << control.id;
        }
    });
}

TEST(AllRows, OpenBehindEachButtonWhatIsExpected)
{
    std::size_t buttons = 0;
    ForEachPage([&](const PageRows& page) {
        buttons += page.browses.size();
        for (const expected::BrowseButton& button : expected::BrowseButtons()) {
            if (button.pageId != page.info.pageId)
                continue;
            SCOPED_TRACE(button.id);
            const auto row = std::ranges::find(page.browses, button.id, &ov::BrowseRow::buttonId);
            ASSERT_NE(row, page.browses.end());
            EXPECT_EQ(ov::Utf8FromText(row->variable), button.variable);
            EXPECT_EQ(row->kind, button.opens == expected::Opens::File     ? ov::BrowseKind::File
                                 : button.opens == expected::Opens::Folder ? ov::BrowseKind::Folder
                                                                           : ov::BrowseKind::List);
            if (button.opens != expected::Opens::List)
                continue;
            EXPECT_EQ(row->browsing, button.browsing);
            EXPECT_EQ(row->separator, static_cast<char16_t>(button.separator));
            EXPECT_EQ(row->fieldSeparator, static_cast<char16_t>(button.fieldSeparator));
            EXPECT_EQ(row->fieldCount, button.fields);
            EXPECT_EQ(row->focusOnRefusal, button.focus);
        }
    });
    EXPECT_EQ(buttons, expected::BrowseButtons().size());
}

TEST(AllRows, SetUpEachUpDownControlAsExpected)
{
    std::size_t controls = 0;
    ForEachPage([&](const PageRows& page) {
        controls += page.spins.size();
        for (const expected::UpDownRow& wanted : expected::UpDowns()) {
            if (wanted.pageId != page.info.pageId)
                continue;
            SCOPED_TRACE(wanted.id);
            const auto row = std::ranges::find(page.spins, wanted.id, &ov::SpinRow::controlId);
            ASSERT_NE(row, page.spins.end());
            EXPECT_EQ(row->buddyId, wanted.edit);
            EXPECT_EQ(row->lowest, wanted.lowest);
            EXPECT_EQ(row->highest, wanted.highest);
            std::vector<std::pair<unsigned, unsigned>> steps;
            for (const ov::SpinStep& step : row->steps)
                steps.emplace_back(step.seconds, step.increment);
            const std::vector<std::pair<unsigned, unsigned>> faster = {{0, 1}, {3, 5}, {6, 10}};
            EXPECT_EQ(steps, wanted.accelerates ? faster : decltype(faster){});
        }
    });
    EXPECT_EQ(controls, expected::UpDowns().size());
}

TEST(AllRows, NameEachVariableOnce)
{
    std::set<ov::Text> variables;
    ForEachSetting(
        [&](const PageRows&, const SettingRow& row) { EXPECT_TRUE(variables.insert(row.variable).second); });
}

TEST(AllRows, HoldATextWhereTheirControlShowsOne)
{
    ForEachSetting([](const PageRows&, const SettingRow& row) {
        EXPECT_EQ(row.controlId == 0, row.control == ControlKind::None);
        if (row.control != ControlKind::None) {
            EXPECT_EQ(ov::ShowsText(row.control), row.HoldsText());
        }
    });
}

TEST(AllRows, ShowEachControlInOneRow)
{
    ForEachPage([](const PageRows& page) {
        std::set<int> controls;
        for (const SettingRow& row : page.settings)
            EXPECT_TRUE(row.controlId == 0 || controls.insert(row.controlId).second) << row.controlId;
        for (const ov::CompanionRow& row : page.companions) {
            EXPECT_NE(row.control, ControlKind::None);
            EXPECT_TRUE(controls.insert(row.controlId).second) << row.controlId;
        }
    });
}

TEST(AllRows, ExplainEachControlOnce)
{
    ForEachPage([](const PageRows& page) {
        std::set<int> controls;
        for (const SettingRow& row : page.settings)
            EXPECT_TRUE(row.helpId == 0 || controls.insert(row.controlId).second) << row.controlId;
        for (const ov::HelpRow& row : page.extraHelp)
            EXPECT_TRUE(controls.insert(row.controlId).second) << row.controlId;
    });
}

TEST(AllRows, NameASettingOfTheirPageForEachCompanionBarAndRange)
{
    ForEachPage([](const PageRows& page) {
        const auto expectSetting = [&](const char16_t* variable) {
            EXPECT_TRUE(std::ranges::any_of(page.settings, [&](const SettingRow& row) {
                return ov::TextView(row.variable) == variable;
            })) << ov::Utf8FromText(variable);
        };
        for (const ov::CompanionRow& row : page.companions)
            expectSetting(row.variable);
        for (const ov::BarRow& row : page.bars)
            expectSetting(row.variable);
        for (const ov::RangeRow& row : page.ranges)
            expectSetting(row.variable);
    });
}

TEST(AllRows, NameTheVariablesThatAreOnlyRead)
{
    std::set<std::string> found;
    ForEachPage([&](const PageRows& page) {
        for (const char16_t* variable : page.olderVariables)
            found.insert(ov::Utf8FromText(variable));
    });
    const auto expected = expected::OlderVariables();
    EXPECT_EQ(found, std::set<std::string>(expected.begin(), expected.end()));
}

TEST(AllRows, SayWhyTheyAreAnException)
{
    ForEachSetting(
        [](const PageRows&, const SettingRow& row) { EXPECT_EQ(row.HasException(), row.reason != nullptr); });
}

TEST(AllRows, HelpTextsExistAndDescribe)
{
    ForEachPage([](const PageRows& page) {
        for (const auto& [control, id] : HelpByControl(page)) {
            const ov::TextView help = ov::FindString(id);
            EXPECT_FALSE(ov::VariableName(help).empty()) << id << " of control " << control;
            EXPECT_FALSE(ov::Description(help).empty()) << id << " of control " << control;
        }
    });
}

TEST(AllRows, CommentsNameTheRowsVariable)
{
    ForEachSetting([](const PageRows&, const SettingRow& row) {
        const ov::TextView comment = ov::FindString(row.commentHelpId);
        const ov::TextView own = row.helpId != 0 ? ov::FindString(row.helpId) : comment;
        EXPECT_EQ(ov::VariableName(comment) != row.variable || ov::VariableName(own) != row.variable,
                  row.helpNamesAnotherVariable);
    });
}

TEST(AllRows, ExtraHelpTextsNameAVariableOfTheirPage)
{
    ForEachPage([](const PageRows& page) {
        if (HasTextsOfOld(page))
            return;
        std::set<ov::Text> variables;
        std::set<unsigned> exceptions;
        for (const SettingRow& row : page.settings) {
            variables.insert(row.variable);
            if (row.helpNamesAnotherVariable)
                exceptions.insert(row.commentHelpId);
        }
        for (const ov::HelpRow& row : page.extraHelp) {
            if (!exceptions.contains(row.helpId)) {
                EXPECT_TRUE(variables.contains(ov::VariableName(ov::FindString(row.helpId)))) << row.helpId;
            }
        }
    });
}

// An absent flag reads as off, independent of the page's initial value.
TEST(AllRows, HelpOfTheFlagsSaysWhatAMissingVariableMeans)
{
    ForEachSetting([](const PageRows& page, const SettingRow& row) {
        if (HasTextsOfOld(page) || row.kind != ov::SettingKindFlag)
            return;
        const ov::Text description = ov::Description(ov::FindString(row.commentHelpId));
        const ov::Text missing = u"If this variable is missing, the option is ";
        EXPECT_NE(description.find(missing + (row.encoding == Encoding::FlagUnlessZero ? u"ON." : u"OFF.")),
                  ov::Text::npos);
        // "Default" would be a second term for the value of a missing variable. The default model of
        // a design file is another term.
        for (std::size_t at = description.find(u"default"); at != ov::Text::npos;
             at = description.find(u"default", at + 1))
            EXPECT_TRUE(description.substr(at).starts_with(u"default model")) << at;
    });
}

TEST(AllRows, NameControlsThatTheTemplateHas)
{
    ForEachPage([](const PageRows& page) {
        std::set<int> controls = {0};
        for (const ov::TemplateControl& control : ov::FindTemplate(page.info.templateId)->controls)
            EXPECT_TRUE(controls.insert(control.id).second) << control.id << " twice";
        const auto expectControl = [&](int control) { EXPECT_TRUE(controls.contains(control)) << control; };
        for (const SettingRow& row : page.settings)
            expectControl(row.controlId);
        for (const ov::BarRow& row : page.bars)
            expectControl(row.controlId);
        for (const ov::HelpRow& row : page.extraHelp)
            expectControl(row.controlId);
        for (const ov::CompanionRow& row : page.companions)
            expectControl(row.controlId);
        for (const ov::DependencyRow& row : page.dependencies)
            expectControl(row.controlId);
        for (const ov::BrowseRow& row : page.browses)
            expectControl(row.buttonId);
        for (const ov::SpinRow& row : page.spins) {
            expectControl(row.controlId);
            expectControl(row.buddyId);
        }
        for (const ov::NameRow& row : page.names)
            expectControl(row.controlId);
    });
}

TEST(AllRows, NameEachControlOnceAndNoTwoAlike)
{
    ForEachPage([](const PageRows& page) {
        std::set<int> named;
        std::set<ov::TextView> names;
        for (const ov::NameRow& row : page.names) {
            EXPECT_TRUE(named.insert(row.controlId).second) << row.controlId;
            EXPECT_FALSE(ov::FindString(row.stringId).empty()) << row.stringId;
            EXPECT_TRUE(names.insert(ov::FindString(row.stringId)).second) << row.stringId;
        }
    });
}

TEST(AllRows, UseTheLayoutFlagsOfTheProgram)
{
    const std::set<std::uint32_t> known = {3, 6, 9, 12, 258, 264, 512, 768};
    ForEachPage([&](const PageRows& page) {
        for (const ov::LayoutRow& row : page.layout)
            EXPECT_TRUE(known.contains(row.layoutFlags)) << row.controlId;
    });
}

TEST(AllRows, FillTheirDropDownListsAndNoOthers)
{
    ForEachPage([](const PageRows& page) {
        std::set<int> filled;
        for (const ov::EntriesRow& row : page.entries) {
            EXPECT_EQ(KindOfControl(page, row.controlId), ControlKind::DropDownList) << row.controlId;
            EXPECT_TRUE(filled.insert(row.controlId).second) << row.controlId;
            for (const unsigned id : row.stringIds)
                EXPECT_FALSE(ov::FindString(id).empty()) << id;
        }
        const auto expectFilled = [&](ControlKind control, int id) {
            EXPECT_EQ(filled.contains(id), control == ControlKind::DropDownList) << id;
        };
        for (const SettingRow& row : page.settings)
            expectFilled(row.control, row.controlId);
        for (const ov::CompanionRow& row : page.companions)
            expectFilled(row.control, row.controlId);
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            for (const ov::EntriesRow& row : page.entries) {
                if (row.controlId == setting.controlId) {
                    EXPECT_EQ(row.stringIds.size(), static_cast<std::size_t>(setting.entries));
                }
            }
        }
    });
}

TEST(AllRows, DependOnControlsThatShowWhatTheConditionAsksFor)
{
    ForEachPage([](const PageRows& page) {
        std::set<std::pair<int, ov::Effect>> dependent;
        for (const ov::DependencyRow& row : page.dependencies) {
            EXPECT_TRUE(dependent.insert({row.controlId, row.effect}).second) << row.controlId;
            EXPECT_NE(row.conditions[0].controlId, 0) << row.controlId;
            for (const ov::Condition& condition : row.conditions) {
                if (condition.controlId == 0)
                    continue;
                const ControlKind control = KindOfControl(page, condition.controlId);
                EXPECT_NE(control, ControlKind::None) << condition.controlId;
                EXPECT_EQ(ov::ShowsText(control), condition.number == ov::kAnyText) << condition.controlId;
                EXPECT_NE(condition.controlId, row.controlId);
            }
        }
    });
}

TEST(AllRows, BrowseForSettingsThatHoldAText)
{
    ForEachPage([](const PageRows& page) {
        std::set<int> buttons;
        for (const ov::BrowseRow& row : page.browses) {
            EXPECT_TRUE(buttons.insert(row.buttonId).second) << row.buttonId;
            const auto setting =
                std::ranges::find(page.settings, ov::TextView(row.variable),
                                  [](const SettingRow& found) { return ov::TextView(found.variable); });
            ASSERT_NE(setting, page.settings.end()) << row.buttonId;
            EXPECT_TRUE(setting->HoldsText()) << row.buttonId;
        }
    });
}

/// Texts that a variable with that meaning may contain.
std::vector<std::string> StoredTexts(expected::Meaning meaning)
{
    switch (meaning) {
    case expected::Meaning::Index:
        return {"", "0", "1", "2", "2 of 3"};
    case expected::Meaning::Preset:
        return {"", "mine", "$$userfullname$$-$$currentfile$$", "$(Orthoval_Current_Discipline)",
                "$$USERINITIALS$$-$$CURRENTMODEL$$-$$CURRENTFILE$$"};
    case expected::Meaning::Models:
        return {"", "0", "7", "-3", "-7", "none"};
    case expected::Meaning::ScaleSource:
        return {"", "0", "1", "2", " yes "};
    case expected::Meaning::Scales:
        return {"", "1:50,1:100", "[1:50,1:100]", " [1:50", "1:50]] "};
    case expected::Meaning::ScaleFactor:
        return {"", "2", "0.1", "1.1"};
    case expected::Meaning::Period:
        return {"", "1", "1, 1, 1, 1, 8, 2007, 0, 2, 1, 3, 6, 5, 2016, 0", "1,,1", "0, 1"};
    default:
        return {"", "1", "0", "-1", "2", " 1", "true", " both ends ", "a;b;;c", "12abc"};
    }
}

std::string Today()
{
    const std::time_t now = std::time(nullptr);
    const std::tm* date = std::localtime(&now);
    return std::to_string(date->tm_mday) + ", " + std::to_string(date->tm_mon + 1) + ", " +
           std::to_string(date->tm_year + 1900);
}

/// Checks what an opened page leaves in a store that contained this table.
void ExpectAfterSave(const PageRows& page, const expected::Table& table)
{
    ov::SettingStore store;
    for (const auto& [variable, value] : table) {
        store.SetSetting(ov::TextFromUtf8(variable), ov::TextFromUtf8(value), ov::SettingKindText, u"",
                         ov::kCurrentTable);
    }
    ov::PageValues values(page);
    values.Load(store, ov::kCurrentTable);
    if (page.refresh != nullptr)
        page.refresh(values);
    values.Save(store, true);
    for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
        SCOPED_TRACE(setting.variable);
        const auto expected = expected::AfterSave(setting, table, Today());
        const ov::Text variable = ov::TextFromUtf8(setting.variable);
        ASSERT_EQ(store.HasSetting(variable, ov::kCurrentTable), expected.has_value());
        if (expected) {
            EXPECT_EQ(ov::Utf8FromText(store.GetSettingValue(variable, ov::kCurrentTable)), *expected);
        }
    }
}

TEST(AllRows, SaveWhatTheirMeaningSays)
{
    ForEachPage([](const PageRows& page) {
        ExpectAfterSave(page, {});
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            for (const std::string& stored : StoredTexts(setting.meaning)) {
                SCOPED_TRACE(setting.variable + (" = \"" + stored + "\""));
                ExpectAfterSave(page, {{setting.variable, stored}});
            }
        }
    });
}

TEST(AllRows, AddWhatTheirPageStartsWithWhenNobodyOpensIt)
{
    std::size_t starts = 0;
    ForEachPage([&](const PageRows& page) {
        ov::SettingStore store;
        ov::PageValues values(page);
        values.Save(store, false);
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            SCOPED_TRACE(setting.variable);
            const ov::Text variable = ov::TextFromUtf8(setting.variable);
            EXPECT_EQ(store.HasSetting(variable, ov::kCurrentTable), !expected::StaysOutWhenUnseen(setting));
            const auto start = expected::StartOf(setting);
            if (!start || expected::StaysOutWhenUnseen(setting))
                continue;
            ++starts;
            EXPECT_EQ(ov::Utf8FromText(store.GetSettingValue(variable, ov::kCurrentTable)), *start);
        }
    });
    EXPECT_GE(starts, 140u);
}

TEST(AllRows, LeaveWhatIsThereWhenNobodyOpensTheirPage)
{
    ForEachPage([](const PageRows& page) {
        ov::SettingStore store;
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            store.SetSetting(ov::TextFromUtf8(setting.variable), u" as it is ", ov::SettingKindText, u"",
                             ov::kCurrentTable);
        }
        ov::PageValues values(page);
        values.Save(store, false);
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            EXPECT_EQ(store.GetSettingValue(ov::TextFromUtf8(setting.variable), ov::kCurrentTable),
                      u" as it is ")
                << setting.variable;
        }
    });
}

TEST(AllRows, StartWithWhatIsSelectedBeforeAnythingIsRead)
{
    ForEachPage([](const PageRows& page) {
        for (const expected::Setting& setting : expected::PageOf(page.info.pageId).settings) {
            if (setting.entries == 0)
                continue;
            const auto row = std::ranges::find(page.settings, setting.variable, [](const SettingRow& found) {
                return ov::Utf8FromText(found.variable);
            });
            ASSERT_NE(row, page.settings.end());
            if (!row->HoldsText()) {
                EXPECT_EQ(row->initialNumber, setting.initial) << setting.variable;
            }
        }
    });
}

} // namespace
