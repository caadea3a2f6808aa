#include "tests/pages/random_file.h"

#include "tests/pages/random_table.h"

#include <vector>

namespace expected
{
namespace
{
constexpr const char* savedHeader[] = {
    "#",
    "# Orthoval Administration Configuration File.",
    "#",
    "# NOTE: This is a standard MicroStation configuration file read in at the",
    "#       application level. Variables can be copied from here into the User",
    "#       or Project configuration file to override them at various workspace",
    "#       levels. See the Orthoval Administrator's Guide for more",
    "#       information. Note also that commenting out a variable by preceding",
    "#       it with a '#' symbol will require a restart of MicroStation to",
    "#       purge it from memory.",
    "#",
    "# This file was last saved on Friday 20 November 2026, 19:12:00 by user J. Reeve on machine 'CAD-07'",
    "#",
};

class RandomLines
{
  public:
    explicit RandomLines(std::mt19937& random) : m_random(random), m_characters(Number(0, 5)) {}

    std::string Bytes()
    {
        AddHeader();
        for (const auto& [name, value] : RandomTable(m_random, Chance(50) ? Carrier::File : Carrier::Store)) {
            AddOther();
            AddVariable(name, value);
        }
        AddOther();
        return Joined();
    }

  private:
    int Number(int first, int last) { return std::uniform_int_distribution<int>(first, last)(m_random); }
    bool Chance(int percent) { return Number(1, 100) <= percent; }
    const char* OneOf(std::initializer_list<const char*> texts)
    {
        return texts.begin()[Number(0, static_cast<int>(texts.size()) - 1)];
    }

    void AddHeader()
    {
        switch (Number(0, 4)) {
        case 0:
            m_lines.insert(m_lines.end(), std::begin(savedHeader), std::end(savedHeader));
            break;
        case 1:
            m_lines.insert(m_lines.end(), {"##########", "# The York office", "##########"});
            break;
        case 2:
            m_lines.emplace_back("#");
            break;
        default:
            break;
        }
        if (Chance(80))
            m_lines.emplace_back();
    }

    /// Adds meaningless characters to a value, sometimes.
    std::string Seasoned(std::string value)
    {
        if (!Chance(m_characters == 0 ? 0 : 15))
            return value;
        // Few files contain the last ones.
        static const std::string rare[] = {"\xC3\xA9", "\xE9", "\x80", "\x9D", "\xE2\x82\xAC",      "#", "\"",
                                           ";",        "\t",   "  ",   "\r",   std::string(1, '\0')};
        const std::string& piece = rare[Number(0, m_characters == 5 ? 11 : 9)];
        value.insert(static_cast<std::size_t>(Number(0, static_cast<int>(value.size()))), piece);
        return value;
    }

    void AddVariable(const std::string& name, const std::string& plainValue)
    {
        const std::string value = Seasoned(plainValue);
        const std::string quote = Chance(40) ? "\"" : "";
        if (Chance(8))
            m_lines.push_back(name + OneOf({" = ", " > ", " < ", " + ", " : "}) + Seasoned("before"));
        if (Chance(70))
            AddAsList(name, value, quote);
        else
            m_lines.push_back(name + Operator() + quote + value + quote);
        if (Chance(6))
            m_lines.push_back(name + OneOf({" > ", " < ", " + ", " : ", " = "}) + quote + Seasoned("after") +
                              quote);
    }

    const char* Operator()
    {
        if (Chance(85))
            return " = ";
        return OneOf({" =", "= ", "=", "  =  ", "\t=\t", " > ", " < ", " + ", " : ", " == ", " := ", " => "});
    }

    void AddAsList(const std::string& name, const std::string& value, const std::string& quote)
    {
        const char* op = " = ";
        for (std::size_t start = 0; start <= value.size(); op = " > ") {
            const std::size_t end = std::min(value.find(';', start), value.size());
            m_lines.push_back(name + op + quote + value.substr(start, end - start) + quote);
            start = end + 1;
        }
    }

    void AddOther()
    {
        if (!Chance(25))
            return;
        const int count = Number(1, 3);
        for (int i = 0; i < count; ++i) {
            m_lines.push_back(Seasoned(OneOf({"",
                                              "",
                                              "# a comment",
                                              "#",
                                              "#_ORTHOVAL_CHECK_CELLS = 1",
                                              "  # indented ",
                                              "%include common.cfg",
                                              "%if defined (X)",
                                              "%endif",
                                              "HR_OFFICE = York",
                                              "HR_LIST = a;b;;c",
                                              "zoo = \"x y\"",
                                              "A = ",
                                              "A = \"\"",
                                              "lonely",
                                              "two words",
                                              "NAME=value",
                                              "_orthoval_check_cells = 1",
                                              "_ORTHOVAL_NO_SUCH = 5",
                                              "B = 1.5",
                                              "C = -",
                                              "D = $(X)/y",
                                              "\t",
                                              "<<<<<<< ours",
                                              "=======",
                                              ">>>>>>> theirs"})));
        }
    }

    std::string Joined()
    {
        const int ends = Number(0, 2);
        std::string bytes = Chance(3) ? "\xEF\xBB\xBF" : "";
        for (const std::string& line : m_lines) {
            bytes += line;
            bytes += ends == 0 || (ends == 1 && Chance(50)) ? "\r\n" : "\n";
        }
        if (Chance(20) && !bytes.empty())
            bytes.pop_back();
        return bytes;
    }

    std::mt19937& m_random;
    int m_characters; ///< 0 for a file of plain values, 5 for one that also contains unusual bytes
    std::vector<std::string> m_lines;
};
} // namespace

std::string RandomFile(std::mt19937& random)
{
    return RandomLines(random).Bytes();
}

} // namespace expected
