/// What the pages have to be, written down a second time and independently of
/// the pages' own rows: every variable by page, and what becomes of a value.
/// Portable, for the tests with and without windows.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace expected
{

enum class Control { None, Check, Edit, List, Radio };

/// How a stored text is read, and what an opened page writes back for it.
enum class Meaning {
    Flag,           ///< "1", or "0" for anything else
    UnlessZero,     ///< "0", or "1" for anything else
    Text,           ///< as it is
    TextOrZero,     ///< as it is, "0" when empty
    Index,          ///< the leading integer, when the control has that entry; empty: the initial one
    ListOfThree,    ///< entries "1", "0", "-1"; what is neither 1 nor 0 is the last
    ButtonsOfThree, ///< buttons "0", "1", "-1"; what is neither 0 nor 1 is the last, empty the first
    Models,         ///< index plus one, negative when the user may not change it
    Preset,         ///< a preset in its own spelling, otherwise as it is
    ScaleSource,    ///< "0", "1" or "2"
    Scales,         ///< in square brackets when the user may take others
    ScaleFactor,    ///< held in 0.75 to 1.25
    Period,         ///< fourteen numbers
    LeftAlone,      ///< never written
};

struct Setting {
    const char* variable;
    int kind;
    Control control;
    int controlId;   ///< 0 for none; the first button of a group
    int commentId;   ///< the control whose help is the comment
    unsigned helpId; ///< of the comment's control
    Meaning meaning;
    int entries = 0; ///< of a list or a group
    int initial = 0; ///< selected before anything is read
    std::vector<const char*> presets = {};
};

struct Page {
    int pageId;
    const char* title;
    unsigned titleId; ///< string id
    unsigned templateId;
    int scrollWidth; ///< size of the content in pixels at 96 dpi
    int scrollHeight;
    std::vector<Setting> settings;
};

/// All pages with their settings, from the top of the category list to its bottom.
const std::vector<Page>& Pages();

/// The ids of the pages in the order in which they are constructed and saved.
std::span<const int> ConstructionOrder();

/// The page of that id. Throws std::logic_error if nothing is expected of it.
const Page& PageOf(int pageId);

/// Variables that are only read, because of files written long ago.
std::span<const char* const> OlderVariables();

using Table = std::map<std::string, std::string>;

/// What the variable is after its page was loaded from the table and saved
/// untouched. Nothing when it stays out of the table.
/// @param today what a page makes of the current day, as "21, 11, 2026"
std::optional<std::string> AfterSave(const Setting& setting, const Table& table,
                                     const std::string& today = {});

/// What a page that never had a window adds to a table without the variable:
/// what it starts with. Nothing where nobody relies on it.
std::optional<std::string> StartOf(const Setting& setting);

/// Whether such a page leaves the variable out of the table.
bool StaysOutWhenUnseen(const Setting& setting);

} // namespace expected
