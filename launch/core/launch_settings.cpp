#include "launch/core/launch_settings.h"

namespace ov
{
namespace
{

constexpr std::string_view kDefaults = "defaults";
constexpr std::string_view kFile = "file";
constexpr std::string_view kCopies = "copies";
constexpr std::string_view kCopyFolder = "copy-folder";

constexpr std::string_view kHeader =
    "# What ovPreferencesHost remembers for this user. Written by the program.\r\n";

void Take(std::string_view name, const Text& value, LaunchSettings& settings)
{
    if (name == kDefaults)
        settings.defaults = value;
    else if (name == kFile)
        settings.file = value;
    else if (name == kCopyFolder)
        settings.copyFolder = value;
    else if (name == kCopies && !value.empty() && value.find_first_not_of(u"0123456789") == Text::npos &&
             ToInteger(value) <= LaunchSettings::kMostCopies)
        settings.copies = ToInteger(value);
}

void Put(std::string& bytes, std::string_view name, TextView value)
{
    bytes.append(name).append(" = ").append(Utf8FromText(value)).append("\r\n");
}

} // namespace

LaunchSettings ParseLaunchSettings(std::string_view bytes)
{
    LaunchSettings settings;
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(line.size() < bytes.size() ? line.size() + 1 : bytes.size());
        const std::size_t sign = line.find('=');
        if (sign == std::string_view::npos)
            continue;
        const std::string_view name = line.substr(0, line.find_first_of(" ="));
        Take(name, Text(Trim(TextFromUtf8(line.substr(sign + 1)))), settings);
    }
    return settings;
}

std::string FormatLaunchSettings(const LaunchSettings& settings)
{
    std::string bytes(kHeader);
    if (settings.defaults)
        Put(bytes, kDefaults, *settings.defaults);
    Put(bytes, kFile, settings.file);
    Put(bytes, kCopies, FormatInteger(settings.copies));
    Put(bytes, kCopyFolder, settings.copyFolder);
    return bytes;
}

} // namespace ov
