#include "config/core/config_reader.h"

#include "config/core/config_line.h"
#include "config/core/file_blocks.h"
#include "config/core/text_lines.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace ov
{
namespace
{

// The separator of list items.
constexpr CompactView kSeparator = CompactView::OfBytes(";");

// The kind of two values joined without a separator, if the first has the given kind.
SettingKind ClassifyJoined(CompactView first, SettingKind kind, CompactView second)
{
    if (first.empty())
        return ClassifyValue(second);
    if (second.empty() || kind == SettingKindText)
        return kind;
    if (second[0] == u'-')
        return SettingKindText;
    const SettingKind added = ClassifyValue(second);
    return added == SettingKindInteger ? kind : added;
}

// Builds a table from the blocks of a file. It is a new table, so that the store keeps its old one
// if the file cannot be read completely.
class ConfigReader
{
  public:
    ConfigReader(SettingStore& store, TableSelector table, Charset charset)
        : m_store(store), m_table(table), m_decoder(charset)
    {
    }

    void Feed(std::string_view block)
    {
        m_splitter.Feed(block, [this](std::string_view line) { AddLine(line); });
    }

    // Call it after the last block: moves the table into the store.
    void Finish()
    {
        m_splitter.Finish([this](std::string_view line) { AddLine(line); });
        if (!m_anyLine)
            return;
        CombineWithCurrent();
        m_store.Replace(m_table, std::move(m_records));
    }

  private:
    void AddLine(std::string_view bytes)
    {
        m_anyLine = true;
        const ConfigLine line = ParseConfigLine(bytes);
        switch (line.kind) {
        case LineKind::Blank:
            // The lines above the first empty line are the header. The writer generates that again.
            if (m_inHeader)
                m_comment.clear();
            m_inHeader = false;
            m_comment.push_back('\n');
            break;
        case LineKind::Comment:
            m_comment.append(line.text).push_back('\n');
            break;
        case LineKind::Directive:
            break;
        case LineKind::Assignment:
            m_inHeader = false;
            Assign(line);
            break;
        case LineKind::Ignored:
            m_inHeader = false;
            break;
        }
    }

    void Assign(const ConfigLine& line)
    {
        const CompactView name = Decoded(line.name, m_name);
        const CompactView value = ValueOf(line.value);
        const SettingTable::Index index = m_records.Find(name);
        if (index == SettingTable::kNone)
            Insert(name, line.operation, value);
        else if (line.operation == '=' || !ForCurrent())
            Replace(index, line.operation, value);
        else
            Combine(index, line.operation, value);
        m_comment.clear();
    }

    bool ForCurrent() const { return m_table == kCurrentTable; }

    // A quoted value loses its quotes and the part from "#" on; any other value is unchanged. The value is
    // decoded first. This is safe because the bytes on both sides of a quote never form one character.
    CompactView ValueOf(std::string_view bytes)
    {
        const CompactView value = Decoded(bytes, m_value);
        if (!IsQuoted(bytes))
            return value;
        return value.IsNarrow() ? CompactView::OfBytes(Unquoted(value.Narrow(), m_unquoted))
                                : CompactView(Unquoted(value.Wide(), m_unquotedText));
    }

    void Insert(CompactView name, char operation, CompactView value)
    {
        m_records.Insert(name, value, ClassifyValue(value), Decoded(m_comment, m_decodedComment));
        if (!ForCurrent())
            m_operations.push_back(operation);
    }

    void Replace(SettingTable::Index index, char operation, CompactView value)
    {
        m_records.SetValue(index, value, ClassifyValue(value));
        if (!ForCurrent())
            m_operations[index] = operation;
    }

    // Earlier lines of the current file are the current values while it is read.
    void Combine(SettingTable::Index index, char operation, CompactView value)
    {
        if (operation == '>') {
            m_records.ExtendValue(index, {}, kSeparator, SettingKindText);
            m_records.ExtendValue(index, {}, value, SettingKindText);
        } else if (operation == '<') {
            m_records.ExtendValue(index, kSeparator, {}, SettingKindText);
            m_records.ExtendValue(index, value, {}, SettingKindText);
        } else if (operation == '+') {
            const SettingRecord record = m_records.At(index);
            const auto kind = static_cast<SettingKind>(record.kind);
            m_records.ExtendValue(index, {}, value, ClassifyJoined(record.value, kind, value));
        } // ":" keeps an existing value.
    }

    // The defaults file is combined with the current table, not with its own earlier lines: the user's
    // file as read so far decides. Only the last line of each name therefore counts, and the current
    // value, which may be long, is accessed once.
    void CombineWithCurrent()
    {
        for (std::size_t i = 0; i < m_operations.size(); ++i) {
            const char operation = m_operations[i];
            if (operation == '=')
                continue;
            const auto index = static_cast<SettingTable::Index>(i);
            const SettingRecord record = m_records.At(index);
            const auto found = m_store.FindSetting(record.name, kCurrentTable);
            if (!found)
                continue;
            const CompactView current = found->value;
            const SettingKind kind = ClassifyValue(current);
            if (operation == '>') {
                m_records.ExtendValue(index, kSeparator, {}, SettingKindText);
                m_records.ExtendValue(index, current, {}, SettingKindText);
            } else if (operation == '<') {
                m_records.ExtendValue(index, {}, kSeparator, SettingKindText);
                m_records.ExtendValue(index, {}, current, SettingKindText);
            } else if (operation == '+') {
                m_records.ExtendValue(index, current, {}, ClassifyJoined(current, kind, record.value));
            } else { // ":"
                m_records.SetValue(index, current, kind);
            }
        }
    }

    // The decoded bytes: a view of the bytes themselves if they are plain, otherwise a text in `room`.
    CompactView Decoded(std::string_view bytes, Text& room) const
    {
        if (m_decoder.IsPlain(bytes))
            return CompactView::OfBytes(bytes);
        room.clear();
        m_decoder.Append(bytes, room);
        return room;
    }

    SettingStore& m_store;
    const TableSelector m_table;
    const LocaleDecoder m_decoder;
    LineSplitter m_splitter;
    SettingTable m_records;
    std::vector<char> m_operations; // The operator of each variable's last line; only for the defaults file.
    std::string m_comment;          // The comment lines collected for the next variable.
    bool m_inHeader = true;
    bool m_anyLine = false;
    // Buffers for text that differs from the bytes of the line; reused for every line.
    Text m_name;
    Text m_value;
    Text m_decodedComment;
    std::string m_unquoted;
    Text m_unquotedText;
};

} // namespace

SettingKind ClassifyValue(CompactView value)
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

void ReadConfig(SettingStore& store, TableSelector table, std::string_view bytes, Charset charset)
{
    ConfigReader reader(store, table, charset);
    reader.Feed(bytes);
    reader.Finish();
}

ReadResult ReadConfigFile(SettingStore& store, TableSelector table, const Text& path, FilePort& files,
                          std::optional<KnownFile>* known)
{
    if (path.empty())
        return {ReadOutcome::NothingToRead};
    // Reading from a device or a pipe may block forever.
    const FileKind kind = files.Kind(path);
    if (kind == FileKind::Absent || kind == FileKind::Other)
        return {ReadOutcome::NothingToRead};
    ConfigReader reader(store, table, Charset::OfProcess);
    KnownFile read{path, {}};
    FileResult result = ReadBlocks(files, path, [&](std::string_view block) {
        reader.Feed(block);
        if (known != nullptr)
            read.content += block;
    });
    if (!result)
        return {ReadOutcome::Failed, std::move(result.systemText)};
    reader.Finish();
    if (known != nullptr)
        *known = std::move(read);
    return {ReadOutcome::Read};
}

} // namespace ov
