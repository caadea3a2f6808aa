#include "launch/core/copy_name.h"

#include "launch/core/digest.h"
#include "launch/core/path_parts.h"

#include <algorithm>

namespace ov
{
namespace
{

constexpr TextView kFinished = u".copy";
constexpr TextView kUnfinished = u".part";
constexpr TextView kDigits = u"0000-00-00 00.00.00";
constexpr std::size_t kMostNumberDigits = 6;

// The number that the digits at a position of the time represent.
int NumberAt(TextView time, std::size_t position, std::size_t count)
{
    return ToInteger(time.substr(position, count));
}

// The time in a name, in the form of kDigits; nothing if it is no time.
std::optional<LocalTime> ParseTime(TextView text)
{
    const bool hasForm = std::ranges::equal(
        text, kDigits, [](char16_t c, char16_t form) { return form == u'0' ? IsDigit(c) : c == form; });
    if (!hasForm)
        return std::nullopt;
    std::tm time = {};
    time.tm_year = NumberAt(text, 0, 4) - 1900;
    time.tm_mon = NumberAt(text, 5, 2) - 1;
    time.tm_mday = NumberAt(text, 8, 2);
    time.tm_hour = NumberAt(text, 11, 2);
    time.tm_min = NumberAt(text, 14, 2);
    time.tm_sec = NumberAt(text, 17, 2);
    return LocalTimeOf(time);
}

} // namespace

CopyNames::CopyNames(const Text& path, const Text& folder, const FilePorts& ports) : m_folders(ports.folders)
{
    PathParts file = SplitPath(SavedPath(path, ports.files), ports.folders);
    const auto key = [&](const Text& each) { return m_folders.Folded(ports.folders.FullFolder(each)); };
    const bool isBeside = folder.empty() || key(folder) == key(file.folder);
    if (!isBeside)
        m_mark.append(u" ").append(
            Hexadecimal(DigestOf(Utf8FromText(key(file.folder) + m_folders.Folded(file.name))), 8));
    m_folder = isBeside ? file.folder : folder;
    m_name = std::move(file.name);
}

Text CopyNames::NameOf(const CopyStamp& stamp) const
{
    return Format(stamp, kFinished);
}

Text CopyNames::UnfinishedNameOf(const CopyStamp& stamp) const
{
    return Format(stamp, kUnfinished);
}

std::optional<CopyStamp> CopyNames::StampOf(TextView name) const
{
    return Parse(name, kFinished);
}

std::optional<CopyStamp> CopyNames::StampOfUnfinished(TextView name) const
{
    return Parse(name, kUnfinished);
}

Text CopyNames::Format(const CopyStamp& stamp, TextView ending) const
{
    Text time = FormatLocalTime(stamp.time);
    std::ranges::replace(time, u':', u'.');
    Text name = m_name;
    name.append(u" ").append(time);
    if (stamp.number > 1)
        name.append(u"-").append(FormatInteger(stamp.number));
    return name.append(m_mark).append(ending);
}

// A name belongs to the stamp only if the stamp gives exactly this name.
std::optional<CopyStamp> CopyNames::Parse(TextView name, TextView ending) const
{
    const std::size_t timeBegin = m_name.size() + 1;
    if (name.size() < timeBegin + kDigits.size())
        return std::nullopt;
    const auto time = ParseTime(name.substr(timeBegin, kDigits.size()));
    if (!time)
        return std::nullopt;
    CopyStamp stamp{*time, 1};
    const TextView rest = name.substr(timeBegin + kDigits.size());
    if (rest.starts_with(u'-'))
        stamp.number = NumberAt(rest, 1, kMostNumberDigits);
    return m_folders.Folded(Format(stamp, ending)) == m_folders.Folded(name) ? std::optional(stamp)
                                                                             : std::nullopt;
}

} // namespace ov
