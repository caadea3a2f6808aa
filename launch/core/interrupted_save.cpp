#include "launch/core/interrupted_save.h"

#include "config/core/file_blocks.h"
#include "config/core/known_file.h"
#include "config/core/save.h"
#include "inspect/core/save_preview.h"
#include "launch/core/path_parts.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ov
{
namespace
{

using namespace std::string_view_literals;

constexpr std::string_view kLineEnd = "\r\n";

// The first lines of a file that Save has written, up to the date.
std::string SavedBeginning()
{
    const std::string header = Utf8FromText(MakeHeader({u"\1", {}, {}}));
    std::string beginning;
    for (const char c : header.substr(0, header.find('\1')))
        beginning += c == '\n' ? std::string(kLineEnd) : std::string(1, c);
    return beginning;
}

FileJudgement Unfinished(UnfinishedSign sign, std::size_t lacking = 0)
{
    return {Completeness::Unfinished, sign, lacking};
}

// A variable of a file, with the values of its lines in order.
struct VariableLine {
    Text name;
    bool isList = false;
};

// The variables in the order of their first lines.
std::vector<VariableLine> VariablesOf(const InspectedFile& file)
{
    std::vector<VariableLine> variables;
    for (const InspectedFile::Variable& variable : file.Variables())
        variables.push_back({file.Decode(variable.name), variable.firstLine != variable.lastLine});
    return variables;
}

// The variables that a save of the backup writes. The values in the interrupted save may differ, but only
// lists that became empty are left out.
std::vector<VariableLine> VariablesOfSave(std::string_view backup, Charset charset)
{
    const SavePreview preview = PreviewSave(InspectedFile(std::string(backup), charset), {});
    if (!preview.result)
        return {};
    return VariablesOf(InspectedFile(preview.bytes, preview.charset));
}

FileJudgement JudgeVariables(const InspectedFile& file, std::string_view backup)
{
    const std::vector<VariableLine> written = VariablesOf(file);
    if (!std::ranges::is_sorted(written, {}, &VariableLine::name))
        return {};
    const std::vector<VariableLine> expected = VariablesOfSave(backup, file.Encoding());
    const auto isLacking = [&](const VariableLine& variable) {
        return written.empty() || variable.name > written.back().name;
    };
    const auto lacking = std::ranges::count_if(expected, isLacking);
    if (lacking == 0)
        return {Completeness::Complete, UnfinishedSign::None, 0};
    // Variables that are all lists may have become empty.
    const bool certain = std::ranges::any_of(
        expected, [&](const VariableLine& variable) { return isLacking(variable) && !variable.isList; });
    return certain ? Unfinished(UnfinishedSign::LacksVariables, static_cast<std::size_t>(lacking))
                   : FileJudgement{};
}

SaveRemnant RemnantAt(const Text& path, const FilePorts& ports, std::string& content)
{
    SaveRemnant remnant;
    remnant.path = path;
    FileFacts facts;
    if (!ports.folders.Facts(path, facts))
        facts.kind = ports.files.Kind(path);
    remnant.exists = facts.kind != FileKind::Absent;
    remnant.size = facts.size;
    remnant.changed = facts.changed;
    remnant.readable = facts.kind == FileKind::File && ReadWhole(ports.files, path, content);
    return remnant;
}

// A backup has the content of the file before the save: only what no file should contain is a sign.
FileJudgement JudgeBackup(std::string_view backup)
{
    if (backup.empty())
        return Unfinished(UnfinishedSign::Empty);
    if (backup.find('\0') != std::string_view::npos)
        return Unfinished(UnfinishedSign::ZeroBytes);
    if (backup.starts_with(SavedBeginning()) && !backup.ends_with('\n'))
        return Unfinished(UnfinishedSign::EndsInLine);
    return {Completeness::Complete, UnfinishedSign::None, 0};
}

// The path of the backup of the file; empty if the file has none by its name.
Text BackupBeside(const Text& file, const FilePorts& ports)
{
    Text backup = BackupPath(file);
    if (ports.folders.Folded(backup) == ports.folders.Folded(file) || ports.files.IsSameFile(file, backup))
        backup.clear();
    return backup;
}

ResolveResult NotResolved(ResolveOutcome outcome, FileResult step)
{
    return {.outcome = outcome, .systemText = std::move(step.systemText)};
}

} // namespace

FileJudgement JudgeSavedFile(std::string_view file, std::string_view backup, Charset charset)
{
    if (file.empty())
        return backup.empty() ? FileJudgement{} : Unfinished(UnfinishedSign::Empty);
    if (file.find('\0') != std::string_view::npos && backup.find('\0') == std::string_view::npos)
        return Unfinished(UnfinishedSign::ZeroBytes);
    const std::string beginning = SavedBeginning();
    if (!file.starts_with(beginning))
        return beginning.starts_with(file) ? Unfinished(UnfinishedSign::EndsInLine) : FileJudgement{};
    if (!file.ends_with(kLineEnd))
        return Unfinished(UnfinishedSign::EndsInLine);
    const InspectedFile inspected{std::string(file), charset};
    if (inspected.Lines().back().parts.kind == LineKind::Comment)
        return Unfinished(UnfinishedSign::EndsInComment);
    return JudgeVariables(inspected, backup);
}

InterruptedSave ExamineInterruptedSave(const Text& path, Charset charset, const FilePorts& ports)
{
    InterruptedSave save;
    const Text file = SavedPath(path, ports.files);
    const Text backup = BackupBeside(file, ports);
    if (backup.empty() || ports.files.Kind(backup) != FileKind::File)
        return save;
    save.found = true;
    std::string content;
    std::string backupContent;
    save.file = RemnantAt(file, ports, content);
    save.backup = RemnantAt(backup, ports, backupContent);
    if (save.backup.readable)
        save.backup.judgement = JudgeBackup(backupContent);
    if (save.file.readable && save.backup.readable) {
        save.sameContent = content == backupContent;
        save.file.judgement = JudgeSavedFile(content, backupContent, charset);
    }
    return save;
}

ResolveResult RestoreBackup(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports)
{
    const Text file = SavedPath(path, ports.files);
    const Text backup = BackupBeside(file, ports);
    if (backup.empty() || ports.files.Kind(backup) != FileKind::File)
        return {.outcome = ResolveOutcome::NoBackup};
    ResolveResult result;
    if (ports.files.Kind(file) != FileKind::Absent) {
        result.kept = TakeDatedCopy(file, place, now, ports);
        if (!result.kept.Succeeded()) {
            result.outcome = ResolveOutcome::NotKept;
            return result;
        }
        // Renamed first, so that it can be renamed back.
        result.asidePath = FreeNameBeside(ports.files, file);
        if (FileResult step = ports.files.Rename(file, result.asidePath); !step)
            return NotResolved(ResolveOutcome::RenameFailed, std::move(step));
    }
    if (FileResult step = ports.files.Rename(backup, file); !step) {
        result.outcome = ResolveOutcome::RenameFailed;
        result.systemText = std::move(step.systemText);
        if (!result.asidePath.empty() && ports.files.Rename(result.asidePath, file))
            result.asidePath.clear();
        return result;
    }
    if (!result.asidePath.empty() && ports.files.Remove(result.asidePath))
        result.asidePath.clear();
    return result;
}

ResolveResult KeepFile(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports)
{
    const Text file = SavedPath(path, ports.files);
    const Text backup = BackupBeside(file, ports);
    if (backup.empty() || ports.files.Kind(backup) != FileKind::File)
        return {.outcome = ResolveOutcome::NoBackup};
    ResolveResult result;
    std::string content;
    if (FileResult reading = ReadWhole(ports.files, backup, content); !reading) {
        result.kept = {CopyOutcome::FileUnreadable, {}, std::move(reading.systemText)};
        result.outcome = ResolveOutcome::NotKept;
        return result;
    }
    result.kept.outcome = CopyOutcome::NotNeeded;
    if (CompareContent(ports.files, file, content) != ContentMatch::Same)
        result.kept = TakeDatedCopyOf(content, file, place, now, ports);
    if (!result.kept.Succeeded()) {
        result.outcome = ResolveOutcome::NotKept;
        return result;
    }
    if (FileResult step = ports.files.Remove(backup); !step) {
        result.outcome = ResolveOutcome::RemoveFailed;
        result.systemText = std::move(step.systemText);
    }
    return result;
}

} // namespace ov
