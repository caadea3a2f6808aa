// Measures the matching of patterns: on names, in comparison with fnmatch of the C library, and on
// patterns and texts that are expensive to match.

#include "bench/measure.h"
#include "match/core/pattern_match.h"

#include <algorithm>
#include <cstdio>
#include <fnmatch.h>
#include <random>
#include <string>
#include <utility>

namespace
{

using namespace ov::bench;

constexpr int kExact = 1;
constexpr int kNoCase = 0;

// The same texts in the formats of both sides.
struct Names {
    std::vector<std::string> bytes;
    std::vector<ov::Text> texts;
};

// Names of 20 characters, some with the beginnings and ends in the patterns.
Names MakeNames()
{
    static constexpr std::string_view kLetters = "ABCDEabcde0123456789_";
    static const std::vector<std::string> kBeginnings = {"AxC", "aBc", "B1_", "c1x",
                                                         "A1C", "AxD", "D1C", "_b1"};
    static const std::vector<std::string> kEnds = {".dgn", ".DGN", ".dwg", ".cel", "DGN_", ".rvt"};
    std::mt19937 engine{20261121}; // A fixed seed: every run measures the same names.
    Names names;
    for (int i = 0; i < 1000; ++i) {
        std::string name = kBeginnings[engine() % kBeginnings.size()];
        while (name.size() < 16)
            name += kLetters[engine() % kLetters.size()];
        name += kEnds[engine() % kEnds.size()];
        names.texts.push_back(ov::TextFromUtf8(name));
        names.bytes.push_back(std::move(name));
    }
    return names;
}

bool Fits(const ov::Text& pattern, const ov::Text& text, ov::WildcardType type)
{
    std::uint32_t match = 0;
    Require(ov::MatchPattern(&match, pattern.c_str(), text.c_str(), type, kNoCase) == ov::kMatchDone,
            "the match failed");
    return match != 0;
}

// The results of both sides are added up, so that the compiler cannot remove a call.
void MeasureNames(Table& table, Targets& targets)
{
    const Names names = MakeNames();
    const std::size_t count = names.texts.size();
    const auto nanoseconds = [count](double milliseconds) {
        return milliseconds * 1e6 / static_cast<double>(count);
    };
    const std::pair<std::string, ov::WildcardType> cases[] = {
        {"*.DGN", ov::WildcardTypeDos},   {"*.DGN", ov::WildcardTypeRanges},   {"A?C*", ov::WildcardTypeDos},
        {"A?C*", ov::WildcardTypeRanges}, {"[A-C]1*", ov::WildcardTypeRanges},
    };
    for (const auto& [bytes, type] : cases) {
        const ov::Text pattern = ov::TextFromUtf8(bytes);
        std::size_t expected = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const bool fits = fnmatch(bytes.c_str(), names.bytes[i].c_str(), FNM_CASEFOLD) == 0;
            Require(Fits(pattern, names.texts[i], type) == fits, "the matchers do not agree");
            expected += fits ? 1 : 0;
        }
        Require(expected > 0 && expected < count, "the names are all alike");
        Race race;
        const Race::Entry own = race.Add([&, kind = type] {
            std::size_t found = 0;
            std::uint32_t statuses = 0;
            for (const ov::Text& name : names.texts) {
                std::uint32_t match = 0;
                statuses |= ov::MatchPattern(&match, pattern.c_str(), name.c_str(), kind, kNoCase);
                found += match;
            }
            Require(statuses == ov::kMatchDone && found == expected, "the match has changed");
        });
        const Race::Entry library = race.Add([&, text = bytes.c_str()] {
            std::size_t found = 0;
            for (const std::string& name : names.bytes)
                found += fnmatch(text, name.c_str(), FNM_CASEFOLD) == 0 ? 1 : 0;
            Require(found == expected, "the match has changed");
        });
        race.Run(2000);
        const std::string what = bytes + " under type " + std::to_string(type);
        table.AddRow({bytes, std::to_string(type),
                      Decimal(100.0 * static_cast<double>(expected) / static_cast<double>(count), 0),
                      Decimal(nanoseconds(race.Best(own)), 1), Decimal(nanoseconds(race.Best(library)), 1),
                      Decimal(race.Best(own) / race.Best(library), 2)});
        targets.AtMost(what, race.Best(own) / race.Best(library), 1, " times fnmatch");
    }
}

ov::Text Repeated(ov::TextView part, std::size_t count)
{
    ov::Text text;
    for (std::size_t i = 0; i < count; ++i)
        text += part;
    return text;
}

// A pattern and a text that are expensive to match.
struct Hard {
    std::string what;
    ov::WildcardType type;
    ov::Text pattern;
    ov::Text text;
    double limit; ///< The maximum time in milliseconds; 0: only reported.
};

std::vector<Hard> MakeHardOnes()
{
    std::vector<Hard> all;
    const ov::Text stars = u"*a*a*a*a*a*a*a*b";
    for (const ov::WildcardType type : {ov::WildcardTypeDos, ov::WildcardTypeSubsets}) {
        for (const std::size_t length : {1000, 2000, 4000})
            all.push_back({"*a*a*a*a*a*a*a*b against " + std::to_string(length) + " a", type, stars,
                           Repeated(u"a", length), 0.02 * static_cast<double>(length) / 1000});
    }
    for (const std::size_t length : {20, 40, 60})
        all.push_back({"40 | and b against " + std::to_string(length) + " a", ov::WildcardTypeSubsets,
                       Repeated(u"|", 40) + u"b", Repeated(u"a", length), 1});
    all.push_back({"40 a| and b against 60 a", ov::WildcardTypeSubsets, Repeated(u"a|", 40) + u"b",
                   Repeated(u"a", 60), 1});
    all.push_back(
        {"[*a*b,*c*d] against 250 a", ov::WildcardTypeSubsets, u"[*a*b,*c*d]", Repeated(u"a", 250), 20});
    all.push_back(
        {"[*a*b,*c*d] against 125 ac", ov::WildcardTypeSubsets, u"[*a*b,*c*d]", Repeated(u"ac", 125), 20});
    all.push_back({"[*a*b,*c*d][*a*b,*c*d]x against 125 ab", ov::WildcardTypeSubsets,
                   u"[*a*b,*c*d][*a*b,*c*d]x", Repeated(u"ab", 125), 20});
    constexpr std::size_t kLong = 100000;
    const auto addLong = [&all](const std::string& what, ov::TextView part, ov::TextView text) {
        all.push_back({std::to_string(kLong) + " " + what, ov::WildcardTypeSubsets,
                       Repeated(part, kLong / part.size()), Repeated(text, kLong) + u"b", 0});
    };
    addLong("characters: a against 100000 a and b", u"a", u"a");
    addLong("characters: ? against 100000 a and b", u"?", u"a");
    addLong("characters: * against 100000 a and b", u"*", u"a");
    addLong("characters: | against 100000 a and b", u"|", u"a");
    addLong("characters: a* against 100000 a and b", u"a*", u"a");
    addLong("characters: [ against 100000 a and b", u"[", u"a");
    addLong("characters: [ab] against 100000 a and b", u"[ab]", u"a");
    return all;
}

void MeasureHardOnes(Table& table, Targets& targets)
{
    for (const Hard& hard : MakeHardOnes()) {
        std::uint32_t match = 0;
        const auto run = [&] {
            Require(ov::MatchPattern(&match, hard.pattern.c_str(), hard.text.c_str(), hard.type, kNoCase) ==
                        ov::kMatchDone,
                    "the match failed");
        };
        Race race;
        const Race::Entry entry = race.Add(run);
        race.Run(1);
        race.Run(race.Best(entry) < 1 ? 300 : race.Best(entry) < 1000 ? 3 : 0);
        table.AddRow(
            {hard.what, std::to_string(hard.type), match != 0 ? "yes" : "no", Decimal(race.Best(entry), 4)});
        if (hard.limit > 0)
            targets.AtMost(hard.what + " under type " + std::to_string(hard.type), race.Best(entry),
                           hard.limit, " ms", 4);
    }
}

// Every match includes compiling the regular expression.
void MeasurePerl(Table& table)
{
    const struct {
        ov::Text pattern;
        ov::Text text;
        int turns;
    } cases[] = {
        {u"^[A-Z]{2,4}-[0-9]+_[a-z]*\\.dgn$", u"ABC-0123_levels.dgn", 2000},
        {u"\\.dgn$", u"ABC-0123_levels.dwg", 2000},
        {u"^(a+)+$", Repeated(u"a", 30) + u"b", 5},
    };
    for (const auto& one : cases) {
        std::uint32_t match = 0;
        std::uint32_t status = 0;
        Race race;
        const Race::Entry entry = race.Add([&] {
            status =
                ov::MatchPattern(&match, one.pattern.c_str(), one.text.c_str(), ov::WildcardTypePerl, kExact);
        });
        race.Run(one.turns);
        const char* outcome = status != ov::kMatchDone ? "PCRE2's limit" : match != 0 ? "yes" : "no";
        table.AddRow({ov::Utf8FromText(one.pattern) + " against " + ov::Utf8FromText(one.text), outcome,
                      Decimal(race.Best(entry), 4)});
    }
}

} // namespace

int main()
{
    try {
        Table names("Names of 20 characters, without regard to case; nanoseconds a name",
                    {"template", "type", "fit %", "Preferences ns", "fnmatch ns", "ratio"});
        Table hard("Hard templates", {"template and text", "type", "fits", "ms"});
        Table perl("Regular expressions, compiled for each match", {"expression and text", "fits", "ms"});
        Targets targets;
        MeasureNames(names, targets);
        names.Print();
        MeasureHardOnes(hard, targets);
        hard.Print();
        MeasurePerl(perl);
        perl.Print();
        targets.Print();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_match: %s\n", error.what());
        return 1;
    }
    return 0;
}
