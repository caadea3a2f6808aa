#include "cli/file_output.h"

#include "cli/output.h"
#include "cli/platform.h"
#include "config/core/save.h"

#include <exception>

namespace ov::cli
{
namespace
{

// Thrown from a save that could not make a backup, before any file is changed.
class NoBackup : public std::exception
{
  public:
    explicit NoBackup(Text systemText) : m_systemText(std::move(systemText)) {}
    const Text& SystemText() const { return m_systemText; }

  private:
    Text m_systemText;
};

// There is no user to ask, so every save that needs an answer is refused.
class Refusals final : public SavePrompts
{
  public:
    bool MayReplace(ReplaceReason /*reason*/, const Text& /*keptPath*/) override { return false; }
    void TellNoBackup(const Text& systemText) override { throw NoBackup(systemText); }
};

// The system's message after a colon, or nothing if it is empty.
std::string Because(const Text& systemText)
{
    return systemText.empty() ? std::string() : ": " + Utf8FromText(systemText);
}

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

// An existing file with the backup's name is never deleted, and a file that is its own backup by
// name would have no backup.
bool HasFreeBackupName(const Text& path, FilePort& files, std::string& backup)
{
    const Text target = files.LinkTarget(path);
    const Text name = BackupPath(target.empty() ? path : target);
    backup = Utf8FromText(name);
    return files.Kind(name) == FileKind::Absent;
}

ExitCode Report(const std::string& path, const SaveResult& result, Output& output)
{
    if (!result.Saved()) {
        output.Problem(path + ": " + FailureText(result) + OldContentText(result));
        return ExitCode::Failed;
    }
    if (!result.keptPath.empty())
        output.Remark(path + ": Another program changed the file meanwhile; what it wrote is in " +
                      Utf8FromText(result.keptPath) + ".");
    return ExitCode::Done;
}

} // namespace

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

ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, Output& output)
{
    return WriteFile(path, before, after, *MakeFilePort(), output);
}

ExitCode WriteFile(const std::string& path, const std::optional<std::string>& before,
                   const std::string& after, FilePort& files, Output& output)
{
    const Text name = TextFromUtf8(path);
    std::string backup;
    if (before && !HasFreeBackupName(name, files, backup)) {
        output.Problem(path + ": " + backup + " is in the way: it has the backup's name");
        return ExitCode::Failed;
    }
    std::optional<KnownFile> known;
    if (before)
        known = KnownFile{name, *before};
    const AttributeKeeper attributes(path);
    Refusals refusals;
    try {
        return Report(path, SaveBytes(after, name, known, files, refusals), output);
    } catch (const NoBackup& noBackup) {
        output.Problem(path + ": No backup can be made" + Because(noBackup.SystemText()) +
                       "; nothing was written");
        return ExitCode::Failed;
    }
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
