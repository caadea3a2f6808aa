#include "config/core/config_writer.h"

#include "base/locale_text.h"
#include "config/core/text_lines.h"
#include "match/core/tokens.h"

#include <algorithm>

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

// Appends a list's items, the first with "=" under the comment, each further one with ">".
void AppendList(Text& lines, const SettingRecord& record, TextView comment)
{
    Text value;
    value.reserve(record.value.size());
    std::copy_if(record.value.begin(), record.value.end(), std::back_inserter(value),
                 [](char16_t c) { return c != u'"'; });
    // Blanks at the very end belong to no item; taken away once, they are not skipped again for
    // every item.
    while (!value.empty() && value.back() == u' ')
        value.pop_back();
    TextView rest = value;
    Text item;
    bool first = true;
    const char16_t qualifier = u'"';
    for (;;) {
        const std::size_t next =
            ExtractTokenString(item, rest, u" ", u" ", nullptr, u";", nullptr, &qualifier, rest.size());
        if (next == 0)
            return;
        rest.remove_prefix(next);
        if (item.empty())
            continue;
        if (first)
            lines.append(comment);
        lines.append(record.name).append(first ? u" = " : u" > ").append(item).push_back(u'\n');
        first = false;
    }
}

void AppendSetting(Text& lines, const SettingRecord& record, TextView comment)
{
    if (record.value.find(u';') != TextView::npos) {
        AppendList(lines, record, comment);
        return;
    }
    const TextView quote = record.kind == SettingKindText ? u"\"" : u"";
    lines.append(comment).append(record.name).append(u" = ");
    lines.append(quote).append(record.value).append(quote).push_back(u'\n');
}

// Turns pieces of text into the bytes of a file.
class FileBytes
{
  public:
    explicit FileBytes(std::string& bytes) : m_bytes(bytes) { m_bytes.clear(); }

    EncodeResult Append(TextView lines)
    {
        m_encoded.clear();
        const EncodeResult result = m_encoder.Append(lines, m_encoded);
        AppendWithLineEnds(m_encoded, m_bytes);
        return result;
    }

  private:
    const LocaleEncoder m_encoder;
    std::string& m_bytes;
    std::string m_encoded;
};

// The whole character at an index, both units of a surrogate pair.
Text CharacterAt(TextView text, std::size_t index)
{
    const bool pair = text[index] >= 0xD800 && text[index] <= 0xDBFF && index + 1 < text.size() &&
                      text[index + 1] >= 0xDC00 && text[index + 1] <= 0xDFFF;
    return Text(text.substr(index, pair ? 2 : 1));
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

WriteResult WriteConfig(const SettingStore& store, TextView header, std::string& bytes)
{
    FileBytes output(bytes);
    WriteResult result;
    const Text headerLines = Text(header) + u"\n";
    if (const EncodeResult encoded = output.Append(headerLines); !encoded)
        return {false, true, Text(), CharacterAt(headerLines, encoded.position)};

    Text lines;
    store.VisitInOrder(kCurrentTable, [&](const SettingRecord& record) {
        TextView comment = record.comment;
        if (comment.empty()) {
            if (const auto other = store.FindSetting(record.name, kDefaultTable))
                comment = other->comment;
        }
        lines.clear();
        AppendSetting(lines, record, comment);
        if (const EncodeResult encoded = output.Append(lines); !encoded)
            result = {false, false, Text(record.name), CharacterAt(lines, encoded.position)};
        return result.ok;
    });
    return result;
}

} // namespace ov
