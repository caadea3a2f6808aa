#include "config/core/posix_folder_port.h"

#include "config/core/posix_file_port.h"

#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
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

FileKind KindOfMode(mode_t mode)
{
    if (S_ISDIR(mode))
        return FileKind::Directory;
    return S_ISREG(mode) ? FileKind::File : FileKind::Other;
}

std::string NameOfFolder(const Text& folder)
{
    return folder.empty() ? "." : Utf8FromText(folder);
}

} // namespace

FileResult PosixFolderPort::Facts(const Text& path, FileFacts& facts)
{
    const std::string name = Utf8FromText(path);
    facts = {};
    struct stat status {
    };
    if (stat(name.c_str(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? FileResult{} : PosixFailure(errno);
    facts.kind = KindOfMode(status.st_mode);
    facts.size = static_cast<std::uint64_t>(status.st_size);
    facts.readOnly = access(name.c_str(), W_OK) != 0;
    std::tm local = {};
    localtime_r(&status.st_mtime, &local);
    facts.changed = LocalTimeOf(local);
    return {};
}

FileResult PosixFolderPort::List(const Text& folder, std::vector<Text>& names)
{
    const std::unique_ptr<DIR, decltype([](DIR* d) { closedir(d); })> open(
        opendir(NameOfFolder(folder).c_str()));
    if (!open)
        return PosixFailure(errno);
    names.clear();
    for (;;) {
        errno = 0;
        const dirent* const entry = readdir(open.get());
        if (entry == nullptr)
            return errno == 0 ? FileResult{} : PosixFailure(errno);
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(TextFromUtf8(name));
    }
}

FileResult PosixFolderPort::TryRenaming(const Text& path)
{
    const std::filesystem::path folder = std::filesystem::path(Utf8FromText(path)).parent_path();
    return access(folder.empty() ? "." : folder.c_str(), W_OK | X_OK) == 0 ? FileResult{}
                                                                           : PosixFailure(errno);
}

FileResult PosixFolderPort::TryWriting(const Text& path)
{
    const int descriptor = open(Utf8FromText(path).c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return PosixFailure(errno);
    // A save locks the file that it writes.
    FileResult result = flock(descriptor, LOCK_EX | LOCK_NB) == 0 ? FileResult{} : PosixFailure(errno);
    close(descriptor);
    return result;
}

Text PosixFolderPort::FullFolder(const Text& folder)
{
    std::error_code error;
    const std::filesystem::path full = std::filesystem::canonical(NameOfFolder(folder), error);
    Text text = error ? folder : TextFromUtf8(full.string());
    if (!text.ends_with(u'/'))
        text += u'/';
    return text;
}

} // namespace ov
