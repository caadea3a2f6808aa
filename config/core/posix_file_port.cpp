#include "config/core/posix_file_port.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ov
{
namespace
{

FileResult Failure(int error)
{
    return {false, TextFromUtf8(std::system_category().message(error))};
}

FileResult ResultOf(int returned)
{
    return returned == 0 ? FileResult{} : Failure(errno);
}

int DescriptorOf(FileHandle file)
{
    return static_cast<int>(file);
}

// Opens a file for writing and tells whether it was not there before.
int OpenForWriting(const char* name, CreateMode mode, bool& created)
{
    created = false;
    if (mode == CreateMode::Truncate) {
        const int descriptor = open(name, O_WRONLY | O_CLOEXEC);
        if (descriptor >= 0 || errno != ENOENT)
            return descriptor;
    }
    const int descriptor = open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    created = descriptor >= 0;
    return descriptor;
}

} // namespace

FileKind PosixFilePort::Kind(const Text& path)
{
    struct stat status {
    };
    if (stat(Utf8FromText(path).c_str(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? FileKind::Absent : FileKind::Unknown;
    return S_ISDIR(status.st_mode) ? FileKind::Directory : FileKind::File;
}

Text PosixFilePort::LinkTarget(const Text& path)
{
    const std::string name = Utf8FromText(path);
    struct stat status {
    };
    if (lstat(name.c_str(), &status) != 0 || !S_ISLNK(status.st_mode))
        return {};
    const std::unique_ptr<char, decltype(&std::free)> target(realpath(name.c_str(), nullptr), &std::free);
    return target ? TextFromUtf8(target.get()) : Text();
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
    const int descriptor = open(Utf8FromText(path).c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return Failure(errno);
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
        return Failure(errno);
    count = static_cast<std::size_t>(got);
    return {};
}

FileResult PosixFilePort::Create(const Text& path, CreateMode mode, FileHandle& file)
{
    const std::string name = Utf8FromText(path);
    bool created = false;
    const int descriptor = OpenForWriting(name.c_str(), mode, created);
    if (descriptor < 0)
        return Failure(errno);
    // Emptied only once the lock is held: a second writer's file is left alone.
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 || ftruncate(descriptor, 0) != 0) {
        const int error = errno;
        if (created)
            unlink(name.c_str());
        close(descriptor);
        return Failure(error);
    }
    file = descriptor;
    return {};
}

FileResult PosixFilePort::Write(FileHandle file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(DescriptorOf(file), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return Failure(written < 0 ? errno : EIO);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
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
        return Failure(errno);
    // A file system that cannot rename without replacing can at least link without replacing.
    if (link(oldName.c_str(), newName.c_str()) != 0)
        return Failure(errno);
    return ResultOf(unlink(oldName.c_str()));
}

FileResult PosixFilePort::Remove(const Text& path)
{
    return ResultOf(unlink(Utf8FromText(path).c_str()));
}

} // namespace ov
