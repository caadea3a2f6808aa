#include "document/core/variable_edit.h"

#include "config/core/config_reader.h"
#include "config/core/config_writer.h"
#include "document/core/edit_session.h"

#include <algorithm>
#include <utility>

namespace ov
{
namespace
{

// True if one "=" line, with no line before it, sets the variable to its value.
bool IsSetPlainly(std::span<const VariableLine> lines)
{
    return !lines.empty() && lines.front().operation == '=' &&
           std::none_of(lines.begin() + 1, lines.end(),
                        [](const VariableLine& line) { return line.operation == '='; });
}

// The line that remains for the variable: its last "=" line, or its first line if there is none.
std::size_t KeptLine(std::span<const VariableLine> lines)
{
    const auto last = std::find_if(lines.rbegin(), lines.rend(),
                                   [](const VariableLine& line) { return line.operation == '='; });
    return last == lines.rend() ? lines.front().line : last->line;
}

void SetOne(EditSession& session, const NewValue& wanted)
{
    const auto& [name, value] = wanted;
    session.Want(name, value);
    const auto lines = session.LinesOf(name);
    if (IsSetPlainly(lines) && session.Before().GetSettingValue(name, kCurrentTable) == value)
        return;
    if (!session.MayChange(name))
        return;
    const VariableFacts facts = session.Facts(name);
    const std::vector<Text> texts = WrittenValues(value, facts.kind.value_or(ClassifyValue(value)));
    if (texts.empty()) {
        session.Refuse(EditRefusal::ValueNotKept, name, value);
    } else if (lines.empty()) {
        std::vector<std::pair<char, Text>> written;
        written.reserve(texts.size());
        for (const Text& text : texts)
            written.emplace_back(written.empty() ? '=' : '>', text);
        session.AppendNew(name, facts, written);
    } else {
        const std::size_t kept = KeptLine(lines);
        session.Rewrite(kept, '=', name, texts.front());
        for (std::size_t i = 1; i < texts.size(); ++i)
            session.InsertBelow(kept, '>', name, texts[i]);
        for (const VariableLine& line : lines) {
            if (line.line != kept)
                session.Edits().Erase(line.line);
        }
    }
}

} // namespace

EditResult SetVariables(const EditedFile& file, const std::vector<NewValue>& values, const FactsOf& factsOf)
{
    EditSession session(file, factsOf);
    for (const NewValue& wanted : values)
        SetOne(session, wanted);
    return session.Finish();
}

EditResult UnsetVariables(const EditedFile& file, const std::vector<Text>& names, const FactsOf& factsOf)
{
    EditSession session(file, factsOf);
    for (const Text& name : names) {
        session.Want(name, std::nullopt);
        if (!session.LinesOf(name).empty() && session.MayChange(name))
            session.RemoveVariable(name);
    }
    return session.Finish();
}

} // namespace ov
