#define PCRE2_CODE_UNIT_WIDTH 8
#include <gtest/gtest.h>

#include <memory>
#include <pcre2.h>
#include <string>

namespace ov
{
namespace
{

// The result of a search: 0 or greater for a match.
int Search(const std::string& expression, const std::string& subject, std::uint32_t options)
{
    const auto bytes = [](const std::string& s) { return reinterpret_cast<PCRE2_SPTR>(s.c_str()); };
    int error = 0;
    PCRE2_SIZE offset = 0;
    const std::unique_ptr<pcre2_code, void (*)(pcre2_code*)> code(
        pcre2_compile(bytes(expression), PCRE2_ZERO_TERMINATED, options, &error, &offset, nullptr),
        pcre2_code_free);
    if (!code)
        return PCRE2_ERROR_BADDATA;
    const std::unique_ptr<pcre2_match_data, void (*)(pcre2_match_data*)> data(
        pcre2_match_data_create_from_pattern(code.get(), nullptr), pcre2_match_data_free);
    return pcre2_match(code.get(), bytes(subject), subject.size(), 0, 0, data.get(), nullptr);
}

TEST(Pcre2, MatchesWithoutRegardToCaseInUtf8)
{
    EXPECT_GE(Search("^A.C$", "abc", PCRE2_UTF | PCRE2_CASELESS), 0);
    // Both letters have two bytes: "." matches one whole character, and case folding includes non-ASCII.
    EXPECT_GE(Search("^\xC3\x89.$", "\xC3\xA9\xC3\xBC", PCRE2_UTF | PCRE2_CASELESS), 0);
}

TEST(Pcre2, TellsAMismatchFromAnError)
{
    EXPECT_EQ(Search("^A.C$", "abd", PCRE2_UTF | PCRE2_CASELESS), PCRE2_ERROR_NOMATCH);
    EXPECT_EQ(Search("^A.C$", "abc", PCRE2_UTF), PCRE2_ERROR_NOMATCH);
    EXPECT_EQ(Search("(", "abc", PCRE2_UTF), PCRE2_ERROR_BADDATA);
}

} // namespace
} // namespace ov
