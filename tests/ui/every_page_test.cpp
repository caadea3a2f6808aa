// Every page in the library, through the real dialog: what its controls show for a
// file, for defaults and for neither; what the user's changes save; and what an
// unchanged page saves. OV_DIALOG_ROUNDS requests more random files,
// OV_DIALOG_SEED other ones.
#include "pages/branding/ids.h"
#include "tests/pages/page_changes.h"
#include "tests/pages/random_table.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <algorithm>
#include <commctrl.h>
#include <cstdlib>
#include <ctime>

using namespace uidriver;
using expected::Change;
using expected::Look;
using expected::Step;
using expected::Table;

namespace
{

constexpr int titleBlocks = 22;
constexpr int titleBlockCells = 9488;
constexpr int drawingScales = 9;

std::wstring Wide(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

std::string Today()
{
    const std::time_t now = std::time(nullptr);
    const std::tm* date = std::localtime(&now);
    return std::to_string(date->tm_mday) + ", " + std::to_string(date->tm_mon + 1) + ", " +
           std::to_string(date->tm_year + 1900);
}

int FromEnvironment(const char* name, int otherwise)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : otherwise;
}

std::string BytesOf(const Table& table)
{
    std::string bytes;
    for (const std::string& line : expected::LinesOf(table))
        bytes += line + "\r\n";
    return bytes;
}

std::string DayOf(HWND picker)
{
    SYSTEMTIME day = {};
    SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&day));
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", day.wYear, day.wMonth, day.wDay);
    return text;
}

class EveryPageTest : public DialogSession
{
  protected:
    /// Uses no defaults and a path that does not exist yet.
    void UseNewFile() { m_currentPath = m_folder / L"new.cfg"; }

    bool ShowPageOf(const expected::Page& page) { return ShowPage(Wide(page.title)) != nullptr; }

    /// Empty if the control is in the expected state; otherwise its actual state.
    std::string Deviation(const Look& look)
    {
        HWND control = PageControl(look.control);
        if (!control)
            return "no such control";
        std::string wanted = std::to_string(look.number);
        std::string found;
        switch (look.kind) {
        case Look::Kind::Checked:
            found = std::to_string(CheckState(control));
            break;
        case Look::Kind::Selection:
            found = std::to_string(ComboSelection(control));
            break;
        case Look::Kind::Position:
            found = std::to_string(TrackbarPosition(control));
            break;
        case Look::Kind::Text: {
            wanted = look.text;
            const std::wstring text = GetText(control);
            found = std::string(text.begin(), text.end());
            break;
        }
        case Look::Kind::Day:
            wanted = look.text;
            found = DayOf(control);
            break;
        }
        return wanted == found ? "" : "shows \"" + found + "\", not \"" + wanted + "\"";
    }

    /// Expects every page to show the table.
    void ExpectShown(const Table& table)
    {
        for (const expected::Page* page : BuiltPages()) {
            SCOPED_TRACE(page->title);
            ASSERT_TRUE(ShowPageOf(*page));
            for (const Look& look : expected::LooksOf(*page, table, Today()))
                EXPECT_EQ("", Deviation(look)) << "control " << look.control;
        }
    }

    /// The file that contained one table, after all pages have loaded another one and
    /// saved.
    static Table Saved(const Table& loaded, Table file)
    {
        for (const expected::Page* page : BuiltPages())
            expected::SaveInto(file, *page, loaded, Today());
        return file;
    }

    /// Compares every line of the file that is not a comment.
    void ExpectSaved(const Table& table)
    {
        std::string lines;
        for (const std::string& line : expected::LinesOf(table))
            lines += line + "\n";
        std::string found;
        for (const std::string& line : AssignmentsOf(CurrentBytes()))
            found += line + "\n";
        EXPECT_EQ("", Difference(lines, found));
    }

    /// Makes the dialog modified without changing a value.
    void Touch()
    {
        ASSERT_TRUE(ShowPage(L"Branding"));
        ClickOnPage(IDC_BRANDING_AUTO);
        ClickOnPage(IDC_BRANDING_AUTO);
    }

    bool IsUsable(int control)
    {
        HWND window = PageControl(control);
        return window && IsEnabled(window) && IsShown(window);
    }

    /// Adds an entry at the end with the button's list editor and presses OK.
    void AddEntry(int button, const std::string& entry)
    {
        ClickOnPage(button);
        HWND editor = AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
        ASSERT_TRUE(editor) << "no list editor came up";
        TypeText(GetDlgItem(editor, IDC_CONFIG_SETTING_VALUE), Wide(entry));
        Click(GetDlgItem(editor, IDC_CONFIG_SETTING_INSERT));
        Click(GetDlgItem(editor, IDOK));
        EXPECT_TRUE(AwaitGone(editor));
        Settle(Dialog());
    }

    void PickDay(int control, const std::string& text)
    {
        HWND picker = PageControl(control);
        NMDATETIMECHANGE change = {};
        change.nmhdr = {picker, static_cast<UINT_PTR>(control), static_cast<UINT>(DTN_DATETIMECHANGE)};
        change.st.wYear = static_cast<WORD>(std::atoi(text.c_str()));
        change.st.wMonth = static_cast<WORD>(std::atoi(text.c_str() + 5));
        change.st.wDay = static_cast<WORD>(std::atoi(text.c_str() + 8));
        SendMessageW(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&change.st));
        // Only a choice by the user sends a notification.
        SendMessageW(Page(), WM_NOTIFY, change.nmhdr.idFrom, reinterpret_cast<LPARAM>(&change));
        EXPECT_EQ(text, DayOf(picker));
    }

    void Do(const Step& step)
    {
        switch (step.kind) {
        case Step::Kind::Click:
            ClickOnPage(step.control);
            break;
        case Step::Kind::Type:
            TypeOnPage(step.control, Wide(step.text));
            break;
        case Step::Kind::Choose:
            SelectComboEntry(PageControl(step.control), step.number);
            EXPECT_EQ(step.number, ComboSelection(PageControl(step.control)));
            break;
        case Step::Kind::Slide:
            Focus(PageControl(step.control));
            PostKey(Dialog(), step.number == 1 ? VK_END : VK_HOME);
            if (step.number == 0)
                PostKey(Dialog(), VK_RIGHT);
            break;
        case Step::Kind::PickDay:
            PickDay(step.control, step.text);
            break;
        case Step::Kind::AddEntry:
            AddEntry(step.control, step.text);
            break;
        }
    }

    /// Performs the step and checks Save: every step must mark the dialog modified,
    /// even directly after another one.
    void DoAndExpectMark(const expected::Page& page, const Step& step)
    {
        SCOPED_TRACE(testing::Message() << "control " << step.control);
        ASSERT_TRUE(IsUsable(step.control)) << "out of reach";
        EnableWindow(Control(IDC_PREFERENCES_SAVE), FALSE);
        Do(step);
        // Typing the cells of a title block has never marked the dialog.
        const bool goesUnnoticed = page.pageId == titleBlocks && step.control == titleBlockCells;
        EXPECT_EQ(!goesUnnoticed, CanSave()) << "whether Save can be pressed";
    }

    /// Makes all changes. Changes whose controls are not usable at first are made
    /// as soon as they become usable.
    void DoAll(const expected::Page& page, std::vector<Change> changes)
    {
        ASSERT_TRUE(ShowPageOf(page));
        while (!changes.empty()) {
            const auto next = std::ranges::find_if(
                changes, [&](const Change& change) { return IsUsable(change.steps.front().control); });
            if (next == changes.end()) {
                for (const Change& change : changes)
                    ADD_FAILURE() << "control " << change.steps.front().control << " stays out of reach";
                return;
            }
            for (const Step& step : next->steps)
                DoAndExpectMark(page, step);
            changes.erase(next);
        }
    }

    /// Changes every setting on every page, saves, and opens the dialog again.
    void ChangeEverything(Table& table, int round)
    {
        SCOPED_TRACE(testing::Message() << "round " << round);
        Table changed = table;
        for (const expected::Page* page : BuiltPages()) {
            SCOPED_TRACE(page->title);
            const auto changes = expected::ChangesOf(*page, table, round);
            for (const Change& change : changes) {
                for (const auto& [variable, value] : change.stored)
                    changed[variable] = value;
            }
            DoAll(*page, changes);
        }
        Touch();
        Save();
        table = Saved(changed, changed);
        ExpectSaved(table);
        ASSERT_TRUE(Open());
        ExpectShown(table);
    }
};

/// The table without the settings of pages that do not exist yet.
Table OfBuiltPages(Table table)
{
    const auto built = BuiltPages();
    for (const expected::Page& page : expected::Pages()) {
        if (std::ranges::find(built, &page) != built.end())
            continue;
        for (const expected::Setting& setting : page.settings)
            table.erase(setting.variable);
    }
    return table;
}

/// Every variable with a value other than its page's initial one.
Table FullTable()
{
    Table table = {
        {"_ORTHOVAL_MAX_ERROR_UORS", "12 or so"},
        {"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS", "1"},
        {"_ORTHOVAL_PROMPT_COLOURTABLE_REMAP", "1"},
        {"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT", "2"},
        {"_ORTHOVAL_DRAWINGSCALE_VALUES", "[1:50,1:100]"},
        {"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", "2"},
        {"_ORTHOVAL_WILDCARD_TYPE", "4"},
        {"_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE", "0"},
        {"_ORTHOVAL_BORDERSHEETS_ERROR_SCALE", "1.1"},
        {"_ORTHOVAL_REPORT_USEREFCLIPPING", "1"},
        {"_ORTHOVAL_REPORT_AUTOGETMODELS", "-3"},
        {"_ORTHOVAL_REPORT_NAMING", "$$userinitials$$-$$currentfile$$"},
        {"_ORTHOVAL_REPORT_OUTPUT_DEFAULT_NAME", "C:\\Reports"},
        {"_ORTHOVAL_SCANPERIOD_SETTINGS", "1, 0, 0, 3, 4, 2011, 1, 0, 0, 0, 29, 2, 2012, 1"},
        {"_ORTHOVAL_WATERMARKS_CHECK_RASTER", "1"},
        {"_ORTHOVAL_WATERMARKS_CHECK_METADATA", "0"},
        {"_ORTHOVAL_WATERMARKS_OVERWRITE", "0"},
        {"_ORTHOVAL_REPORT_REF_UNSCALE_DIMS", "0"},
    };
    int number = 0;
    for (const expected::Page* page : BuiltPages()) {
        for (const expected::Setting& setting : page->settings) {
            const bool isFlag = setting.meaning == expected::Meaning::Flag ||
                                (setting.meaning == expected::Meaning::LeftAlone && setting.kind == 4);
            const std::string value = std::to_string(++number);
            table.insert({setting.variable, isFlag              ? "1"
                                            : setting.kind == 1 ? "No. " + value + ", B"
                                                                : value});
        }
    }
    return OfBuiltPages(table);
}

TEST_F(EveryPageTest, ShowsTheCurrentFileAndSavesItUntouched)
{
    const Table file = FullTable();
    UseCurrent(BytesOf(file));
    ASSERT_TRUE(Open());
    ExpectShown(file);
    Touch();
    Save();
    ExpectSaved(Saved(file, file));
}

TEST_F(EveryPageTest, ShowsTheDefaultsAndSavesThemIntoANewFile)
{
    const Table defaults = FullTable();
    UseDefaults(BytesOf(defaults));
    UseNewFile();
    ASSERT_TRUE(Open());
    ExpectShown(defaults);
    Touch();
    Save();
    ExpectSaved(Saved(defaults, {}));
}

TEST_F(EveryPageTest, LoadsTheDefaultsOverTheCurrentFile)
{
    const Table defaults = FullTable();
    Table file;
    for (const auto& [variable, value] : defaults)
        file[variable] = value == "1" ? "0" : "1";
    for (const char* variable : {"_ORTHOVAL_SCANPERIOD_SETTINGS", "_ORTHOVAL_TITLEBLOCK_TAGVALUES"})
        file.erase(variable);
    UseDefaults(BytesOf(defaults));
    UseCurrent(BytesOf(file));
    ASSERT_TRUE(Open());
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    ExpectShown(defaults);
    Save();
    ExpectSaved(Saved(defaults, file));
}

TEST_F(EveryPageTest, EveryChangeIsMarkedSavedAndShownAgain)
{
    UseNewFile();
    ASSERT_TRUE(Open());
    ExpectShown({});
    Table table;
    ASSERT_NO_FATAL_FAILURE(ChangeEverything(table, 0));
    ASSERT_NO_FATAL_FAILURE(ChangeEverything(table, 1));
    Cancel();
}

// Pages that were not changed, and variables that no page has, keep their meaning
// for any content.
TEST_F(EveryPageTest, RandomFilesAreShownChangedAndSavedAsTheirMeaningSays)
{
    const int rounds = FromEnvironment("OV_DIALOG_ROUNDS", 3);
    const int firstSeed = FromEnvironment("OV_DIALOG_SEED", 1);
    for (int seed = firstSeed; seed < firstSeed + rounds && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "OV_DIALOG_SEED=" << seed);
        std::mt19937 random(static_cast<unsigned>(seed));
        Table file = OfBuiltPages(expected::RandomTable(random, expected::Carrier::File));
        file["_ORTHOVAL_VARIABLE_OF_ANOTHER_PROGRAM"] = std::to_string(seed);
        UseCurrent(BytesOf(file));
        ASSERT_TRUE(Open());
        ExpectShown(file);
        const int round = static_cast<int>(random() % 2);
        Table changed = file;
        for (const expected::Page* page : BuiltPages()) {
            // The settings for scales are changed together or not at all.
            if (random() % 4 != 0 || page->pageId == drawingScales)
                continue;
            SCOPED_TRACE(page->title);
            ASSERT_TRUE(ShowPageOf(*page));
            for (const Change& change : expected::ChangesOf(*page, file, round)) {
                const Step& step = change.steps.front();
                const bool isOneValue = change.steps.size() == 1 && change.stored.size() == 1 &&
                                        step.kind != Step::Kind::AddEntry;
                if (!isOneValue || random() % 2 != 0 || !IsUsable(step.control))
                    continue;
                DoAndExpectMark(*page, step);
                changed.insert_or_assign(change.stored.begin()->first, change.stored.begin()->second);
            }
        }
        Touch();
        Save();
        ExpectSaved(Saved(changed, changed));
    }
}

} // namespace
