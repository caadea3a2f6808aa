/// The expected content of a saved configuration file, computed independently.
#pragma once

#include <map>
#include <string>
#include <vector>

/// A setting of one of the pages and the control that edits it.
struct PageSetting {
    std::string variable;
    int control;
    unsigned help; ///< string id of the control's help text
    enum Kind { Flag, Text, Number } kind;
};

const std::vector<PageSetting>& BrandingSettings();
const std::vector<PageSetting>& ConformingSettings();

/// The section of a help text that follows the tag ("<D>", "<T>"), up to the
/// next tag; empty when it has none.
std::string HelpSection(unsigned help, const std::string& tag);

/// The comment that a variable new to the file gets from its description:
/// lines of at most about 100 columns after "# ", framed by an empty line and
/// lines "#". Line ends are LF.
std::string CommentBlock(const std::string& description);

/// Collects variables and gives the bytes of the file that Save has to write.
class ExpectedFile
{
  public:
    /// A variable with the lines that give its value, such as "NAME = 1", under
    /// a comment with LF line ends, its own line end included.
    void Add(const std::string& variable, const std::string& comment, const std::vector<std::string>& lines);

    /// Adds every setting of the pages that is not there yet as a file gets
    /// them that has none, the comment its description.
    void AddMissingSettings();

    /// The file, its variables in order of their names' bytes, lines ended by
    /// CR LF, and "%DATE%" where the date stands.
    std::string Bytes(const std::string& user) const;

  private:
    std::map<std::string, std::string> m_elements;
};

/// Replaces the date in a saved file's header by "%DATE%".
/// @return the date; empty when the header has no such line.
std::string TakeDate(std::string& bytes);

/// The meaning of a saved file: the lines "NAME = value" and "NAME > item".
std::vector<std::string> AssignmentsOf(const std::string& bytes);

/// The line that assigns to the variable, without its line end; empty when
/// there is none, and the several lines joined by "|" when it is a list.
std::string AssignmentOf(const std::string& bytes, const std::string& variable);
