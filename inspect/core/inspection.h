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

/// The sources of the three texts in the header that Save writes.
struct HeaderSources {
    HeaderInfo machine; ///< for a file without a header from an earlier save
    // Each of these replaces the text from the file's header or from the machine.
    std::optional<Text> date;
    std::optional<Text> user;
    std::optional<Text> computer;
};

/// The texts for the header that Save writes into the file: the given ones, else those of the header
/// from an earlier save, else those of the machine.
HeaderInfo HeaderToWrite(const InspectedFile& file, const HeaderSources& sources);

/// What the findings depend on besides the inspected files.
struct InspectionSettings {
    RuleSet rules;
    std::optional<FileBytesView> defaults; ///< the defaults file; nothing if there is none
    std::chrono::year_month_day today;     ///< the end of a scan period without an end date
    HeaderSources header;
    /// True if a file or folder exists under the path.
    std::function<bool(const Text& path)> pathExists;
};

/// Checks files against the rules, one after another.
class Inspector
{
  public:
    explicit Inspector(const InspectionSettings& settings);

    /// All findings of the selected rules, in line order.
    std::vector<Finding> Inspect(const InspectedFile& file);

  private:
    InspectionSettings m_settings;
    DialogModel m_dialog;
    SettingStore m_defaults; ///< the defaults file, read on its own as a current file would be
};

/// The inspection of one file: the data that the rules check, and their findings.
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

    /// Every page of the dialog writes its settings. The earlier values are kept.
    void SavePages();

    /// The value of the setting as read now; nothing if the file does not have it. Call it
    /// after SavePages.
    const std::optional<Text>& ValueOf(const SettingPlace& place) const;

    /// The value of the setting that Save writes; empty if it writes none. Call it after SavePages.
    Text SavedValueOf(const SettingPlace& place) const;

    /// The value of any variable as read now; nothing if the file does not have it. Call it
    /// after SavePages.
    std::optional<Text> ValueOf(TextView variable) const;

    /// Adds a finding at a line, counted from 0; the column is that of its value. Returns
    /// the finding so that it can be completed; null if the rule is not selected.
    Finding* Add(RuleId rule, std::size_t line, const std::vector<MessagePart>& parts);

    /// Adds a finding about the file as a whole: at its first line and column.
    Finding* AddToFile(RuleId rule, const std::vector<MessagePart>& parts);

    /// Adds a finding about a variable, at the variable's last line.
    Finding* AddAt(RuleId rule, const InspectedFile::Variable& variable,
                   const std::vector<MessagePart>& parts);

    /// The variables whose values a finding explains, even if its rule is not selected. Rules
    /// about changes by Save do not report them again.
    std::set<std::string_view>& Explained() { return m_explained; }

    std::vector<Finding>& Findings() { return m_findings; }

  private:
    const InspectionSettings& m_settings;
    const InspectedFile& m_file;
    DialogModel& m_dialog;
    const SettingStore& m_defaults;
    std::vector<std::optional<Text>> m_values; ///< the values of AllSettings as read now
    std::set<std::string_view> m_explained;
    std::vector<Finding> m_findings;
};

// The rules in groups: InspectLines and InspectPages run before SavePages; InspectValues and
// InspectSave run after it.
void InspectLines(Inspection& inspection);
void InspectPages(Inspection& inspection);
void InspectValues(Inspection& inspection);
void InspectSave(Inspection& inspection);

} // namespace ov
