#include "match/core/tokens.h"

#include <algorithm>

namespace ov
{
namespace
{

bool Contains(const char16_t* set, char16_t c)
{
    if (set == nullptr)
        return false;
    for (; *set != u'\0'; ++set) {
        if (*set == c)
            return true;
    }
    return false;
}

bool EqualNoCase(char16_t a, char16_t b)
{
    return ToUpperAscii(a) == ToUpperAscii(b);
}

// Where the needle first occurs at or after `from`, npos when nowhere.
std::size_t PositionNoCase(TextView haystack, TextView needle, std::size_t from)
{
    const TextView rest = haystack.substr(from);
    const auto found = std::search(rest.begin(), rest.end(), needle.begin(), needle.end(), EqualNoCase);
    if (found == rest.end() && !needle.empty())
        return TextView::npos;
    return from + static_cast<std::size_t>(found - rest.begin());
}

// Appends the text with every doubled qualifier reduced to one.
void AppendUndoubled(Text& token, TextView text, char16_t qualifier)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        token.push_back(text[i]);
        if (text[i] == qualifier && i + 1 < text.size() && text[i + 1] == qualifier)
            ++i;
    }
}

class TokenReader
{
  public:
    TokenReader(TextView source, const char16_t* leadingSkip, const char16_t* trailingTrim,
                const char16_t* remove, const char16_t* consumedStops, const char16_t* keptStops,
                const char16_t* qualifier)
        : source_(source), trailing_trim_(trailingTrim), remove_(remove), consumed_stops_(consumedStops),
          kept_stops_(keptStops), has_qualifier_(qualifier != nullptr),
          qualifier_(qualifier != nullptr ? *qualifier : u'\0')
    {
        while (start_ < source_.size() && Contains(leadingSkip, source_[start_]))
            ++start_;
        end_ = source_.size();
        while (end_ > start_ + 1 && Contains(trailingTrim, source_[end_ - 1]))
            --end_;
    }

    // Sets the token and gives the number of characters consumed.
    std::size_t Read(Text& token) const
    {
        if (start_ == source_.size())
            return start_;
        if (IsQualifier(start_)) {
            std::size_t consumed = 0;
            if (ReadEmptyQualified(consumed) || ReadQualified(token, consumed))
                return consumed;
        }
        return Scan(token);
    }

  private:
    bool IsQualifier(std::size_t index) const { return has_qualifier_ && source_[index] == qualifier_; }
    bool IsStop(std::size_t index) const
    {
        return Contains(consumed_stops_, source_[index]) || Contains(kept_stops_, source_[index]);
    }

    // Two qualifiers and then a stop, or nothing but two qualifiers, are an empty token.
    bool ReadEmptyQualified(std::size_t& consumed) const
    {
        if (start_ + 1 >= source_.size() || !IsQualifier(start_ + 1))
            return false;
        const std::size_t after = start_ + 2;
        if (source_.size() == 2) {
            consumed = 2;
            return true;
        }
        if (after >= source_.size() || !IsStop(after))
            return false;
        consumed = Contains(consumed_stops_, source_[after]) ? after + 1 : after;
        return true;
    }

    // A token that is one quoted text from its first to its last character takes the whole source.
    bool ReadQualified(Text& token, std::size_t& consumed) const
    {
        std::size_t run = start_;
        while (run < end_ && IsQualifier(run))
            ++run;
        if (run == end_ || (run - start_) % 2 == 0)
            return false;
        std::size_t closing = start_ + 1;
        while (closing < end_) {
            if (!IsQualifier(closing)) {
                ++closing;
            } else if (closing + 1 < source_.size() && IsQualifier(closing + 1)) {
                closing += 2;
            } else {
                break;
            }
        }
        if (closing >= end_)
            return false;
        const bool last = closing + 1 == end_ || OnlyBlanksFrom(closing + 1);
        const bool oneStop = closing + 2 == end_ && IsStop(closing + 1);
        if (!last && !oneStop)
            return false;
        AppendUndoubled(token, source_.substr(start_ + 1, closing - start_ - 1), qualifier_);
        consumed = source_.size();
        return true;
    }

    bool OnlyBlanksFrom(std::size_t index) const
    {
        return source_.substr(index).find_first_not_of(u' ') == TextView::npos;
    }

    std::size_t Scan(Text& token) const
    {
        bool inside = false;
        std::size_t kept = 0; // What stands before the last closing qualifier is not trimmed.
        std::size_t next = source_.size();
        for (std::size_t i = start_; i < end_; ++i) {
            const char16_t c = source_[i];
            if (IsQualifier(i)) {
                if (i + 1 < end_ && IsQualifier(i + 1)) {
                    token.push_back(c);
                    ++i;
                    continue;
                }
                inside = !inside;
                if (!inside)
                    kept = token.size();
                continue;
            }
            if (!inside) {
                if (Contains(remove_, c))
                    continue;
                if (Contains(consumed_stops_, c)) {
                    next = i + 1;
                    break;
                }
                if (Contains(kept_stops_, c)) {
                    next = i;
                    break;
                }
            }
            token.push_back(c);
        }
        while (token.size() > kept && Contains(trailing_trim_, token.back()))
            token.pop_back();
        return next;
    }

    TextView source_;
    const char16_t* trailing_trim_;
    const char16_t* remove_;
    const char16_t* consumed_stops_;
    const char16_t* kept_stops_;
    bool has_qualifier_;
    char16_t qualifier_;
    std::size_t start_ = 0;
    std::size_t end_ = 0; // One past the last character that is not trimmed.
};

void CopyOut(char16_t* destination, TextView text, std::size_t capacity)
{
    const std::size_t length = std::min(text.size(), capacity);
    std::copy_n(text.data(), length, destination);
    destination[length] = u'\0';
}

} // namespace

const char16_t* FindNoCase(const char16_t* haystack, const char16_t* needle, std::size_t limit)
{
    if (haystack == nullptr || needle == nullptr || limit == 0)
        return nullptr;
    const TextView all(haystack);
    const TextView wanted(needle);
    if (wanted.size() > all.size())
        return nullptr;
    const std::size_t at = PositionNoCase(all.substr(0, limit), wanted, 0);
    return at == TextView::npos ? nullptr : haystack + at;
}

std::uint32_t ReplaceAll(char16_t* destination, const char16_t* source, const char16_t* find,
                         const char16_t* replacement, std::size_t capacity, int caseFlag)
{
    if (destination == nullptr || source == nullptr || find == nullptr || replacement == nullptr)
        return kMatchFailed;
    const TextView from(source);
    const TextView wanted(find);
    if (wanted.empty() || wanted.size() > from.size()) {
        if (destination != source)
            CopyOut(destination, from, capacity);
        return kMatchFailed;
    }
    Text result;
    std::size_t done = 0;
    std::uint32_t status = kMatchFailed;
    for (;;) {
        const std::size_t at = caseFlag != 0 ? from.find(wanted, done) : PositionNoCase(from, wanted, done);
        if (at == TextView::npos)
            break;
        result.append(from, done, at - done).append(replacement);
        done = at + wanted.size();
        status = kMatchDone;
    }
    result.append(from, done);
    CopyOut(destination, result, capacity);
    return status;
}

std::size_t ExtractTokenString(Text& token, TextView source, const char16_t* leadingSkip,
                               const char16_t* trailingTrim, const char16_t* remove,
                               const char16_t* consumedStops, const char16_t* keptStops,
                               const char16_t* qualifier, std::size_t capacity)
{
    constexpr std::size_t usualCapacity = 512;
    token.clear();
    const TokenReader reader(source, leadingSkip, trailingTrim, remove, consumedStops, keptStops, qualifier);
    const std::size_t consumed = reader.Read(token);
    token.resize(std::min(token.size(), capacity == 0 ? usualCapacity : capacity));
    return consumed;
}

std::size_t ExtractToken(char16_t* destination, const char16_t* source, const char16_t* leadingSkip,
                         const char16_t* trailingTrim, const char16_t* remove, const char16_t* consumedStops,
                         const char16_t* keptStops, const char16_t* qualifier, std::size_t capacity)
{
    if (destination == nullptr)
        return 0;
    *destination = u'\0';
    if (source == nullptr)
        return 0;
    Text token;
    const TokenReader reader(source, leadingSkip, trailingTrim, remove, consumedStops, keptStops, qualifier);
    const std::size_t consumed = reader.Read(token);
    CopyOut(destination, token, capacity);
    return consumed;
}

} // namespace ov
