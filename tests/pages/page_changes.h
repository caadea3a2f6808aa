/// What the pages' controls show, and what a person's doings make of the
/// variables; worked out from the expected pages alone. Portable.
#pragma once

#include "tests/pages/expected_pages.h"

#include <cstddef>
#include <string>
#include <vector>

namespace expected
{

/// How a control has to look.
struct Look {
    enum class Kind {
        Checked,   ///< number: 1 or 0, of a check box or a radio button
        Text,      ///< text: that of an edit
        Selection, ///< number: the index of the list's entry, -1 for none
        Position,  ///< number: that of a track bar
        Day,       ///< text: a date picker's day, "2016-05-06"
    };
    Kind kind;
    int control;
    int number = 0;
    std::string text = {};
};

/// How the page's controls have to look when it is shown after the table was
/// loaded into it.
std::vector<Look> LooksOf(const Page& page, const Table& table, const std::string& today = {});

/// One thing that a person does to a control.
struct Step {
    enum class Kind {
        Click,    ///< a check box or a radio button
        Type,     ///< the edit's whole text anew
        Choose,   ///< the list's entry of that index
        Slide,    ///< a track bar to its end, or to its beginning and a step on
        PickDay,  ///< a date picker's day, "2016-05-06"
        AddEntry, ///< the button's list editor: a new entry, OK
    };
    Kind kind;
    int control;
    int number = 0; ///< the index of an entry; for Slide 1 the end, 0 the beginning and a step on
    std::string text = {};
};

/// Steps that belong together. Their controls may come into reach by other
/// changes of the page.
struct Change {
    std::vector<Step> steps;
    Table stored; ///< the variables that they change, with texts that mean the same
};

/// What a person does to change every setting of the page, whose controls show
/// the table, and every control that goes with a setting.
/// @param round 0 begins with what others depend on, 1 ends with it and
///              chooses other values; flags are turned over by both
std::vector<Change> ChangesOf(const Page& page, const Table& before, int round);

/// What becomes of a file when the page, which has loaded a table, is saved
/// into it: every setting of the page but those that pages never write.
void SaveInto(Table& saved, const Page& page, const Table& loaded, const std::string& today = {});

/// Empty when both are equal, otherwise a line for each variable that differs.
std::string DifferenceOf(const Table& wanted, const Table& found);

/// The lines that a saved file has for the table, in order of the names: texts
/// between quotes, what has semicolons as a list.
std::vector<std::string> LinesOf(const Table& table);

} // namespace expected
