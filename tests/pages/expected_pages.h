/// The expected pages: every variable by page, and how its value changes. Written
/// independently of the pages' own rows. Portable, for tests with and without
/// windows.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace expected
{

enum class Control { None, Check, Edit, List, Radio };

/// How a stored text is read, and what an opened page writes back.
enum class Meaning {
    Flag,           ///< "1"; "0" for anything else
    UnlessZero,     ///< "0"; "1" for anything else
    Text,           ///< unchanged
    TextOrZero,     ///< unchanged; "0" if empty
    Index,          ///< the leading integer, if the control has that entry; empty: the initial one
    ListOfThree,    ///< entries "1", "0", "-1"; anything other than 1 and 0 selects the last
    ButtonsOfThree, ///< buttons "0", "1", "-1"; anything other than 0 and 1 selects the last, empty the first
    Models,         ///< index plus one, negative if the user may not change it
    Preset,         ///< a preset in its own spelling; otherwise unchanged
    ScaleSource,    ///< "0", "1" or "2"
    Scales,         ///< in square brackets if the user may use other scales
    ScaleFactor,    ///< clamped to 0.75 to 1.25
    Period,         ///< fourteen numbers
    LeftAlone,      ///< never written
};

struct Setting {
    const char* variable;
    int kind;
    Control control;
    int controlId;   ///< 0 for none; for a group its first button
    int commentId;   ///< the control whose help text is the comment
    unsigned helpId; ///< the help text of that control
    Meaning meaning;
    int entries = 0; ///< for a list or a group
    int initial = 0; ///< the selection before anything is loaded
    std::vector<const char*> presets = {};
};

struct Page {
    int pageId;
    const char* title;
    unsigned titleId; ///< string id
    unsigned templateId;
    int scrollWidth; ///< size of the content in pixels at 96 pixels per inch
    int scrollHeight;
    std::vector<Setting> settings;
};

/// All pages with their settings, in the order of the category pane.
const std::vector<Page>& Pages();

/// The ids of the pages in the order of construction and saving.
std::span<const int> ConstructionOrder();

/// The page with that id. Throws std::logic_error if there is no such expected page.
const Page& PageOf(int pageId);

/// Variables from files of earlier versions, which are only read.
std::span<const char* const> OlderVariables();

using Table = std::map<std::string, std::string>;

/// The variable's value after its page was loaded from the table and saved without
/// changes. Nothing if the table does not get the variable.
/// @param today the present day as the page writes it: "21, 11, 2026"
std::optional<std::string> AfterSave(const Setting& setting, const Table& table,
                                     const std::string& today = {});

/// The value that an unseen page adds to a table without the variable: its initial
/// value. Nothing if the value does not matter.
std::optional<std::string> StartOf(const Setting& setting);

/// Whether an unseen page does not add the variable to the table.
bool StaysOutWhenUnseen(const Setting& setting);

} // namespace expected
