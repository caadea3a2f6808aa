#include "cli/file_output.h"

#include "cli/output.h"
#include "cli/platform.h"

namespace ov::cli
{
namespace
{

std::string FailureText(const SaveResult& result)
{
    switch (result.outcome) {
    case SaveOutcome::PathIsDirectory:
        return "It is a folder";
    case SaveOutcome::PathIsNoFile:
        return "It is no regular file";
    case SaveOutcome::Declined:
        return "Another program has changed the file; nothing was written";
    case SaveOutcome::CreateFailed:
        return "The file cannot be created" + Because(result.systemText);
    case SaveOutcome::FlushFailed:
    case SaveOutcome::CloseFailed:
    case SaveOutcome::WriteFailed:
        return "The file cannot be written" + Because(result.systemText);
    default:
        return "The file cannot be saved" + Because(result.systemText);
    }
}

std::string OldContentText(const SaveResult& result)
{
    switch (result.oldContent) {
    case OldContent::UnderBackupName:
        return "; the old content is in " + Utf8FromText(result.backupPath);
    case OldContent::Lost:
        return "; the old content is lost";
    default:
        return "";
    }
}

} // namespace

std::string Because(const Text& systemText)
{
    return systemText.empty() ? std::string() : ": " + Utf8FromText(systemText);
}

bool MayWriteTo(const std::string& path, Output& output)
{
    if (path == "-") {
        output.Problem("-: The standard input cannot be edited");
        return false;
    }
    if (Utf8FromText(TextFromUtf8(path)) != path) {
        output.Problem(path + ": The name is not valid UTF-8");
        return false;
    }
    switch (MakeFilePort()->Kind(TextFromUtf8(path))) {
    case FileKind::Directory:
        output.Problem(path + ": It is a folder");
        return false;
    case FileKind::Other:
        output.Problem(path + ": It is no regular file");
        return false;
    default:
        return true;
    }
}

ExitCode ReportSave(const std::string& path, const UnattendedSave& save, Output& output)
{
    switch (save.outcome) {
    case UnattendedOutcome::BackupInTheWay:
        output.Problem(path + ": " + Utf8FromText(save.backupPath) +
                       " is in the way: it has the backup's name");
        return ExitCode::Failed;
    case UnattendedOutcome::NoBackup:
        output.Problem(path + ": No backup can be made" + Because(save.systemText) + "; nothing was written");
        return ExitCode::Failed;
    case UnattendedOutcome::Failed:
        output.Problem(path + ": " + FailureText(save.save) + OldContentText(save.save));
        return ExitCode::Failed;
    case UnattendedOutcome::Saved:
        break;
    }
    if (!save.save.keptPath.empty())
        output.Remark(path + ": Another program changed the file meanwhile; what it wrote is in " +
                      Utf8FromText(save.save.keptPath) + ".");
    return ExitCode::Done;
}

ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, Output& output)
{
    return WriteFile(path, before, after, *MakeFilePort(), output);
}

ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, FilePort& files, Output& output)
{
    const AttributeKeeper attributes(path);
    return ReportSave(path, SaveUnattended(after, TextFromUtf8(path), before, files), output);
}

ExitCode ReplaceFile(const std::string& path, const std::string& content, Output& output)
{
    if (!MayWriteTo(path, output))
        return ExitCode::Failed;
    if (MakeFilePort()->Kind(TextFromUtf8(path)) == FileKind::Absent)
        return WriteFile(path, std::nullopt, content, output);
    std::string before;
    std::string problem;
    if (!ReadAll(path, before, problem)) {
        output.Problem(path + ": " + problem);
        return ExitCode::Failed;
    }
    return before == content ? ExitCode::Done : WriteFile(path, before, content, output);
}

} // namespace ov::cli
