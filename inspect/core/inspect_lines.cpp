// The rules about lines and their sequence.

#include "base/utf8.h"
#include "inspect/core/inspection.h"

#include <algorithm>
#include <utility>

namespace ov
{
namespace
{
using Line = InspectedFile::Line;
using Variable = InspectedFile::Variable;

/// True for letters and digits. Outside ASCII, every character that is not punctuation counts.
bool IsWordCharacter(char32_t c)
{
    if (c < 0x80) {
        const auto unit = static_cast<char16_t>(c);
        return IsDigit(unit) || (ToUpperAscii(unit) >= u'A' && ToUpperAscii(unit) <= u'Z');
    }
    const bool latinMark = c < 0xC0 || c == 0xD7 || c == 0xF7;
    const bool otherMark = c >= 0x2000 && c < 0x2C00;
    return !latinMark && !otherMark;
}

bool HasWord(TextView text)
{
    while (!text.empty()) {
        const CodePoint c = ReadUtf16(text);
        if (c.valid && IsWordCharacter(c.value))
            return true;
        text.remove_prefix(c.length);
    }
    return false;
}

/// The same for a line as it is in the file. Most comments have a letter of ASCII, which is the same in
/// every encoding, so that they need not be decoded.
bool HasWord(const InspectedFile& file, std::string_view line)
{
    const auto isPlain = [](char c) {
        return static_cast<unsigned char>(c) < 0x80 && IsWordCharacter(static_cast<unsigned char>(c));
    };
    return std::ranges::any_of(line, isPlain) || HasWord(file.Decode(line));
}

/// Adds a finding if one of the comments between the lines has a word. `end` is exclusive.
void InspectLostBlock(Inspection& inspection, std::size_t start, std::size_t end, const std::string& reason)
{
    const InspectedFile& file = inspection.File();
    std::size_t first = InspectedFile::kNone;
    for (std::size_t line = start; line < end; ++line) {
        const ConfigLine parts = file.Parts(line);
        if (parts.kind != LineKind::Comment)
            continue;
        if (first == InspectedFile::kNone)
            first = line;
        if (HasWord(file, parts.text)) {
            inspection.Add(RuleId::CommentLost, first, {{"reason", reason}});
            return;
        }
    }
}

void FindLostComments(Inspection& inspection)
{
    const InspectedFile& file = inspection.File();
    // The reader collects the comments since the last variable, at first those below the header.
    std::size_t start = file.HeaderLines().empty() ? 0 : file.HeaderLines().back() + 1;
    for (const Line& line : file.Lines()) {
        if (line.kind != LineKind::Assignment)
            continue;
        const bool isFurther =
            line.variable != InspectedFile::kNone && file.Variables()[line.variable].firstLine != line.number;
        if (isFurther && start < line.number) {
            const std::string name = Quotable(file.Decode(file.Variables()[line.variable].name));
            InspectLostBlock(inspection, start, line.number, "a further line of " + name + " follows");
        }
        start = line.number + 1;
    }
    InspectLostBlock(inspection, start, file.LineCount(), "no variable follows");
}

void InspectIgnored(Inspection& inspection, std::size_t number)
{
    // "NAME=value" and "NAME= value" contain the operator, but not as a separate word.
    const std::string_view name = inspection.File().Parts(number).name;
    const bool onlyBlanksMissing = name.find('=') != std::string_view::npos && name.front() != '=';
    inspection.Add(RuleId::LineIgnored, number,
                   {{"hint", onlyBlanksMissing ? "; put a blank on both sides of \"=\"" : ""}});
}

void InspectOperator(Inspection& inspection, std::size_t number)
{
    const InspectedFile& file = inspection.File();
    const ConfigLine parts = file.Parts(number);
    const Text name = file.Decode(parts.name);
    const std::string value = Quotable(file.Decode(parts.value));
    Finding* finding =
        inspection.Add(RuleId::MalformedOperator, number,
                       {{"token", Quotable(file.Decode(parts.operatorToken))},
                        {"operator", std::string(1, parts.operation)},
                        {"variable", Quotable(name)},
                        {"value", value.empty() ? "an empty value" : "the value \"" + value + "\""}});
    if (finding != nullptr)
        finding->variable = name;
}

/// Adds a finding about the variable of a line.
void AddAboutVariable(Inspection& inspection, RuleId rule, std::size_t number, const Variable& variable,
                      MessagePart part)
{
    const Text name = inspection.File().Decode(variable.name);
    Finding* finding = inspection.Add(rule, number, {std::move(part), {"variable", Quotable(name)}});
    if (finding != nullptr)
        finding->variable = name;
}

void InspectOrder(Inspection& inspection, const Line& line)
{
    const Variable& variable = inspection.File().Variables()[line.variable];
    if (line.number == variable.firstLine && line.operation != '=')
        AddAboutVariable(inspection, RuleId::InheritedList, line.number, variable,
                         {"operator", std::string(1, line.operation)});
    if (variable.lastSet != InspectedFile::kNone && line.number < variable.lastSet)
        AddAboutVariable(inspection, RuleId::AssignedAgain, line.number, variable,
                         {"line", std::to_string(variable.lastSet + 1)});
}

void InspectLine(Inspection& inspection, const Line& line)
{
    if (line.isConflictMarker) {
        inspection.Add(RuleId::ConflictMarker, line.number, {});
        return;
    }
    switch (line.kind) {
    case LineKind::Directive:
        inspection.Add(RuleId::DirectiveLost, line.number, {});
        break;
    case LineKind::Ignored:
        InspectIgnored(inspection, line.number);
        break;
    case LineKind::Assignment:
        if (!line.isOperatorPlain)
            InspectOperator(inspection, line.number);
        InspectOrder(inspection, line);
        break;
    case LineKind::Blank:
    case LineKind::Comment:
        break;
    }
}
} // namespace

void InspectLines(Inspection& inspection)
{
    const InspectedFile& file = inspection.File();
    if (file.Bytes().starts_with("\xEF\xBB\xBF"))
        inspection.AddToFile(RuleId::ByteOrderMark, {});
    if (!file.HeaderLines().empty() && !file.IsHeaderSaved())
        inspection.Add(RuleId::HeaderReplaced, file.HeaderLines().front(), {});
    for (const Line& line : file.Lines())
        InspectLine(inspection, line);
    FindLostComments(inspection);
}

} // namespace ov
