#include "cli/commands.h"
#include "cli/difference.h"
#include "cli/edit.h"
#include "cli/file_output.h"
#include "cli/finding_output.h"
#include "cli/machine.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/platform.h"
#include "config/core/file_blocks.h"
#include "config/core/known_file.h"
#include "launch/core/restore_copy.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace ov::cli
{
namespace
{

// A copy for the user.
struct ListedCopy {
    std::size_t number; // From 1, the newest.
    DatedCopy copy;
    std::string time;
    bool isPresent; // It has the content of the file.
};

bool IsNumber(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

// "2026-11-22", or more of a time: what ovprefs prints in text and in JSON, or a part of a copy's name.
bool IsTime(const std::string& text)
{
    constexpr std::string_view kForm = "0000-00-00 00:00:00";
    if (text.size() < 10 || text.size() > kForm.size())
        return false;
    return std::equal(text.begin(), text.end(), kForm.begin(),
                      [](char c, char form) { return form == '0' ? c >= '0' && c <= '9' : c == form; });
}

std::string WithUsualSeparators(std::string time)
{
    std::ranges::replace(time, 'T', ' ');
    std::ranges::replace(time, '.', ':');
    return time;
}

class RestoreCommand final : public Command
{
  public:
    void Declare(Options& options) override
    {
        options.Operand("FILE", m_path, "The configuration file; it need not exist any more");
        options.Flag("--list", m_list, "List the copies, newest first");
        options.Text("--copy", "COPY", m_copy,
                     "The copy to bring back, by its number or the beginning of its time; without it, the "
                     "newest one with other content than the file");
        options.Text("--folder", "DIR", m_folder, "The folder with the copies; without it, that of the file");
        options.Flag("--dry-run", m_dryRun, "Print the difference instead of writing the file");
        options.Choice("--format", m_format, {"text", "json"}, "The form of the list");
    }

    ExitCode Run(Output& output) override
    {
        CheckUsage();
        if (!MayWriteTo(m_path, output))
            return ExitCode::Failed;
        CopyList list = ListDatedCopies(Path(), Folder(), m_ports);
        if (!list.result) {
            output.Problem(m_folder.value_or(m_path) + ": The copies cannot be listed" +
                           Because(list.result.systemText));
            return ExitCode::Failed;
        }
        const std::vector<ListedCopy> copies = Listed(std::move(list));
        if (m_list)
            return PrintList(copies, output);
        const ListedCopy* const chosen = Choose(copies, output);
        if (chosen == nullptr)
            return ExitCode::Found;
        return m_dryRun ? PrintDifference(*chosen, output) : Restore(*chosen, output);
    }

  private:
    enum class Format { AsText, AsJson };

    void CheckUsage() const
    {
        if (m_list && (m_copy || m_dryRun))
            throw Usage("--list brings nothing back; leave out the other options");
        if (!m_list && m_format == Format::AsJson)
            throw Usage("--format json is for --list");
        if (!m_copy)
            return;
        const std::string asked = WithUsualSeparators(*m_copy);
        if (!IsTime(asked) && (!IsNumber(asked) || asked.find_first_not_of('0') == std::string::npos))
            throw Usage("--copy: '" + *m_copy +
                        "' is neither a number from 1 nor a time such as 2026-11-22 13:05");
    }

    Text Path() const { return TextFromUtf8(m_path); }
    Text Folder() const { return m_folder ? TextOfArgument(*m_folder) : Text(); }

    std::vector<ListedCopy> Listed(CopyList list) const
    {
        std::string present;
        const bool hasFile = static_cast<bool>(ReadWhole(m_ports.files, Path(), present));
        std::vector<ListedCopy> copies;
        for (DatedCopy& copy : list.copies) {
            const bool isPresent =
                hasFile && CompareContent(m_ports.files, copy.path, present) == ContentMatch::Same;
            std::string time = Utf8FromText(FormatLocalTime(copy.time));
            copies.push_back({copies.size() + 1, std::move(copy), std::move(time), isPresent});
        }
        return copies;
    }

    ExitCode PrintList(const std::vector<ListedCopy>& copies, Output& output) const
    {
        if (m_format == Format::AsJson) {
            auto json = nlohmann::ordered_json::array();
            for (const ListedCopy& each : copies) {
                std::string time = each.time;
                std::ranges::replace(time, ' ', 'T');
                json.push_back({{"number", each.number},
                                {"time", std::move(time)},
                                {"size", each.copy.size},
                                {"path", Utf8FromText(each.copy.path)},
                                {"present", each.isPresent}});
            }
            output.Print(PrintedJson({{"path", m_path}, {"copies", std::move(json)}}));
        }
        for (const ListedCopy& each : copies) {
            if (m_format == Format::AsText)
                output.Print(std::to_string(each.number) + "\t" + each.time + "\t" +
                             std::to_string(each.copy.size) + " bytes\t" + Utf8FromText(each.copy.path) +
                             (each.isPresent ? "\tas the file is now\n" : "\n"));
        }
        if (!copies.empty())
            return ExitCode::Done;
        ReportNoCopy(output);
        return ExitCode::Found;
    }

    void ReportNoCopy(Output& output) const
    {
        output.Problem(m_path + (m_folder ? ": There is no copy of it in " + *m_folder
                                          : std::string(": There is no copy beside it; see --folder")));
    }

    // The copy that the options name. Reports the problem and returns null if there is none.
    const ListedCopy* Choose(const std::vector<ListedCopy>& copies, Output& output) const
    {
        if (copies.empty()) {
            ReportNoCopy(output);
            return nullptr;
        }
        if (!m_copy) {
            const auto other = std::ranges::find(copies, false, &ListedCopy::isPresent);
            if (other == copies.end()) {
                output.Problem(m_path + ": Every copy has the content of the file");
                return nullptr;
            }
            return &*other;
        }
        return IsNumber(*m_copy) ? ChooseByNumber(copies, output) : ChooseByTime(copies, output);
    }

    const ListedCopy* ChooseByNumber(const std::vector<ListedCopy>& copies, Output& output) const
    {
        const std::string digits = m_copy->substr(m_copy->find_first_not_of('0'));
        const auto found = std::ranges::find_if(
            copies, [&](const ListedCopy& each) { return std::to_string(each.number) == digits; });
        if (found != copies.end())
            return &*found;
        output.Problem(m_path + ": There is no copy " + digits + "; the oldest is " +
                       std::to_string(copies.size()));
        return nullptr;
    }

    const ListedCopy* ChooseByTime(const std::vector<ListedCopy>& copies, Output& output) const
    {
        const std::string time = WithUsualSeparators(*m_copy);
        const ListedCopy* chosen = nullptr;
        for (const ListedCopy& each : copies) {
            if (!each.time.starts_with(time))
                continue;
            if (chosen != nullptr) {
                output.Problem(m_path + ": Several copies have the time " + time +
                               "; name one by its number");
                return nullptr;
            }
            chosen = &each;
        }
        if (chosen == nullptr)
            output.Problem(m_path + ": There is no copy with the time " + time);
        return chosen;
    }

    ExitCode PrintDifference(const ListedCopy& chosen, Output& output) const
    {
        std::string wanted;
        if (FileResult reading = ReadWhole(m_ports.files, chosen.copy.path, wanted); !reading) {
            output.Problem(Utf8FromText(chosen.copy.path) + ": The copy cannot be read" +
                           Because(reading.systemText));
            return ExitCode::Failed;
        }
        std::string present;
        if (m_ports.files.Kind(Path()) != FileKind::Absent) {
            if (FileResult reading = ReadWhole(m_ports.files, Path(), present); !reading) {
                output.Problem(m_path + ": The file cannot be read" + Because(reading.systemText));
                return ExitCode::Failed;
            }
        }
        PrintUnifiedDiff(output, present, wanted, m_path);
        return ExitCode::Done;
    }

    ExitCode Restore(const ListedCopy& chosen, Output& output) const
    {
        const AttributeKeeper attributes(m_path);
        const RestoreResult result =
            RestoreCopy(Path(), chosen.copy.path, {.folder = Folder()}, LocalTimeNow(), m_ports);
        switch (result.outcome) {
        case RestoreOutcome::CopyUnreadable:
            output.Problem(Utf8FromText(chosen.copy.path) + ": The copy cannot be read" +
                           Because(result.systemText));
            return ExitCode::Failed;
        case RestoreOutcome::FileUnreadable:
            output.Problem(m_path + ": The file cannot be read; nothing was written" +
                           Because(result.systemText));
            return ExitCode::Failed;
        case RestoreOutcome::NotKept:
            output.Problem(m_path + ": The present content cannot be copied; nothing was written" +
                           Because(result.kept.systemText));
            return ExitCode::Failed;
        case RestoreOutcome::NotNeeded:
            output.Remark(m_path + ": The file has the content of this copy already.");
            return ExitCode::Done;
        case RestoreOutcome::NotSaved:
        case RestoreOutcome::Restored:
            break;
        }
        const ExitCode code = ReportSave(m_path, result.save, output);
        if (code == ExitCode::Done)
            output.Remark(m_path + ": The copy of " + chosen.time + " is back" + ReplacedText(result.kept));
        return code;
    }

    static std::string ReplacedText(const CopyResult& kept)
    {
        return kept.path.empty() ? "." : "; the replaced content is in " + Utf8FromText(kept.path) + ".";
    }

    std::string m_path;
    bool m_list = false;
    bool m_dryRun = false;
    std::optional<std::string> m_copy;
    std::optional<std::string> m_folder;
    Format m_format = Format::AsText;
    std::unique_ptr<FilePort> m_files = MakeFilePort();
    std::unique_ptr<FolderPort> m_folders = MakeFolderPort();
    FilePorts m_ports{*m_files, *m_folders};
};

} // namespace

std::unique_ptr<Command> MakeRestoreCommand()
{
    return std::make_unique<RestoreCommand>();
}

} // namespace ov::cli
