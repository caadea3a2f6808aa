#include "tests/fuzz/literal_config.h"

#include "base/locale_text.h"
#include "tests/fuzz/fuzz_input.h"

namespace ov::fuzz
{
namespace
{

constexpr TextView kWhiteSpace = u" \t\n\v\f\r";

std::vector<Text> LinesOf(std::string_view bytes)
{
    std::vector<Text> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        std::string line(bytes.substr(0, end));
        if (end != std::string_view::npos && !line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(DecodeLocale(line));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    return lines;
}

bool Holds(const Text& text, char16_t c)
{
    return text.find(c) != Text::npos;
}

void Remove(Text& text, char16_t c)
{
    std::erase(text, c);
}

} // namespace

Text LiteralTrim(const Text& text)
{
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    if (first == Text::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

int LiteralKind(const Text& value)
{
    if (value.empty())
        return 1;
    if (value.find_first_not_of(u"0123456789.", value[0] == u'-' ? 1 : 0) != Text::npos)
        return 1;
    return Holds(value, u'.') ? 5 : 3;
}

Text LiteralUnquote(const Text& value)
{
    if (value.empty() || value.front() != u'"' || value.back() != u'"')
        return value;
    Text plain = value;
    Remove(plain, u'"');
    const std::size_t hash = plain.find(u'#');
    if (hash != Text::npos && hash > 0)
        plain.erase(hash);
    return plain;
}

void LiteralStore::Read(TableSelector selector, std::string_view bytes)
{
    const std::vector<Text> lines = LinesOf(bytes);
    if (lines.empty())
        return;
    LiteralTable& table = Table(selector);
    table.clear();
    if (selector == kCurrentTable)
        modified = false;
    Text comment;
    bool headerSkip = true;
    for (const Text& untrimmed : lines) {
        const Text line = LiteralTrim(untrimmed);
        if (line.empty() || line[0] == u'#') {
            if (headerSkip && line.empty()) {
                comment.clear();
                headerSkip = false;
            }
            comment += line + u"\n";
            continue;
        }
        if (line[0] == u'%')
            continue;
        headerSkip = false;

        const std::size_t nameEnd = std::min(line.find_first_of(u" \t"), line.size());
        const std::size_t operatorStart = std::min(line.find_first_not_of(u" \t", nameEnd), line.size());
        const std::size_t operatorEnd = std::min(line.find_first_of(u" \t", operatorStart), line.size());
        const Text name = line.substr(0, nameEnd);
        const Text operation = line.substr(operatorStart, operatorEnd - operatorStart);
        const Text read = LiteralUnquote(operatorEnd < line.size() ? line.substr(operatorEnd + 1) : Text());

        const auto found = current.find(name);
        const Text* stored = found != current.end() ? &found->second.value : nullptr;
        Text value = read;
        if (Holds(operation, u'=')) {
        } else if (Holds(operation, u'>')) {
            if (stored != nullptr)
                value = *stored + u";" + read;
        } else if (Holds(operation, u'<')) {
            if (stored != nullptr)
                value = read + u";" + *stored;
        } else if (Holds(operation, u'+')) {
            if (stored != nullptr)
                value = *stored + read;
        } else if (Holds(operation, u':')) {
            if (stored != nullptr)
                value = *stored;
        } else {
            continue;
        }

        LiteralRecord record{value, comment, LiteralKind(value)};
        const auto there = table.find(name);
        if (there != table.end())
            record.comment = there->second.comment;
        if (selector == kCurrentTable && (there == table.end() || there->second.value != value))
            modified = true;
        table[name] = record;
        comment.clear();
    }
}

std::vector<Text> LiteralItems(const Text& list)
{
    Text rest = list;
    Remove(rest, u'"');
    rest += u';';
    std::vector<Text> items;
    while (!rest.empty()) {
        const std::size_t end = rest.find(u';');
        const Text item = rest.substr(0, end);
        rest.erase(0, end + 1);
        const std::size_t first = item.find_first_not_of(u' ');
        if (first != Text::npos)
            items.push_back(item.substr(first, item.find_last_not_of(u' ') - first + 1));
    }
    return items;
}

const Text& LiteralStore::WrittenComment(const Text& name) const
{
    const Text& own = current.at(name).comment;
    const auto other = defaults.find(name);
    return own.empty() && other != defaults.end() ? other->second.comment : own;
}

std::string LiteralStore::Write(const Text& header) const
{
    Text text = header + u"\n";
    for (const auto& [name, record] : current) {
        const Text comment = WrittenComment(name);
        const Text value = record.kind == 1 ? u"\"" + record.value + u"\"" : record.value;
        if (!Holds(value, u';')) {
            text += comment + name + u" = " + value + u"\n";
            continue;
        }
        bool first = true;
        for (const Text& item : LiteralItems(value)) {
            text += first ? comment + name + u" = " : name + u" > ";
            text += item + u"\n";
            first = false;
        }
    }
    std::string bytes;
    OV_REQUIRE(EncodeLocale(text, bytes));
    for (std::size_t at = bytes.find('\n'); at != std::string::npos; at = bytes.find('\n', at + 2))
        bytes.insert(at, 1, '\r');
    return bytes;
}

} // namespace ov::fuzz
