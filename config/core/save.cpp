#include "config/core/save.h"

#include "config/core/config_writer.h"
#include "config/core/text_lines.h"

#include <optional>
#include <string>
#include <utility>

namespace ov
{
namespace
{

constexpr std::size_t kLongestSystemText = 255;

// True for a name that is its own backup's: it ends in ".bak" in any case. Blanks and dots at the
// end do not tell names apart on Windows.
bool EndsInBackupExtension(TextView path)
{
    constexpr TextView extension = u".BAK";
    while (!path.empty() && (path.back() == u' ' || path.back() == u'.'))
        path.remove_suffix(1);
    if (path.size() < extension.size())
        return false;
    Text end(path.substr(path.size() - extension.size()));
    for (char16_t& c : end)
        c = ToUpperAscii(c);
    return end == extension;
}

// One save: where the old content is, and the way back.
class Save
{
  public:
    Save(const Text& path, FilePort& files, const SaveNotice& notice)
        : m_path(path), m_files(files), m_notice(notice)
    {
    }

    SaveResult Run(const std::string& bytes, bool exists)
    {
        if (exists)
            SecureOldContent();
        // A file that was not there is never emptied, should it have come up meanwhile.
        const CreateMode mode = exists && !m_renamed ? CreateMode::Truncate : CreateMode::New;
        if (!Write(bytes, mode)) {
            RestoreOldContent(exists);
            return std::move(m_result);
        }
        if (m_renamed || m_staleBackup)
            m_files.Remove(m_result.backupPath);
        return std::move(m_result);
    }

  private:
    void SecureOldContent()
    {
        const Text backup = BackupPath(m_path);
        if (EndsInBackupExtension(m_path) || m_files.IsSameFile(m_path, backup)) {
            KeepOldContentInMemory();
            return;
        }
        m_result.backupPath = backup;
        FileResult renaming = m_files.Rename(m_path, backup);
        if (renaming) {
            m_renamed = true;
            return;
        }
        m_staleBackup = true;
        KeepOldContentInMemory();
        m_notice(renaming.systemText.substr(0, kLongestSystemText));
    }

    // A file that cannot be read is overwritten all the same: a save is not given up for want of
    // a backup. Reading is tried twice, since the memory is the only backup there will be.
    void KeepOldContentInMemory()
    {
        for (int attempt = 0; attempt < 2 && !m_oldContent; ++attempt) {
            std::string content;
            if (ReadBlocks(m_files, m_path, [&content](std::string_view block) { content += block; }))
                m_oldContent = std::move(content);
        }
    }

    bool Write(const std::string& bytes, CreateMode mode)
    {
        FileHandle file{};
        if (!Check(m_files.Create(m_path, mode, file), SaveOutcome::CreateFailed))
            return false;
        m_created = true;
        const bool written = Check(m_files.Write(file, bytes), SaveOutcome::WriteFailed) &&
                             Check(m_files.Flush(file), SaveOutcome::FlushFailed);
        const FileResult closing = m_files.Close(file);
        return written && Check(closing, SaveOutcome::CloseFailed);
    }

    bool Check(const FileResult& step, SaveOutcome failure)
    {
        if (step)
            return true;
        m_result.outcome = failure;
        m_result.systemText = step.systemText.substr(0, kLongestSystemText);
        return false;
    }

    void RestoreOldContent(bool exists)
    {
        m_result.oldContent = exists ? OldContent::Stands : OldContent::NoneBefore;
        if (m_renamed) {
            if (m_created)
                m_files.Remove(m_path);
            if (!m_files.Rename(m_result.backupPath, m_path))
                m_result.oldContent = OldContent::UnderBackupName;
        } else if (m_created && m_oldContent) {
            // A second try, since nothing but this memory holds the content any more.
            if (!PutBack() && !PutBack())
                m_result.oldContent = OldContent::Lost;
        } else if (m_created) {
            m_files.Remove(m_path);
            if (exists)
                m_result.oldContent = OldContent::Lost;
        }
    }

    bool PutBack()
    {
        FileHandle file{};
        if (!m_files.Create(m_path, CreateMode::Truncate, file))
            return false;
        const bool written = m_files.Write(file, *m_oldContent) && m_files.Flush(file);
        return m_files.Close(file) && written;
    }

    const Text& m_path;
    FilePort& m_files;
    const SaveNotice& m_notice;
    SaveResult m_result;
    bool m_renamed = false;
    bool m_staleBackup = false; ///< The backup's name could not be taken.
    bool m_created = false;
    std::optional<std::string> m_oldContent;
};

} // namespace

Text BackupPath(TextView path)
{
    const std::size_t dot = path.rfind(u'.');
    return Text(path.substr(0, dot == TextView::npos ? 0 : dot)) + u".bak";
}

SaveResult SaveConfigFile(const SettingStore& store, const Text& path, FilePort& files,
                          SaveSurroundings& surroundings, const SaveNotice& notice)
{
    SaveResult refused;
    if (path.empty()) {
        refused.outcome = SaveOutcome::NoPath;
        return refused;
    }
    const FileKind kind = files.Kind(path);
    const bool exists = kind == FileKind::File;
    if (exists)
        refused.oldContent = OldContent::Stands;
    if (kind == FileKind::Directory) {
        refused.outcome = SaveOutcome::PathIsDirectory;
        return refused;
    }

    const Text header = MakeHeader(
        {FormatSaveDate(surroundings.LocalTime()), surroundings.UserName(), surroundings.ComputerName()});
    std::string bytes;
    if (WriteResult writing = WriteConfig(store, header, bytes); !writing) {
        refused.outcome = SaveOutcome::CharacterRefused;
        refused.inHeader = writing.inHeader;
        refused.variable = std::move(writing.variable);
        refused.character = std::move(writing.character);
        refused.header = header;
        return refused;
    }

    SaveResult result = Save(path, files, notice).Run(bytes, exists);
    result.header = header;
    return result;
}

} // namespace ov
