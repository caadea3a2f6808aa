#include "config/core/unattended_save.h"

#include "config/core/known_file.h"

#include <exception>

namespace ov
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

class Refusals final : public SavePrompts
{
  public:
    bool MayReplace(ReplaceReason /*reason*/, const Text& /*keptPath*/) override { return false; }
    void TellNoBackup(const Text& systemText) override { throw NoBackup(systemText); }
};

// The backup of the file that a save of this path writes.
Text BackupOf(const Text& path, FilePort& files)
{
    const Text target = files.LinkTarget(path);
    return BackupPath(target.empty() ? path : target);
}

} // namespace

UnattendedSave SaveUnattended(const std::string& bytes, const Text& path,
                              const std::optional<std::string>& before, FilePort& files)
{
    std::optional<KnownFile> known;
    if (before) {
        Text backup = BackupOf(path, files);
        if (files.Kind(backup) != FileKind::Absent)
            return {.outcome = UnattendedOutcome::BackupInTheWay, .backupPath = std::move(backup)};
        known = KnownFile{path, *before};
    }
    Refusals refusals;
    try {
        SaveResult result = SaveBytes(bytes, path, known, files, refusals);
        const UnattendedOutcome outcome =
            result.Saved() ? UnattendedOutcome::Saved : UnattendedOutcome::Failed;
        return {.outcome = outcome, .save = std::move(result)};
    } catch (const NoBackup& noBackup) {
        return {.outcome = UnattendedOutcome::NoBackup, .systemText = noBackup.SystemText()};
    }
}

} // namespace ov
