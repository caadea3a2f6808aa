/// The expected controls of the pages: their kind, caption and help. Written
/// independently of the templates and the rows. Portable, for tests with and
/// without windows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace expected
{

enum class ControlClass { CheckBox, RadioButton, Button, Frame, Label, Edit, List, UpDown, TrackBar, Date };

/// Further properties of a control in its template, as bits.
enum Mark : unsigned {
    OnlyDigits = 1,      ///< an edit that accepts digits only
    ReadOnly = 2,        ///< a read-only edit
    OneBorderedLine = 4, ///< an edit with a border and a single line that scrolls
    WantsReturn = 8,     ///< an edit with ES_WANTRETURN
    Sorted = 16,         ///< a list that sorts its entries
    Unsorted = 32,       ///< a list that keeps the order of its entries
    NoTicks = 64,        ///< a horizontal track bar without ticks, with a thumb pointing both ways
    PlainIntegers = 128, ///< an up-down control that writes numbers without separators and accepts arrow keys
    Disabled = 256,
};

/// Any help id: the product is free to choose one.
constexpr unsigned kAnyHelp = ~0u;
constexpr unsigned kNoHelp = 0;

/// Any control id: the product is free to choose one. The caption identifies the control.
constexpr int kAnyId = -2;

struct ControlRow {
    int id;
    ControlClass controlClass;
    const char* caption;         ///< the exact caption; nullptr if none is visible
    unsigned help = kNoHelp;     ///< string id
    const char* label = nullptr; ///< the text of the control before it in tab order; nullptr: not checked
    unsigned marks = 0;
    std::uint32_t layout = 0;              ///< how it follows the page's size
    std::vector<const char*> entries = {}; ///< of a list, in display order
};

struct ControlPage {
    int pageId;
    std::vector<ControlRow> controls;
    int width = 0; ///< the template's width in dialog units; 0: not checked
    int height = 0;
};

/// What a "..." button opens.
enum class Opens { File, Folder, List };

/// Where the focus goes if the list editor is refused and no control gets it.
constexpr int kStays = 0;
constexpr int kRemoved = -1;

struct BrowseButton {
    int pageId;
    int id;
    const char* variable;
    Opens opens;
    // For lists only.
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
    bool accelerates; ///< steps of 1, after three seconds of 5, after six seconds of 10
};

const std::vector<BrowseButton>& BrowseButtons();
const std::vector<UpDownRow>& UpDowns();

/// All pages, in the order of the category pane.
const std::vector<ControlPage>& ControlPages();

const ControlPage& ControlsOf(int pageId);

} // namespace expected
