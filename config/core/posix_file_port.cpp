#include "config/core/posix_file_port.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ov
{
namespace
{

FileResult ResultOf(int returned)
{
    return returned == 0 ? FileResult{} : PosixFailure(errno);
}

int DescriptorOf(FileHandle file)
{
    return static_cast<int>(file);
}

// Opens an existing file. Opening a pipe must not block until its other end is opened, and only regular
// files are read or written.
int OpenExisting(const char* name, int access)
{
    const int descriptor = open(name, access | O_CLOEXEC | O_NONBLOCK);
    struct stat status {
    };
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    close(descriptor);
    errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return -1;
}

// Opens a file for writing and reports whether it was created.
int OpenForWriting(const char* name, CreateMode mode, bool& created)
{
    created = false;
    if (mode == CreateMode::Truncate) {
        const int descriptor = OpenExisting(name, O_WRONLY);
        if (descriptor >= 0 || errno != ENOENT)
            return descriptor;
    }
    const int descriptor = open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    created = descriptor >= 0;
    return descriptor;
}

bool IsLink(const std::filesystem::path& name)
{
    std::error_code error;
    return std::filesystem::is_symlink(std::filesystem::symlink_status(name, error));
}

} // namespace

FileResult PosixFailure(int error)
{
    return {false, TextFromUtf8(std::system_category().message(error))};
}

FileKind PosixFilePort::Kind(const Text& path)
{
    struct stat status {
    };
    if (stat(Utf8FromText(path).c_str(), &status) != 0) {
        if (errno == ELOOP)
            return FileKind::Other;
        return errno == ENOENT || errno == ENOTDIR ? FileKind::Absent : FileKind::Unknown;
    }
    if (S_ISDIR(status.st_mode))
        return FileKind::Directory;
    return S_ISREG(status.st_mode) ? FileKind::File : FileKind::Other;
}

Text PosixFilePort::LinkTarget(const Text& path)
{
    constexpr int kMostLinks = 40;
    namespace fs = std::filesystem;
    fs::path name = Utf8FromText(path);
    if (!IsLink(name))
        return {};
    std::error_code error;
    if (const fs::path target = fs::canonical(name, error); !error)
        return TextFromUtf8(target.string());
    // If the last link's target does not exist, the file is created at that target.
    for (int links = 0; IsLink(name); ++links) {
        const fs::path target = fs::read_symlink(name, error);
        if (error || links == kMostLinks)
            return {};
        name = fs::absolute(name, error).parent_path() / target;
    }
    return TextFromUtf8(name.string());
}

bool PosixFilePort::IsSameFile(const Text& first, const Text& second)
{
    struct stat a {
    };
    struct stat b {
    };
    return stat(Utf8FromText(first).c_str(), &a) == 0 && stat(Utf8FromText(second).c_str(), &b) == 0 &&
           a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

FileResult PosixFilePort::OpenForReading(const Text& path, FileHandle& file)
{
    const int descriptor = OpenExisting(Utf8FromText(path).c_str(), O_RDONLY);
    if (descriptor < 0)
        return PosixFailure(errno);
    file = descriptor;
    return {};
}

FileResult PosixFilePort::Read(FileHandle file, std::span<char> buffer, std::size_t& count)
{
    ssize_t got = 0;
    do {
        got = read(DescriptorOf(file), buffer.data(), buffer.size());
    } while (got < 0 && errno == EINTR);
    if (got < 0)
        return PosixFailure(errno);
    count = static_cast<std::size_t>(got);
    return {};
}

FileResult PosixFilePort::Create(const Text& path, CreateMode mode, FileHandle& file)
{
    const std::string name = Utf8FromText(path);
    bool created = false;
    const int descriptor = OpenForWriting(name.c_str(), mode, created);
    if (descriptor < 0)
        return PosixFailure(errno);
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const int error = errno;
        if (created)
            unlink(name.c_str());
        close(descriptor);
        return PosixFailure(error);
    }
    file = descriptor;
    return {};
}

FileResult PosixFilePort::Reserve(FileHandle file, std::size_t size)
{
    if (size == 0 || fallocate(DescriptorOf(file), FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size)) == 0)
        return {};
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? PosixFailure(errno) : FileResult{};
}

FileResult PosixFilePort::Write(FileHandle file, std::string_view bytes)
{
    off_t position = 0;
    while (static_cast<std::size_t>(position) < bytes.size()) {
        const std::string_view rest = bytes.substr(static_cast<std::size_t>(position));
        const ssize_t written = pwrite(DescriptorOf(file), rest.data(), rest.size(), position);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return PosixFailure(written < 0 ? errno : EIO);
        position += written;
    }
    return ResultOf(ftruncate(DescriptorOf(file), position));
}

FileResult PosixFilePort::Flush(FileHandle file)
{
    return ResultOf(fsync(DescriptorOf(file)));
}

FileResult PosixFilePort::Close(FileHandle file)
{
    return ResultOf(close(DescriptorOf(file)));
}

FileResult PosixFilePort::Rename(const Text& from, const Text& to)
{
    const std::string oldName = Utf8FromText(from);
    const std::string newName = Utf8FromText(to);
    if (renameat2(AT_FDCWD, oldName.c_str(), AT_FDCWD, newName.c_str(), RENAME_NOREPLACE) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS)
        return PosixFailure(errno);
    // A file system without rename-without-replace may at least support link, which never replaces.
    if (link(oldName.c_str(), newName.c_str()) != 0)
        return PosixFailure(errno);
    if (unlink(oldName.c_str()) == 0)
        return {};
    const int error = errno;
    unlink(newName.c_str());
    return PosixFailure(error);
}

FileResult PosixFilePort::Remove(const Text& path)
{
    return ResultOf(unlink(Utf8FromText(path).c_str()));
}

} // namespace ov
