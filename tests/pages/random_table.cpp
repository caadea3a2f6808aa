#include "tests/pages/random_table.h"

namespace expected
{
namespace
{
class Values
{
  public:
    Values(std::mt19937& random, Carrier carrier) : m_random(random), m_inFile(carrier == Carrier::File) {}

    int Number(int first, int last) { return std::uniform_int_distribution<int>(first, last)(m_random); }
    bool Chance(int percent) { return Number(1, 100) <= percent; }

    std::string Of(const Setting& setting)
    {
        switch (setting.meaning) {
        case Meaning::Flag:
        case Meaning::UnlessZero:
            return OneOf({"1", "1", "0", "0", "", "yes", "01", "-1", "2", "1 or so"}, {" 1", "1 ", "\"1\""});
        case Meaning::Text:
        case Meaning::TextOrZero:
            return setting.kind == 3 || setting.kind == 5 ? NumberText() : AnyText();
        case Meaning::Index:
            return OneOf({"", "0", "1", "2", "2 of 3"}, {" 1"}, {"3", "7", "-1", "-4"});
        case Meaning::ListOfThree:
        case Meaning::ButtonsOfThree:
            return OneOf({"1", "0", "-1", "", "2", "-7", "1x", "0.5", "never"}, {" 1", "\t0"});
        case Meaning::Models:
            return OneOf({"", "0", "1", "2", "3", "6", "7", "-1", "-3", "-6", "-7", "none", "4th"}, {" -2"},
                         {"8", "-9", "100"});
        case Meaning::Preset:
            return PresetText(setting);
        case Meaning::ScaleSource:
            return OneOf({"", "0", "1", "2", "yes", "00", "-1"}, {" 1 ", "\t0", " "});
        case Meaning::Scales:
            return OneOf({"", "1:50,1:100", "[1:50,1:100]", "[1:50", "1:50]", "[]", "[[1:5]]", "[1:5],[1:6]"},
                         {" [1:50] ", "\t1:20", " "});
        case Meaning::ScaleFactor:
            return OneOf(
                {"", "2", "0.1", "1.1", "0.75", "0.74999", "1.250", "1.25001", "about 1", "-3", "1.2 or so"},
                {" 0.9", " 7"});
        case Meaning::Period:
            return PeriodText();
        case Meaning::LeftAlone:
            return setting.kind == 4 ? OneOf({"1", "0"}, {"yes"}) : AnyText();
        }
        return {};
    }

    /// The older variable of a scan period: a code and a day.
    std::string OlderPeriod()
    {
        const std::string code = std::to_string(Number(-1, 10));
        return Chance(50) ? code : code + "," + Day(",");
    }

    std::string AnyText()
    {
        if (Chance(20))
            return {};
        if (!m_inFile && Chance(30))
            return OneOf({" both ends ", "\"", "a;;b;", "#", " ", "= x", "\xC3\xA9t\xC3\xA9", ";"});
        std::string text = Words();
        // Items without blanks at their ends come back from a file unchanged.
        if (Chance(25))
            text += ";" + Words();
        return text;
    }

  private:
    using Texts = std::initializer_list<const char*>;

    /// Returns one of the texts: for Carrier::Store also one that a file would change,
    /// for Carrier::File also one that controls refuse.
    std::string OneOf(Texts texts, Texts outsideOfFiles = {}, Texts byControls = {})
    {
        std::vector<const char*> all = texts;
        const Texts more = m_inFile ? byControls : outsideOfFiles;
        all.insert(all.end(), more);
        return all[static_cast<std::size_t>(Number(0, static_cast<int>(all.size()) - 1))];
    }

    std::string NumberText()
    {
        return OneOf({"", "0", "1", "25", "-1", "0.01", "10000", "12 or so", "007"}, {" 5 ", "+3"});
    }

    std::string Words()
    {
        static constexpr char first[] = "ABCxyz059$\\(*.";
        static constexpr char inner[] = "ABCxyz059$\\()*?.,:-_'[]&~! ";
        std::string text(1, first[Number(0, sizeof first - 2)]);
        const int length = Number(0, 30);
        for (int i = 0; i < length; ++i)
            text += inner[Number(0, sizeof inner - 2)];
        while (text.back() == ' ')
            text.pop_back();
        return text;
    }

    std::string PresetText(const Setting& setting)
    {
        if (Chance(40))
            return AnyText();
        std::string text =
            setting
                .presets[static_cast<std::size_t>(Number(0, static_cast<int>(setting.presets.size()) - 1))];
        for (char& c : text) {
            if (c >= 'A' && c <= 'Z' && Chance(20))
                c = static_cast<char>(c - 'A' + 'a');
        }
        return text;
    }

    /// A day that exists in every year, from 1970 on. Clocks may change at any hour of that day, but not
    /// at midnight in every time zone.
    std::string Day(const std::string& separator)
    {
        return std::to_string(Number(1, 28)) + separator + std::to_string(Number(1, 12)) + separator +
               std::to_string(Number(1971, 2037));
    }

    std::string PeriodText()
    {
        if (Chance(20))
            return OneOf({"", "0", "1", "1,,1", "0,1,5"});
        const std::string separator = Chance(70) ? ", " : Chance(50) ? "," : ",,";
        const std::string parts[] = {
            std::to_string(Number(0, 1)),
            std::to_string(Number(0, 1)),
            std::to_string(Number(0, 10)),
            Day(separator),
            std::to_string(Number(0, 1)),
            std::to_string(Number(0, 2)),
            std::to_string(Number(0, 1)),
            std::to_string(Number(0, 10)),
            Day(separator),
            std::to_string(Number(0, 1)),
        };
        std::string text;
        const int count = Chance(60) ? 10 : Number(1, 10);
        for (int i = 0; i < count; ++i)
            text += (i > 0 ? separator : "") + parts[i];
        return text;
    }

    std::mt19937& m_random;
    bool m_inFile;
};
} // namespace

Table RandomTable(std::mt19937& random, Carrier carrier)
{
    Values values(random, carrier);
    Table table;
    const int percent = values.Number(0, 3) * 30 + 10;
    for (const Page& page : Pages()) {
        for (const Setting& setting : page.settings) {
            if (values.Chance(percent))
                table[setting.variable] = values.Of(setting);
        }
    }
    if (values.Chance(30))
        table["_ORTHOVAL_SCANPERIOD_VALUE"] = values.OlderPeriod();
    if (values.Chance(30))
        table["_ORTHOVAL_REPORT_TEMPLATE_DSN_XLS"] = values.AnyText();
    return table;
}

} // namespace expected
