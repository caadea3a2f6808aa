// Compares matching with the simple recursive walk of the tests, and checks its time. The first line of
// an input contains the type (kTypes) and the case flag. The second line is the pattern, the rest the text.

#include "match/core/pattern_match.h"
#include "tests/core/literal_match.h"
#include "tests/fuzz/fuzz_input.h"

#include <ctime>
#include <limits>

namespace ov::fuzz
{
namespace
{

constexpr WildcardType kTypes[] = {
    WildcardTypeNone,
    WildcardTypeDos,
    WildcardTypeRanges,
    WildcardTypeSubsets,
    WildcardTypePerl,
    WildcardTypePosix,
    static_cast<WildcardType>(6),
    static_cast<WildcardType>(-1),
    static_cast<WildcardType>(std::numeric_limits<std::int32_t>::max()),
    static_cast<WildcardType>(std::numeric_limits<std::int32_t>::min()),
};

struct Answer {
    std::uint32_t status = 0;
    std::uint32_t match = 7;

    bool operator==(const Answer&) const = default;
};

Answer Ask(const Text& pattern, const Text& text, WildcardType type, int caseFlag)
{
    Answer answer;
    answer.status = MatchPattern(&answer.match, pattern.c_str(), text.c_str(), type, caseFlag);
    return answer;
}

double ThreadMilliseconds()
{
    std::timespec now{};
    OV_REQUIRE(clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now) == 0);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// In the product, a call must take at most 5 ms, so that a name is matched without delay. Here,
// instrumented and hardly optimised, a call takes 13 to 35 times as long.
constexpr double kInstrumented = 10;
constexpr double kLongestMilliseconds = 5 * kInstrumented;

// The result and the time of a call: the shortest of several calls, because a busy machine can delay
// some of them.
Answer AskInTime(const Text& pattern, const Text& text, WildcardType type, int caseFlag)
{
    constexpr int kTries = 5;
    Answer answer;
    double shortest = std::numeric_limits<double>::max();
    for (int i = 0; i < kTries && shortest > kLongestMilliseconds; ++i) {
        const double start = ThreadMilliseconds();
        answer = Ask(pattern, text, type, caseFlag);
        shortest = std::min(shortest, ThreadMilliseconds() - start);
    }
    OV_REQUIRE(shortest <= kLongestMilliseconds);
    return answer;
}

bool SameText(TextView a, TextView b, bool exact)
{
    return exact ? a == b : std::ranges::equal(a, b, {}, ToUpperAscii, ToUpperAscii);
}

bool IsPlain(const Text& text)
{
    return std::ranges::all_of(text, [](char16_t c) {
        return c == u' ' || IsDigit(c) || (ToUpperAscii(c) >= u'A' && ToUpperAscii(c) <= u'Z');
    });
}

bool Occurs(const Text& part, const Text& text, bool exact)
{
    for (std::size_t i = 0; i + part.size() <= text.size(); ++i) {
        if (SameText(part, TextView(text).substr(i, part.size()), exact))
            return true;
    }
    return false;
}

// PCRE2 gives the expected result; an expression without special characters is searched for literally.
void CheckPerl(const Text& pattern, const Text& text, int caseFlag)
{
    const Answer answer = Ask(pattern, text, WildcardTypePerl, caseFlag);
    OV_REQUIRE(answer.status == kMatchDone || answer.status == kMatchFailed);
    if (answer.status == kMatchDone)
        OV_REQUIRE(answer.match <= 1);
    if (IsPlain(pattern) && IsPlain(text))
        OV_REQUIRE(answer == (Answer{kMatchDone, Occurs(pattern, text, caseFlag != 0) ? 1U : 0U}));
}

void CheckWildcards(const Text& pattern, const Text& text, WildcardType type, int caseFlag)
{
    const Answer answer = AskInTime(pattern, text, type, caseFlag);
    constexpr std::size_t kCalls = 3000;
    constexpr std::size_t kLengthForAll = 24;
    Answer literal;
    literal.status =
        test::LiteralMatch(&literal.match, pattern.c_str(), text.c_str(), type, caseFlag, kCalls);
    if (literal.status == test::kMatchTooManyCalls) {
        if (text.size() > kLengthForAll)
            return;
        literal.status =
            test::LiteralMatchOnce(&literal.match, pattern.c_str(), text.c_str(), type, caseFlag);
    }
    OV_REQUIRE(answer == literal);
}

void Run(FuzzInput input)
{
    constexpr std::size_t kLongest = 128;
    Options options(input.Line());
    const WildcardType type = kTypes[options.Number(std::size(kTypes) - 1)];
    const int caseFlag = static_cast<int>(options.Number(2));
    Text pattern = Characters(input.Line().substr(0, kLongest));
    Text text = Characters(input.Rest().substr(0, kLongest));
    pattern.resize(std::min(pattern.find(u'\0'), pattern.size()));
    text.resize(std::min(text.find(u'\0'), text.size()));

    std::uint32_t match = 0;
    OV_REQUIRE(MatchPattern(nullptr, pattern.c_str(), text.c_str(), type, caseFlag) == kMatchFailed);
    OV_REQUIRE(MatchPattern(&match, nullptr, text.c_str(), type, caseFlag) == kMatchFailed);
    OV_REQUIRE(MatchPattern(&match, pattern.c_str(), nullptr, type, caseFlag) == kMatchFailed);

    if (SameText(pattern, text, caseFlag != 0))
        OV_REQUIRE(Ask(pattern, text, type, caseFlag) == (Answer{kMatchDone, 1}));
    else if (type == WildcardTypePosix)
        OV_REQUIRE(Ask(pattern, text, type, caseFlag).status == kMatchFailed);
    else if (type == WildcardTypePerl)
        CheckPerl(pattern, text, caseFlag);
    else
        CheckWildcards(pattern, text, type, caseFlag);
}

} // namespace
} // namespace ov::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ov::fuzz::Run(ov::fuzz::FuzzInput(data, size));
    return 0;
}
