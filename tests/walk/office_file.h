/// The configuration file that the dialog edits, with other programs at work on it.
#pragma once

#include "tests/walk/chance.h"

#include <windows.h>
#include <optional>
#include <string>
#include <vector>

namespace walk
{

/// Knows what is on the disk and what the dialog has read, and so what a save may ask, what it must
/// ask, and what it must leave behind.
class OfficeFile
{
  public:
    /// A file in a folder of its own, which is made; without bytes there is no file yet.
    OfficeFile(std::wstring folder, const std::optional<std::string>& bytes);
    ~OfficeFile();
    OfficeFile(const OfficeFile&) = delete;
    OfficeFile& operator=(const OfficeFile&) = delete;

    const std::wstring& Path() const { return m_path; }
    const std::optional<std::string>& OnDisk() const { return m_onDisk; }
    /// What the dialog has read; nothing if it could not.
    const std::optional<std::string>& Known() const { return m_known; }

    /// The dialog reads the file now.
    void NoteReading();

    /// Another program does something to the file or its folder.
    /// @return what, for the log.
    std::string Disturb(Chance& chance);
    /// The other program lets go of the file.
    void Release();

    bool IsHeld() const { return m_holder != INVALID_HANDLE_VALUE; }
    /// Whether a read fails.
    bool IsUnreadable() const { return IsHeld() && (m_shared & FILE_SHARE_READ) == 0; }
    /// Whether a save has to ask before it replaces the file.
    bool MustAsk() const { return m_onDisk && m_known != m_onDisk; }
    /// Whether a save may be unable to rename the file to the backup's name.
    bool MayLackBackup() const { return IsHeld() || m_backupLeft; }
    /// Whether a save may fail for the file's sake.
    bool MayFail() const { return IsHeld() || !m_folderExists; }

    /// Empty when the file is as the last known action left it; otherwise what is wrong.
    std::string FaultUnlessUntouched();
    /// The dialog says that it has saved. `mayReplace`: the user has allowed it to replace what it
    /// did not know.
    /// @return what is wrong with the file and its folder; empty for nothing.
    std::string NoteSave(bool mayReplace);

  private:
    std::string Change(Chance& chance);
    std::string Hold(Chance& chance);
    std::string LeaveBackup();
    std::string MoveFolder();
    std::string FaultOfKeptFile(const std::string& replaced) const;
    std::vector<std::wstring> Names() const;
    std::wstring BackupPath() const { return m_folder + L"\\office.bak"; }

    std::wstring m_folder;
    std::wstring m_path;
    std::optional<std::string> m_onDisk;
    std::optional<std::string> m_known;
    HANDLE m_holder = INVALID_HANDLE_VALUE;
    DWORD m_shared = 0;
    bool m_backupLeft = false;
    bool m_folderExists = true;
};

} // namespace walk
