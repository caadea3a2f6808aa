#include "cli/platform.h"
#include "config/core/posix_file_port.h"
#include "config/core/posix_folder_port.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ov::cli
{
namespace
{

std::string ErrorText(int error)
{
    return std::system_category().message(error);
}

int DescriptorOf(Stream stream)
{
    return stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
}

bool ReadFrom(int descriptor, std::string& bytes, std::string& problem)
{
    std::array<char, std::size_t{64} * 1024> buffer;
    for (;;) {
        const ssize_t count = read(descriptor, buffer.data(), buffer.size());
        if (count == 0)
            return true;
        if (count > 0) {
            if (bytes.size() + static_cast<std::size_t>(count) > kLargestInput) {
                problem = "It is larger than 1 GB";
                return false;
            }
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            problem = ErrorText(errno);
            return false;
        }
    }
}

} // namespace

WriteOutcome WriteBytes(Stream stream, std::string_view bytes, std::string& problem)
{
    // If the reader of a stream is gone, the program must end without a message, not by a signal.
    static const auto s_before = std::signal(SIGPIPE, SIG_IGN);
    static_cast<void>(s_before);
    while (!bytes.empty()) {
        const ssize_t count = write(DescriptorOf(stream), bytes.data(), bytes.size());
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EPIPE) {
            return WriteOutcome::Closed;
        } else if (errno != EINTR) {
            problem = ErrorText(errno);
            return WriteOutcome::Failed;
        }
    }
    return WriteOutcome::Written;
}

bool IsColourTerminal(Stream stream)
{
    return isatty(DescriptorOf(stream)) != 0 && EnvironmentVariable("TERM") != "dumb";
}

std::string EnvironmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

bool ReadAll(const std::string& path, std::string& bytes, std::string& problem)
{
    bytes.clear();
    if (path == "-")
        return ReadFrom(STDIN_FILENO, bytes, problem);
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        problem = ErrorText(errno);
        return false;
    }
    const bool read = ReadFrom(descriptor, bytes, problem);
    close(descriptor);
    return read;
}

std::unique_ptr<FilePort> MakeFilePort()
{
    return std::make_unique<PosixFilePort>();
}

std::unique_ptr<FolderPort> MakeFolderPort()
{
    return std::make_unique<PosixFolderPort>();
}

struct AttributeKeeper::Attributes {
    struct stat status {
    };
    mode_t maskBefore = 0;
};

AttributeKeeper::AttributeKeeper(const std::string& path) : m_path(path)
{
    Attributes attributes;
    if (stat(path.c_str(), &attributes.status) != 0)
        return;
    attributes.maskBefore = umask(~attributes.status.st_mode & 0777);
    m_attributes = std::make_unique<Attributes>(attributes);
}

AttributeKeeper::~AttributeKeeper()
{
    if (!m_attributes)
        return;
    umask(m_attributes->maskBefore);
    struct stat now {
    };
    const struct stat& before = m_attributes->status;
    if (stat(m_path.c_str(), &now) != 0)
        return;
    // Changing the owner clears special bits, so the mode is set last.
    const bool sameOwner = now.st_uid == before.st_uid && now.st_gid == before.st_gid;
    if (sameOwner || chown(m_path.c_str(), before.st_uid, before.st_gid) == 0)
        chmod(m_path.c_str(), before.st_mode & 07777);
}

} // namespace ov::cli
