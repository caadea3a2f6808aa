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

/// The comment lines since the last variable, as the reader collects them.
class CommentBlock
{
  public:
    void Add(std::size_t line, bool hasWord)
    {
        if (m_first == InspectedFile::kNone)
            m_first = line;
        m_hasWord |= hasWord;
    }
    void Clear() { *this = {}; }

    std::size_t FirstLine() const { return m_first; }
    bool IsWorthKeeping() const { return m_hasWord; }

  private:
    std::size_t m_first = InspectedFile::kNone;
    bool m_hasWord = false;
};

void FindLostComments(Inspection& inspection)
{
    const InspectedFile& file = inspection.File();
    CommentBlock block;
    bool inHeader = true;
    for (std::size_t i = 0; i < file.Lines().size(); ++i) {
        const Line& line = file.Lines()[i];
        switch (line.parts.kind) {
        case LineKind::Blank:
            // Everything above the first blank line is the header.
            if (inHeader)
                block.Clear();
            inHeader = false;
            break;
        case LineKind::Comment:
            block.Add(i, block.IsWorthKeeping() || HasWord(file, line.parts.text));
            break;
        case LineKind::Directive:
            break;
        case LineKind::Ignored:
            inHeader = false;
            break;
        case LineKind::Assignment: {
            inHeader = false;
            const bool isFurther =
                line.variable != InspectedFile::kNone && file.Variables()[line.variable].firstLine != i;
            if (isFurther && block.IsWorthKeeping()) {
                const std::string name = Quotable(file.Decode(line.parts.name));
                inspection.Add(RuleId::CommentLost, block.FirstLine(),
                               {{"reason", "a further line of " + name + " follows"}});
            }
            block.Clear();
            break;
        }
        }
    }
    if (block.IsWorthKeeping())
        inspection.Add(RuleId::CommentLost, block.FirstLine(), {{"reason", "no variable follows"}});
}

void InspectIgnored(Inspection& inspection, std::size_t number, const Line& line)
{
    // "NAME=value" and "NAME= value" contain the operator, but not as a separate word.
    const bool onlyBlanksMissing =
        line.parts.name.find('=') != std::string_view::npos && line.parts.name.front() != '=';
    inspection.Add(RuleId::LineIgnored, number,
                   {{"hint", onlyBlanksMissing ? "; put a blank on both sides of \"=\"" : ""}});
}

void InspectOperator(Inspection& inspection, std::size_t number, const Line& line)
{
    const InspectedFile& file = inspection.File();
    const std::string_view token = line.parts.operatorToken;
    if (token.size() == 1)
        return;
    const Text name = file.Decode(line.parts.name);
    const std::string value = Quotable(file.Decode(line.parts.value));
    Finding* finding =
        inspection.Add(RuleId::MalformedOperator, number,
                       {{"token", Quotable(file.Decode(token))},
                        {"operator", std::string(1, line.parts.operation)},
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

void InspectOrder(Inspection& inspection, std::size_t number, const Line& line)
{
    const Variable& variable = inspection.File().Variables()[line.variable];
    if (number == variable.firstLine && line.parts.operation != '=')
        AddAboutVariable(inspection, RuleId::InheritedList, number, variable,
                         {"operator", std::string(1, line.parts.operation)});
    if (variable.lastSet != InspectedFile::kNone && number < variable.lastSet)
        AddAboutVariable(inspection, RuleId::AssignedAgain, number, variable,
                         {"line", std::to_string(variable.lastSet + 1)});
}

void InspectLine(Inspection& inspection, std::size_t number, const Line& line)
{
    if (line.isConflictMarker) {
        inspection.Add(RuleId::ConflictMarker, number, {});
        return;
    }
    switch (line.parts.kind) {
    case LineKind::Directive:
        inspection.Add(RuleId::DirectiveLost, number, {});
        break;
    case LineKind::Ignored:
        InspectIgnored(inspection, number, line);
        break;
    case LineKind::Assignment:
        InspectOperator(inspection, number, line);
        InspectOrder(inspection, number, line);
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
    for (std::size_t number = 0; number < file.Lines().size(); ++number)
        InspectLine(inspection, number, file.Lines()[number]);
    FindLostComments(inspection);
}

} // namespace ov
