#include "tests/pages/page_changes.h"

#include <algorithm>
#include <cstdlib>

namespace expected
{
namespace
{
/// The buttons of the groups, in the order of their indices.
std::vector<int> ButtonsOf(int firstButton, int pageId)
{
    constexpr int certifying = 4;
    constexpr int miscellaneous = 16;
    if (pageId == certifying && firstButton == 9351)
        return {9351, 9353, 9357};
    if (pageId == miscellaneous && firstButton == 11040)
        return {11040, 11041, 11042, 11045, 11043, 11044};
    if (pageId == miscellaneous && firstButton == 11072)
        return {11072, 11071};
    return {};
}

/// The buttons for a preset: none, each preset, the user's own text.
std::vector<int> PresetButtonsOf(int edit)
{
    return edit == 9373 ? std::vector<int>{9368, 9369, 9370, 9371, 9372}
                        : std::vector<int>{9376, 9377, 9382, 9380};
}

/// The check boxes for the title blocks' tags, which show whether there is a text,
/// and the one without an edit.
struct TagBox {
    const char* variable;
    int box;
};
constexpr TagBox tagBoxes[] = {
    {"_ORTHOVAL_TITLEBLOCK_TAGSETS", 9497},
    {"_ORTHOVAL_TITLEBLOCK_TAGDEFS", 9498},
    {"_ORTHOVAL_TITLEBLOCK_TAGVALUES", 9499},
    {"_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK", 9501},
};
constexpr int defineTagValues = 9496;

constexpr int modelsList = 9389;
constexpr int modelsUserDefinable = 9392;
constexpr int builtInScales = 2205;
constexpr int otherScales = 2206;
constexpr int fixedPeriod = 9317;

/// The scan period's controls by the position of their number. The three numbers of
/// a day are consecutive.
struct PeriodControl {
    std::size_t position;
    Look::Kind kind;
    int control;
};
constexpr PeriodControl periodControls[] = {
    {0, Look::Kind::Checked, fixedPeriod}, {1, Look::Kind::Selection, 11033},
    {2, Look::Kind::Selection, 11032},     {3, Look::Kind::Day, 11038},
    {6, Look::Kind::Checked, 9318},        {7, Look::Kind::Selection, 11034},
    {8, Look::Kind::Selection, 11036},     {9, Look::Kind::Selection, 11035},
    {10, Look::Kind::Day, 9322},           {13, Look::Kind::Selection, 11037},
};

bool Is(const Setting& setting, const char* variable)
{
    return setting.variable == std::string(variable);
}

int Integer(const std::string& text)
{
    return static_cast<int>(std::strtoul(text.c_str(), nullptr, 10));
}

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

std::string Padded(const std::string& digits, std::size_t width)
{
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// The index that the saved text means.
int IndexOf(const Setting& setting, const std::string& saved)
{
    switch (setting.meaning) {
    case Meaning::ListOfThree:
        return saved == "1" ? 0 : saved == "0" ? 1 : 2;
    case Meaning::ButtonsOfThree:
        return saved == "0" ? 0 : saved == "1" ? 1 : 2;
    default:
        return Integer(saved);
    }
}

std::string TextOfIndex(const Setting& setting, int index)
{
    constexpr const char* list[] = {"1", "0", "-1"};
    constexpr const char* buttons[] = {"0", "1", "-1"};
    switch (setting.meaning) {
    case Meaning::ListOfThree:
        return list[index];
    case Meaning::ButtonsOfThree:
        return buttons[index];
    default:
        return std::to_string(index);
    }
}

/// 0 for an empty text, else the preset counted from 1, else one past the last.
int PresetIndex(const Setting& setting, const std::string& saved)
{
    if (saved.empty())
        return 0;
    const auto found = std::ranges::find(setting.presets, saved);
    return static_cast<int>(found - setting.presets.begin()) + 1;
}

/// The track bar beside the edit of a weight.
int BarOf(const Setting& setting)
{
    return setting.commentId;
}

std::string WithoutBrackets(const std::string& scales)
{
    return scales.starts_with('[') ? scales.substr(1, scales.size() - 2) : scales;
}

void AddPeriodLooks(std::vector<Look>& looks, const std::string& saved)
{
    if (saved.empty()) {
        looks.push_back({Look::Kind::Checked, fixedPeriod, 0});
        return;
    }
    const auto numbers = Split(saved, ',');
    const auto number = [&](std::size_t position) { return Integer(numbers[position]); };
    for (const PeriodControl& control : periodControls) {
        Look look = {control.kind, control.control, number(control.position)};
        if (control.kind == Look::Kind::Day) {
            look.number = 0;
            look.text = Padded(std::to_string(number(control.position + 2)), 4) + "-" +
                        Padded(std::to_string(number(control.position + 1)), 2) + "-" +
                        Padded(std::to_string(number(control.position)), 2);
        }
        looks.push_back(look);
    }
}

void AddTagLooks(std::vector<Look>& looks, const Table& table)
{
    const auto has = [&](const TagBox& tag) {
        const auto found = table.find(tag.variable);
        return found != table.end() && !found->second.empty();
    };
    for (const TagBox& tag : tagBoxes)
        looks.push_back({Look::Kind::Checked, tag.box, has(tagBoxes[0]) && has(tag) ? 1 : 0});
}

void AddLooks(std::vector<Look>& looks, const Page& page, const Setting& setting, const std::string& saved)
{
    switch (setting.meaning) {
    case Meaning::ScaleSource:
        looks.push_back({Look::Kind::Checked, builtInScales, saved != "0"});
        return;
    case Meaning::Scales:
        looks.push_back({Look::Kind::Text, setting.controlId, 0, WithoutBrackets(saved)});
        looks.push_back({Look::Kind::Checked, otherScales, saved.starts_with('[')});
        return;
    case Meaning::Models:
        looks.push_back({Look::Kind::Selection, modelsList, std::abs(Integer(saved)) - 1});
        if (saved != "0")
            looks.push_back({Look::Kind::Checked, modelsUserDefinable, saved.front() != '-'});
        return;
    case Meaning::Period:
        AddPeriodLooks(looks, saved);
        return;
    case Meaning::Preset: {
        const auto buttons = PresetButtonsOf(setting.controlId);
        for (std::size_t i = 0; i < buttons.size(); ++i)
            looks.push_back(
                {Look::Kind::Checked, buttons[i], PresetIndex(setting, saved) == static_cast<int>(i)});
        break;
    }
    case Meaning::TextOrZero:
        looks.push_back({Look::Kind::Position, BarOf(setting),
                         std::clamp(static_cast<int>(std::strtol(saved.c_str(), nullptr, 10)), 0, 20)});
        break;
    default:
        break;
    }
    switch (setting.control) {
    case Control::None:
        break;
    case Control::Check:
        looks.push_back({Look::Kind::Checked, setting.controlId, saved == "1"});
        if (Is(setting, "_ORTHOVAL_MARKERCELL"))
            looks.push_back({Look::Kind::Checked, 3301, saved == "1"});
        break;
    case Control::Edit:
        looks.push_back({Look::Kind::Text, setting.controlId, 0, saved});
        break;
    case Control::List:
        looks.push_back({Look::Kind::Selection, setting.controlId, IndexOf(setting, saved)});
        break;
    case Control::Radio: {
        const auto buttons = ButtonsOf(setting.controlId, page.pageId);
        for (std::size_t i = 0; i < buttons.size(); ++i)
            looks.push_back(
                {Look::Kind::Checked, buttons[i], IndexOf(setting, saved) == static_cast<int>(i)});
        break;
    }
    }
}

/// A text for an edit that accepts any text and that does not change when it is read
/// back from a file.
std::string NewText(const Setting& setting, int round)
{
    const bool onlyDigits = setting.kind == 3 || Is(setting, "_ORTHOVAL_TABLE_BACKUP_MAX");
    if (onlyDigits)
        return round == 0 ? "42" : "7";
    if (setting.kind == 5)
        return round == 0 ? "0.25" : "12.5 or so";
    if (setting.kind == 2)
        return round == 0 ? "C:\\Office Standard\\First.xls" : "$(ORTHOVAL_HOME)second/";
    return round == 0 ? "First, (entry)" : "Second one;third:3, 4;V-*";
}

void AddPeriodChange(std::vector<Change>& changes, const char* variable, int round)
{
    using enum Step::Kind;
    if (round == 0) {
        changes.push_back({{{Click, fixedPeriod},
                            {Choose, 11033, 0},
                            {PickDay, 11038, 0, "2011-04-03"},
                            {Click, 9318},
                            {Choose, 11034, 0},
                            {Choose, 11036, 1},
                            {PickDay, 9322, 0, "2012-02-29"},
                            {Choose, 11037, 1}},
                           {{variable, "1, 0, 0, 3, 4, 2011, 1, 0, 1, 0, 29, 2, 2012, 1"}}});
    } else {
        changes.push_back({{{Choose, 11037, 0},
                            {PickDay, 9322, 0, "1999-12-31"},
                            {Choose, 11035, 10},
                            {Choose, 11036, 0},
                            {Choose, 11034, 1},
                            {Choose, 11032, 5},
                            {Choose, 11033, 1}},
                           {{variable, "1, 1, 5, 3, 4, 2011, 1, 1, 0, 10, 31, 12, 1999, 0"}}});
    }
}

void AddScaleChanges(std::vector<Change>& changes, int round)
{
    using enum Step::Kind;
    // The list can be edited only while the built-in scales are off.
    changes.push_back({{{Type, 2201, 0, round == 0 ? "1:50,1:100" : "1:20"}},
                       {{"_ORTHOVAL_DRAWINGSCALE_VALUES", round == 0 ? "1:50,1:100" : "1:20"}}});
    changes.push_back({{{Click, otherScales}}, {}});
    changes.push_back(
        {{{Click, builtInScales}}, {{"_ORTHOVAL_DRAWINGSCALE_USE_DEFAULT", round == 0 ? "2" : "0"}}});
}

void AddPresetChange(std::vector<Change>& changes, const Setting& setting, int round)
{
    using enum Step::Kind;
    const auto buttons = PresetButtonsOf(setting.controlId);
    if (round == 0) {
        changes.push_back({{{Click, buttons.back()}, {Type, setting.controlId, 0, "Report (mine)"}},
                           {{setting.variable, "Report (mine)"}}});
    } else {
        changes.push_back({{{Click, buttons[2]}}, {{setting.variable, setting.presets[1]}}});
    }
}

/// An index for a list or a group that differs from the initial one and between rounds.
int NewIndex(const Setting& setting, int round)
{
    const int last = setting.entries - 1;
    const int choice = round == 0 ? last - 1 : 0;
    return choice == setting.initial ? last : choice;
}

void AddChange(std::vector<Change>& changes, const Page& page, const Setting& setting,
               const std::string& before, int round)
{
    using enum Step::Kind;
    switch (setting.meaning) {
    case Meaning::LeftAlone:
    case Meaning::ScaleSource:
        return;
    case Meaning::Scales:
        AddScaleChanges(changes, round);
        return;
    case Meaning::Period:
        AddPeriodChange(changes, setting.variable, round);
        return;
    case Meaning::Preset:
        AddPresetChange(changes, setting, round);
        return;
    case Meaning::Models:
        changes.push_back({{{Choose, modelsList, round == 0 ? 2 : 4}, {Click, modelsUserDefinable}},
                           {{setting.variable, round == 0 ? "-3" : "5"}}});
        return;
    case Meaning::TextOrZero:
        changes.push_back(
            {{{Slide, BarOf(setting), round == 0 ? 1 : 0}}, {{setting.variable, round == 0 ? "20" : "1"}}});
        return;
    case Meaning::ScaleFactor:
        changes.push_back({{{Type, setting.controlId, 0, round == 0 ? "1.1" : "0.9"}},
                           {{setting.variable, round == 0 ? "1.1" : "0.9"}}});
        return;
    default:
        break;
    }
    const std::string turned = before == "1" ? "0" : "1";
    switch (setting.control) {
    case Control::None:
        break;
    case Control::Check:
        // Two check boxes show this flag; the second one decides.
        if (Is(setting, "_ORTHOVAL_MARKERCELL"))
            changes.push_back({{{Click, 3301}}, {}});
        // This check box has always been disabled.
        if (!Is(setting, "_ORTHOVAL_REPORT_TRACKING"))
            changes.push_back({{{Click, setting.controlId}}, {{setting.variable, turned}}});
        break;
    case Control::Edit: {
        const std::string text = NewText(setting, round);
        changes.push_back({{{Type, setting.controlId, 0, text}}, {{setting.variable, text}}});
        break;
    }
    case Control::List: {
        const int index = NewIndex(setting, round);
        changes.push_back(
            {{{Choose, setting.controlId, index}}, {{setting.variable, TextOfIndex(setting, index)}}});
        break;
    }
    case Control::Radio: {
        const int index = setting.meaning == Meaning::Flag ? Integer(turned) : NewIndex(setting, round);
        const int button = ButtonsOf(setting.controlId, page.pageId)[static_cast<std::size_t>(index)];
        changes.push_back({{{Click, button}}, {{setting.variable, TextOfIndex(setting, index)}}});
        break;
    }
    }
}

/// The kinds of the variables that pages write.
std::map<std::string, int> WrittenKinds()
{
    std::map<std::string, int> kinds;
    for (const Page& page : Pages()) {
        for (const Setting& setting : page.settings) {
            if (setting.meaning != Meaning::LeftAlone)
                kinds[setting.variable] = setting.kind;
        }
    }
    return kinds;
}

/// A variable that no page writes keeps the kind that it was read with: text or number.
bool IsQuoted(const std::map<std::string, int>& kinds, const std::string& variable, const std::string& value)
{
    constexpr int textKind = 1;
    const auto found = kinds.find(variable);
    if (found != kinds.end())
        return found->second == textKind;
    const std::string behindMinus = value.starts_with('-') ? value.substr(1) : value;
    return value.empty() || behindMinus.find_first_not_of("0123456789.") != std::string::npos;
}

/// In a row for a tag, the check box has to be clicked before its text is typed.
void AddTagChange(std::vector<Change>& changes, const Setting& setting, int round)
{
    const auto tag = std::ranges::find_if(
        tagBoxes, [&](const TagBox& candidate) { return Is(setting, candidate.variable); });
    if (tag == std::end(tagBoxes))
        return;
    changes.push_back({{{Step::Kind::Click, tag->box}}, {}});
    // A new list entry is added after the existing ones.
    if (setting.control == Control::None)
        changes.push_back({{{Step::Kind::AddEntry, defineTagValues, 0, round == 0 ? "A" : "B"}},
                           {{setting.variable, round == 0 ? "A" : "A;B"}}});
}
} // namespace

std::vector<Look> LooksOf(const Page& page, const Table& table, const std::string& today)
{
    constexpr int titleBlocks = 22;
    std::vector<Look> looks;
    for (const Setting& setting : page.settings)
        AddLooks(looks, page, setting, AfterSave(setting, table, today).value_or(""));
    if (page.pageId == titleBlocks)
        AddTagLooks(looks, table);
    return looks;
}

std::vector<Change> ChangesOf(const Page& page, const Table& before, int round)
{
    std::vector<Change> changes;
    for (const Setting& setting : page.settings) {
        AddTagChange(changes, setting, round);
        AddChange(changes, page, setting, AfterSave(setting, before).value_or(""), round);
    }
    if (round == 1)
        std::ranges::reverse(changes);
    return changes;
}

void SaveInto(Table& saved, const Page& page, const Table& loaded, const std::string& today)
{
    for (const Setting& setting : page.settings) {
        if (setting.meaning == Meaning::LeftAlone)
            continue;
        if (const auto value = AfterSave(setting, loaded, today))
            saved[setting.variable] = *value;
    }
}

std::string DifferenceOf(const Table& wanted, const Table& found)
{
    Table all = wanted;
    all.insert(found.begin(), found.end());
    const auto shown = [](const Table& table, const std::string& variable) {
        const auto at = table.find(variable);
        return at != table.end() ? '"' + at->second + '"' : "nothing";
    };
    std::string difference;
    for (const auto& [variable, value] : all) {
        const std::string one = shown(wanted, variable);
        const std::string other = shown(found, variable);
        if (one != other)
            difference.append("\n").append(variable).append(": ").append(one).append(", not ").append(other);
    }
    return difference;
}

std::vector<std::string> LinesOf(const Table& table)
{
    const auto kinds = WrittenKinds();
    std::vector<std::string> lines;
    for (const auto& [variable, value] : table) {
        if (value.find(';') == std::string::npos) {
            const std::string quote = IsQuoted(kinds, variable, value) ? "\"" : "";
            lines.push_back(variable + " = " + quote + value + quote);
            continue;
        }
        const char* operation = " = ";
        for (const std::string& item : Split(value, ';')) {
            if (item.empty())
                continue;
            lines.push_back(variable + operation + item);
            operation = " > ";
        }
    }
    return lines;
}

} // namespace expected
