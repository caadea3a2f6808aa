#include "tests/walk/office_file.h"

#include "tests/support/test_files.h"
#include "tests/walk/dialog_checks.h"

#include <algorithm>
#include <utility>

using namespace uidriver;

namespace walk
{

namespace
{

constexpr const wchar_t* fileName = L"office.cfg";

} // namespace

OfficeFile::OfficeFile(std::wstring folder, const std::optional<std::string>& bytes)
    : m_folder(std::move(folder)), m_path(m_folder + L'\\' + fileName), m_onDisk(bytes)
{
    CreateDirectoryW(m_folder.c_str(), nullptr);
    if (bytes)
        WriteBytes(m_path, *bytes);
}

OfficeFile::~OfficeFile()
{
    Release();
    // The test removes its folder, but not what is read-only.
    for (const auto& name : Names())
        SetFileAttributesW((m_folder + L'\\' + name).c_str(), FILE_ATTRIBUTE_NORMAL);
}

void OfficeFile::NoteReading()
{
    m_known = IsUnreadable() || !m_folderExists ? std::nullopt : m_onDisk;
}

std::string OfficeFile::Disturb(Chance& chance)
{
    if (!m_folderExists)
        return MoveFolder();
    if (IsHeld()) {
        Release();
        return "the other program lets go of the file";
    }
    switch (chance.Number(0, 6)) {
    case 0:
    case 1:
        return Change(chance);
    case 2:
    case 3:
        return Hold(chance);
    case 4:
        return LeaveBackup();
    case 5:
        return MoveFolder();
    default:
        if (!m_onDisk)
            return Change(chance);
        SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_READONLY);
        return "the file becomes read-only";
    }
}

std::string OfficeFile::Change(Chance& chance)
{
    SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (m_onDisk && chance.Percent(20)) {
        DeleteFileW(m_path.c_str());
        m_onDisk.reset();
        return "another program deletes the file";
    }
    m_onDisk = m_onDisk.value_or("") + "_SITE_CHANGE_" + std::to_string(chance.Number(1, 999)) + " = 1\r\n";
    WriteBytes(m_path, *m_onDisk);
    return "another program changes the file";
}

std::string OfficeFile::Hold(Chance& chance)
{
    static const std::vector<DWORD> sharing = {0, FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                               FILE_SHARE_DELETE};
    m_shared = chance.OneOf(sharing);
    if (m_onDisk)
        m_holder = CreateFileW(m_path.c_str(), GENERIC_READ, m_shared, nullptr, OPEN_EXISTING, 0, nullptr);
    return "another program holds the file, sharing mode " + std::to_string(m_shared);
}

void OfficeFile::Release()
{
    if (IsHeld())
        CloseHandle(m_holder);
    m_holder = INVALID_HANDLE_VALUE;
}

std::string OfficeFile::LeaveBackup()
{
    m_backupLeft = WriteBytes(BackupPath(), "# left over\r\n");
    return "a backup is left over";
}

std::string OfficeFile::MoveFolder()
{
    const std::wstring elsewhere = m_folder + L" elsewhere";
    if (m_folderExists)
        m_folderExists = MoveFileW(m_folder.c_str(), elsewhere.c_str()) == FALSE;
    else
        m_folderExists = MoveFileW(elsewhere.c_str(), m_folder.c_str()) != FALSE;
    return m_folderExists ? "the folder is there" : "the folder goes away";
}

std::string OfficeFile::FaultUnlessUntouched()
{
    if (IsUnreadable() || !m_folderExists || ReadBytes(m_path) == m_onDisk)
        return "";
    return "the file on disk has been changed by other means than a save";
}

std::vector<std::wstring> OfficeFile::Names() const
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found = {};
    HANDLE search = FindFirstFileW((m_folder + L"\\*").c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &found)) {
        if (*found.cFileName != L'.')
            names.emplace_back(found.cFileName);
    }
    FindClose(search);
    return names;
}

std::string OfficeFile::FaultOfKeptFile(const std::string& replaced) const
{
    const auto names = Names();
    const bool isKept = std::ranges::any_of(names, [&](const std::wstring& name) {
        return name.starts_with(L"office (replaced") && ReadBytes(m_folder + L'\\' + name) == replaced;
    });
    return isKept ? "" : "what the save replaced is not kept";
}

std::string OfficeFile::NoteSave(bool mayReplace)
{
    const auto before = m_onDisk;
    const bool mustAsk = MustAsk();
    // A save that succeeds on a held file may leave the held content under another name.
    Release();
    m_onDisk = ReadBytes(m_path);
    m_known = m_onDisk;
    // A new file has no backup, and a replaced one is kept: neither takes the name of one that was left over.
    const bool backupStays = std::exchange(m_backupLeft, false) && (!before || mustAsk);
    if (backupStays)
        DeleteFileW(BackupPath().c_str());
    if (!m_onDisk || m_onDisk->find("Orthoval Administration Configuration File.") == std::string::npos)
        return "the dialog closed after Save, and no file is saved";
    for (const auto& name : Names()) {
        if (name != fileName && !name.starts_with(L"office (replaced"))
            return "the save left a file behind: " + Printable(name);
    }
    if (mustAsk && !mayReplace)
        return "the save replaced, without a question, a file that the dialog had not read";
    return mustAsk ? FaultOfKeptFile(*before) : "";
}

} // namespace walk
