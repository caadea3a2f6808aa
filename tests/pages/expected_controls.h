/// The controls of the pages, written down a second time and independently of
/// the templates and the rows: what they are, what stands on them, which help
/// they have. Portable, for the tests with and without windows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace expected
{

enum class ControlClass { CheckBox, RadioButton, Button, Frame, Label, Edit, List, UpDown, TrackBar, Date };

/// What else a template has to say of a control, as bits.
enum Mark : unsigned {
    OnlyDigits = 1,      ///< an edit that takes no other characters
    ReadOnly = 2,        ///< an edit to look at
    OneBorderedLine = 4, ///< an edit with a border and a single line that scrolls
    WantsReturn = 8,     ///< an edit that asks for the Enter key
    Sorted = 16,         ///< a list that sorts its entries
    Unsorted = 32,       ///< a list that leaves them in their order
    NoTicks = 64,        ///< a horizontal track bar without ticks, its thumb pointing both ways
    PlainIntegers = 128, ///< an up-down control that fills its edit without separators and takes arrow keys
    Disabled = 256,
};

/// A help id that is this product's own choice.
constexpr unsigned kAnyHelp = ~0u;
constexpr unsigned kNoHelp = 0;

/// A number that is this product's own choice: such a control is known by its caption.
constexpr int kAnyId = -2;

struct ControlRow {
    int id;
    ControlClass controlClass;
    const char* caption;         ///< word for word; nullptr where there is none to see
    unsigned help = kNoHelp;     ///< string id
    const char* label = nullptr; ///< what the control before it in Tab's order says; nullptr: left open
    unsigned marks = 0;
    std::uint32_t layout = 0;              ///< how it follows the page's size
    std::vector<const char*> entries = {}; ///< of a list, in the order shown
};

struct ControlPage {
    int pageId;
    std::vector<ControlRow> controls;
    int width = 0; ///< of the template, in dialog units; 0: left open
    int height = 0;
};

/// What a "..." button opens.
enum class Opens { File, Folder, List };

/// Where the focus goes when a list is refused, if to no control.
constexpr int kStays = 0;
constexpr int kRemoved = -1;

struct BrowseButton {
    int pageId;
    int id;
    const char* variable;
    Opens opens;
    // Of lists only.
    unsigned browsing = 0; ///< 1: the entries are files
    char separator = ';';
    char fieldSeparator = '\0';
    std::size_t fields = 1;
    int focus = kStays;
};

struct UpDownRow {
    int pageId;
    int id;
    int edit;
    int lowest;
    int highest;
    bool accelerates; ///< steps of 1, after three seconds of 5, after six of 10
};

const std::vector<BrowseButton>& BrowseButtons();
const std::vector<UpDownRow>& UpDowns();

/// All pages, from the top of the category list to its bottom.
const std::vector<ControlPage>& ControlPages();

const ControlPage& ControlsOf(int pageId);

} // namespace expected
