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
        : path_(path), files_(files), notice_(notice)
    {
    }

    SaveResult Run(const std::string& bytes, bool exists)
    {
        if (exists)
            SecureOldContent();
        // A file that was not there is never emptied, should it have come up meanwhile.
        const CreateMode mode = exists && !renamed_ ? CreateMode::Truncate : CreateMode::New;
        if (!Write(bytes, mode)) {
            RestoreOldContent(exists);
            return std::move(result_);
        }
        if (renamed_ || stale_backup_)
            files_.Remove(result_.backupPath);
        return std::move(result_);
    }

  private:
    void SecureOldContent()
    {
        const Text backup = BackupPath(path_);
        if (EndsInBackupExtension(path_) || files_.IsSameFile(path_, backup)) {
            KeepOldContentInMemory();
            return;
        }
        result_.backupPath = backup;
        FileResult renaming = files_.Rename(path_, backup);
        if (renaming) {
            renamed_ = true;
            return;
        }
        stale_backup_ = true;
        KeepOldContentInMemory();
        notice_(renaming.systemText.substr(0, kLongestSystemText));
    }

    // A file that cannot be read is overwritten all the same: a save is not given up for want of
    // a backup. Reading is tried twice, since the memory is the only backup there will be.
    void KeepOldContentInMemory()
    {
        for (int attempt = 0; attempt < 2 && !old_content_; ++attempt) {
            std::string content;
            if (ReadBlocks(files_, path_, [&content](std::string_view block) { content += block; }))
                old_content_ = std::move(content);
        }
    }

    bool Write(const std::string& bytes, CreateMode mode)
    {
        FileHandle file{};
        if (!Check(files_.Create(path_, mode, file), SaveOutcome::CreateFailed))
            return false;
        created_ = true;
        const bool written = Check(files_.Write(file, bytes), SaveOutcome::WriteFailed) &&
                             Check(files_.Flush(file), SaveOutcome::FlushFailed);
        const FileResult closing = files_.Close(file);
        return written && Check(closing, SaveOutcome::CloseFailed);
    }

    bool Check(const FileResult& step, SaveOutcome failure)
    {
        if (step)
            return true;
        result_.outcome = failure;
        result_.systemText = step.systemText.substr(0, kLongestSystemText);
        return false;
    }

    void RestoreOldContent(bool exists)
    {
        result_.oldContent = exists ? OldContent::Stands : OldContent::NoneBefore;
        if (renamed_) {
            if (created_)
                files_.Remove(path_);
            if (!files_.Rename(result_.backupPath, path_))
                result_.oldContent = OldContent::UnderBackupName;
        } else if (created_ && old_content_) {
            // A second try, since nothing but this memory holds the content any more.
            if (!PutBack() && !PutBack())
                result_.oldContent = OldContent::Lost;
        } else if (created_) {
            files_.Remove(path_);
            if (exists)
                result_.oldContent = OldContent::Lost;
        }
    }

    bool PutBack()
    {
        FileHandle file{};
        if (!files_.Create(path_, CreateMode::Truncate, file))
            return false;
        const bool written = files_.Write(file, *old_content_) && files_.Flush(file);
        return files_.Close(file) && written;
    }

    const Text& path_;
    FilePort& files_;
    const SaveNotice& notice_;
    SaveResult result_;
    bool renamed_ = false;
    bool stale_backup_ = false; ///< The backup's name could not be taken.
    bool created_ = false;
    std::optional<std::string> old_content_;
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
