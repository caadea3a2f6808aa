#include "config/core/config_writer.h"

#include "config/core/text_lines.h"
#include "match/core/tokens.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace ov
{
namespace
{

constexpr TextView kHeaderTemplate =
    u"#\n"
    u"# Orthoval Administration Configuration File.\n"
    u"#\n"
    u"# NOTE: This is a standard MicroStation configuration file read in at the\n"
    u"#       application level. Variables can be copied from here into the User\n"
    u"#       or Project configuration file to override them at various workspace\n"
    u"#       levels. See the Orthoval Administrator's Guide for more\n"
    u"#       information. Note also that commenting out a variable by preceding\n"
    u"#       it with a '#' symbol will require a restart of MicroStation to\n"
    u"#       purge it from memory.\n"
    u"#\n"
    u"# This file was last saved on %DATE% by user %USER% on machine '%COMPUTERNAME%'\n"
    u"#";

void ReplacePlaceholder(Text& text, TextView placeholder, TextView value)
{
    for (std::size_t at = text.find(placeholder); at != Text::npos;
         at = text.find(placeholder, at + value.size()))
        text.replace(at, placeholder.size(), value);
}

// Calls the function with each non-empty item of a list. Quotes are not part of an item.
template <typename ItemFunction>
void VisitItems(Text value, const ItemFunction& visit)
{
    std::erase(value, u'"');
    // Blanks at the end of the value belong to no item. Removing them once avoids skipping them again for
    // every item. A list contains at least one semicolon, so the loop ends.
    while (value.back() == u' ')
        value.pop_back();
    TextView rest = value;
    Text item;
    const char16_t qualifier = u'"';
    for (;;) {
        const std::size_t next =
            ExtractTokenString(item, rest, u" ", u" ", nullptr, u";", nullptr, &qualifier, rest.size());
        if (next == 0)
            return;
        rest.remove_prefix(next);
        if (!item.empty())
            visit(item);
    }
}

// Appends the items of a list: the first with "=" under the comment, each other one with ">".
void AppendList(Text& lines, const SettingRecord& record, CompactView comment)
{
    bool first = true;
    VisitItems(record.value, [&](const Text& item) {
        if (first)
            comment.AppendTo(lines);
        record.name.AppendTo(lines);
        lines.append(first ? u" = " : u" > ").append(item).push_back(u'\n');
        first = false;
    });
}

// The whole character at an index: both units of a surrogate pair.
Text CharacterAt(TextView text, std::size_t index)
{
    const bool pair = text[index] >= 0xD800 && text[index] <= 0xDBFF && index + 1 < text.size() &&
                      text[index + 1] >= 0xDC00 && text[index + 1] <= 0xDFFF;
    return Text(text.substr(index, pair ? 2 : 1));
}

// Converts text to the bytes of a file. Each appended text must end at a character boundary.
class FileBytes
{
  public:
    FileBytes(std::string& bytes, Charset charset) : m_encoder(charset), m_bytes(bytes) { m_bytes.clear(); }

    // Returns the first character that the encoding lacks; empty if the whole text was written.
    Text Append(TextView text)
    {
        m_encoded.clear();
        if (const EncodeResult result = m_encoder.Append(text, m_encoded); !result)
            return CharacterAt(text, result.position);
        AppendWithLineEnds(m_encoded, m_bytes);
        return {};
    }

    // Appends the pieces as if they were one text.
    Text Append(std::span<const CompactView> pieces)
    {
        if (std::all_of(pieces.begin(), pieces.end(), [this](CompactView piece) { return IsPlain(piece); })) {
            for (const CompactView piece : pieces)
                AppendWithLineEnds(piece.Narrow(), m_bytes);
            return {};
        }
        m_joined.clear();
        for (const CompactView piece : pieces)
            piece.AppendTo(m_joined);
        return Append(m_joined);
    }

  private:
    bool IsPlain(CompactView text) const { return text.IsNarrow() && m_encoder.IsPlain(text.Narrow()); }

    const LocaleEncoder m_encoder;
    std::string& m_bytes;
    std::string m_encoded;
    Text m_joined;
};

// Appends the setting's lines. Returns the first character that the encoding lacks; empty on success.
Text AppendSetting(FileBytes& output, const SettingRecord& record, CompactView comment)
{
    if (record.value.Contains(u';')) {
        Text lines;
        AppendList(lines, record, comment);
        return output.Append(lines);
    }
    const CompactView quote = CompactView::OfBytes(record.kind == SettingKindText ? "\"" : "");
    const std::array pieces{comment,      record.name, CompactView::OfBytes(" = "), quote,
                            record.value, quote,       CompactView::OfBytes("\n")};
    return output.Append(pieces);
}

} // namespace

Text FormatSaveDate(const std::tm& localTime)
{
    return FormatTime("%A %d %B %Y, %H:%M:%S", localTime, 128);
}

Text MakeHeader(const HeaderInfo& info)
{
    Text header(kHeaderTemplate);
    ReplacePlaceholder(header, u"%DATE%", info.date);
    ReplacePlaceholder(header, u"%USER%", info.user);
    ReplacePlaceholder(header, u"%COMPUTERNAME%", info.computer);
    return header;
}

std::vector<Text> WrittenValues(TextView value, int kind)
{
    std::vector<Text> texts;
    if (value.find(u';') != TextView::npos)
        VisitItems(Text(value), [&texts](const Text& item) { texts.push_back(item); });
    else
        texts.push_back(kind == SettingKindText ? u'"' + Text(value) + u'"' : Text(value));
    return texts;
}

WriteResult WriteConfig(const SettingStore& store, TextView header, std::string& bytes, Charset charset)
{
    FileBytes output(bytes, charset);
    // Enough for nearly every file: one byte more per line of 16 bytes, and the characters around a value.
    const std::size_t textBytes = store.TextBytes(kCurrentTable);
    bytes.reserve(header.size() * 2 + textBytes + textBytes / 16 + store.Count(kCurrentTable) * 8);
    if (Text refused = output.Append(Text(header) + u"\n"); !refused.empty())
        return {false, true, Text(), std::move(refused)};

    WriteResult result;
    store.VisitInOrder(kCurrentTable, [&](const SettingRecord& record) {
        CompactView comment = record.comment;
        if (comment.empty()) {
            if (const auto other = store.FindSetting(record.name, kDefaultTable))
                comment = other->comment;
        }
        if (Text refused = AppendSetting(output, record, comment); !refused.empty())
            result = {false, false, record.name, std::move(refused)};
        return result.ok;
    });
    return result;
}

} // namespace ov
