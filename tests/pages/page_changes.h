/// What the pages' controls show, and how the user's actions change the
/// variables, computed from the expected pages alone. Portable.
#pragma once

#include "tests/pages/expected_pages.h"

#include <cstddef>
#include <string>
#include <vector>

namespace expected
{

/// The expected state of a control.
struct Look {
    enum class Kind {
        Checked,   ///< number: 1 or 0, of a check box or a radio button
        Text,      ///< text: the text of an edit
        Selection, ///< number: the index of the list's selected entry, -1 for none
        Position,  ///< number: the position of a track bar
        Day,       ///< text: the day of a date picker, "2016-05-06"
    };
    Kind kind;
    int control;
    int number = 0;
    std::string text = {};
};

/// The expected states of the page's controls when it is shown after it was loaded
/// from the table.
std::vector<Look> LooksOf(const Page& page, const Table& table, const std::string& today = {});

/// One action of the user on a control.
struct Step {
    enum class Kind {
        Click,    ///< a check box or a radio button
        Type,     ///< replace the edit's whole text
        Choose,   ///< choose the list's entry with that index
        Slide,    ///< move a track bar to its end, or to its beginning and one step further
        PickDay,  ///< choose a date picker's day, "2016-05-06"
        AddEntry, ///< add an entry with the button's list editor and press OK
    };
    Kind kind;
    int control;
    int number = 0; ///< the index of an entry; for Slide 1 the end, 0 the beginning and one step further
    std::string text = {};
};

/// Steps that belong together. Their controls may only become usable after other
/// changes of the page.
struct Change {
    std::vector<Step> steps;
    Table stored; ///< the variables that they change, with their new texts
};

/// The changes that edit every setting of the page and every related control, if
/// the controls show the table.
/// @param round 0 begins with the settings on which others depend, 1 ends with
///             them and chooses other values; both toggle flags
std::vector<Change> ChangesOf(const Page& page, const Table& before, int round);

/// Updates a file's variables as saving the page does after it has loaded a
/// table: every setting of the page except those that pages never write.
void SaveInto(Table& saved, const Page& page, const Table& loaded, const std::string& today = {});

/// Empty if both are equal, otherwise one line for each variable that differs.
std::string DifferenceOf(const Table& wanted, const Table& found);

/// The lines of a saved file with this table, in name order: texts in quotes,
/// values with semicolons as lists.
std::vector<std::string> LinesOf(const Table& table);

} // namespace expected
