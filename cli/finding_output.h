#pragma once

#include "inspect/core/finding.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

namespace ov::cli
{

class Output;

/// The findings of one file.
struct FileFindings {
    std::string path;
    std::vector<Finding> findings;
};

/// Prints one line for each finding: "FILE:LINE:COLUMN: SEVERITY: MESSAGE [RULE]".
void PrintFindings(Output& output, const FileFindings& file);

/// The findings as an array of objects.
nlohmann::ordered_json FindingsAsJson(const std::vector<Finding>& findings);

/// All findings as a SARIF 2.1.0 log.
nlohmann::ordered_json FindingsAsSarif(const std::vector<FileFindings>& files);

/// JSON as printed. Invalid UTF-8 becomes replacement characters.
std::string PrintedJson(const nlohmann::ordered_json& json);

} // namespace ov::cli
