#include "tests/pages/expected_pages.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <stdexcept>

namespace expected
{
namespace
{
constexpr int TextKind = 1;
constexpr int PathKind = 2;
constexpr int IntegerKind = 3;
constexpr int FlagKind = 4;
constexpr int RealKind = 5;

Setting Flag(const char* variable, int control, unsigned help)
{
    return {variable, FlagKind, Control::Check, control, control, help, Meaning::Flag};
}

Setting Text(const char* variable, int control, unsigned help, int kind = TextKind)
{
    return {variable, kind, Control::Edit, control, control, help, Meaning::Text};
}

Setting Path(const char* variable, int control, unsigned help)
{
    return Text(variable, control, help, PathKind);
}

Setting ListOfThree(const char* variable, int control, unsigned help)
{
    return {variable, IntegerKind, Control::List, control, control, help, Meaning::ListOfThree, 3, 2};
}

Setting Weight(const char* variable, int edit, int bar, unsigned help)
{
    return {variable, IntegerKind, Control::Edit, edit, bar, help, Meaning::TextOrZero};
}

// clang-format off
std::vector<Page> MakePages()
{
    return {
        {2, "Branding", 2058, 9364, 290, 220, {
            Flag("_ORTHOVAL_BRANDING_AUTO", 9512, 2059),
            Flag("_ORTHOVAL_BRANDING_OVERRIDE", 9513, 2060),
            Flag("_ORTHOVAL_BRANDING_CERTIFY", 9514, 2061),
            Flag("_ORTHOVAL_BRANDING_DISABLE_AUTOLOAD", 9515, 2062),
            Text("_ORTHOVAL_BRANDING_RENAME_TABLES", 11001, 2063),
        }},
        {3, "Cell Handling", 9345, 9350, 290, 210, {
            Flag("_ORTHOVAL_CHECK_CELLCOMPONENTS", 2006, 8005),
            Flag("_ORTHOVAL_CHECK_SHAREDCELLDEF", 2011, 8007),
            Flag("_ORTHOVAL_ALLOW_UNKNOWN_CONFORMING_CELLS", 2008, 8006),
            Flag("_ORTHOVAL_COPY_DATA_FIELDS", 2015, 8009),
            Flag("_ORTHOVAL_CELL_CACHING", 2007, 8003),
        }},
        {4, "Certifying", 2006, 9352, 400, 360, {
            {"_ORTHOVAL_MARKERCELL", FlagKind, Control::Check, 3302, 3301, 9301, Meaning::Flag},
            {"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS", FlagKind, Control::Check, 3303, 3302, 9333, Meaning::Flag},
            {"_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS", FlagKind, Control::None, 0, 3303, 2038, Meaning::Flag},
            Text("_ORTHOVAL_CERTIFY_PREWATERMARK_KEYIN", 3324, 9311),
            Text("_ORTHOVAL_CERTIFY_POSTWATERMARK_KEYIN", 3330, 9313),
            {"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS", IntegerKind, Control::Radio, 9351, 9394, 2033,
             Meaning::ButtonsOfThree, 3, -1},
        }},
        {5, "Colour Table", 7011, 116, 290, 220, {
            Path("_ORTHOVAL_COLOURTABLES", 9327, 5032),
            Flag("_ORTHOVAL_ALLOW_ANY_COLOURTABLE", 9330, 5034),
            Flag("_ORTHOVAL_PROMPT_COLOURTABLE_ON_FILE_OPEN", 9331, 5035),
            {"_ORTHOVAL_PROMPT_COLOURTABLE_REMAP", IntegerKind, Control::List, 9332, 9332, 5036, Meaning::Index, 3, 2},
        }},
        {6, "Conforming", 5001, 101, 440, 370, {
            Flag("_ORTHOVAL_CHECK_CELLS", 2000, 8000),
            Flag("_ORTHOVAL_CHECK_TEXT", 2001, 8001),
            Flag("_ORTHOVAL_CHECK_TAGS", 2002, 8002),
            Flag("_ORTHOVAL_CHECK_RGB_COLOUR_MATCH", 11072, 2069),
            Flag("_ORTHOVAL_CHECK_COMPLEXCOMPONENTS", 2013, 8008),
            Flag("_ORTHOVAL_CHECK_3D_OBJECTS", 2014, 8020),
            Flag("_ORTHOVAL_CHECK_MULTILINE_DIMS", 2017, 8010),
            Flag("_ORTHOVAL_CHECK_PATTERNS", 2015, 8004),
            Flag("_ORTHOVAL_CHECK_HIDDEN_CELLS", 2016, 2011),
            Flag("_ORTHOVAL_ALLOW_NEGATIVE_TEXTSIZE", 2018, 8023),
            Flag("_ORTHOVAL_CHECK_CONTINUOUSISZERO", 2023, 8028),
            Text("_ORTHOVAL_MAX_ERROR_UORS", 2019, 8012, RealKind),
            Text("_ORTHOVAL_MIN_MU_ERRORSCALE", 2020, 2017, RealKind),
            Text("_ORTHOVAL_CHECK_IGNORED_LEVELS", 11015, 8021),
        }},
        {7, "Custom Reports", 8313, 9369, 290, 170, {
            Text("_ORTHOVAL_REPORT_CUSTOM_COMMANDS", 11048, 9120),
            Text("_ORTHOVAL_REPORT_CUSTOM_MVBA", 11052, 9122),
            Flag("_ORTHOVAL_REPORT_CUSTOM_COMMANDS_LOCKED", 11051, 9124),
        }},
        {8, "Drafting", 5002, 102, 290, 70, {
            Flag("_ORTHOVAL_DRAFT_BY_RANGES", 2100, 8100),
            Flag("_ORTHOVAL_DRAFT_MENUS_ORDERBYDESCRIPTION", 2101, 8101),
            Flag("_ORTHOVAL_TEXT_FORCECOLOUROVERRIDEMATCH", 2102, 8102),
        }},
        {9, "Drawing Scales", 5003, 103, 290, 320, {
            Flag("_ORTHOVAL_PROMPT_DRAWINGSCALES", 2202, 8201),
            Flag("_ORTHOVAL_DRAWINGSCALE_ALLOW_NONE", 2203, 8205),
            Flag("_ORTHOVAL_DRAWINGSCALE_ANNO_LOCK", 2208, 8208),
            {"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT", IntegerKind, Control::None, 0, 2205, 8206, Meaning::ScaleSource},
            {"_ORTHOVAL_DRAWINGSCALE_VALUES", TextKind, Control::Edit, 2201, 2201, 8200, Meaning::Scales},
            Text("_ORTHOVAL_DRAWINGSCALE_DEFAULT_VALUE", 2213, 8204, IntegerKind),
            Text("_ORTHOVAL_DRAWINGSCALE_COMMAND", 2211, 8209),
        }},
        {10, "Feature Tables", 5004, 104, 290, 420, {
            Flag("_ORTHOVAL_USEDICTVERSIONING", 2300, 8300),
            Flag("_ORTHOVAL_SUPPORT_TRICAD", 2301, 8301),
            Flag("_ORTHOVAL_CHECK_SHAPESASLINEAR", 2004, 2005),
            Flag("_ORTHOVAL_FEATURES_SHOWHIDDEN", 2302, 8302),
            Flag("_ORTHOVAL_FEATURES_SHOWSUGGESTED", 2303, 8305),
            Flag("_ORTHOVAL_CHECK_ATTACHED_TAGS", 2305, 8310),
            Flag("_ORTHOVAL_TABLE_ORDERBY_DESCRIPTION", 2304, 8309),
            Text("_ORTHOVAL_ALLOWED_TABLE_NAMES", 9386, 8306),
            Text("_ORTHOVAL_DISALLOWED_TABLE_NAMES", 9393, 8303),
            Text("_ORTHOVAL_TABLE_BACKUP_MAX", 11024, 8308),
            Text("_ORTHOVAL_SQL_LONG_STRING", 9387, 8315),
        }},
        {15, "File Naming", 5008, 109, 290, 260, {
            Flag("_ORTHOVAL_CONVENTION_FILENAME_PROMPT", 2910, 8904),
            Text("_ORTHOVAL_CONVENTION_FILENAME", 2901, 8900),
            Text("_ORTHOVAL_CONVENTION_FILENAME_DESCR", 2903, 8908),
            Text("_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE", 2906, 8902),
            Text("_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING", 9341, 8903),
        }},
        {11, "File Paths", 10016, 105, 290, 450, {
            Path("_ORTHOVAL_DICT_DIR", 2401, 8401),
            Path("_ORTHOVAL_DOCS_DIR", 2403, 8403),
            Path("_ORTHOVAL_FILEDSN_DIR", 2406, 8405),
            Path("_ORTHOVAL_REPORT_FILEDSN_DIR", 2432, 8421),
            Path("_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS", 2435, 8423),
            Path("_ORTHOVAL_REPORT_TEMPLATE_ACE_DSN_XLS", 2441, 8427),
            Path("_ORTHOVAL_README_FILE", 2409, 8407),
            Path("_ORTHOVAL_SCRIPTS", 2412, 8409),
            Path("_ORTHOVAL_USERS_FILE", 2417, 8412),
            Path("_ORTHOVAL_REPORT_DISCIPLINES_DIR", 2437, 8425),
            Path("_ORTHOVAL_HTMLEXPORT_OUTDIR", 2425, 8417),
            Path("_ORTHOVAL_HTMLEXPORT_EXEFILE", 2428, 8419),
        }},
        {12, "Languages", 5006, 106, 290, 290, {
            Text("_ORTHOVAL_MENU_NAME", 9375, 8711),
            Text("_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_1", 2701, 8701),
            Text("_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_2", 2702, 8702),
            Text("_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1", 2704, 8703),
            Text("_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2", 2706, 8705),
            Text("_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN", 2711, 8709),
            Path("_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE", 2709, 8707),
        }},
        {14, "Logging", 9347, 9358, 400, 190, {
            Flag("_ORTHOVAL_REPORT_TRACKING", 3100, 9130),
            Text("ORTHOVAL_LOG_FILE_MAXSIZE", 3111, 9131, IntegerKind),
            {"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", IntegerKind, Control::List, 9365, 9365, 9132, Meaning::Index, 3, 0},
        }},
        {17, "Model Naming", 9342, 117, 290, 270, {
            Flag("_ORTHOVAL_CONVENTION_MODELNAME_PROMPT", 9340, 8905),
            Text("_ORTHOVAL_CONVENTION_MODELNAME", 2903, 8901),
            Text("_ORTHOVAL_CONVENTION_MODELNAME_DESCR", 2909, 8909),
            Text("_ORTHOVAL_CONVENTION_MODELNAME_HELP_FILE", 9344, 8906),
            Text("_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING", 9349, 8907),
        }},
        {16, "Miscellaneous", 8910, 9368, 290, 390, {
            {"_ORTHOVAL_WILDCARD_TYPE", IntegerKind, Control::Radio, 11040, 11046, 10015, Meaning::Index, 6, 3},
            Flag("_ORTHOVAL_TOOLS_REORDERALLWINDOWS", 11053, 11061),
            Flag("_ORTHOVAL_AUTOLOGIN_USERDEFINED", 11069, 2066),
            {"_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE", FlagKind, Control::Radio, 11072, 11072, 2067, Meaning::Flag, 2, 1},
        }},
        {18, "Reference Files", 5009, 110, 400, 750, {
            Flag("_ORTHOVAL_PROMPT_REF_ATTACHED", 3003, 9003),
            Flag("_ORTHOVAL_PROMPT_REF_DETACHED", 3000, 9000),
            Flag("_ORTHOVAL_PROMPT_REF_MODIFIED", 3004, 9004),
            Flag("_ORTHOVAL_REPORT_REFS_SCALEINDEPENDENT", 9378, 9008),
            {"_ORTHOVAL_REPORT_REF_UNSCALE_DIMS", FlagKind, Control::Check, 9380, 9380, 9009, Meaning::UnlessZero},
            Flag("_ORTHOVAL_CHECK_BORDERSHEETS", 9506, 9010),
            Flag("_ORTHOVAL_BORDERSHEETS_DEFAULT_MODEL", 9511, 2057),
            Flag("_ORTHOVAL_BORDERSHEETS_PLOTSHAPE_EXISTS", 9512, 9017),
            Flag("_ORTHOVAL_BORDERSHEETS_DISALLOW_OUTSIDE", 9510, 9016),
            Flag("_ORTHOVAL_BORDERSHEETS_IGNORE_OUTSIDE", 9509, 9015),
            Text("_ORTHOVAL_BORDERSHEETS", 3002, 9001),
            Text("_ORTHOVAL_PLACE_BORDER_KEYIN", 3006, 9011),
            Text("_ORTHOVAL_BORDERSHEETS_PLOT_SHAPE", 3010, 9014),
            {"_ORTHOVAL_BORDERSHEETS_ERROR_SCALE", TextKind, Control::Edit, 11019, 11019, 2015, Meaning::ScaleFactor},
            ListOfThree("_ORTHOVAL_REPORT_USEREFCLIPPING", 11066, 2027),
        }},
        {19, "Reporting", 5010, 111, 290, 630, {
            Flag("_ORTHOVAL_REPORT_AUTOGETREFS", 3104, 9100),
            Flag("_ORTHOVAL_REPORT_PROMPTMAXLOG", 3101, 9101),
            Text("_ORTHOVAL_REPORT_MAXLOGGABLE", 3103, 9102, IntegerKind),
            Text("_ORTHOVAL_REPORT_REFS_NESTLEVEL", 3107, 9103, IntegerKind),
            Flag("_ORTHOVAL_REPORT_REFS_LEGACY_NESTING", 3109, 9104),
            {"_ORTHOVAL_REPORT_AUTOGETMODELS", IntegerKind, Control::None, 0, 3110, 9105, Meaning::Models, 7, 5},
            Text("_ORTHOVAL_REPORT_IGNORED_REFFILES", 9374, 9106),
            {"_ORTHOVAL_REPORT_NAMING", TextKind, Control::Edit, 9373, 9367, 9108, Meaning::Preset, 0, 0,
             {"$$USERFULLNAME$$-$$CURRENTFILE$$", "$$USERINITIALS$$-$$CURRENTFILE$$",
              "$$USERINITIALS$$-$$CURRENTMODEL$$-$$CURRENTFILE$$"}},
            {"_ORTHOVAL_REPORT_OUTPUT_DEFAULT_NAME", TextKind, Control::Edit, 9381, 9375, 9109, Meaning::Preset, 0, 0,
             {"$(ORTHOVAL_CURRENT_STANDARD)", "$(ORTHOVAL_CURRENT_DISCIPLINE)"}},
        }},
        {20, "Scan Period", 10007, 9367, 290, 320, {
            Flag("_ORTHOVAL_SCANPERIOD_ALLOWUSER", 9316, 8013),
            {"_ORTHOVAL_SCANPERIOD_SETTINGS", TextKind, Control::None, 0, 11052, 10008, Meaning::Period},
        }},
        {29, "Score Weighting", 2065, 9366, 290, 460, {
            Weight("_ORTHOVAL_WEIGHTING_COLOUR", 11032, 11025, 9317),
            Weight("_ORTHOVAL_WEIGHTING_WEIGHT", 11031, 11033, 9321),
            Weight("_ORTHOVAL_WEIGHTING_STYLE", 11035, 11038, 9326),
            Weight("_ORTHOVAL_WEIGHTING_LEVEL_NAME", 11036, 11029, 9327),
            Weight("_ORTHOVAL_WEIGHTING_CELL_NAME", 11039, 11027, 9328),
            Weight("_ORTHOVAL_WEIGHTING_TEXTHEIGHT", 11046, 11045, 9332),
            Weight("_ORTHOVAL_WEIGHTING_TEXTSTYLE", 11040, 11042, 9330),
            Weight("_ORTHOVAL_WEIGHTING_DIMENSIONSTYLE", 11043, 11048, 9329),
        }},
        {21, "Signature Cells", 2046, 9361, 290, 220, {
            Flag("_ORTHOVAL_CHECK_SIGNATURECELL", 9494, 2050),
            Flag("_ORTHOVAL_SIGNATURECELL_DEFAULT_MODEL", 9509, 2055),
            Flag("_ORTHOVAL_SIGNATURECELL_ALLOW_ONE", 9495, 2052),
            {"_ORTHOVAL_SIGNATURECELL_COUNT_EDF", FlagKind, Control::Check, 9496, 9496, 2051, Meaning::LeftAlone},
            Text("_ORTHOVAL_SIGNATURECELL_CELLLIBS", 9499, 2053),
            Text("_ORTHOVAL_SIGNATURECELL_CELLS", 9497, 2054),
        }},
        {22, "Title Blocks", 2047, 9362, 290, 480, {
            Flag("_ORTHOVAL_CHECK_TITLEBLOCK", 9490, 2039),
            Flag("_ORTHOVAL_TITLEBLOCK_DEFAULT_MODEL", 9510, 2056),
            Flag("_ORTHOVAL_TITLEBLOCK_ALLOW_ONE", 9491, 2040),
            {"_ORTHOVAL_TITLEBLOCK_COUNT_EDF", FlagKind, Control::Check, 9492, 9492, 2041, Meaning::LeftAlone},
            Text("_ORTHOVAL_TITLEBLOCK_CELLLIBS", 9487, 2042),
            Text("_ORTHOVAL_TITLEBLOCK_CELLS", 9488, 2043),
            Text("_ORTHOVAL_TITLEBLOCK_TAGSETS", 9489, 2077),
            Text("_ORTHOVAL_TITLEBLOCK_TAGDEFS", 9494, 2075),
            {"_ORTHOVAL_TITLEBLOCK_TAGVALUES", TextKind, Control::None, 0, 9499, 2074, Meaning::Text},
            Text("_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK", 9495, 2076),
        }},
        {23, "Third Party Apps", 5040, 118, 290, 70, {
            Flag("_ORTHOVAL_CHECK_USERATTRIBUTES", 2027, 8011),
            Flag("_ORTHOVAL_CHECK_GEOPAK", 9323, 8017),
            Flag("_ORTHOVAL_CHECK_INROADS", 9325, 8018),
            Flag("_ORTHOVAL_CHECK_TRIFORMA", 9326, 8019),
        }},
        {24, "URLs", 2007, 9354, 290, 70, {
            Text("_ORTHOVAL_TECHSUPPORT_URL", 2415, 8411),
            Text("_ORTHOVAL_WEBSITE_URL", 2420, 8414),
        }},
        {25, "Users", 2037, 9360, 290, 70, {
            Flag("_ORTHOVAL_USERS_ALLOW_GROUPS", 9396, 2034),
            Flag("_ORTHOVAL_WINDOWS_AUTHENTICATION", 9397, 2035),
            Text("_ORTHOVAL_USERS_CURRENT_GROUP", 9398, 2036),
        }},
        {26, "Version", 5011, 112, 290, 70, {
            {"_ORTHOVAL_SERVER_VERSION", TextKind, Control::Edit, 3201, 3201, 9700, Meaning::LeftAlone},
            Flag("_ORTHOVAL_WARN_MAJOR_UPGRADE", 9355, 9701),
            Flag("_ORTHOVAL_WARN_MINOR_UPGRADE", 9359, 9702),
        }},
        {27, "Watermark Integrity", 5012, 513, 290, 410, {
            Flag("_ORTHOVAL_REPORT_DOUBLECROSS_ON_FAIL", 3334, 9320),
            Flag("_ORTHOVAL_WATERMARKS_INSTANTINVALIDATE", 3320, 9310),
            Flag("_ORTHOVAL_WATERMARKS_CONFORM", 3335, 9322),
            Flag("_ORTHOVAL_WATERMARKS_CHECK_FONTNUMS", 3336, 9323),
            Flag("_ORTHOVAL_WATERMARKS_CHECK_FONTNAMES", 3337, 9325),
            Flag("_ORTHOVAL_WATERMARKS_CHECK_CLIPPEDREFELMS", 3338, 9331),
            Text("_ORTHOVAL_WATERMARK_LEVEL_EXCLUSIONS", 3325, 9316),
            Text("_ORTHOVAL_WATERMARK_CELL_EXCLUSIONS", 3313, 9307),
            ListOfThree("_ORTHOVAL_WATERMARKS_CHECK_RASTER", 9381, 2028),
            ListOfThree("_ORTHOVAL_WATERMARKS_CHECK_METADATA", 9384, 2026),
            ListOfThree("_ORTHOVAL_WATERMARKS_OVERWRITE", 9379, 2029),
        }},
        {28, "Watermark Placement", 5041, 9363, 290, 370, {
            Text("_ORTHOVAL_REPLACETEXT_USERDEFINED_STRING", 3318, 9309),
            Path("_ORTHOVAL_REPLACETEXT_DATE_STRING", 3305, 9303),
            Path("_ORTHOVAL_REPLACETEXT_DATE_FORMAT", 3307, 9304),
            Path("_ORTHOVAL_REPLACETEXT_DICTVERSION_STRING", 3309, 9305),
            Path("_ORTHOVAL_REPLACETEXT_APP_VERSION_STRING", 3316, 9324),
            Text("_ORTHOVAL_REPLACETEXT_LINESPACING", 3311, 9306, IntegerKind),
            Flag("_ORTHOVAL_REPLACETEXT_LINESPACING_SCALED", 3300, 9300),
            Text("_ORTHOVAL_WATERMARK_CROSS", 3302, 9302),
        }},
    };
}
// clang-format on

std::string ValueOf(const Table& table, const std::string& variable)
{
    const auto found = table.find(variable);
    return found != table.end() ? found->second : std::string();
}

int Integer(const std::string& text)
{
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

std::string Trimmed(const std::string& text)
{
    const char* blanks = " \t\r\n\v\f";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool EqualInAnyCase(const std::string& one, const std::string& other)
{
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return std::ranges::equal(one, other, {}, lower, lower);
}

/// Whether the Drawing Scales page shows the check box for user-defined scales as checked.
bool OtherScales(const Table& table)
{
    const std::string list = Trimmed(ValueOf(table, "_ORTHOVAL_DRAWINGSCALE_VALUES"));
    const std::string code = Trimmed(ValueOf(table, "_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT"));
    return (!list.empty() && (list.front() == '[' || list.back() == ']')) ||
           (!code.empty() && code != "0" && code != "1");
}

std::string ScaleSource(const Table& table)
{
    const std::string code = Trimmed(ValueOf(table, "_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT"));
    if (code.empty() || code == "0")
        return "0";
    return OtherScales(table) ? "2" : "1";
}

std::string Scales(const Table& table)
{
    std::string list = Trimmed(ValueOf(table, "_ORTHOVAL_DRAWINGSCALE_VALUES"));
    while (!list.empty() && list.front() == '[')
        list.erase(0, 1);
    while (!list.empty() && list.back() == ']')
        list.pop_back();
    return OtherScales(table) ? "[" + list + "]" : list;
}

std::string ScaleFactor(const std::string& stored)
{
    if (stored.empty())
        return "1.00000";
    const double factor = std::strtod(stored.c_str(), nullptr);
    return factor < 0.75 ? "0.75000" : factor > 1.25 ? "1.25000" : stored;
}

std::string Models(const std::string& stored, const Setting& setting)
{
    const int code = Integer(stored);
    if (code == 0)
        return std::to_string(setting.initial + 1);
    return std::abs(code) <= setting.entries ? std::to_string(code) : "0";
}

std::string Index(const std::string& stored, const Setting& setting)
{
    if (stored.empty())
        return std::to_string(setting.initial);
    const int index = Integer(stored);
    return index >= 0 && index < setting.entries ? std::to_string(index) : "-1";
}

/// The fourteen numbers; the dates must exist.
std::string Period(const Table& table, const std::string& today)
{
    const auto numbersOf = [](const std::string& text) {
        std::vector<std::string> numbers;
        std::string number;
        for (const char c : text + ",") {
            if (c != ',') {
                number += c;
                continue;
            }
            if (!number.empty())
                numbers.push_back(std::to_string(static_cast<unsigned>(Integer(number))));
            number.clear();
        }
        return numbers;
    };
    const std::string stored = ValueOf(table, "_ORTHOVAL_SCANPERIOD_SETTINGS");
    const std::string older = ValueOf(table, "_ORTHOVAL_SCANPERIOD_VALUE");
    std::vector<std::string> numbers = {
        older.empty() ? "0" : "1", "1", "0", "1", "8", "2007", "0", "2", "0", "0"};
    const auto secondDay = numbersOf(stored.empty() ? today : "6,5,2016");
    numbers.insert(numbers.end(), secondDay.begin(), secondDay.end());
    numbers.push_back("0");
    const auto before = numbersOf(older);
    if (!before.empty()) {
        const int code = Integer(before[0]);
        if (code >= 0 && code <= 8)
            numbers[1] = code == 0 || code == 3 || code == 5 || code == 7 ? "0" : "1";
        if (code >= 5 && code <= 8)
            numbers[2] = "1";
        for (std::size_t i = 1; i < before.size() && i < 4; ++i)
            numbers[2 + i] = before[i];
    }
    const auto given = numbersOf(stored);
    std::copy_n(given.begin(), std::min(given.size(), numbers.size()), numbers.begin());
    if (numbers[0] == "0")
        return {};
    std::string text;
    for (const auto& number : numbers)
        text += (text.empty() ? "" : ", ") + number;
    return text;
}
} // namespace

std::span<const int> ConstructionOrder()
{
    static constexpr int order[] = {2,  3,  5,  4,  6,  7,  8,  9,  10, 11, 12, 14, 15, 16,
                                    17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29};
    return order;
}

const std::vector<Page>& Pages()
{
    static const std::vector<Page> pages = MakePages();
    return pages;
}

const Page& PageOf(int pageId)
{
    const auto found = std::ranges::find(Pages(), pageId, &Page::pageId);
    if (found == Pages().end())
        throw std::logic_error("There is no such page.");
    return *found;
}

std::span<const char* const> OlderVariables()
{
    static constexpr const char* variables[] = {"_ORTHOVAL_SCANPERIOD_VALUE",
                                                "_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS"};
    return variables;
}

std::optional<std::string> AfterSave(const Setting& setting, const Table& table, const std::string& today)
{
    std::string stored = ValueOf(table, setting.variable);
    switch (setting.meaning) {
    case Meaning::Flag:
        return stored == "1" ? "1" : "0";
    case Meaning::UnlessZero:
        return stored == "0" ? "0" : "1";
    case Meaning::Text:
        if (stored.empty() && setting.variable == std::string("_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS"))
            return ValueOf(table, "_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS");
        return stored;
    case Meaning::TextOrZero:
        return stored.empty() ? "0" : stored;
    case Meaning::Index:
        return Index(stored, setting);
    case Meaning::ListOfThree:
        return stored.empty() || Integer(stored) < 0 || Integer(stored) > 1 ? "-1"
                                                                            : std::to_string(Integer(stored));
    case Meaning::ButtonsOfThree:
        return Integer(stored) < 0 || Integer(stored) > 1 ? "-1" : std::to_string(Integer(stored));
    case Meaning::Models:
        return Models(stored, setting);
    case Meaning::Preset:
        for (const char* preset : setting.presets) {
            if (EqualInAnyCase(stored, preset))
                return preset;
        }
        return stored;
    case Meaning::ScaleSource:
        return ScaleSource(table);
    case Meaning::Scales:
        return Scales(table);
    case Meaning::ScaleFactor:
        return ScaleFactor(stored);
    case Meaning::Period:
        return Period(table, today);
    case Meaning::LeftAlone:
        break;
    }
    const auto found = table.find(setting.variable);
    return found != table.end() ? std::optional(found->second) : std::nullopt;
}

std::optional<std::string> StartOf(const Setting& setting)
{
    static const Table starts = {
        {"_ORTHOVAL_BRANDING_AUTO", "1"},
        {"_ORTHOVAL_BRANDING_OVERRIDE", "1"},
        {"_ORTHOVAL_BRANDING_CERTIFY", "1"},
        {"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_MARKERCELLS", "1"},
        {"_ORTHOVAL_CERTIFY_CHECK_REFERENCE_WATERMARKS", "-1"},
        {"_ORTHOVAL_CHECK_MULTILINE_DIMS", "1"},
        {"_ORTHOVAL_CHECK_CONTINUOUSISZERO", "1"},
        {"_ORTHOVAL_MAX_ERROR_UORS", "1"},
        {"_ORTHOVAL_MIN_MU_ERRORSCALE", "0.01"},
        {"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT", "0"},
        {"_ORTHOVAL_LOG_FILE_DEBUGLEVEL", "0"},
        {"_ORTHOVAL_WILDCARD_TYPE", "3"},
        {"_ORTHOVAL_AUTOLOGIN_USERDEFINED", "1"},
        {"_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE", "1"},
        {"_ORTHOVAL_SCANPERIOD_ALLOWUSER", "1"},
        {"_ORTHOVAL_WARN_MAJOR_UPGRADE", "1"},
    };
    // A flag without a check box.
    static const std::vector<std::string> open = {"_ORTHOVAL_CERTIFY_NO_DIFFERING_STGS"};
    if (const auto start = starts.find(setting.variable); start != starts.end())
        return start->second;
    if (std::ranges::find(open, setting.variable) != open.end())
        return {};
    if (setting.meaning == Meaning::Flag)
        return "0";
    if (setting.meaning == Meaning::Text)
        return "";
    return {};
}

bool StaysOutWhenUnseen(const Setting& setting)
{
    // The lists for who decides are written by a page that shows them.
    static const std::vector<std::string> lists = {"_ORTHOVAL_WATERMARKS_CHECK_RASTER",
                                                   "_ORTHOVAL_WATERMARKS_CHECK_METADATA",
                                                   "_ORTHOVAL_WATERMARKS_OVERWRITE"};
    return setting.meaning == Meaning::LeftAlone || std::ranges::find(lists, setting.variable) != lists.end();
}

} // namespace expected
