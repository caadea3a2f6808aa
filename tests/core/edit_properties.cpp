#include "tests/core/edit_properties.h"

#include "config/core/config_reader.h"
#include "config/core/setting_comment.h"
#include "config/core/setting_store.h"
#include "document/core/document.h"
#include "tests/core/line_model.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace ov::test
{
namespace
{

using Values = std::map<Text, Text>;

Values ValuesOf(std::string_view bytes, Charset charset)
{
    SettingStore store;
    ReadConfig(store, kCurrentTable, bytes, charset);
    Values values;
    store.VisitInOrder(kCurrentTable, [&values](const SettingRecord& record) {
        values[record.name] = record.value;
        return true;
    });
    return values;
}

// The comment that the dialog gives a new variable, without white space at the ends of its lines.
std::vector<std::string> BlockOf(const Text& name)
{
    std::vector<std::string> block;
    std::string rest = Utf8FromText(KnownFacts(name).comment);
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        block.push_back(Trimmed(rest.substr(0, end)));
        rest.erase(0, end + 1);
    }
    return block;
}

Text Join(const std::vector<Text>& entries, char16_t separator)
{
    Text value;
    for (std::size_t i = 0; i < entries.size(); ++i)
        value += (i > 0 ? Text(1, separator) : Text()) + entries[i];
    return value;
}

// A separator between two quotes is part of an entry.
std::vector<Text> Split(TextView value, char16_t separator)
{
    std::vector<Text> entries;
    std::size_t start = 0;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == u'"') {
            const std::size_t closing = value.find(u'"', i + 1);
            i = closing != TextView::npos ? closing : i;
        } else if (value[i] == separator) {
            entries.emplace_back(value.substr(start, i - start));
            start = i + 1;
        }
    }
    if (start < value.size())
        entries.emplace_back(value.substr(start));
    return entries;
}

// An entry without its quotes, of which two in a row are one that belongs to the text. Blanks at the end
// belong to it only between quotes.
Text KeyOf(TextView entry)
{
    entry = Trim(entry);
    if (entry == u"\"\"")
        return {};
    Text key;
    bool inside = false;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < entry.size(); ++i) {
        if (entry[i] != u'"' || entry.substr(i, 2) == u"\"\"") {
            key += entry[i];
            i += entry[i] == u'"' ? 1 : 0;
            continue;
        }
        inside = !inside;
        kept = inside ? kept : key.size();
    }
    while (key.size() > kept && key.back() == u' ')
        key.pop_back();
    return key;
}

// The entries of a list after the change. Nothing is moved or removed that need not be.
std::vector<Text> ChangedEntries(std::vector<Text> entries, const ListChange& change)
{
    const auto there = [&entries](const Text& entry) {
        return std::ranges::any_of(entries, [&](const Text& each) { return KeyOf(each) == KeyOf(entry); });
    };
    for (const Text& entry : change.remove)
        std::erase_if(entries, [&](const Text& each) { return KeyOf(each) == KeyOf(entry); });
    for (const Text& entry : change.prepend) {
        if (!there(entry))
            entries.emplace(entries.begin(), Trim(entry));
    }
    for (const Text& entry : change.append) {
        if (!there(entry))
            entries.emplace_back(Trim(entry));
    }
    return entries;
}

// One edit of one file, with what was there before it.
class EditCheck
{
  public:
    EditCheck(const EditedFile& file, const AnyEdit& edit)
        : m_file(file), m_edit(edit), m_charset(file.CharsetOf(file.bytes)), m_before(file.bytes),
          m_result(Apply(file, edit)), m_after(m_result.bytes)
    {
        LocaleEncoder(m_charset).Append(edit.name, m_name);
        m_isNew = !m_before.Has(m_name);
    }

    std::string Fault() const
    {
        if (!m_result.refused.empty())
            return IsOrdinary() && !MayBeRefused() ? "An ordinary edit is refused" : "";
        if (MustStay() && m_result.bytes != m_file.bytes)
            return "What depends on a condition has changed";
        for (const auto check :
             {&EditCheck::FaultOfEnds, &EditCheck::FaultOfOtherLines, &EditCheck::FaultOfOwnLines,
              &EditCheck::FaultOfValues, &EditCheck::FaultOfSecondTime, &EditCheck::FaultOfWayBack}) {
            if (std::string fault = (this->*check)(); !fault.empty())
                return fault;
        }
        return "";
    }

  private:
    bool MustStay() const
    {
        return m_before.IsConditional(m_name) ||
               (m_isNew && m_before.EndsInCondition() && m_edit.kind != AnyEdit::Kind::Unset);
    }

    static bool IsOrdinaryText(TextView text)
    {
        return text == Trim(text) && std::ranges::all_of(text, [](char16_t c) {
                   return c >= u' ' && c <= u'~' && TextView(u"\"#;,").find(c) == TextView::npos;
               });
    }

    bool IsOrdinary() const
    {
        const auto isEntry = [](const Text& text) { return !text.empty() && IsOrdinaryText(text); };
        const bool isName = !m_edit.name.empty() && std::ranges::all_of(m_edit.name, [](char16_t c) {
            return (c >= u'A' && c <= u'Z') || c == u'_';
        });
        return isName && IsOrdinaryText(m_edit.value) && std::ranges::all_of(m_edit.change.remove, isEntry) &&
               std::ranges::all_of(m_edit.change.prepend, isEntry) &&
               std::ranges::all_of(m_edit.change.append, isEntry);
    }

    // Values that were there before may make a list that cannot be written.
    bool MayBeRefused() const
    {
        const EditRefusal reason = m_result.refused.front().reason;
        const bool isList = m_edit.kind == AnyEdit::Kind::List;
        return MustStay() || reason == EditRefusal::EncodingChanged || reason == EditRefusal::NotPlainText ||
               (isList && (reason == EditRefusal::ListNotPlain || reason == EditRefusal::ValueNotKept));
    }

    static bool EndsInLineEnd(std::string_view bytes) { return bytes.empty() || bytes.back() == '\n'; }

    // An empty line is nothing but its end, which it therefore cannot lack.
    static bool EndsInEmptyLine(std::string_view bytes)
    {
        if (!bytes.ends_with('\n'))
            return false;
        bytes.remove_suffix(bytes.ends_with("\r\n") ? 2 : 1);
        return EndsInLineEnd(bytes);
    }

    std::string FaultOfEnds() const
    {
        if (!m_file.bytes.empty() && !m_result.bytes.empty() && !EndsInEmptyLine(m_result.bytes) &&
            EndsInLineEnd(m_file.bytes) != EndsInLineEnd(m_result.bytes))
            return "The final line end has come or gone";
        std::set<std::string> ends{""};
        for (const ModelLine& line : m_before.Lines())
            ends.insert(line.end);
        // A CR at the end of the file, with LF behind it, would be taken for a part of the line end.
        if (ends.size() == 1 || m_file.bytes.ends_with('\r'))
            ends.insert("\r\n");
        const bool known = std::ranges::all_of(
            m_after.Lines(), [&](const ModelLine& line) { return ends.contains(line.end); });
        return known ? "" : "There is a line end that the file did not have";
    }

    // The lines of the variables that are not named, of comments and all others. A comment block that
    // goes with the variable is left out.
    ModelLines OtherLinesBefore(bool keepBlankBelowHeader) const
    {
        const ModelLines& lines = m_before.Lines();
        std::vector<bool> goes(lines.size());
        const std::vector<std::string> block = BlockOf(m_edit.name);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (!lines[i].Assigns(m_name))
                continue;
            goes[i] = true;
            if (m_after.Has(m_name) || !HasBlockAbove(i, block))
                continue;
            for (std::size_t above = i - block.size(); above < i; ++above)
                goes[above] = !(keepBlankBelowHeader && above == HeaderLineCount());
        }
        ModelLines others;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (!goes[i])
                others.push_back(lines[i]);
        }
        return others;
    }

    bool HasBlockAbove(std::size_t line, const std::vector<std::string>& block) const
    {
        if (block.empty() || block.size() > line)
            return false;
        return std::equal(
            block.begin(), block.end(),
            m_before.Lines().begin() + static_cast<std::ptrdiff_t>(line - block.size()),
            [](const std::string& text, const ModelLine& each) { return each.trimmed == text; });
    }

    // The index of the blank line that ends the header; the number of lines without one.
    std::size_t HeaderLineCount() const
    {
        for (std::size_t i = 0; i < m_before.Lines().size(); ++i) {
            const LineKind kind = m_before.Lines()[i].kind;
            if (kind == LineKind::Blank && i > 0)
                return i;
            if (kind != LineKind::Comment && kind != LineKind::Directive)
                break;
        }
        return m_before.Lines().size();
    }

    static bool SameLines(const ModelLines& first, const ModelLines& second)
    {
        return std::ranges::equal(first, second, [](const ModelLine& a, const ModelLine& b) {
            return a.text == b.text && (a.end == b.end || a.end.empty() || b.end.empty());
        });
    }

    std::string FaultOfOtherLines() const
    {
        ModelLines others;
        for (const ModelLine& line : m_after.Lines()) {
            if (!line.Assigns(m_name))
                others.push_back(line);
        }
        if (m_isNew && m_after.Has(m_name)) {
            const std::vector<std::string> block = BlockOf(m_edit.name);
            const std::size_t kept = m_before.Lines().size();
            const bool under =
                others.size() == kept + block.size() &&
                std::equal(
                    block.begin(), block.end(), others.begin() + static_cast<std::ptrdiff_t>(kept),
                    [](const std::string& text, const ModelLine& each) { return each.trimmed == text; });
            if (!under)
                return "The new variable is not under the dialog's comment";
            others.resize(kept);
        }
        return SameLines(others, OtherLinesBefore(false)) || SameLines(others, OtherLinesBefore(true))
                   ? ""
                   : "Other lines than the variable's have changed";
    }

    std::string FaultOfOwnLines() const
    {
        const auto count = std::ranges::count_if(m_after.Lines(),
                                                 [&](const ModelLine& line) { return line.Assigns(m_name); });
        if (m_edit.kind == AnyEdit::Kind::Unset)
            return count == 0 ? "" : "A line of the variable is left";
        if (m_edit.kind == AnyEdit::Kind::List) {
            const bool stays = m_isNew || m_before.HasOperation(m_name, '=') ||
                               !m_after.HasOperation(m_name, '=') ||
                               KnownFacts(m_edit.name).list.separator == u',';
            return stays ? "" : "A list that was inherited is not any more";
        }
        if (!m_after.HasOperation(m_name, '='))
            return "The variable has no \"=\" line";
        const bool changed = m_result.bytes != m_file.bytes;
        return changed && m_edit.value.find(u';') == Text::npos && count != 1
                   ? "More than one line is left of the variable"
                   : "";
    }

    std::string FaultOfValues() const
    {
        Values wanted = ValuesOf(m_file.bytes, m_charset);
        const Values values = ValuesOf(m_result.bytes, m_file.CharsetOf(m_result.bytes));
        if (m_edit.kind == AnyEdit::Kind::Set) {
            wanted[m_edit.name] = m_edit.value;
        } else if (m_edit.kind == AnyEdit::Kind::Unset) {
            wanted.erase(m_edit.name);
        } else {
            SetWantedList(wanted);
        }
        return values == wanted ? "" : "The values are not as wanted";
    }

    void SetWantedList(Values& wanted) const
    {
        const char16_t separator = KnownFacts(m_edit.name).list.separator;
        const auto found = wanted.find(m_edit.name);
        const Text value = found == wanted.end() ? Text() : found->second;
        const std::vector<Text> before = Split(value, separator);
        const std::vector<Text> after = ChangedEntries(before, m_edit.change);
        if (after == before)
            return;
        if (after.empty() && separator == u';' && !m_before.HasOperation(m_name, '='))
            wanted.erase(m_edit.name);
        else
            wanted[m_edit.name] = Join(after, separator);
    }

    // An entry that is removed and added again is moved, each time.
    bool MovesEntry() const
    {
        std::set<Text> added;
        for (const std::vector<Text>* entries : {&m_edit.change.prepend, &m_edit.change.append})
            std::ranges::transform(*entries, std::inserter(added, added.end()), KeyOf);
        return std::ranges::any_of(m_edit.change.remove,
                                   [&](const Text& entry) { return added.contains(KeyOf(entry)); });
    }

    std::string FaultOfSecondTime() const
    {
        if (MovesEntry())
            return "";
        const EditResult again = Apply({m_result.bytes, m_file.charset}, m_edit);
        return again.refused.empty() && again.bytes == m_result.bytes ? ""
                                                                      : "A second time the edit changes more";
    }

    std::string FaultOfWayBack() const
    {
        if (!m_isNew)
            return "";
        const AnyEdit unset{AnyEdit::Kind::Unset, m_edit.name, {}, {}};
        const EditResult back = Apply({m_result.bytes, m_file.charset}, unset);
        return back.refused.empty() && back.bytes == m_file.bytes ? "" : "Unset does not restore the file";
    }

    const EditedFile& m_file;
    const AnyEdit& m_edit;
    Charset m_charset;
    ModelFile m_before;
    EditResult m_result;
    ModelFile m_after;
    std::string m_name; // In the bytes of the file.
    bool m_isNew;
};

} // namespace

VariableFacts KnownFacts(TextView name)
{
    VariableFacts facts;
    if (name != u"K_FLAG" && name != u"K_PATH" && name != u"K_TEXT" && name != u"K_COMMAS")
        return facts;
    facts.comment = MakeCommentBlock(u"This is " + Text(name) + u".");
    facts.kind = SettingKindText;
    if (name == u"K_FLAG")
        facts.kind = SettingKindFlag;
    if (name == u"K_PATH")
        facts.kind = SettingKindPath;
    if (name == u"K_COMMAS")
        facts.list.separator = u',';
    return facts;
}

EditResult Apply(const EditedFile& file, const AnyEdit& edit)
{
    switch (edit.kind) {
    case AnyEdit::Kind::Set:
        return SetVariables(file, {{edit.name, edit.value}}, KnownFacts);
    case AnyEdit::Kind::Unset:
        return UnsetVariables(file, {edit.name}, KnownFacts);
    default:
        return ChangeList(file, edit.name, edit.change, KnownFacts);
    }
}

std::string FaultOfDocument(const std::string& bytes)
{
    const Document document(bytes);
    const ModelFile model(bytes);
    if (document.Bytes() != bytes || document.LineCount() != model.Lines().size())
        return "The document has other bytes or lines";
    const char* next = document.Bytes().data();
    for (std::size_t i = 0; i < document.LineCount(); ++i) {
        const DocumentLine& line = document.Line(i);
        if (line.text.data() != next || line.end.data() != next + line.text.size())
            return "A byte belongs to no line or to two";
        next = line.end.data() + line.end.size();
        const ModelLine& expected = model.Lines()[i];
        const ConfigLine parts = document.Parts(i);
        if (line.text != expected.text || line.end != expected.end || parts.kind != expected.kind ||
            parts.name != expected.name || parts.operation != expected.operation)
            return "Line " + std::to_string(i) + " is taken for another one";
    }
    return next == document.Bytes().data() + bytes.size() ? "" : "Bytes are missing at the end";
}

std::string FaultOfEdit(const EditedFile& file, const AnyEdit& edit)
{
    return EditCheck(file, edit).Fault();
}

} // namespace ov::test
