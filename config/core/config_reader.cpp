#include "config/core/config_reader.h"

#include "base/locale_text.h"
#include "config/core/text_lines.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ov
{
namespace
{

constexpr TextView kBlanks = u" \t";

// An assignment line cut at its blanks. Exactly one separator after the operator belongs to no part.
struct Assignment {
    TextView name;
    TextView operatorToken;
    TextView value;
};

Assignment SplitAssignment(TextView line)
{
    Assignment parts;
    const std::size_t nameEnd = line.find_first_of(kBlanks);
    parts.name = line.substr(0, nameEnd);
    const std::size_t start = line.find_first_not_of(kBlanks, parts.name.size());
    if (start == TextView::npos)
        return parts;
    const std::size_t end = std::min(line.find_first_of(kBlanks, start), line.size());
    parts.operatorToken = line.substr(start, end - start);
    if (end < line.size())
        parts.value = line.substr(end + 1);
    return parts;
}

// The character that decides what an operator token does; 0 when it holds none.
char16_t OperatorOf(TextView token)
{
    for (const char16_t c : TextView(u"=><+:")) {
        if (token.find(c) != TextView::npos)
            return c;
    }
    return u'\0';
}

// The kind of a value after more text came to its end, without looking at the value again.
SettingKind ClassifyExtended(SettingKind kind, TextView after)
{
    if (after.empty() || kind == SettingKindText)
        return kind;
    if (after.front() == u'-')
        return SettingKindText;
    const SettingKind added = ClassifyValue(after);
    return added == SettingKindInteger ? kind : added;
}

// Builds a table line by line. The table is a new one, so that a file that cannot be read to its
// end leaves the store as it was.
class ConfigReader
{
  public:
    ConfigReader(const SettingStore& store, int table) : m_store(store), m_forCurrent(table == kCurrentTable)
    {
    }

    void AddLine(std::string_view bytes)
    {
        m_anyLine = true;
        m_line.clear();
        m_decoder.Append(bytes, m_line);
        const TextView line = Trim(m_line);
        if (line.empty() || line.front() == u'#') {
            // What stands above the first empty line is the header that the writer makes anew.
            if (m_inHeader && line.empty()) {
                m_comment.clear();
                m_inHeader = false;
            }
            m_comment.append(line).push_back(u'\n');
        } else if (line.front() != u'%') {
            m_inHeader = false;
            Assign(SplitAssignment(line));
        }
    }

    bool AnyLine() const { return m_anyLine; }
    SettingTable& Records() { return m_records; }

  private:
    void Assign(const Assignment& parts)
    {
        const char16_t operation = OperatorOf(parts.operatorToken);
        if (operation == u'\0')
            return;
        const TextView value = Unquote(parts.value);
        if (operation == u'=')
            Store(parts.name, value, ClassifyValue(value));
        else if (m_forCurrent)
            CombineWithin(parts.name, operation, value);
        else
            CombineWithCurrent(parts.name, operation, value);
        m_comment.clear();
    }

    // A quoted value loses its quotes and what follows a "#"; any other is taken as it stands.
    TextView Unquote(TextView value)
    {
        if (value.empty() || value.front() != u'"' || value.back() != u'"')
            return value;
        m_unquoted.clear();
        std::copy_if(value.begin(), value.end(), std::back_inserter(m_unquoted),
                     [](char16_t c) { return c != u'"'; });
        TextView result = m_unquoted;
        const std::size_t hash = result.find(u'#');
        if (hash != TextView::npos && hash > 0)
            result = result.substr(0, hash);
        return result;
    }

    // While the current file is read, its earlier lines are the current values.
    void CombineWithin(TextView name, char16_t operation, TextView value)
    {
        const SettingTable::Index index = m_records.Find(name);
        if (index == SettingTable::kNone) {
            m_records.Insert(name, value, ClassifyValue(value), m_comment);
            return;
        }
        const SettingRecord record = m_records.At(index);
        const auto kind = static_cast<SettingKind>(record.kind);
        switch (operation) {
        case u'>':
            m_records.ExtendValue(index, {}, Joined(u";", value), SettingKindText);
            break;
        case u'<':
            m_records.ExtendValue(index, Joined(value, u";"), {}, SettingKindText);
            break;
        case u'+':
            m_records.ExtendValue(index, {}, value,
                                  record.value.empty() ? ClassifyValue(value)
                                                       : ClassifyExtended(kind, value));
            break;
        default: // ":" leaves a value that is there alone.
            break;
        }
    }

    // The defaults file combines with the current table, not with its own earlier lines: what the
    // person's file says at that time decides.
    void CombineWithCurrent(TextView name, char16_t operation, TextView value)
    {
        const auto record = m_store.FindSetting(name, kCurrentTable);
        if (record) {
            switch (operation) {
            case u'>':
                value = Joined(record->value, u";", value);
                break;
            case u'<':
                value = Joined(value, u";", record->value);
                break;
            case u'+':
                value = Joined(record->value, value);
                break;
            default: // ":"
                value = record->value;
                break;
            }
        }
        Store(name, value, ClassifyValue(value));
    }

    void Store(TextView name, TextView value, SettingKind kind)
    {
        const SettingTable::Index index = m_records.Find(name);
        if (index == SettingTable::kNone)
            m_records.Insert(name, value, kind, m_comment);
        else
            m_records.SetValue(index, value, kind);
    }

    TextView Joined(TextView first, TextView second, TextView third = {})
    {
        m_joined.assign(first).append(second).append(third);
        return m_joined;
    }

    const SettingStore& m_store;
    const bool m_forCurrent;
    const LocaleDecoder m_decoder;
    SettingTable m_records;
    Text m_comment;
    bool m_inHeader = true;
    bool m_anyLine = false;
    Text m_line;
    Text m_unquoted;
    Text m_joined;
};

// Feeds a reader through a splitter and puts its table into the store.
class ReadRun
{
  public:
    ReadRun(SettingStore& store, int table) : m_store(store), m_table(table), m_reader(store, table) {}
    // The line function holds the address of this object.
    ReadRun(const ReadRun&) = delete;
    ReadRun& operator=(const ReadRun&) = delete;

    void Feed(std::string_view block) { m_splitter.Feed(block, m_addLine); }

    void Finish()
    {
        m_splitter.Finish(m_addLine);
        if (m_reader.AnyLine())
            m_store.Replace(m_table, std::move(m_reader.Records()));
    }

  private:
    SettingStore& m_store;
    const int m_table;
    ConfigReader m_reader;
    LineSplitter m_splitter;
    const LineSplitter::LineFunction m_addLine = [this](std::string_view line) { m_reader.AddLine(line); };
};

} // namespace

SettingKind ClassifyValue(TextView value)
{
    if (value.empty())
        return SettingKindText;
    bool point = false;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == u'.')
            point = true;
        else if (!IsDigit(value[i]) && !(value[i] == u'-' && i == 0))
            return SettingKindText;
    }
    return point ? SettingKindReal : SettingKindInteger;
}

void ReadConfig(SettingStore& store, int table, std::string_view bytes)
{
    ReadRun run(store, table);
    run.Feed(bytes);
    run.Finish();
}

ReadResult ReadConfigFile(SettingStore& store, int table, const Text& path, FilePort& files)
{
    if (path.empty() || files.Kind(path) == FileKind::Absent)
        return {ReadOutcome::NothingToRead};
    ReadRun run(store, table);
    FileResult result = ReadBlocks(files, path, [&run](std::string_view block) { run.Feed(block); });
    if (!result)
        return {ReadOutcome::Failed, std::move(result.systemText)};
    run.Finish();
    return {ReadOutcome::Read};
}

} // namespace ov
