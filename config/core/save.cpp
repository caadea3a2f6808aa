#include "config/core/save.h"

#include "config/core/config_writer.h"
#include "config/core/file_blocks.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace ov
{
namespace
{

constexpr std::size_t kLongestSystemText = 255;

// True for a file that would be its own backup: its name ends in ".bak", in upper or lower case.
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

// Running out of memory is a failure like any other, without a system message.
template <class Operation>
FileResult Try(Operation operation) noexcept
{
    try {
        return operation();
    } catch (...) {
        return {false, Text()};
    }
}

// One save. It tracks where the old content is and how to restore it.
class Save
{
  public:
    // `known` is the content last read from or written to the path; null if there is none.
    Save(const Text& path, FileKind kind, const std::string* known, FilePort& files, SavePrompts& prompts)
        : m_path(path), m_kind(kind), m_known(known), m_files(files), m_prompts(prompts)
    {
    }

    SaveResult Run(const std::string& bytes)
    {
        if (m_kind != FileKind::Absent && !MayReplace()) {
            m_result.outcome = SaveOutcome::Declined;
            m_result.oldContent = OldContent::Stands;
            return std::move(m_result);
        }
        // An exception leaves every file unchanged: nothing is thrown after the first change.
        if ((m_kind == FileKind::Absent || SecureOldContent()) && Write(bytes))
            DropOldContent();
        else
            RestoreOldContent();
        return std::move(m_result);
    }

    // After a failure: the content that this save left under the path instead of the old one.
    std::optional<std::string> TakeLeftContent() noexcept { return std::move(m_left); }

  private:
    // Where the old content is after a rename that reported a failure.
    enum class Whereabouts { UnderOwnName, UnderBackupName, Nowhere, Unknown };

    // A file that was read before but cannot be compared now is replaced without a question. If its content
    // cannot be compared later either, it is not deleted.
    bool MayReplace()
    {
        if (m_known != nullptr && CompareContent(m_files, m_path, *m_known) != ContentMatch::Different)
            return true;
        m_keptPath = FreeNameBeside(m_files, m_path);
        m_keep = m_prompts.MayReplace(m_known != nullptr ? ReplaceReason::Changed : ReplaceReason::NotRead,
                                      m_keptPath);
        return m_keep;
    }

    // A file that is to be kept is renamed to its new name at once; that file then serves as the backup.
    bool SecureOldContent()
    {
        if (!m_keep) {
            m_keptPath = BackupPath(m_path);
            if (EndsInBackupExtension(m_path) || m_files.IsSameFile(m_path, m_keptPath))
                return SecureInMemory();
        }
        m_result.backupPath = m_keptPath;
        const FileResult renaming = m_files.Rename(m_path, m_result.backupPath);
        const Whereabouts found = renaming ? Whereabouts::UnderBackupName : LocateOldContent();
        m_renamed = found == Whereabouts::UnderBackupName;
        if (m_renamed)
            return true;
        if (found == Whereabouts::Nowhere) {
            m_kind = FileKind::Absent;
            return true;
        }
        if (!m_keep) {
            m_staleBackup = true;
            m_prompts.TellNoBackup(renaming.systemText.substr(0, kLongestSystemText));
        }
        return SecureInMemory();
    }

    // A rename may report a failure although it was done, for example over a network.
    Whereabouts LocateOldContent() noexcept
    {
        const FileKind here = KindOf(m_path);
        if (here == FileKind::File)
            return Whereabouts::UnderOwnName;
        const FileKind there = KindOf(m_result.backupPath);
        if (here != FileKind::Absent || (there != FileKind::File && there != FileKind::Absent))
            return Whereabouts::Unknown;
        // The name for a kept file was unused before, but the backup's name may hold a leftover file.
        const bool isBackup =
            there == FileKind::File && (m_keep || MatchOf(m_result.backupPath) != ContentMatch::Different);
        return isBackup ? Whereabouts::UnderBackupName : Whereabouts::Nowhere;
    }

    // Asks twice if necessary, because the answer decides what the user is told about the failure.
    FileKind KindOf(const Text& path) noexcept
    {
        FileKind kind = FileKind::Unknown;
        for (int attempt = 0; attempt < 2 && kind == FileKind::Unknown; ++attempt) {
            Try([&] {
                kind = m_files.Kind(path);
                return FileResult{};
            });
        }
        return kind;
    }

    ContentMatch MatchOf(const Text& path) noexcept
    {
        ContentMatch match = ContentMatch::Unreadable;
        Try([&] {
            match = CompareContent(m_files, path, *m_known);
            return FileResult{};
        });
        return match;
    }

    // Without a backup, a file that is to be kept, or that has changed since the comparison, is copied.
    // The content is read after the user has seen the notice, because another program may change it
    // until then.
    bool SecureInMemory()
    {
        const FileResult reading = KeepOldContentInMemory();
        const bool mayBeAbsent = m_kind == FileKind::Unknown && !m_oldContent;
        const bool changed = !m_keep && m_oldContent && *m_oldContent != *m_known;
        if (mayBeAbsent || !(m_keep || changed))
            return true;
        if (changed)
            m_keptPath = FreeNameBeside(m_files, m_path);
        const bool copied =
            Check(m_oldContent ? Store(m_keptPath, CreateMode::New) : reading, SaveOutcome::KeepFailed);
        m_copied = copied;
        return copied;
    }

    // A file that was read before and cannot be read now is overwritten nevertheless: a missing backup does
    // not prevent a save. Reading is tried twice, because the copy in memory will be the only
    // backup.
    FileResult KeepOldContentInMemory()
    {
        FileResult reading;
        for (int attempt = 0; attempt < 2 && !m_oldContent; ++attempt) {
            std::string content;
            reading = ReadBlocks(m_files, m_path, [&content](std::string_view block) { content += block; });
            if (reading)
                m_oldContent = std::move(content);
        }
        return reading;
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

    // If the file did not exist, it is never opened for overwriting, even if it has appeared meanwhile.
    FileResult Create(FileHandle& file)
    {
        if (m_renamed || m_kind == FileKind::Absent) {
            FileResult creation = Create(CreateMode::New, file);
            m_created = creation.ok;
            return creation;
        }
        if (m_kind == FileKind::Unknown && !m_oldContent) {
            // Creating a new file shows whether one existed.
            FileResult creation = Create(CreateMode::New, file);
            if (creation) {
                m_kind = FileKind::Absent;
                m_staleBackup = false;
                m_created = true;
            }
            if (creation || m_keep)
                return creation;
        }
        return Create(CreateMode::Truncate, file);
    }

    FileResult Create(CreateMode mode, FileHandle& file)
    {
        return Try([&] { return m_files.Create(m_path, mode, file); });
    }

    // Old content is overwritten only after disk space for the new content has been reserved.
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

    // Called when the new content is on the disk.
    void DropOldContent() noexcept
    {
        if (m_renamed && !m_keep) {
            if (MatchOf(m_result.backupPath) == ContentMatch::Same)
                Remove(m_result.backupPath);
            else
                KeepBackup();
            return;
        }
        if (m_staleBackup)
            Remove(m_result.backupPath);
        if (m_copied && !m_keep)
            m_result.keptPath = std::move(m_keptPath);
    }

    // Another program changed the file between the comparison and the rename, or is still writing to it.
    void KeepBackup() noexcept
    {
        Text name;
        const FileResult naming = Try([&] {
            name = FreeNameBeside(m_files, m_path);
            return FileResult{};
        });
        if (naming && RenameBackupTo(name))
            m_keptPath = std::move(name);
        m_result.keptPath = std::move(m_keptPath);
    }

    // Also true if the rename was done although it reported a failure.
    bool RenameBackupTo(const Text& path) noexcept
    {
        return Try([&] { return m_files.Rename(m_result.backupPath, path); }) ||
               KindOf(m_result.backupPath) == FileKind::Absent;
    }

    void RestoreOldContent() noexcept
    {
        const bool hasNoCopy = m_overwritten && !m_oldContent;
        if ((m_created || hasNoCopy) && !Remove(m_path))
            ReadLeftContent();
        if (m_kind == FileKind::Absent)
            return;
        if (m_overwritten)
            m_result.oldContent = PutBackOrSay();
        else
            m_result.oldContent = RenameBackOrSay();
    }

    OldContent RenameBackOrSay() noexcept
    {
        if (!m_renamed && !m_result.backupPath.empty())
            m_renamed = LocateOldContent() == Whereabouts::UnderBackupName;
        if (m_renamed && !RenameBackupTo(m_path))
            return OldContent::UnderBackupName;
        if (m_copied)
            Remove(m_keptPath);
        return OldContent::Stands;
    }

    OldContent PutBackOrSay() noexcept
    {
        // Tried twice, because the copy in memory is often the only one left.
        if (m_oldContent && (Store(m_path, CreateMode::Truncate) || Store(m_path, CreateMode::Truncate))) {
            if (m_copied)
                Remove(m_keptPath);
            return OldContent::Stands;
        }
        if (m_oldContent)
            ReadLeftContent();
        if (!m_copied)
            return OldContent::Lost;
        m_result.backupPath = std::move(m_keptPath);
        return OldContent::UnderBackupName;
    }

    // Writes the old content from memory. A new file that cannot be completed is removed.
    FileResult Store(const Text& path, CreateMode mode) noexcept
    {
        FileHandle file{};
        if (FileResult creation = Try([&] { return m_files.Create(path, mode, file); }); !creation)
            return creation;
        FileResult writing = Try([&] { return m_files.Write(file, *m_oldContent); });
        if (writing)
            writing = Flush(file);
        FileResult closing = Close(file);
        if (writing)
            writing = std::move(closing);
        if (!writing && mode == CreateMode::New)
            Remove(path);
        return writing;
    }

    void ReadLeftContent() noexcept
    {
        Try([this] {
            std::string content;
            FileResult reading =
                ReadBlocks(m_files, m_path, [&content](std::string_view block) { content += block; });
            if (reading)
                m_left = std::move(content);
            return reading;
        });
    }

    const Text& m_path;
    FileKind m_kind;            ///< What existed under the path before the save.
    const std::string* m_known; ///< Not null if the file may be replaced without being kept.
    FilePort& m_files;
    SavePrompts& m_prompts;
    SaveResult m_result;
    Text m_keptPath;            ///< The name of the old content if it is kept.
    bool m_keep = false;        ///< The old content is kept even if the save succeeds.
    bool m_copied = false;      ///< The old content was copied to m_keptPath.
    bool m_renamed = false;     ///< The old file has the backup's name.
    bool m_staleBackup = false; ///< The backup's name could not be used.
    bool m_created = false;     ///< This save created the file.
    bool m_overwritten = false; ///< Old content may have been overwritten.
    std::optional<std::string> m_oldContent;
    std::optional<std::string> m_left;
};

// The file that a save writes.
struct Target {
    Text file; // The path, or the target of a symbolic link.
    FileKind kind;
};

// The target of a link is written; the link itself is not replaced by a file.
Target TargetOf(const Text& path, FilePort& files)
{
    const Text link = files.LinkTarget(path);
    const Text& file = link.empty() ? path : link;
    return {file, files.Kind(file)};
}

// The result if the target cannot be written; otherwise the start of the result for any other refusal.
SaveResult CheckTarget(const Target& target)
{
    SaveResult result;
    // If the system does not report the kind, renaming will show whether a file exists.
    if (target.kind == FileKind::File || target.kind == FileKind::Unknown)
        result.oldContent = OldContent::Stands;
    if (target.kind == FileKind::Directory)
        result.outcome = SaveOutcome::PathIsDirectory;
    else if (target.kind == FileKind::Other)
        result.outcome = SaveOutcome::PathIsNoFile;
    return result;
}

SaveResult WriteTo(const Target& target, const Text& path, std::string bytes, std::optional<KnownFile>& known,
                   FilePort& files, SavePrompts& prompts)
{
    const bool isKnown = known && known->path == path;
    KnownFile left{path, {}};
    Save save(target.file, target.kind, isKnown ? &known->content : nullptr, files, prompts);
    SaveResult result = save.Run(bytes);
    std::optional<std::string> leftContent =
        result.Saved() ? std::optional(std::move(bytes)) : save.TakeLeftContent();
    if (leftContent) {
        left.content = std::move(*leftContent);
        known = std::move(left);
    }
    return result;
}

} // namespace

Text BackupPath(TextView path)
{
    const std::size_t dot = path.rfind(u'.');
    return Text(path.substr(0, dot == TextView::npos ? 0 : dot)) + u".bak";
}

SaveResult SaveConfigFile(const SettingStore& store, const Text& path, std::optional<KnownFile>& known,
                          FilePort& files, SaveSurroundings& surroundings, SavePrompts& prompts)
{
    if (path.empty())
        return {.outcome = SaveOutcome::NoPath};
    const Target target = TargetOf(path, files);
    SaveResult refused = CheckTarget(target);
    if (!refused.Saved())
        return refused;
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
    SaveResult result = WriteTo(target, path, std::move(bytes), known, files, prompts);
    result.header = std::move(header);
    return result;
}

SaveResult SaveBytes(const std::string& bytes, const Text& path, std::optional<KnownFile>& known,
                     FilePort& files, SavePrompts& prompts)
{
    const Target target = TargetOf(path, files);
    SaveResult refused = CheckTarget(target);
    return refused.Saved() ? WriteTo(target, path, bytes, known, files, prompts) : refused;
}

} // namespace ov
