// Three small readers of texts. The first line of an input says which: 0 the sections of a help
// text, 1 the comment made of a description, 2 a scan period; for 2 the next line is the older form
// of the setting. The rest is the text.

#include "base/locale_text.h"
#include "config/core/config_reader.h"
#include "config/core/setting_comment.h"
#include "controls/core/tooltip_markup.h"
#include "pages/core/scan_period.h"
#include "tests/fuzz/fuzz_input.h"

#include <string>
#include <vector>

namespace ov::fuzz
{
namespace
{

// One of the four tags of a help text.
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

// Walks the sections of each kind: exactly those come that a tag opens, each up to the next tag.
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
    // An empty line, "#", the description, "#", and nothing behind the last line end.
    OV_REQUIRE(lines.size() >= 5 && lines.front().empty() && lines[1] == u"#");
    OV_REQUIRE(lines[lines.size() - 2] == u"#" && lines.back().empty());
    Text joined;
    for (std::size_t i = 2; i + 2 < lines.size(); ++i) {
        OV_REQUIRE(lines[i].starts_with(u"# "));
        joined += (i > 2 ? u"\n" : u"") + lines[i].substr(2);
    }
    // Nothing is lost but carriage returns, and blanks alone become line ends.
    Text kept = description;
    std::erase(kept, u'\r');
    OV_REQUIRE(joined.size() == kept.size());
    for (std::size_t i = 0; i < kept.size(); ++i)
        OV_REQUIRE(joined[i] == kept[i] || (kept[i] == u' ' && joined[i] == u'\n'));
    // A description of short lines is not wrapped at all; one of blanks and short words without
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
    // The blank at the very front is not used, so that a first word needs room for it.
    if (!hasBreaks && longestWord < 100) {
        for (std::size_t i = 2; i + 2 < lines.size(); ++i)
            OV_REQUIRE(lines[i].size() <= 2 + 100);
    }

    // Above a variable in a file it is that variable's comment, each line without blanks at its
    // end. The locale is "C", which has no characters beyond one byte.
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

bool IsPosition(int selection, int count)
{
    return selection == kNoSelection || (selection >= 0 && selection < count);
}

// What holds of a period whatever it was read from.
void RequireSound(const ScanPeriod& period)
{
    OV_REQUIRE(IsPosition(period.segmentOne, 2) && IsPosition(period.segmentTwo, 2));
    OV_REQUIRE(IsPosition(period.modeOne, 11) && IsPosition(period.modeTwo, 11));
    OV_REQUIRE(IsPosition(period.operation, 3) && IsPosition(period.orSelector, 2));
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
    RequireSound(period);
    OV_REQUIRE(period.dateOneActive == !value.empty() && !period.dateTwoActive);
    const bool older = period.dateOneActive;
    ParseScanPeriod(settings, today, period);
    RequireSound(period);
    if (settings.empty())
        OV_REQUIRE(period.dateTwo == today && period.dateOneActive == older);

    const Text written = FormatScanPeriod(period);
    OV_REQUIRE(written.empty() == !period.dateOneActive);
    if (written.empty())
        return;
    OV_REQUIRE(CountNumbers(written) == 14);
    // A page takes no other dates, so that no others are written.
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
