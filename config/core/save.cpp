#include "config/core/save.h"

#include "config/core/config_writer.h"
#include "config/core/text_lines.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace ov
{
namespace
{

constexpr std::size_t kLongestSystemText = 255;

// True for a name that is its own backup's: it ends in ".bak" in any case.
bool EndsInBackupExtension(TextView path)
{
    constexpr TextView kExtension = u".BAK";
    if (path.size() < kExtension.size())
        return false;
    Text end(path.substr(path.size() - kExtension.size()));
    for (char16_t& c : end)
        c = ToUpperAscii(c);
    return end == kExtension;
}

// An operation that runs out of memory has failed like any other; the system has no words for it.
template <class Operation>
FileResult Try(Operation operation) noexcept
{
    try {
        return operation();
    } catch (...) {
        return {false, Text()};
    }
}

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
        // What is thrown so far leaves everything as it was; from here on nothing is.
        if (!Write(bytes))
            RestoreOldContent();
        else if (m_renamed || m_staleBackup)
            Remove(m_result.backupPath);
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

    bool Write(const std::string& bytes) noexcept
    {
        FileHandle file{};
        if (!Check(Create(file), SaveOutcome::CreateFailed))
            return false;
        const bool written = Check(WriteInto(file, bytes), SaveOutcome::WriteFailed) &&
                             Check(Flush(file), SaveOutcome::FlushFailed);
        FileResult closing = Close(file);
        return written && Check(std::move(closing), SaveOutcome::CloseFailed);
    }

    // A file that was not there is never opened for overwriting, should it have come up meanwhile.
    FileResult Create(FileHandle& file)
    {
        const auto create = [&](CreateMode mode) {
            return Try([&] { return m_files.Create(m_path, mode, file); });
        };
        if (m_renamed || m_kind == FileKind::Absent) {
            FileResult creation = create(CreateMode::New);
            m_created = creation.ok;
            return creation;
        }
        if (m_kind == FileKind::Unknown && !m_oldContent) {
            // Whether there was one shows now at the latest.
            FileResult creation = create(CreateMode::New);
            if (creation) {
                m_kind = FileKind::Absent;
                m_staleBackup = false;
                m_created = true;
                return creation;
            }
        }
        return create(CreateMode::Truncate);
    }

    // Over the old content nothing is written before there is room for the new one.
    FileResult WriteInto(FileHandle file, const std::string& bytes)
    {
        if (!m_created) {
            FileResult reserving = Try([&] { return m_files.Reserve(file, bytes.size()); });
            if (!reserving)
                return reserving;
            m_overwritten = true;
        }
        return Try([&] { return m_files.Write(file, bytes); });
    }

    FileResult Flush(FileHandle file)
    {
        return Try([&] { return m_files.Flush(file); });
    }

    FileResult Close(FileHandle file)
    {
        return Try([&] { return m_files.Close(file); });
    }

    FileResult Remove(const Text& path)
    {
        return Try([&] { return m_files.Remove(path); });
    }

    bool Check(FileResult step, SaveOutcome failure)
    {
        if (step)
            return true;
        m_result.outcome = failure;
        step.systemText.resize(std::min(step.systemText.size(), kLongestSystemText));
        m_result.systemText = std::move(step.systemText);
        return false;
    }

    void RestoreOldContent() noexcept
    {
        if (m_created)
            Remove(m_path);
        if (m_kind == FileKind::Absent)
            return;
        m_result.oldContent = OldContent::Stands;
        if (m_renamed) {
            if (!Try([&] { return m_files.Rename(m_result.backupPath, m_path); }))
                m_result.oldContent = OldContent::UnderBackupName;
        } else if (m_overwritten && !m_oldContent) {
            Remove(m_path);
            m_result.oldContent = OldContent::Lost;
        } else if (m_overwritten && !PutBack() && !PutBack()) {
            // The second try was made since nothing but this memory holds the content any more.
            m_result.oldContent = OldContent::Lost;
        }
    }

    bool PutBack()
    {
        FileHandle file{};
        if (!Try([&] { return m_files.Create(m_path, CreateMode::Truncate, file); }))
            return false;
        const bool written = Try([&] { return m_files.Write(file, *m_oldContent); }) && Flush(file);
        return Close(file) && written;
    }

    const Text& m_path;
    FileKind m_kind; ///< Of what stands under the path before the save.
    FilePort& m_files;
    const SaveNotice& m_notice;
    SaveResult m_result;
    bool m_renamed = false;
    bool m_staleBackup = false; ///< The backup's name could not be taken.
    bool m_created = false;     ///< The file is this save's own.
    bool m_overwritten = false; ///< Old content may have been written over.
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
    if (kind == FileKind::Directory || kind == FileKind::Other) {
        refused.outcome =
            kind == FileKind::Directory ? SaveOutcome::PathIsDirectory : SaveOutcome::PathIsNoFile;
        return refused;
    }

    Text header = MakeHeader(
        {FormatSaveDate(surroundings.LocalTime()), surroundings.UserName(), surroundings.ComputerName()});
    std::string bytes;
    if (WriteResult writing = WriteConfig(store, header, bytes); !writing) {
        refused.outcome = SaveOutcome::CharacterRefused;
        refused.inHeader = writing.inHeader;
        refused.variable = std::move(writing.variable);
        refused.character = std::move(writing.character);
        refused.header = std::move(header);
        return refused;
    }

    SaveResult result = Save(file, kind, files, notice).Run(bytes);
    result.header = std::move(header);
    return result;
}

} // namespace ov
