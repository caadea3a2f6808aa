#include "launch/core/file_look.h"

#include "config/core/file_blocks.h"
#include "document/core/unified_diff.h"
#include "inspect/core/inspection.h"
#include "inspect/core/save_preview.h"
#include "launch/core/digest.h"
#include "launch/core/path_parts.h"

#include <algorithm>
#include <optional>

namespace ov
{
namespace
{

// The content of a file for the dialog.
struct Content {
    PathCheck check;
    std::string bytes;
};

Content ReadChecked(const Text& path, const FilePorts& ports)
{
    Content content{CheckPath(path, ports), {}};
    if (content.check.problem != PathProblem::None)
        return content;
    if (FileResult reading = ReadWhole(ports.files, path, content.bytes); !reading)
        content.check = {PathProblem::CannotRead, std::move(reading.systemText)};
    return content;
}

void LookAtAccess(const Text& path, const FilePorts& ports, FileLook& look)
{
    const Text file = SavedPath(path, ports.files);
    FileFacts facts;
    look.readOnly = ports.folders.Facts(file, facts) && facts.readOnly;
    FileResult renaming = ports.folders.TryRenaming(file);
    if (renaming)
        return;
    look.access = ports.folders.TryWriting(file) ? SaveAccess::NoBackup : SaveAccess::None;
    look.accessText = std::move(renaming.systemText);
}

std::vector<LossCount> CountByRule(const std::vector<Finding>& findings)
{
    std::vector<LossCount> counts;
    for (const Finding& finding : findings) {
        const auto known = std::ranges::find(counts, finding.rule, &LossCount::rule);
        if (known != counts.end())
            ++known->count;
        else
            counts.push_back({finding.rule, 1, finding.message, finding.line});
    }
    std::ranges::sort(counts, {}, &LossCount::rule);
    return counts;
}

std::string AsUtf8(const InspectedFile& file, std::string_view bytes)
{
    return Utf8FromText(file.Decode(bytes));
}

void LookAtLosses(const Text& path, const InspectedFile& file, const InspectionSettings& settings,
                  FileLook& look)
{
    look.findings = Inspector(settings).Inspect(file);
    look.losses = CountByRule(look.findings);
    const SavePreview preview = PreviewSave(file, settings);
    look.canSave = preview.result.ok;
    if (look.canSave) {
        const std::string name = Utf8FromText(path);
        look.difference = UnifiedDiff(AsUtf8(file, file.Bytes()), AsUtf8(file, preview.bytes), name, name);
    }
}

// Changes with everything that the user would be told.
Text StateOf(const FileLook& look, std::string_view bytes)
{
    std::uint64_t digest = DigestOf(bytes);
    const auto add = [&](std::uint64_t number) {
        digest = DigestOf(Utf8FromText(Hexadecimal(number, 16)), digest);
    };
    add(look.interrupted.found ? 1 : 0);
    add(look.interrupted.backup.size);
    add(static_cast<std::uint64_t>(look.interrupted.backup.changed.time_since_epoch().count()));
    add(look.readOnly ? 1 : 0);
    add(static_cast<std::uint64_t>(look.access));
    for (const LossCount& loss : look.losses) {
        add(static_cast<std::uint64_t>(loss.rule));
        add(loss.count);
    }
    return Hexadecimal(digest, 16);
}

} // namespace

PathCheck CheckPath(const Text& path, const FilePorts& ports)
{
    if (path.empty())
        return {PathProblem::NoPath};
    switch (ports.files.Kind(path)) {
    case FileKind::Directory:
        return {PathProblem::IsFolder};
    case FileKind::Other:
        return {PathProblem::NotRegular};
    case FileKind::File:
    case FileKind::Unknown:
        return {};
    case FileKind::Absent:
        break;
    }
    const Text folder = SplitPath(SavedPath(path, ports.files), ports.folders).folder;
    const bool hasFolder = folder.empty() || ports.files.Kind(folder) == FileKind::Directory;
    return {hasFolder ? PathProblem::NoFile : PathProblem::NoFolder};
}

FileLook LookBeforeOpen(const Text& path, const LookSettings& settings, const FilePorts& ports)
{
    FileLook look;
    const Content file = ReadChecked(path, ports);
    const Content defaults = ReadChecked(settings.defaultsPath, ports);
    look.file = file.check;
    look.defaults = defaults.check;
    if (look.file.problem == PathProblem::None || look.file.problem == PathProblem::NoFile ||
        look.file.problem == PathProblem::CannotRead)
        look.interrupted = ExamineInterruptedSave(path, settings.charset, ports);
    if (look.file.problem == PathProblem::None) {
        LookAtAccess(path, ports, look);
        InspectionSettings inspection;
        inspection.rules.Clear();
        inspection.rules.Set("OV1", true);
        inspection.today = settings.today;
        inspection.header.machine = settings.header;
        if (look.defaults.problem == PathProblem::None)
            inspection.defaults = FileBytesView{defaults.bytes, settings.charset};
        LookAtLosses(path, InspectedFile(file.bytes, settings.charset), inspection, look);
    }
    look.state = StateOf(look, file.bytes);
    return look;
}

} // namespace ov
