#include "launch/core/interrupted_save.h"

#include "config/core/file_blocks.h"
#include "config/core/known_file.h"
#include "config/core/save.h"
#include "inspect/core/save_preview.h"
#include "launch/core/path_parts.h"

#include <algorithm>
#include <chrono>
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

// A variable of a file.
struct WrittenVariable {
    Text name;
    bool isList = false; // It has several lines.
};

// The variables in the order of their first lines.
std::vector<WrittenVariable> VariablesOf(const InspectedFile& file)
{
    std::vector<WrittenVariable> variables;
    for (const InspectedFile::Variable& variable : file.Variables())
        variables.push_back({file.Decode(variable.name), variable.firstLine != variable.lastLine});
    return variables;
}

// True if the lines of each variable follow each other.
bool IsInOrder(const InspectedFile& file)
{
    std::size_t latest = 0;
    for (const InspectedFile::Line& line : file.Lines()) {
        if (line.variable == InspectedFile::kNone)
            continue;
        if (line.variable < latest)
            return false;
        latest = line.variable;
    }
    return true;
}

// The variables that a save of the backup writes. The values in the interrupted save may differ, but only
// lists that became empty are left out.
std::vector<WrittenVariable> VariablesOfSave(std::string_view backup, Charset charset)
{
    InspectionSettings settings;
    settings.today = std::chrono::year(2000) / 1 / 1; // The names do not depend on it.
    const SavePreview preview = PreviewSave(InspectedFile(std::string(backup), charset), settings);
    if (!preview.result)
        return {};
    return VariablesOf(InspectedFile(preview.bytes, preview.charset));
}

FileJudgement JudgeVariables(const InspectedFile& file, std::string_view backup)
{
    const std::vector<WrittenVariable> written = VariablesOf(file);
    if (!IsInOrder(file) || !std::ranges::is_sorted(written, {}, &WrittenVariable::name))
        return {};
    const std::vector<WrittenVariable> expected = VariablesOfSave(backup, file.Encoding());
    const auto isLacking = [&](const WrittenVariable& variable) {
        return written.empty() || variable.name > written.back().name;
    };
    const auto lacking = std::ranges::count_if(expected, isLacking);
    if (lacking == 0)
        return {Completeness::Complete, UnfinishedSign::None, 0};
    // Variables that are all lists may have become empty.
    const bool certain = std::ranges::any_of(
        expected, [&](const WrittenVariable& variable) { return isLacking(variable) && !variable.isList; });
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

// The path of the backup of the file; empty if the file has none by its name. A file without an extension in
// a folder with one has its backup beside the folder; what lies there is more likely another file.
Text BackupBeside(const Text& file, const FilePorts& ports)
{
    Text backup = BackupPath(file);
    if (ports.folders.Folded(backup) == ports.folders.Folded(file) || ports.files.IsSameFile(file, backup) ||
        SplitPath(backup, ports.folders).folder != SplitPath(file, ports.folders).folder)
        backup.clear();
    return backup;
}

// Copies the content of the file or its backup.
CopyResult KeepContent(const Text& from, std::string& content, const Text& file, const CopyPlace& place,
                       LocalTime now, const FilePorts& ports)
{
    if (FileResult reading = ReadWhole(ports.files, from, content); !reading)
        return {CopyOutcome::FileUnreadable, {}, std::move(reading.systemText)};
    return TakeDatedCopyOf(content, file, place, now, ports);
}

// Also succeeds if the rename was done although it reported a failure.
FileResult RenameOrFind(const Text& from, const Text& to, FilePort& files)
{
    FileResult renaming = files.Rename(from, to);
    if (!renaming && files.Kind(from) == FileKind::Absent && files.Kind(to) == FileKind::File)
        return {};
    return renaming;
}

// Renames the file aside and the backup to the file. The file aside is removed unless its content
// is no longer the one that was copied.
void SwapIn(const Text& backup, const Text& file, const std::string& content, FilePort& files,
            ResolveResult& result)
{
    Text aside = FreeNameBeside(files, file);
    FileResult step = RenameOrFind(file, aside, files);
    if (step) {
        step = RenameOrFind(backup, file, files);
        if (step && CompareContent(files, aside, content) == ContentMatch::Same)
            files.Remove(aside);
        else if (!step)
            RenameOrFind(aside, file, files);
    }
    if (!step)
        result.outcome = ResolveOutcome::RenameFailed;
    result.systemText = std::move(step.systemText);
    if (files.Kind(aside) != FileKind::Absent)
        result.asidePath = std::move(aside);
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
    if (inspected.Parts(inspected.LineCount() - 1).kind == LineKind::Comment)
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
    if (ports.files.Kind(file) == FileKind::Absent) {
        FileResult step = RenameOrFind(backup, file, ports.files);
        return {.outcome = step ? ResolveOutcome::Resolved : ResolveOutcome::RenameFailed,
                .kept = {CopyOutcome::NoFile, {}, {}},
                .systemText = std::move(step.systemText)};
    }
    std::string content;
    ResolveResult result;
    result.kept = KeepContent(file, content, file, place, now, ports);
    if (!result.kept.Succeeded()) {
        result.outcome = ResolveOutcome::NotKept;
        return result;
    }
    SwapIn(backup, file, content, ports.files, result);
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
    result.kept = KeepContent(backup, content, file, place, now, ports);
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
