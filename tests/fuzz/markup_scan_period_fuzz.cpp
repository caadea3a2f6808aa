// Three small parsers. The first line of an input selects one: 0 the sections of a help text, 1 the
// comment made from a description, 2 a scan period; for 2 the next line is the older variable.
// The rest is the text.

#include "base/locale_text.h"
#include "config/core/config_reader.h"
#include "config/core/setting_comment.h"
#include "controls/core/tooltip_markup.h"
#include "pages/scan_period/scan_period.h"
#include "tests/fuzz/fuzz_input.h"

#include <array>
#include <string>
#include <vector>

namespace ov::fuzz
{
namespace
{

// A tag of a help text and its position.
struct TagAt {
    std::size_t position;
    std::size_t section;
};

std::vector<TagAt> TagsOf(const Text& text)
{
    std::vector<TagAt> tags;
    for (std::size_t i = 0; i + 3 <= text.size(); ++i) {
        if (text[i] != u'<' || text[i + 2] != u'>')
            continue;
        const std::size_t section = TextView(u"HTDS").find(ToUpperAscii(text[i + 1]));
        if (section != TextView::npos)
            tags.push_back({i, section});
    }
    return tags;
}

// Walks through the sections of each kind: one for each tag, up to the next tag.
void CheckSections(const Text& text)
{
    const std::vector<TagAt> tags = TagsOf(text);
    for (std::size_t section = 0; section < TooltipTags.size(); ++section) {
        std::size_t position = 0;
        Text first;
        bool any = false;
        for (std::size_t i = 0; i < tags.size(); ++i) {
            if (tags[i].section != section)
                continue;
            const std::size_t start = tags[i].position + 3;
            const std::size_t end = i + 1 < tags.size() ? tags[i + 1].position : text.size();
            const TextView found = ExtractSection(text, static_cast<TooltipSection>(section), position);
            OV_REQUIRE(found.data() == text.data() + start && found.size() == end - start);
            OV_REQUIRE(position == end);
            if (!any)
                first = found;
            any = true;
        }
        const std::size_t end = position;
        OV_REQUIRE(ExtractSection(text, static_cast<TooltipSection>(section), position).empty());
        OV_REQUIRE(position == end);
        if (section == static_cast<std::size_t>(TooltipSection::Variable))
            OV_REQUIRE(VariableName(text) == first);
        if (section == static_cast<std::size_t>(TooltipSection::Description))
            OV_REQUIRE(Description(text) == first);
    }
    std::size_t beyond = text.size() + 5;
    OV_REQUIRE(ExtractSection(text, TooltipSection::Heading, beyond).empty() && beyond == text.size() + 5);
}

std::vector<Text> LinesOf(const Text& text)
{
    std::vector<Text> lines(1);
    for (const char16_t c : text) {
        if (c == u'\n')
            lines.emplace_back();
        else
            lines.back() += c;
    }
    return lines;
}

void CheckComment(const Text& description)
{
    const Text block = MakeCommentBlock(description);
    const std::vector<Text> lines = LinesOf(block);
    // An empty line, "#", the description, "#", and nothing after the last line end.
    OV_REQUIRE(lines.size() >= 5 && lines.front().empty() && lines[1] == u"#");
    OV_REQUIRE(lines[lines.size() - 2] == u"#" && lines.back().empty());
    Text joined;
    for (std::size_t i = 2; i + 2 < lines.size(); ++i) {
        OV_REQUIRE(lines[i].starts_with(u"# "));
        joined += (i > 2 ? u"\n" : u"") + lines[i].substr(2);
    }
    // Only carriage returns are lost, and only blanks become line ends.
    Text kept = description;
    std::erase(kept, u'\r');
    OV_REQUIRE(joined.size() == kept.size());
    for (std::size_t i = 0; i < kept.size(); ++i)
        OV_REQUIRE(joined[i] == kept[i] || (kept[i] == u' ' && joined[i] == u'\n'));
    // A description with short lines is not wrapped. A description of blanks and short words without
    // line breaks has no line beyond 100 columns.
    bool hasBreaks = false;
    std::size_t longestLine = 0;
    std::size_t longestWord = 0;
    std::size_t line = 0;
    std::size_t word = 0;
    for (const char16_t c : description) {
        hasBreaks = hasBreaks || c == u'\n' || c == u'\r';
        line = c == u'\n' ? 0 : line + 1;
        word = c == u'\n' || c == u' ' ? 0 : word + 1;
        longestLine = std::max(longestLine, line);
        longestWord = std::max(longestWord, word);
    }
    if (longestLine <= 100)
        OV_REQUIRE(joined == kept);
    // A blank at the very beginning is not replaced, so the first word needs room for it.
    if (!hasBreaks && longestWord < 100) {
        for (std::size_t i = 2; i + 2 < lines.size(); ++i)
            OV_REQUIRE(lines[i].size() <= 2 + 100);
    }

    // Above a variable in a file it is that variable's comment, with trailing blanks removed from each
    // line. The locale is "C", which has no characters beyond one byte.
    Text narrow = block;
    for (char16_t& c : narrow)
        c = static_cast<char16_t>(c & 0xFF) == u'\n' && c != u'\n' ? u'?' : static_cast<char16_t>(c & 0xFF);
    std::string bytes;
    OV_REQUIRE(EncodeLocale(narrow + u"NAME = 1\n", bytes));
    SettingStore store;
    ReadConfig(store, kCurrentTable, bytes);
    OV_REQUIRE(store.Count(kCurrentTable) == 1 && store.GetSettingValue(u"NAME", kCurrentTable) == u"1");
    Text expected;
    for (const Text& written : LinesOf(narrow))
        expected.append(Trim(written)).push_back(u'\n');
    expected.pop_back();
    OV_REQUIRE(store.FindSetting(u"NAME", kCurrentTable)->comment == expected);
}

// The numbers of a period in the order of the setting.
using Numbers = std::array<int, 14>;

Numbers NumbersOf(const ScanPeriod& period)
{
    return {int{period.dateOneActive},
            period.segmentOne,
            period.modeOne,
            period.dateOne.day,
            period.dateOne.month,
            period.dateOne.year,
            int{period.dateTwoActive},
            period.operation,
            period.segmentTwo,
            period.modeTwo,
            period.dateTwo.day,
            period.dateTwo.month,
            period.dateTwo.year,
            period.orSelector};
}

std::vector<int> NumbersIn(const Text& text)
{
    std::vector<int> numbers;
    Text token;
    for (const char16_t c : text + u",") {
        if (c != u',') {
            token += c;
        } else if (!token.empty()) {
            numbers.push_back(ToInteger(token));
            token.clear();
        }
    }
    return numbers;
}

// The result of reading both texts, number by number.
Numbers Expected(const Text& value, const Text& settings, const ScanDate& today)
{
    // The number of entries of each list; 0 if the number is not a position in a list.
    constexpr Numbers kEntries = {0, 2, 11, 0, 0, 0, 0, 3, 2, 11, 0, 0, 0, 2};
    Numbers numbers = {value.empty() ? 0 : 1, 1,          0, 1, 8, 2007, 0, 2, 0, 0, today.day,
                       today.month,           today.year, 0};
    const std::vector<int> older = NumbersIn(value);
    if (!older.empty() && older[0] >= 0 && older[0] <= 8) {
        constexpr std::array<int, 9> kSegments = {0, 1, 1, 0, 1, 0, 1, 0, 1};
        numbers[1] = kSegments[static_cast<std::size_t>(older[0])];
        numbers[2] = older[0] >= 5 ? 1 : 0;
    }
    for (std::size_t i = 1; i < older.size() && i < 4; ++i)
        numbers[2 + i] = older[i];
    if (settings.empty())
        return numbers;
    numbers[10] = 6;
    numbers[11] = 5;
    numbers[12] = 2016;
    const std::vector<int> read = NumbersIn(settings);
    for (std::size_t i = 0; i < read.size() && i < numbers.size(); ++i) {
        numbers[i] = read[i];
        if (kEntries[i] != 0 && (read[i] < 0 || read[i] >= kEntries[i]))
            numbers[i] = -1;
        if (i == 0 || i == 6)
            numbers[i] = read[i] != 0 ? 1 : 0;
    }
    return numbers;
}

std::size_t CountNumbers(const Text& settings)
{
    std::size_t commas = 0;
    for (std::size_t i = 0; i < settings.size(); ++i) {
        if (settings[i] == u',') {
            ++commas;
            OV_REQUIRE(settings.at(i + 1) == u' ');
        } else {
            OV_REQUIRE(IsDigit(settings[i]) || (settings[i] == u' ' && settings[i - 1] == u','));
        }
    }
    return commas + 1;
}

void CheckScanPeriod(const Text& value, const Text& settings)
{
    const ScanDate today{21, 11, 2026};
    ScanPeriod period;
    ParseLegacyScanPeriod(value, period);
    OV_REQUIRE(period.dateTwo == ScanDate());
    ParseScanPeriod(settings, today, period);
    OV_REQUIRE(NumbersOf(period) == Expected(value, settings, today));

    const Text written = FormatScanPeriod(period);
    OV_REQUIRE(written.empty() == !period.dateOneActive);
    if (written.empty())
        return;
    OV_REQUIRE(CountNumbers(written) == 14);
    // A page accepts no other dates, so no others are written.
    if (!IsScanDate(period.dateOne) || !IsScanDate(period.dateTwo))
        return;
    ScanPeriod again;
    ParseScanPeriod(written, ScanDate(), again);
    OV_REQUIRE(again == period);
    OV_REQUIRE(FormatScanPeriod(again) == written);
}

void Run(FuzzInput input)
{
    switch (Options(input.Line()).Number(2)) {
    case 0:
        CheckSections(Characters(input.Rest()));
        break;
    case 1:
        CheckComment(Characters(input.Rest()));
        break;
    default: {
        const Text value = Characters(input.Line());
        CheckScanPeriod(value, Characters(input.Rest()));
        break;
    }
    }
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}
