#include "config/core/posix_file_port.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
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

} // namespace

FileKind PosixFilePort::Kind(const Text& path)
{
    struct stat status {
    };
    if (stat(Utf8FromText(path).c_str(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? FileKind::Absent : FileKind::Unknown;
    return S_ISDIR(status.st_mode) ? FileKind::Directory : FileKind::File;
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
    // Emptied only once the lock is held: a second writer's file is left alone.
    const int exclusive = mode == CreateMode::New ? O_EXCL : 0;
    const int descriptor = open(Utf8FromText(path).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | exclusive, 0666);
    if (descriptor < 0)
        return Failure(errno);
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 || ftruncate(descriptor, 0) != 0) {
        const int error = errno;
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
        if (written < 0)
            return Failure(errno);
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
