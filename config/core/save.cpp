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
    constexpr TextView kExtension = u".BAK";
    while (!path.empty() && (path.back() == u' ' || path.back() == u'.'))
        path.remove_suffix(1);
    if (path.size() < kExtension.size())
        return false;
    Text end(path.substr(path.size() - kExtension.size()));
    for (char16_t& c : end)
        c = ToUpperAscii(c);
    return end == kExtension;
}

// An open file, closed once: by Close or, when something is thrown, by the destructor.
class OpenedFile
{
  public:
    OpenedFile(FilePort& files, FileHandle file) : m_files(files), m_file(file) {}
    ~OpenedFile()
    {
        if (!m_open)
            return;
        try {
            m_files.Close(m_file);
        } catch (...) {
            // What ended the writing is on its way already.
        }
    }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;

    FileResult Write(std::string_view bytes) { return m_files.Write(m_file, bytes); }
    FileResult Flush() { return m_files.Flush(m_file); }
    FileResult Close()
    {
        m_open = false;
        return m_files.Close(m_file);
    }

  private:
    FilePort& m_files;
    FileHandle m_file;
    bool m_open = true;
};

// One save: where the old content is, and the way back.
class Save
{
  public:
    Save(const Text& path, FileKind kind, FilePort& files, const SaveNotice& notice)
        : m_path(path), m_kind(kind), m_files(files), m_notice(notice)
    {
    }

    SaveResult Run(const std::string& bytes)
    {
        if (m_kind != FileKind::Absent)
            SecureOldContent();
        bool written = false;
        try {
            written = Write(bytes);
        } catch (...) {
            RestoreAfterException();
            throw;
        }
        if (!written) {
            RestoreOldContent();
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
        // The content is read after the notice: until the person has answered, another program may
        // change it.
        m_notice(renaming.systemText.substr(0, kLongestSystemText));
        KeepOldContentInMemory();
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

    bool Write(const std::string& bytes)
    {
        FileHandle handle{};
        if (!Check(Create(handle), SaveOutcome::CreateFailed))
            return false;
        m_created = true;
        OpenedFile file(m_files, handle);
        const bool written = Check(file.Write(bytes), SaveOutcome::WriteFailed) &&
                             Check(file.Flush(), SaveOutcome::FlushFailed);
        const FileResult closing = file.Close();
        return written && Check(closing, SaveOutcome::CloseFailed);
    }

    // A file that was not there is never emptied, should it have come up meanwhile.
    FileResult Create(FileHandle& file)
    {
        if (m_renamed || m_kind == FileKind::Absent)
            return m_files.Create(m_path, CreateMode::New, file);
        if (m_kind == FileKind::Unknown && !m_oldContent) {
            // Whether there was one shows now at the latest.
            FileResult creation = m_files.Create(m_path, CreateMode::New, file);
            if (creation) {
                m_kind = FileKind::Absent;
                m_staleBackup = false;
                return creation;
            }
        }
        return m_files.Create(m_path, CreateMode::Truncate, file);
    }

    bool Check(const FileResult& step, SaveOutcome failure)
    {
        if (step)
            return true;
        m_result.outcome = failure;
        m_result.systemText = step.systemText.substr(0, kLongestSystemText);
        return false;
    }

    void RestoreAfterException()
    {
        try {
            RestoreOldContent();
        } catch (...) {
            // What ended the writing is on its way already.
        }
    }

    void RestoreOldContent()
    {
        const bool exists = m_kind != FileKind::Absent;
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
        FileHandle handle{};
        if (!m_files.Create(m_path, CreateMode::Truncate, handle))
            return false;
        OpenedFile file(m_files, handle);
        const bool written = file.Write(*m_oldContent) && file.Flush();
        return file.Close() && written;
    }

    const Text& m_path;
    FileKind m_kind; ///< Of what stands under the path before the save.
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
    // A link is written through, not replaced by a file of its own.
    const Text target = files.LinkTarget(path);
    const Text& file = target.empty() ? path : target;
    const FileKind kind = files.Kind(file);
    // Where the system does not say what is there, renaming it will show.
    if (kind == FileKind::File || kind == FileKind::Unknown)
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

    SaveResult result = Save(file, kind, files, notice).Run(bytes);
    result.header = header;
    return result;
}

} // namespace ov
