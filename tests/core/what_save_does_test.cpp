// Runs the tables in docs/what-save-does.md: every row with the lines of a file before and after a
// save is processed by reader, pages and writer.

#include "config/core/config_writer.h"
#include "inspect/core/dialog_model.h"
#include "tests/core/scoped_locale.h"
#include "tests/data/test_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace ov
{
namespace
{

using Lines = std::vector<std::string>;

std::string ReadBytes(const char* path)
{
    std::ifstream file(test::TestData(path), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

Lines LinesOf(const std::string& bytes)
{
    Lines lines;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

// The name that a line of a saved file assigns; empty for any other line.
std::string NameOf(const std::string& line)
{
    const std::size_t end = line.find(' ');
    const bool assigns = end != 0 && end != std::string::npos && line[0] != '#' && line[0] != '%' &&
                         (line.compare(end, 3, " = ") == 0 || line.compare(end, 3, " > ") == 0);
    return assigns ? line.substr(0, end) : std::string();
}

// The lines of the variables with these names, including the comments above them.
Lines WithNames(const Lines& lines, const std::set<std::string>& names)
{
    Lines kept;
    Lines above;
    for (const std::string& line : lines) {
        above.push_back(line);
        if (const std::string name = NameOf(line); !name.empty()) {
            if (names.contains(name))
                std::ranges::copy(above, std::back_inserter(kept));
            above.clear();
        }
    }
    return kept;
}

struct Row {
    std::string what;
    Lines before;
    Lines after;
};

// The pieces of code in a table cell.
Lines CodeOf(const std::string& cell)
{
    static const std::regex code("`([^`]*)`");
    Lines lines;
    for (std::sregex_iterator it(cell.begin(), cell.end(), code), end; it != end; ++it)
        lines.push_back((*it)[1].str());
    return lines;
}

std::vector<Row> DocumentedRows()
{
    const std::regex pattern(R"(\| ?(.*) \| (.*) \| (.*) \|)");
    std::vector<Row> rows;
    bool inTable = false;
    for (const std::string& line : LinesOf(ReadBytes("docs/what-save-does.md"))) {
        std::smatch cells;
        if (line == "| what | in the file | after Save |")
            inTable = true;
        else if (!line.starts_with('|'))
            inTable = false;
        else if (inTable && line != "|---|---|---|" && std::regex_match(line, cells, pattern))
            rows.push_back({cells[1].str(), CodeOf(cells[2].str()), CodeOf(cells[3].str())});
    }
    return rows;
}

class WhatSaveDoes : public testing::Test
{
  protected:
    // The lines after the header when these bytes are saved.
    Lines Saved(const std::string& bytes)
    {
        const HeaderInfo info{u"Friday 20 November 2026, 19:12:00", u"Jane Admin", u"OFFICE-01"};
        m_dialog.Open({bytes, Charset::OfProcess});
        m_dialog.SavePages();
        std::string saved;
        EXPECT_TRUE(m_dialog.Write(info, saved));
        Lines lines = LinesOf(saved);
        lines.erase(lines.begin(), lines.begin() + std::ranges::count(MakeHeader(info), u'\n') + 1);
        return lines;
    }

  private:
    const test::ScopedLocale m_locale{"C"};
    DialogModel m_dialog{{}, std::chrono::year{2026} / 11 / 20};
};

TEST_F(WhatSaveDoes, EveryRowOfTheTablesHolds)
{
    const std::vector<Row> rows = DocumentedRows();
    EXPECT_EQ(rows.size(), 42u) << "rows that are not understood are not tested";
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what + (row.before.empty() ? "" : ": " + row.before[0]));
        std::string bytes = "# A header\r\n\r\n";
        std::set<std::string> names;
        for (const std::string& line : row.before) {
            bytes += line + "\r\n";
            names.insert(line.substr(0, line.find_first_of(" =")));
        }
        for (const std::string& line : row.after)
            names.insert(NameOf(line));
        Lines after = WithNames(Saved(bytes), names);
        std::erase(after, "");
        // Added variables have comments, which these rows omit.
        const auto isComment = [](const std::string& line) { return line.starts_with('#'); };
        if (std::ranges::none_of(row.before, isComment))
            std::erase_if(after, isComment);
        EXPECT_EQ(after, row.after);
    }
}

std::set<std::string> NamesIn(const Lines& lines)
{
    std::set<std::string> names;
    for (const std::string& line : lines)
        names.insert(NameOf(line));
    names.erase("");
    return names;
}

std::multiset<std::string> CommentsIn(const Lines& lines)
{
    std::multiset<std::string> comments;
    std::ranges::copy_if(lines, std::inserter(comments, comments.end()),
                         [](const std::string& line) { return line.starts_with('#'); });
    return comments;
}

TEST_F(WhatSaveDoes, TheSampleLosesAndGainsWhatTheDocumentSays)
{
    const Lines before = LinesOf(ReadBytes("samples/office.cfg"));
    const Lines after = Saved(ReadBytes("samples/office.cfg"));
    const auto directives =
        std::ranges::count_if(before, [](const std::string& line) { return line.starts_with('%'); });
    Lines lost;
    std::ranges::set_difference(CommentsIn(before), CommentsIn(WithNames(after, NamesIn(before))),
                                std::back_inserter(lost));
    const std::size_t added = NamesIn(after).size() - NamesIn(before).size();
    const std::string sentence = "drops " + std::to_string(directives) + " directives and " +
                                 std::to_string(lost.size()) + " comment lines, and adds " +
                                 std::to_string(added) + " variables.";
    std::string document = ReadBytes("docs/what-save-does.md");
    std::ranges::replace(document, '\n', ' ');
    EXPECT_NE(document.find(sentence), std::string::npos) << sentence;
}

TEST_F(WhatSaveDoes, AByteOrderMarkHidesWhatTheFirstLineSays)
{
    const Lines comment = Saved("\xEF\xBB\xBF# agreed by JW\r\n_ORTHOVAL_CHECK_CELLS = 1\r\n");
    EXPECT_EQ(std::ranges::count(comment, "_ORTHOVAL_CHECK_CELLS = 1"), 1);
    EXPECT_EQ(std::ranges::count_if(
                  comment, [](const auto& line) { return line.find("# agreed by JW") != std::string::npos; }),
              0);
    const Lines variable = Saved("\xEF\xBB\xBF_ORTHOVAL_CHECK_CELLS = 1\r\n");
    EXPECT_EQ(std::ranges::count(variable, "\xEF\xBB\xBF_ORTHOVAL_CHECK_CELLS = 1"), 1);
    EXPECT_EQ(std::ranges::count(variable, "_ORTHOVAL_CHECK_CELLS = 0"), 1);
}

TEST_F(WhatSaveDoes, AFileInUtf16IsNotUnderstood)
{
    for (const bool hasMark : {true, false}) {
        std::string bytes = hasMark ? "\xFF\xFE" : "";
        for (const char c : std::string("\r\n_ORTHOVAL_CHECK_CELLS = 1\r\n_ORTHOVAL_CHECK_TEXT = 1\r\n"))
            bytes.append(1, c).append(1, '\0');
        const Lines after = Saved(bytes);
        EXPECT_EQ(std::ranges::count(after, "_ORTHOVAL_CHECK_CELLS = 0"), 1);
        EXPECT_EQ(std::ranges::count(after, "_ORTHOVAL_CHECK_TEXT = 0"), 1);
    }
}

// An empty line between a comment and its variable belongs to the comment.
TEST_F(WhatSaveDoes, ABannerMovesWithTheVariableBelowIt)
{
    const Lines after =
        WithNames(Saved("#\r\n\r\n_SITE_B = 2\r\n\r\n# === A ===\r\n\r\n# one  \r\n_SITE_A = 1\r\n"),
                  {"_SITE_A", "_SITE_B"});
    EXPECT_EQ(after, (Lines{"", "# === A ===", "", "# one", "_SITE_A = 1", "", "_SITE_B = 2"}));
}

} // namespace
} // namespace ov
