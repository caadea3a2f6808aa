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

/// The section of a help text after the tag ("<D>", "<T>"), up to the next tag;
/// empty if there is none.
std::string HelpSection(unsigned help, const std::string& tag);

/// The comment for a new variable with that description: lines of at most about
/// 100 columns after "# ", between an empty line and "#" and a final "#". Line
/// ends are LF.
std::string CommentBlock(const std::string& description);

/// Collects variables and returns the bytes of the file that Save has to write.
class ExpectedFile
{
  public:
    /// Adds a variable with the lines for its value, such as "NAME = 1", under a
    /// comment with LF line ends, including the last one.
    void Add(const std::string& variable, const std::string& comment, const std::vector<std::string>& lines);

    /// Adds every missing setting of the pages as Save adds it to a file, with its
    /// description as the comment.
    void AddMissingSettings();

    /// The file: its variables ordered by the bytes of their names, with CR LF line
    /// ends and "%DATE%" in place of the date.
    std::string Bytes(const std::string& user) const;

  private:
    std::map<std::string, std::string> m_elements;
};

/// Replaces the date in a saved file's header by "%DATE%".
/// @return the date; empty if the header has no such line.
std::string TakeDate(std::string& bytes);

/// The meaning of a saved file: the lines "NAME = value" and "NAME > item".
std::vector<std::string> AssignmentsOf(const std::string& bytes);

/// The line that assigns to the variable, without its line end; empty if there is
/// none; for a list, its lines joined by "|".
std::string AssignmentOf(const std::string& bytes, const std::string& variable);
