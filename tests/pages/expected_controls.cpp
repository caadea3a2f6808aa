#include "tests/pages/expected_controls.h"

#include <algorithm>
#include <stdexcept>

namespace expected
{
namespace
{
constexpr std::uint32_t fixed = 3;
constexpr std::uint32_t topRight = 6;
constexpr std::uint32_t stretched = 258;

ControlRow Fixed(ControlRow row)
{
    row.layout = fixed;
    return row;
}
ControlRow Stretched(ControlRow row)
{
    row.layout = stretched;
    return row;
}
ControlRow TopRight(ControlRow row)
{
    row.layout = topRight;
    return row;
}

ControlRow Check(int id, const char* caption, unsigned help)
{
    return Fixed({id, ControlClass::CheckBox, caption, help});
}
ControlRow Radio(int id, const char* caption, unsigned help)
{
    return Fixed({id, ControlClass::RadioButton, caption, help});
}
/// The "..." button beside an edit.
ControlRow Dots(int id, unsigned help)
{
    return TopRight({id, ControlClass::Button, "...", help});
}
ControlRow Button(int id, const char* caption, unsigned help)
{
    return Fixed({id, ControlClass::Button, caption, help});
}
ControlRow Label(int id, const char* caption, unsigned help = kNoHelp)
{
    return Fixed({id, ControlClass::Label, caption, help});
}
/// A label with any id.
ControlRow Label(const char* caption)
{
    return Label(kAnyId, caption, kAnyHelp);
}
ControlRow Frame(int id, const char* caption, unsigned help = kNoHelp)
{
    return Stretched({id, ControlClass::Frame, caption, help});
}
ControlRow Edit(int id, const char* label, unsigned help, unsigned marks = 0)
{
    return Stretched({id, ControlClass::Edit, nullptr, help, label, marks});
}
ControlRow List(int id, const char* label, unsigned help, unsigned marks, std::vector<const char*> entries)
{
    return Fixed({id, ControlClass::List, nullptr, help, label, marks, 0, std::move(entries)});
}
ControlRow UpDown(int id, unsigned help = kNoHelp, unsigned marks = 0)
{
    return Fixed({id, ControlClass::UpDown, nullptr, help, nullptr, marks});
}
ControlRow TrackBar(int id, const char* label, unsigned help)
{
    return Stretched({id, ControlClass::TrackBar, nullptr, help, label, NoTicks});
}
ControlRow Date(int id, unsigned help)
{
    return TopRight({id, ControlClass::Date, nullptr, help});
}

/// An edit that shows the number of a track bar.
ControlRow Shown(int id)
{
    return TopRight(Edit(id, nullptr, kNoHelp, ReadOnly));
}

const std::vector<const char*> whoDecides = {"Always", "Never", "User Defined"};
const std::vector<const char*> beforeOrAfter = {"Before", "After"};
const std::vector<const char*> events = {"This date...",
                                         "V8 Conversion",
                                         "Today",
                                         "First Certified",
                                         "Last Certified",
                                         "First Certification Watermark Invalidated",
                                         "Last Certification Watermark Invalidated",
                                         "First Digital Signature Placed",
                                         "Last Digital Signature Placed",
                                         "First Digital Signature Invalidated",
                                         "Last Digital Signature Invalidated"};

// The captions are the product's original ones, including misspellings and trailing blanks.
// clang-format off
std::vector<ControlPage> MakePages()
{
    return {
        {2, { // Branding
            Stretched(Check(9512, "Allow automatic branding toggle on Feature Table Manager", 2059)),
            Stretched(Check(9513, "Allow override branding toggle in Batch Reporting", 2060)),
            Check(9514, "Automatically brand when certifying", 2061),
            Check(9515, "Disable automatic loading of branded tables", 2062),
            Label(11003, "Automatically rename branding"),
            Edit(11001, "Automatically rename branding", 2063),
            Dots(11002, 2064),
        }},
        {3, { // Cell Handling
            Check(2006, "Check cell components", 8005),
            Stretched(Check(2011, "Check shared cell definitions (element type 34)", 8007)),
            Stretched(Check(2008, "Allow unmatched cells with conforming components", 8006)),
            Stretched(Check(2015, "Copy existing Enter Data Fields from cells when Conforming", 8009)),
            Stretched(Check(2007, "Use local file cell caching to improve speed", 8003)),
        }},
        {4, { // Certifying
            Check(3301, "Prompt user to place marker cell", 9301),
            Check(3302, "Check reference files for marker cells", 9333),
            Check(3303, "Disallow multiple watermarks with differing settings", 2038),
            Label(3322, "Certify keyin command before watermarking"),
            Edit(3324, "Certify keyin command before watermarking", 9311),
            Dots(3326, 9312),
            Label(3328, "Certify keyin command after watermarking"),
            Edit(3330, "Certify keyin command after watermarking", 9313),
            Dots(3332, 9314),
            Frame(9394, "Reference file handling when certifying", 2033),
            Radio(9351, "References do not have to conform before certifying", 9006),
            Radio(9353, "All references must conform before certifying master model", 9005),
            Radio(9357, "User-definable toggle in 'Advanced Options'", 9007),
        }},
        {5, { // Colour Table
            Label("Allowed Colour Tables"),
            Edit(9327, "Allowed Colour Tables", 5032),
            Dots(9329, 5033),
            Check(9330, "Allow any colour table", 5034),
            Check(9331, "Check colour table on opening a DGN", 5035),
            Label("When attaching a new colour table..."),
            Stretched(List(9332, "When attaching a new colour table...", 5036, Unsorted,
                 {"Leave existing elements as-is",
                  "Automatically remap existing elements to the closest matching colour",
                  "Prompt the user before doing anything"})),
        }},
        {6, { // Conforming
            Check(2000, "Check cells (element types 2, 35)", 8000),
            Check(2001, "Check text (element types 7, 17)", 8001),
            Check(2002, "Check tags (element type 37)", 8002),
            Check(11072, "Allow RGB colour matches", 2069),
            Check(2013, "Check complex element components (for element type 7, 12)", 8008),
            Check(2014, "Check 3D solids and surfaces (element types 2, 18, 19, 23, 24, 105)", 8020),
            Check(2017, "Check muti-line dimension settings", 8010),
            Check(2015, "Check patterns and hatching (element type 2)", 8004),
            Check(2016, "Allow hidden models in cell libraries", 2011),
            Check(2018, "Allow negative text sizes", 8023),
            Check(2023, "Treat 'Continuous' as Style 0", 8028),
            Label(2021, "Maximum round-off error in Units of Resoution (UORS )"),
            Fixed(Edit(2019, "Maximum round-off error in Units of Resoution (UORS )", 8012)),
            UpDown(2024, kNoHelp, PlainIntegers),
            Label(2022, "Minimum round-off error in Master Units (MU)"),
            Fixed(Edit(2020, "Minimum round-off error in Master Units (MU)", 2017)),
            Label(11014, "Globally ignored levels"),
            Edit(11015, "Globally ignored levels", 8021),
            Dots(11016, 9319),
        }},
        {7, { // Custom Reports
            Label(11050, "Custom Commands", kAnyHelp),
            Edit(11048, "Custom Commands", kAnyHelp),
            Dots(11049, kAnyHelp),
            Label(11053, "Auto-loaded VBA Projects", kAnyHelp),
            Edit(11052, "Auto-loaded VBA Projects", kAnyHelp),
            Dots(11054, kAnyHelp),
            Stretched(Check(11051, "Lock custom commands from being changed or disabled", kAnyHelp)),
        }},
        {8, { // Drafting
            Stretched(Check(2100, "Allow drafting by symbology ranges", 8100)),
            Stretched(Check(2101, "Order Drafting menus by description instead of name", 8101)),
            Stretched(Check(2102, "Force text override colour to match element colour", 8102)),
        }},
        {9, { // Drawing Scales
            Check(2202, "Prompt user for drawing scale when not set", 8201),
            Check(2203, "Allow undefined drawing scale in reports", 8205),
            Stretched(Check(2208, "Ignore annotation scale lock when reading model annotation scale", 8208)),
            Stretched(Check(2205, "Use MicroStation built-in values for allowable scales", 8206)),
            Check(2206, "Allow any user-defined drawing scale", 8202),
            Label(2200, "Allowed drawing scale values"),
            Edit(2201, "Allowed drawing scale values", 8200),
            Dots(2207, 8203),
            Label("Default drawing scale value"),
            Fixed(Edit(2213, "Default drawing scale value", 8204)),
            Label("Change scale command"),
            Edit(2211, "Change scale command", 8209),
            Dots(2214, 8207),
        }},
        {10, { // Feature Tables
            Check(2300, "Prompt administrator for dictionary version", 8300),
            Stretched(Check(2301, "Support TriCAD compliant feature tables (German version only)", 8301)),
            Check(2004, "Allow shapes as linear features", 2005),
            Check(2302, "Show hidden features to non-administrators", 8302),
            Check(2303, "Load suggested features for all users", 8305),
            Check(2305, "Show the 'Attached Tags' tab page in the FTE", 8310),
            Check(2304, "Sort feature tables by description", 8309),
            Label(9383, "Allowed Table Names"),
            Edit(9386, "Allowed Table Names", 8306),
            Dots(9388, 8307),
            Label(9390, "Disallowed Table Names"),
            Edit(9393, "Disallowed Table Names", 8303),
            Dots(9395, kNoHelp),
            Label(11021, "Maximum Backup Tables"),
            Fixed(Edit(11024, "Maximum Backup Tables", 8308, OnlyDigits)),
            UpDown(11023, 8308),
            Label(9384, "SQL Long String Type Name"),
            Edit(9387, "SQL Long String Type Name", 8315),
        }},
        {15, { // File Naming
            Check(2910, "Prompt to correct invalid file name in Conform", 8904),
            Label(2900, "File Naming Match Templates"),
            Edit(2901, "File Naming Match Templates", 8900, OneBorderedLine),
            Dots(2905, kNoHelp),
            Label(2902, "File Naming Template Descriptions"),
            Edit(2903, "File Naming Template Descriptions", 8908, OneBorderedLine),
            Dots(2911, kNoHelp),
            Label(2909, "File Naming Convention Docs"),
            Edit(2906, "File Naming Convention Docs", 8902, OneBorderedLine),
            Dots(2907, kNoHelp),
            Label(2908, "File Naming Convention Help Text"),
            Edit(9341, "File Naming Convention Help Text", 8903, OneBorderedLine),
            Dots(2912, kNoHelp),
        }, 269, 166},
        {11, { // File Paths
            Label("Dictionary Directory"),
            Edit(2401, "Dictionary Directory", 8401),
            Dots(2402, 8402),
            Label("Documents Directory"),
            Edit(2403, "Documents Directory", 8403),
            Dots(2405, 8404),
            Label("Feature Table DSN Directory"),
            Edit(2406, "Feature Table DSN Directory", 8405),
            Dots(2408, 8406),
            Label("Reporting DSN Directory"),
            Edit(2432, "Reporting DSN Directory", 8421),
            Dots(2433, 8422),
            Label("Excel Reporting (JET) DSN File"),
            Edit(2435, "Excel Reporting (JET) DSN File", 8423),
            Dots(2436, 8424),
            Label("Excel Reporting (ACE) DSN File"),
            Edit(2441, "Excel Reporting (ACE) DSN File", 8427),
            Dots(2442, 8428),
            Label("ReadMe File"),
            Edit(2409, "ReadMe File", 8407),
            Dots(2411, 8408),
            Label("Scripts Directory"),
            Edit(2412, "Scripts Directory", 8409),
            Dots(2414, 8410),
            Label("Users File"),
            Edit(2417, "Users File", 8412),
            Dots(2419, 8413),
            Label("Reporting Disciplines Directory"),
            Edit(2437, "Reporting Disciplines Directory", 8425),
            Dots(2439, 8426),
            Label("HTML Export Out Directory"),
            Edit(2425, "HTML Export Out Directory", 8417),
            Dots(2427, 8418),
            Label("HTML Export Exe Files"),
            Edit(2428, "HTML Export Exe Files", 8419),
            Dots(2430, 8420),
        }},
        {12, { // Languages
            Label(9376, "Orthoval menu name"),
            Edit(9375, "Orthoval menu name", 8711),
            Frame(9377, "Bilingual Text Tools"),
            Label(2700, "1st language name"),
            Edit(2701, "1st language name", 8701),
            Label(2703, "2nd language name"),
            Edit(2702, "2nd language name", 8702),
            Label(2705, "1st language keyin"),
            Edit(2704, "1st language keyin", 8703),
            Dots(2713, kNoHelp),
            Label(2707, "2nd language keyin"),
            Edit(2706, "2nd language keyin", 8705),
            Dots(2714, kNoHelp),
            Label(2712, "Initial place text keyin"),
            Edit(2711, "Initial place text keyin", 8709),
            Dots(2715, kNoHelp),
            Label(2708, "Translation template file"),
            Edit(2709, "Translation template file", 8707),
            Dots(2710, 8708),
        }},
        {14, { // Logging
            Fixed({3100, ControlClass::CheckBox, "Track conform changes in database", kAnyHelp, nullptr, Disabled}),
            Label(3109, "Max log file size (KB)", kAnyHelp),
            Fixed(Edit(3111, "Max log file size (KB)", kAnyHelp, OnlyDigits)),
            UpDown(3112, kAnyHelp),
            Frame(9366, "Debug logging", kAnyHelp),
            Label(9374, "Debug Level", kAnyHelp),
            List(9365, "Debug Level", kAnyHelp, 0, {"0", "1", "2"}),
        }},
        {17, { // Model Naming
            Check(9340, "Prompt to correct invalid model name in Conform", 8905),
            Label(2902, "Model Naming Match Templates"),
            Edit(2903, "Model Naming Match Templates", 8901, OneBorderedLine),
            Dots(2904, kNoHelp),
            Label(2908, "Model Naming Template Descriptions"),
            Edit(2909, "Model Naming Template Descriptions", 8909, OneBorderedLine),
            Dots(2910, kNoHelp),
            Label(9343, "Model Naming Convention Docs"),
            Edit(9344, "Model Naming Convention Docs", 8906, OneBorderedLine),
            Dots(9346, kNoHelp),
            Label(9348, "Model Naming Convention Help Text"),
            Edit(9349, "Model Naming Convention Help Text", 8907, OneBorderedLine | WantsReturn),
            Dots(2912, kNoHelp),
        }, 269, 166},
        {16, { // Miscellaneous
            Frame(11047, "String Matching"),
            Label(11046, "Wildcard / RegEx Support", 10015),
            Radio(11040, "0 - No wildcards allowed", 10010),
            Radio(11041, "1 - DOS Wildcards (? and *)", 10009),
            Stretched(Radio(11042, "2 - DOS Wildcards with ranges and subsets", 10011)),
            Stretched(Radio(11045, "3 - DOS wildcards with ranges, subsets and substrings", 10012)),
            Stretched(Radio(11043, "4 - Perl Compatible Regular Expressions", 10013)),
            Stretched(Radio(11044, "5 - POSIX Extended Regular Expressions", 10014)),
            Button(11065, "Test", kNoHelp),
            Frame(11054, "Window Handling"),
            Check(11053, "Re-order windows automatically", 11061),
            Frame(11067, "Auto-Login"),
            Check(11069, "User-Definable", 2066),
            Label(11070, "Default Value:"),
            Radio(11072, "Off", 2067),
            Radio(11071, "On", 2067),
        }},
        {18, { // Reference Files
            Frame(kAnyId, "Prompt for drawing scale when a border sheet is...", kAnyHelp),
            Check(3003, "Attached", 9003),
            Check(3000, "Detached", 9000),
            Check(3004, "Modified", 9004),
            Check(9378, "Reference drawing scale is independent of master", 9008),
            Check(9380, "Unscale dimensions by reference attachment scale ", 9009),
            Check(9506, "At least one border sheet must be attached", 9010),
            Check(9511, "Only check Default model", 2057),
            Check(9512, "Plot border must be defined in border sheet", 9017),
            Check(9510, "Disallow elements outside the plot border", 9016),
            Check(9509, "Ignore elements outside the plot border until certfiying", 9015),
            Label("Border sheets files"),
            Edit(3002, "Border sheets files", 9001),
            Dots(3005, kNoHelp),
            Label("Place border command"),
            Edit(3006, "Place border command", 9011),
            Dots(3007, 9012),
            Label("Plot border shape"),
            Edit(3010, "Plot border shape", 9014),
            Dots(3011, 9013),
            Label(11018, "Allowed scale factor"),
            Fixed(Edit(11019, "Allowed scale factor", 2015)),
            Label(11020, "(0.75-1.25)"),
            Label("Use Clip Boundaries / Masks"),
            List(11066, "Use Clip Boundaries / Masks", 2027, Sorted, whoDecides),
        }},
        {19, { // Reporting
            Check(3104, "Automatically add all attached reference files", kAnyHelp),
            Check(3101, "Prompt to continue when maximum errors found", kAnyHelp),
            Label(3102, "Maximum reportable errors", kAnyHelp),
            Fixed(Edit(3103, "Maximum reportable errors", kAnyHelp, OnlyDigits)),
            UpDown(3105, kAnyHelp),
            Label(3106, "Nesting level for reference files", kAnyHelp),
            Fixed(Edit(3107, "Nesting level for reference files", kAnyHelp, OnlyDigits)),
            UpDown(3108, kAnyHelp),
            Check(3109, "Legacy handling of reference nesting depth", kAnyHelp),
            Label(3110, "Initial Models To Add", kAnyHelp),
            Stretched(List(9389, "Initial Models To Add", kAnyHelp, Unsorted,
                 {"All Models", "Active Model Only", "Design Models Only", "Sheet Models Only",
                  "Models With A Border", "Prompt The User", "Default Model Only"})),
            Check(9392, "User Definable", kAnyHelp),
            Label(3111, "Files to Ignore", kAnyHelp),
            Edit(9374, "Files to Ignore", kAnyHelp),
            Dots(11017, kAnyHelp),
            Frame(9367, "Default Report Name", kAnyHelp),
            Radio(9368, "None", kAnyHelp),
            Radio(9369, "Current user's name + design file name", kAnyHelp),
            Radio(9370, "Current user's initials + design file name", kAnyHelp),
            Stretched(Radio(9371, "Current user's initials + model + design file name", kAnyHelp)),
            Radio(9372, "User defined", kAnyHelp),
            // Enabled while "User defined" is chosen, disabled otherwise.
            Edit(9373, "User defined", kAnyHelp),
            Frame(9375, "Default Report Folder", kAnyHelp),
            Radio(9376, "None", kAnyHelp),
            Radio(9377, "Current Standard name", kAnyHelp),
            Radio(9382, "Current Discipline name", kAnyHelp),
            Radio(9380, "User defined", kAnyHelp),
            Edit(9381, "User defined", kAnyHelp),
        }},
        {20, { // Scan Period
            Check(9316, "Allow user-defined scan period", 8013),
            Frame(11052, "Fixed Scan Period", 10008),
            Check(9317, "Define a fixed scan period", 8014),
            List(11033, nullptr, 8026, Unsorted, beforeOrAfter),
            Stretched(List(11032, nullptr, 8027, Unsorted, events)),
            Date(11038, 8016),
            Check(9318, nullptr, 8024),
            List(11034, nullptr, 8015, Unsorted, {"Or", "And", "Until"}),
            List(11036, nullptr, 8026, Unsorted, beforeOrAfter),
            Stretched(List(11035, nullptr, 8027, Unsorted, events)),
            Date(9322, 8016),
            List(11037, nullptr, kNoHelp, Unsorted, {"Whichever is first", "Whichever is last"}),
        }},
        {29, { // Score Weighting
            Label(11028, "Colour"),
            TrackBar(11025, "Colour", 9317),
            Shown(11032),
            Label(11034, "Weight"),
            TrackBar(11033, "Weight", 9321),
            Shown(11031),
            Label(11037, "Style"),
            TrackBar(11038, "Style", 9326),
            Shown(11035),
            Label(11030, "Level Name"),
            TrackBar(11029, "Level Name", 9327),
            Shown(11036),
            Label(11026, "Cell Name"),
            TrackBar(11027, "Cell Name", 9328),
            Shown(11039),
            Label(11044, "Text Height"),
            TrackBar(11045, "Text Height", 9332),
            Shown(11046),
            Label(11041, "Text-Style Name"),
            TrackBar(11042, "Text-Style Name", 9330),
            Shown(11040),
            Label(11047, "Dimension-Style Name"),
            TrackBar(11048, "Dimension-Style Name", 9329),
            Shown(11043),
        }},
        {21, { // Signature Cells
            Check(9494, "Check For Signature Cell", 2050),
            Check(9509, "Only check Default model", 2055),
            Check(9495, "Allow Only One Signature Cell Per Model", 2052),
            Check(9496, "Check Enter Data Field Count", 2051),
            Label(9501, "Signature Cell Library"),
            Edit(9499, "Signature Cell Library", 2053, OneBorderedLine),
            Dots(9500, 2048),
            Label(9502, "Signature Cell Names"),
            Edit(9497, "Signature Cell Names", 2054, OneBorderedLine),
            Dots(9498, 2049),
        }, 269, 145},
        {22, { // Title Blocks
            Check(9490, "Check For Title Block", 2039),
            Check(9510, "Only check Default model", 2056),
            Check(9491, "Allow Only One Title Block Per Model", 2040),
            Check(9492, "Check Enter Data Field Count", 2041),
            Label(9503, "Title Block Cell Library"),
            Edit(9487, "Title Block Cell Library", 2042, OneBorderedLine),
            Dots(9493, 2044),
            Label(9504, "Title Block Cell Names"),
            Edit(9488, "Title Block Cell Names", 2043, OneBorderedLine),
            Dots(9391, 2045),
            Frame(11073, "Title Block Tags"),
            Check(9497, "Allowed Tag Sets", 2071),
            Edit(9489, "Allowed Tag Sets", 2077, OneBorderedLine),
            Dots(9392, 2070),
            Check(9498, "Required Tags", 2072),
            Edit(9494, "Required Tags", 2075, OneBorderedLine),
            Dots(9393, 2078),
            Check(9499, "Required Tag Values", 2074),
            Button(9496, "Define...", 2079),
            Check(9501, "Spell-check Tag Values", 2073),
            Edit(9495, "Spell-check Tag Values", 2076, OneBorderedLine),
            Dots(9394, 2080),
        }, 280, 320},
        {23, { // Third Party Apps
            Check(2027, "Check all non-standard user data attributes", 8011),
            Check(9323, "Check GEOPAK elements", 8017),
            Check(9325, "Check InRoads elements", 8018),
            Check(9326, "Check MicroStation TriForma elements", 8019),
        }},
        {24, { // URLs
            Label(2416, "Technical Support"),
            Edit(2415, "Technical Support", 8411),
            Label(2421, "Website"),
            Edit(2420, "Website", 8414),
        }},
        {25, { // Users
            Check(9396, "Allow user groups", 2034),
            Stretched(Check(9397, "Retrieve user's name using Windows authentication", 2035)),
            Label(9399, "Active User Groups"),
            Edit(9398, "Active User Groups", 2036),
            Dots(11000, 2008),
        }},
        {26, { // Version
            Label(3200, "Current Orthoval Server version for all users"),
            Edit(3201, "Current Orthoval Server version for all users", 9700, ReadOnly),
            Stretched(Check(9355, "Warn of major version downgrades between databases", 9701)),
            Stretched(Check(9359, "Warn of minor version downgrades between databases", 9702)),
        }},
        {27, { // Watermark Integrity
            Check(3334, "Double-cross watermark on failed report", 9320),
            Stretched(Check(3320, "Instantly invalidate watermarks on design change", 9310)),
            Check(3335, "Check that all markers and watermarks conform", 9322),
            Check(3336, "Check font numbers", 9323),
            Check(3337, "Check font names", 9325),
            Stretched(Check(3338, "Check reference elements hidden by clipping masks", 9331)),
            Label(3323, "Levels excluded from integrity check"),
            Edit(3325, "Levels excluded from integrity check", 9316),
            Dots(3327, 9318),
            Label(3315, "Cells excluded from integrity check"),
            Edit(3313, "Cells excluded from integrity check", 9307),
            Dots(3317, 9308),
            Label(3331, "Check raster elements"),
            List(9381, "Check raster elements", 2028, Sorted, whoDecides),
            Label(3333, "Check design settings"),
            List(9384, "Check design settings", 2026, Sorted, whoDecides),
            Label(3329, "Overwrite existing watermarks"),
            List(9379, "Overwrite existing watermarks", 2029, Sorted, whoDecides),
        }},
        {28, { // Watermark Placement
            Frame(9505, "Watermark Text Replacement"),
            Label(3319, "User-defined string"),
            Edit(3318, "User-defined string", 9309),
            Label(3306, "Date string"),
            Edit(3305, "Date string", 9303),
            Label(3308, "Date format"),
            Edit(3307, "Date format", 9304),
            Label(3310, "Dictionary version string"),
            Edit(3309, "Dictionary version string", 9305),
            Label(3314, "Application version string"),
            Edit(3316, "Application version string", 9324),
            Label(3312, "Text line spacing"),
            Fixed(Edit(3311, "Text line spacing", 9306)),
            Stretched(Check(3300, "By text height scale", 9300)),
            Label(3304, "Watermark cross symbology"),
            Edit(3302, "Watermark cross symbology", 9302),
            Dots(3321, 9315),
        }},
    };
}
// clang-format on

BrowseButton File(int page, int id, const char* variable)
{
    return {page, id, variable, Opens::File};
}
BrowseButton Folder(int page, int id, const char* variable)
{
    return {page, id, variable, Opens::Folder};
}
BrowseButton List(int page, int id, const char* variable, char separator, int focus)
{
    return {page, id, variable, Opens::List, 0, separator, '\0', 1, focus};
}
/// A list of files.
BrowseButton Files(int page, int id, const char* variable, int focus = kStays)
{
    return {page, id, variable, Opens::List, 1, ';', '\0', 1, focus};
}

// clang-format off
std::vector<BrowseButton> MakeBrowseButtons()
{
    return {
        {2, 11002, "_ORTHOVAL_BRANDING_RENAME_TABLES", Opens::List, 0, ';', ':', 2, 11001},
        List(4, 3326, "_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN", ';', kStays),
        List(4, 3332, "_ORTHOVAL_CERTIFY_POSTWATERMARK_KEYIN", ';', 3330),
        Files(5, 9329, "_ORTHOVAL_COLOURTABLES"),
        List(6, 11016, "_ORTHOVAL_CHECK_IGNORED_LEVELS", ',', kRemoved),
        {7, 11049, "_ORTHOVAL_REPORT_CUSTOM_COMMANDS", Opens::List, 0, ';', ',', 4, kStays},
        Files(7, 11054, "_ORTHOVAL_REPORT_CUSTOM_MVBA"),
        List(9, 2207, "_ORTHOVAL_DRAWINGSCALE_VALUES", ',', 2201),
        List(9, 2214, "_ORTHOVAL_DRAWINGSCALE_COMMAND", ';', 2211),
        List(10, 9388, "_ORTHOVAL_ALLOWED_TABLE_NAMES", ',', kStays),
        List(10, 9395, "_ORTHOVAL_DISALLOWED_TABLE_NAMES", ',', kStays),
        List(15, 2905, "_ORTHOVAL_CONVENTION_FILENAME", ';', 2901),
        List(15, 2911, "_ORTHOVAL_CONVENTION_FILENAME_DESCR", ';', 2903),
        File(15, 2907, "_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE"),
        // The focus moves to another edit than its own, unlike on the Model Naming page.
        List(15, 2912, "_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING", ';', 2903),
        Folder(11, 2402, "_ORTHOVAL_DICT_DIR"),
        Folder(11, 2405, "_ORTHOVAL_DOCS_DIR"),
        Folder(11, 2408, "_ORTHOVAL_FILEDSN_DIR"),
        Folder(11, 2433, "_ORTHOVAL_REPORT_FILEDSN_DIR"),
        Folder(11, 2436, "_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS"),
        Folder(11, 2442, "_ORTHOVAL_REPORT_TEMPLATE_ACE_DSN_XLS"),
        File(11, 2411, "_ORTHOVAL_README_FILE"),
        Folder(11, 2414, "_ORTHOVAL_SCRIPTS"),
        File(11, 2419, "_ORTHOVAL_USERS_FILE"),
        Folder(11, 2439, "_ORTHOVAL_REPORT_DISCIPLINES_DIR"),
        Folder(11, 2427, "_ORTHOVAL_HTMLEXPORT_OUTDIR"),
        File(11, 2430, "_ORTHOVAL_HTMLEXPORT_EXEFILE"),
        List(12, 2713, "_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1", ';', 2704),
        List(12, 2714, "_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2", ';', 2706),
        List(12, 2715, "_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN", ';', 2711),
        File(12, 2710, "_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE"),
        List(17, 2904, "_ORTHOVAL_CONVENTION_MODELNAME", ';', 2903),
        List(17, 2910, "_ORTHOVAL_CONVENTION_MODELNAME_DESCR", ';', 2909),
        File(17, 9346, "_ORTHOVAL_CONVENTION_MODELNAME_HELP_FILE"),
        List(17, 2912, "_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING", ';', 9349),
        {18, 3005, "_ORTHOVAL_BORDERSHEETS", Opens::List, 1, ';', ',', 2, 3002},
        List(18, 3007, "_ORTHOVAL_PLACE_BORDER_KEYIN", ';', 3006),
        List(18, 3011, "_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE", ';', 3010),
        Files(19, 11017, "_ORTHOVAL_REPORT_IGNORED_REFFILES", kRemoved),
        Files(21, 9500, "_ORTHOVAL_SIGNATURECELL_CELLLIBS"),
        List(21, 9498, "_ORTHOVAL_SIGNATURECELL_CELLS", ';', 9497),
        Files(22, 9493, "_ORTHOVAL_TITLEBLOCK_CELLLIBS"),
        List(22, 9391, "_ORTHOVAL_TITLEBLOCK_CELLS", ';', 9488),
        List(22, 9392, "_ORTHOVAL_TITLEBLOCK_TAGSETS", ';', 9489),
        List(22, 9393, "_ORTHOVAL_TITLEBLOCK_TAGDEFS", ';', 9494),
        List(22, 9496, "_ORTHOVAL_TITLEBLOCK_TAGVALUES", ';', kStays),
        List(22, 9394, "_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK", ';', 9495),
        List(25, 11000, "_ORTHOVAL_USERS_CURRENT_GROUP", ';', 9398),
        List(27, 3317, "_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS", ',', 3313),
        List(27, 3327, "_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS", ',', kRemoved),
        List(28, 3321, "_ORTHOVAL_WATERMARK_CROSS", ';', 3302),
    };
}
// clang-format on

} // namespace

const std::vector<BrowseButton>& BrowseButtons()
{
    static const std::vector<BrowseButton> buttons = MakeBrowseButtons();
    return buttons;
}

const std::vector<UpDownRow>& UpDowns()
{
    static const std::vector<UpDownRow> controls = {
        {6, 2024, 2019, 0, 10000, true},    {10, 11023, 11024, 0, 10000, true},
        {14, 3112, 3111, 0, 102400, false}, {19, 3105, 3103, 1, 10000, false},
        {19, 3108, 3107, -1, 99, false},
    };
    return controls;
}

const std::vector<ControlPage>& ControlPages()
{
    static const std::vector<ControlPage> pages = MakePages();
    return pages;
}

const ControlPage& ControlsOf(int pageId)
{
    const auto page = std::ranges::find(ControlPages(), pageId, &ControlPage::pageId);
    if (page == ControlPages().end())
        throw std::out_of_range("no such page");
    return *page;
}

} // namespace expected
