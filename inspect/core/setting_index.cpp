#include "inspect/core/setting_index.h"

#include "pages/core/page_catalogue.h"
#include "pages/core/page_template.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <unordered_map>

namespace ov
{
namespace
{
constexpr std::size_t kLargestDifference = 2;

Text Folded(TextView text)
{
    Text folded(text);
    std::ranges::transform(folded, folded.begin(), ToUpperAscii);
    return folded;
}

std::vector<SettingPlace> CollectSettings()
{
    std::vector<SettingPlace> settings;
    for (const PageRows* page : AllPageRows()) {
        for (const SettingRow& row : page->settings)
            settings.push_back({page, &row});
    }
    return settings;
}

/// A bit for each character that occurs in the text; some characters share one.
std::uint64_t LettersOf(TextView text)
{
    std::uint64_t letters = 0;
    for (const char16_t c : text)
        letters |= std::uint64_t{1} << (c & 63U);
    return letters;
}

struct KnownVariable {
    TextView name;
    std::uint64_t letters;
};

const std::vector<KnownVariable>& KnownVariables()
{
    static const std::vector<KnownVariable> known = [] {
        std::vector<KnownVariable> variables;
        const auto add = [&](TextView name) { variables.push_back({name, LettersOf(name)}); };
        for (const SettingPlace& place : AllSettings())
            add(place.row->variable);
        for (const PageRows* page : AllPageRows())
            std::ranges::for_each(page->olderVariables, add);
        return variables;
    }();
    return known;
}

/// The number of letters to change, add or remove to turn one text into the other; more than
/// `largest` if it exceeds that.
std::size_t Difference(TextView one, TextView other, std::size_t largest)
{
    if (one.size() > other.size())
        std::swap(one, other);
    if (other.size() - one.size() > largest)
        return largest + 1;
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = i;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        std::size_t diagonal = row[0];
        std::size_t smallest = row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t replaced = diagonal + (one[i - 1] == other[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
            smallest = std::min(smallest, row[j]);
        }
        if (smallest > largest)
            return largest + 1;
    }
    return row[other.size()];
}

ControlKind KindOfControl(const PageRows& page, int controlId)
{
    for (const SettingRow& row : page.settings) {
        if (row.controlId == controlId)
            return row.control;
    }
    for (const CompanionRow& row : page.companions) {
        if (row.controlId == controlId)
            return row.control;
    }
    return ControlKind::None;
}

const PageTemplate& TemplateOf(const PageRows& page)
{
    return *FindTemplate(page.info.templateId);
}

/// The captions of the entries of a list or the buttons of a group.
std::vector<Text> CaptionsOfChoices(const PageRows& page, ControlKind control, int controlId)
{
    std::vector<Text> captions;
    if (control == ControlKind::RadioGroup) {
        for (const TemplateControl* button : ButtonsOfGroup(TemplateOf(page), controlId))
            captions.push_back(TextFromUtf8(button->caption));
        return captions;
    }
    const auto list = std::ranges::find(page.entries, controlId, &EntriesRow::controlId);
    if (control == ControlKind::DropDownList && list != page.entries.end()) {
        for (const unsigned id : list->stringIds)
            captions.emplace_back(FindString(id));
    }
    return captions;
}

/// The stored text if the control that sets the setting shows this number.
Text StoredChoice(const SettingPlace& place, int controlId, int number)
{
    if (place.row->controlId == controlId)
        return NumberToStore(place.row->encoding, number);
    PageValues values(*place.page);
    values.CompanionNumberOf(controlId) = number;
    if (place.page->refresh != nullptr)
        place.page->refresh(values);
    // Saved as a page without a window, so that no comments are created.
    SettingStore store;
    values.Save(store, false);
    return store.GetSettingValue(place.row->variable, kCurrentTable);
}

std::vector<Choice> FindChoices(const SettingPlace& place)
{
    std::vector<std::pair<ControlKind, int>> controls;
    const auto add = [&](ControlKind control, int controlId) {
        if (control == ControlKind::DropDownList || control == ControlKind::RadioGroup)
            controls.emplace_back(control, controlId);
    };
    add(place.row->control, place.row->controlId);
    for (const CompanionRow& row : place.page->companions) {
        if (TextView(row.variable) == place.row->variable)
            add(row.control, row.controlId);
    }
    // A setting composed of several lists is not a choice of any one of them.
    if (controls.size() != 1)
        return {};
    const auto [control, controlId] = controls.front();
    std::vector<Choice> choices;
    int number = 0;
    for (const Text& caption : CaptionsOfChoices(*place.page, control, controlId)) {
        Text value = StoredChoice(place, controlId, number++);
        const bool isThere =
            std::ranges::any_of(choices, [&](const Choice& each) { return each.value == value; });
        // The last button of a group may let the user edit the text.
        if (!isThere)
            choices.push_back({std::move(value), caption});
    }
    return choices;
}
} // namespace

std::span<const SettingPlace> AllSettings()
{
    static const std::vector<SettingPlace> settings = CollectSettings();
    return settings;
}

const SettingPlace* FindSetting(TextView variable)
{
    return FindSetting(Utf8FromText(variable));
}

const SettingPlace* FindSetting(std::string_view variable)
{
    // All names are in ASCII, so they are the same bytes in every encoding.
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const SettingPlace& place : AllSettings())
            list.push_back(Utf8FromText(place.row->variable));
        return list;
    }();
    static const std::unordered_map<std::string_view, const SettingPlace*> byName = [] {
        std::unordered_map<std::string_view, const SettingPlace*> map;
        for (std::size_t i = 0; i < names.size(); ++i)
            map.emplace(names[i], &AllSettings()[i]);
        return map;
    }();
    const auto found = byName.find(variable);
    return found != byName.end() ? found->second : nullptr;
}

const PageRows* PageOfOlderVariable(TextView variable)
{
    for (const PageRows* page : AllPageRows()) {
        for (const char16_t* older : page->olderVariables) {
            if (variable == older)
                return page;
        }
    }
    return nullptr;
}

bool MayBeSimilar(std::string_view variable)
{
    // All known names begin alike: of three pieces of that beginning, two wrong letters leave one unchanged.
    const auto isSame = [](char c, char piece) {
        return ToUpperAscii(static_cast<unsigned char>(c)) == static_cast<unsigned char>(piece);
    };
    return std::ranges::any_of(std::array<std::string_view, 3>{"ORT", "HOV", "AL_"}, [&](auto piece) {
        return std::search(variable.begin(), variable.end(), piece.begin(), piece.end(), isSame) !=
               variable.end();
    });
}

std::optional<Text> SimilarVariable(TextView variable)
{
    const Text folded = Folded(variable);
    std::size_t smallest = kLargestDifference;
    std::optional<Text> nearest;
    const std::uint64_t letters = LettersOf(folded);
    for (const KnownVariable& known : KnownVariables()) {
        if (folded.size() > known.name.size() + smallest || known.name.size() > folded.size() + smallest)
            continue;
        // A letter that is changed makes one appear and another one disappear.
        if (static_cast<std::size_t>(std::popcount(letters ^ known.letters)) > 2 * smallest)
            continue;
        const std::size_t difference = Difference(folded, known.name, smallest);
        if (difference < smallest || (difference == smallest && !nearest)) {
            smallest = difference;
            nearest = Text(known.name);
        }
    }
    return nearest;
}

std::optional<NumberRange> RangeOf(const SettingPlace& place)
{
    const TextView variable = place.row->variable;
    for (const RangeRow& range : place.page->ranges) {
        if (range.variable == variable)
            return NumberRange{range.lowest, range.highest};
    }
    for (const BarRow& bar : place.page->bars) {
        if (bar.variable == variable)
            return NumberRange{0, static_cast<double>(bar.highest)};
    }
    for (const SpinRow& spin : place.page->spins) {
        if (spin.buddyId == place.row->controlId)
            return NumberRange{static_cast<double>(spin.lowest), static_cast<double>(spin.highest)};
    }
    return std::nullopt;
}

const BrowseRow* BrowseOf(const SettingPlace& place)
{
    const TextView variable = place.row->variable;
    const auto found = std::ranges::find(place.page->browses, variable,
                                         [](const BrowseRow& row) { return TextView(row.variable); });
    return found != place.page->browses.end() ? &*found : nullptr;
}

std::optional<ListFormat> ListFormatOf(const SettingPlace& place)
{
    const BrowseRow* browse = BrowseOf(place);
    if (browse == nullptr || browse->kind != BrowseKind::List)
        return std::nullopt;
    return ListFormat{browse->separator, u'"', browse->fieldSeparator, browse->fieldCount};
}

const char16_t* VariableOfControl(const PageRows& page, int controlId)
{
    for (const SettingRow& row : page.settings) {
        if (row.controlId == controlId)
            return row.variable;
    }
    for (const CompanionRow& row : page.companions) {
        if (row.controlId == controlId)
            return row.variable;
    }
    for (const BrowseRow& row : page.browses) {
        if (row.buttonId == controlId)
            return row.variable;
    }
    for (const BarRow& row : page.bars) {
        if (row.controlId == controlId)
            return row.variable;
    }
    return nullptr;
}

std::span<const Choice> ChoicesOf(const SettingPlace& place)
{
    static std::vector<std::optional<std::vector<Choice>>> known(AllSettings().size());
    auto& choices = known[static_cast<std::size_t>(&place - AllSettings().data())];
    if (!choices)
        choices = FindChoices(place);
    return *choices;
}

Text DescribeCondition(const PageRows& page, const Condition& condition)
{
    const ControlKind control = KindOfControl(page, condition.controlId);
    const PageTemplate& layout = TemplateOf(page);
    Text caption = control == ControlKind::RadioGroup ? CaptionOfGroup(layout, condition.controlId)
                                                      : CaptionOf(layout, condition.controlId);
    const auto name = std::ranges::find(page.names, condition.controlId, &NameRow::controlId);
    if (caption.empty() && name != page.names.end())
        caption = FindString(name->stringId);
    Text text = u"\"" + caption + u"\" is ";
    if (condition.number == kAnyText)
        return text + u"not empty";
    if (control == ControlKind::CheckBox)
        return text + (condition.number != 0 ? u"on" : u"off");
    const std::vector<Text> captions = CaptionsOfChoices(page, control, condition.controlId);
    return text + u"\"" + captions.at(static_cast<std::size_t>(condition.number)) + u"\"";
}

} // namespace ov
