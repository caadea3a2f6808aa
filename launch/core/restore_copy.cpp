#include "launch/core/restore_copy.h"

#include "config/core/file_blocks.h"

namespace ov
{
RestoreResult RestoreCopy(const Text& path, const Text& copyPath, const CopyPlace& place, LocalTime now,
                          const FilePorts& ports)
{
    std::string wanted;
    if (FileResult reading = ReadWhole(ports.files, copyPath, wanted); !reading)
        return {.outcome = RestoreOutcome::CopyUnreadable, .systemText = std::move(reading.systemText)};
    RestoreResult result;
    std::optional<std::string> present;
    if (ports.files.Kind(path) != FileKind::Absent) {
        if (FileResult reading = ReadWhole(ports.files, path, present.emplace()); !reading)
            return {.outcome = RestoreOutcome::FileUnreadable, .systemText = std::move(reading.systemText)};
        if (*present == wanted)
            return {.outcome = RestoreOutcome::NotNeeded};
        result.kept = TakeDatedCopyOf(*present, path, place, now, ports);
        if (!result.kept.Succeeded()) {
            result.outcome = RestoreOutcome::NotKept;
            return result;
        }
    } else {
        result.kept.outcome = CopyOutcome::NoFile;
    }
    result.save = SaveUnattended(wanted, path, present, ports.files);
    if (result.save.outcome != UnattendedOutcome::Saved)
        result.outcome = RestoreOutcome::NotSaved;
    return result;
}

} // namespace ov
