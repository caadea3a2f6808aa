#pragma once

#include "inspect/core/dialog_model.h"
#include "inspect/core/finding.h"
#include "inspect/core/inspected_file.h"
#include "inspect/core/rules.h"
#include "inspect/core/setting_index.h"

#include <chrono>
#include <functional>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace ov
{

/// Where the three texts of the header that Save writes come from.
struct HeaderSources {
    HeaderInfo machine; ///< for a file that has no header of an earlier save
    // Each takes the place of what is in the file's header, or of the machine's.
    std::optional<Text> date;
    std::optional<Text> user;
    std::optional<Text> computer;
};

/// The texts of the header that Save writes into the file: those that are given, else those that
/// an earlier save has left in it, else the machine's.
HeaderInfo HeaderToWrite(const InspectedFile& file, const HeaderSources& sources);

/// What inspecting files depends on besides the files.
struct InspectionSettings {
    RuleSet rules;
    std::optional<FileBytesView> defaults; ///< the defaults file; absent for none
    std::chrono::year_month_day today;     ///< the day that an open scan period ends with
    HeaderSources header;
    /// Whether there is a file or folder under the path.
    std::function<bool(const Text& path)> pathExists;
};

/// Finds what is wrong with files, one after the other.
class Inspector
{
  public:
    explicit Inspector(const InspectionSettings& settings);

    /// All findings of the selected rules, in the order of the lines.
    std::vector<Finding> Inspect(const InspectedFile& file);

  private:
    InspectionSettings m_settings;
    DialogModel m_dialog;
    SettingStore m_defaults; ///< the defaults file read by itself, as a current file would be
};

/// The inspection of one file: what the rules look at, and what they have found.
class Inspection
{
  public:
    Inspection(const InspectionSettings& settings, const InspectedFile& file, DialogModel& dialog,
               const SettingStore& defaults)
        : m_settings(settings), m_file(file), m_dialog(dialog), m_defaults(defaults)
    {
    }

    const InspectionSettings& Settings() const { return m_settings; }
    const InspectedFile& File() const { return m_file; }
    DialogModel& Dialog() { return m_dialog; }
    const SettingStore& Defaults() const { return m_defaults; }

    /// Has every page of the dialog saved. What the settings were before is kept.
    void SavePages();

    /// The setting's value as it is read now; nothing when the file does not have it. After
    /// SavePages only.
    const std::optional<Text>& ValueOf(const SettingPlace& place) const;

    /// The setting's value as Save writes it; empty when it writes none. After SavePages only.
    Text SavedValueOf(const SettingPlace& place) const;

    /// The value of any variable as it is read now; nothing when the file does not have it. After
    /// SavePages only.
    std::optional<Text> ValueOf(TextView variable) const;

    /// Notes a finding at a line, counted from 0; the column is that of its value. Returns
    /// it to be completed, null when the rule is not selected.
    Finding* Add(RuleId rule, std::size_t line, const std::vector<MessagePart>& parts);

    /// The same at the last line of a variable, which the finding is about.
    Finding* AddAt(RuleId rule, const InspectedFile::Variable& variable,
                   const std::vector<MessagePart>& parts);

    /// The variables that a finding about their values names, whether it is selected or not:
    /// nothing more is said about what Save makes of them.
    std::set<std::string_view>& Explained() { return m_explained; }

    std::vector<Finding>& Findings() { return m_findings; }

  private:
    const InspectionSettings& m_settings;
    const InspectedFile& m_file;
    DialogModel& m_dialog;
    const SettingStore& m_defaults;
    std::vector<std::optional<Text>> m_values; ///< of AllSettings, as they are read now
    std::set<std::string_view> m_explained;
    std::vector<Finding> m_findings;
};

// The rules by what they look at: the lines; the pages as they are shown, before SavePages; the
// values and what Save makes of them, after it.
void InspectLines(Inspection& inspection);
void InspectPages(Inspection& inspection);
void InspectValues(Inspection& inspection);
void InspectSave(Inspection& inspection);

} // namespace ov
