#include "launch/core/dated_copies.h"

#include "config/core/file_blocks.h"
#include "config/core/known_file.h"
#include "launch/core/copy_name.h"
#include "launch/core/path_parts.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace ov
{
namespace
{

// Names that another process uses at the same moment are skipped, up to this number of them.
constexpr int kMostAttempts = 20;

struct StampedFile {
    CopyStamp stamp;
    Text path;
    std::uint64_t size;
};

// The copies of a file and the parts of copies, each newest first.
struct Listing {
    FileResult result;
    std::vector<StampedFile> copies;
    std::vector<StampedFile> parts;
};

void AddFile(std::vector<StampedFile>& files, const CopyStamp& stamp, Text path, FolderPort& folders)
{
    FileFacts facts;
    // A folder with such a name is no copy, and a copy that another process has just removed is gone.
    if (folders.Facts(path, facts) && facts.kind == FileKind::File)
        files.push_back({stamp, std::move(path), facts.size});
}

Listing ListFiles(const CopyNames& names, FolderPort& folders)
{
    Listing listing;
    std::vector<Text> entries;
    listing.result = folders.List(names.Folder(), entries);
    if (!listing.result)
        return listing;
    for (const Text& entry : entries) {
        if (const auto stamp = names.StampOf(entry))
            AddFile(listing.copies, *stamp, JoinPath(names.Folder(), entry, folders), folders);
        else if (const auto part = names.StampOfUnfinished(entry))
            AddFile(listing.parts, *part, JoinPath(names.Folder(), entry, folders), folders);
    }
    const auto isNewer = [](const StampedFile& a, const StampedFile& b) { return b.stamp < a.stamp; };
    std::ranges::sort(listing.copies, isNewer);
    std::ranges::sort(listing.parts, isNewer);
    return listing;
}

CopyStamp StampAfter(const Listing& listing, LocalTime now)
{
    CopyStamp stamp{now, 1};
    for (const auto* files : {&listing.copies, &listing.parts}) {
        if (!files->empty() && !(files->front().stamp < stamp))
            stamp = {files->front().stamp.time, files->front().stamp.number + 1};
    }
    return stamp;
}

// Writes one copy under the name of a part and then gives it its name.
class CopyWriter
{
  public:
    CopyWriter(const CopyNames& names, const std::string& content, const FilePorts& ports)
        : m_names(names), m_content(content), m_ports(ports)
    {
    }

    CopyResult Write(CopyStamp stamp)
    {
        FileHandle file{};
        FileResult creation;
        for (int attempt = 0; attempt < kMostAttempts; ++attempt, ++stamp.number) {
            m_part = PathOf(m_names.UnfinishedNameOf(stamp));
            creation = m_ports.files.Create(m_part, CreateMode::New, file);
            if (creation) {
                m_path = PathOf(m_names.NameOf(stamp));
                return Finish(file);
            }
            if (m_ports.files.Kind(m_part) != FileKind::File)
                break;
        }
        return {CopyOutcome::WriteFailed, {}, std::move(creation.systemText)};
    }

  private:
    Text PathOf(const Text& name) const { return JoinPath(m_names.Folder(), name, m_ports.folders); }

    CopyResult Finish(FileHandle file)
    {
        try {
            CopyResult result = Complete(file);
            if (result.outcome != CopyOutcome::Made)
                m_ports.files.Remove(m_part);
            return result;
        } catch (...) {
            m_ports.files.Remove(m_part);
            throw;
        }
    }

    CopyResult Complete(FileHandle file)
    {
        if (FileResult filling = Fill(file); !filling)
            return {CopyOutcome::WriteFailed, {}, std::move(filling.systemText)};
        if (CompareContent(m_ports.files, m_part, m_content) != ContentMatch::Same)
            return {CopyOutcome::NotVerified, {}, {}};
        // A rename may report a failure although it was done, for example over a network.
        FileResult renaming = m_ports.files.Rename(m_part, m_path);
        if (!renaming && (m_ports.files.Kind(m_part) != FileKind::Absent ||
                          CompareContent(m_ports.files, m_path, m_content) != ContentMatch::Same))
            return {CopyOutcome::WriteFailed, {}, std::move(renaming.systemText)};
        return {CopyOutcome::Made, m_path, {}};
    }

    // Writes, flushes and closes; the file is closed in every case.
    FileResult Fill(FileHandle file)
    {
        FileResult writing;
        try {
            writing = m_ports.files.Write(file, m_content);
            if (writing)
                writing = m_ports.files.Flush(file);
        } catch (...) {
            m_ports.files.Close(file);
            throw;
        }
        FileResult closing = m_ports.files.Close(file);
        return writing ? std::move(closing) : std::move(writing);
    }

    const CopyNames& m_names;
    const std::string& m_content;
    const FilePorts& m_ports;
    Text m_part;
    Text m_path;
};

} // namespace

CopyList ListDatedCopies(const Text& path, const Text& folder, const FilePorts& ports)
{
    Listing listing = ListFiles(CopyNames(path, folder, ports), ports.folders);
    CopyList list{std::move(listing.result), {}};
    for (StampedFile& copy : listing.copies)
        list.copies.push_back({std::move(copy.path), copy.stamp.time, copy.stamp.number, copy.size});
    return list;
}

CopyResult TakeDatedCopy(const Text& path, const CopyPlace& place, LocalTime now, const FilePorts& ports)
{
    std::string content;
    FileResult reading = ReadWhole(ports.files, path, content);
    if (reading) {
        CopyResult result = TakeDatedCopyOf(content, path, place, now, ports);
        result.content = std::move(content);
        return result;
    }
    if (ports.files.Kind(path) == FileKind::Absent)
        return {CopyOutcome::NoFile, {}, {}};
    return {CopyOutcome::FileUnreadable, {}, std::move(reading.systemText)};
}

CopyResult TakeDatedCopyOf(const std::string& content, const Text& path, const CopyPlace& place,
                           LocalTime now, const FilePorts& ports)
{
    const CopyNames names(path, place.folder, ports);
    Listing listing = ListFiles(names, ports.folders);
    if (!listing.result)
        return {CopyOutcome::FolderUnreadable, {}, std::move(listing.result.systemText)};
    if (!listing.copies.empty() &&
        CompareContent(ports.files, listing.copies.front().path, content) == ContentMatch::Same)
        return {CopyOutcome::NotNeeded, std::move(listing.copies.front().path), {}};
    return CopyWriter(names, content, ports).Write(StampAfter(listing, now));
}

std::vector<Text> PruneDatedCopies(const Text& path, const CopyPlace& place, LocalTime now,
                                   const FilePorts& ports)
{
    const Listing listing = ListFiles(CopyNames(path, place.folder, ports), ports.folders);
    std::vector<Text> remaining;
    const auto remove = [&](const StampedFile& file) {
        if (!ports.files.Remove(file.path))
            remaining.push_back(file.path);
    };
    for (std::size_t copy = std::max<std::size_t>(place.count, 1); copy < listing.copies.size(); ++copy)
        remove(listing.copies[copy]);
    for (const StampedFile& part : listing.parts) {
        if (part.stamp.time + std::chrono::days(1) < now)
            remove(part);
    }
    return remaining;
}

void SettleDatedCopy(const Text& path, const CopyResult& taken, const CopyPlace& place, LocalTime now,
                     const FilePorts& ports)
{
    if (!taken.Succeeded())
        return;
    std::string content;
    const bool isUnchanged = ReadWhole(ports.files, path, content) && content == taken.content;
    const auto hasCopy = [&] {
        return CompareContent(ports.files, taken.path, taken.content) == ContentMatch::Same;
    };
    if (taken.outcome == CopyOutcome::Made && isUnchanged && hasCopy()) {
        ports.files.Remove(taken.path);
        return;
    }
    // A second program on the same file relies on the copy of the first one, which that removes if it ends
    // without a change.
    if (!taken.path.empty() && !isUnchanged && !hasCopy())
        TakeDatedCopyOf(taken.content, path, place, now, ports);
    PruneDatedCopies(path, place, now, ports);
}

} // namespace ov
