#include "match/core/pattern_match.h"

#include "match/core/perl_code.h"
#include "match/core/wildcard_table.h"
#include "match/core/wildcard_walk.h"

#include <memory>
#include <new>
#include <string>

namespace ov
{
namespace
{

struct ReleaseMatchData {
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};

// The text is known to differ from the pattern.
bool MatchWildcards(TextView pattern, TextView text, WildcardType type, bool exact)
{
    if (type < WildcardTypeNone)
        return text.empty();
    if (type == WildcardTypeNone)
        return pattern == text;
    return TabulateWildcards(pattern, text, {type >= WildcardTypeRanges, type >= WildcardTypeSubsets, exact});
}

// The regular expression may match anywhere in the text. PCRE2's limits stop a match that takes too long.
std::uint32_t MatchPerl(std::uint32_t& match, TextView pattern, TextView text, bool exact)
{
    match = 0;
    const std::string subject = Utf8FromText(text);
    const auto code = CompilePerl(pattern, exact).code;
    if (code == nullptr)
        return kMatchFailed;
    const std::unique_ptr<pcre2_match_data, ReleaseMatchData> data(
        pcre2_match_data_create_from_pattern(code.get(), nullptr));
    if (data == nullptr)
        return kMatchFailed;
    const int found = pcre2_match(code.get(), reinterpret_cast<PCRE2_SPTR>(subject.data()), subject.size(), 0,
                                  0, data.get(), nullptr);
    if (found < 0 && found != PCRE2_ERROR_NOMATCH)
        return kMatchFailed;
    match = found >= 0 ? 1 : 0;
    return kMatchDone;
}

} // namespace

std::uint32_t MatchPattern(std::uint32_t* match, const char16_t* pattern, const char16_t* text,
                           WildcardType type, int caseFlag)
{
    if (match == nullptr || pattern == nullptr || text == nullptr)
        return kMatchFailed;
    const bool exact = caseFlag != 0;
    if (type == WildcardTypeDos || type == WildcardTypeRanges) {
        if (const auto fits = WalkWildcards(pattern, text, type == WildcardTypeRanges, exact)) {
            *match = *fits ? 1 : 0;
            return kMatchDone;
        }
    }
    if (EqualTexts(pattern, text, exact)) {
        *match = 1;
        return kMatchDone;
    }
    try {
        switch (type) {
        case WildcardTypePerl:
            return MatchPerl(*match, pattern, text, exact);
        case WildcardTypePosix:
            *match = 0;
            return kMatchFailed;
        default:
            *match = MatchWildcards(pattern, text, type, exact) ? 1 : 0;
            return kMatchDone;
        }
    } catch (const std::bad_alloc&) {
        return kMatchFailed;
    }
}

} // namespace ov
