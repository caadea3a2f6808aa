#include "pages/core/encoding.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string>
#include <system_error>

namespace ov
{
namespace
{
constexpr char16_t kAlways[] = u"1";
constexpr char16_t kNever[] = u"0";
constexpr char16_t kUserDecides[] = u"-1";
constexpr int kUserDecidesIndex = 2;

bool EqualsWithoutCase(TextView one, TextView other)
{
    return std::ranges::equal(one, other, {}, ToUpperAscii, ToUpperAscii);
}

/// The number at the beginning of the text; 0 if there is none.
double LeadingReal(TextView text)
{
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(u" \t\n\v\f\r")));
    if (text.starts_with(u'+'))
        text.remove_prefix(1);
    const std::string bytes = Utf8FromText(text);
#ifdef __cpp_lib_to_chars
    double value = 0;
    const std::errc error = std::from_chars(bytes.data(), bytes.data() + bytes.size(), value).ec;
    // from_chars leaves the value unset if it is too large or too small; strtod returns the nearest one.
    return error == std::errc::result_out_of_range ? std::strtod(bytes.c_str(), nullptr) : value;
#else
    // libc++ has no from_chars for floating point yet. Only tests use it, in the "C" locale.
    return std::strtod(bytes.c_str(), nullptr);
#endif
}
} // namespace

int AlwaysNeverUserIndex(TextView stored)
{
    if (stored.empty())
        return kUserDecidesIndex;
    switch (ToInteger(stored)) {
    case 1:
        return 0;
    case 0:
        return 1;
    default:
        return kUserDecidesIndex;
    }
}

Text AlwaysNeverUserText(int index)
{
    switch (index) {
    case 0:
        return kAlways;
    case 1:
        return kNever;
    default:
        return kUserDecides;
    }
}

int NeverAlwaysUserIndex(TextView stored)
{
    switch (ToInteger(stored)) {
    case 0:
        return 0;
    case 1:
        return 1;
    default:
        return kUserDecidesIndex;
    }
}

Text NeverAlwaysUserText(int index)
{
    switch (index) {
    case 0:
        return kNever;
    case 1:
        return kAlways;
    default:
        return kUserDecides;
    }
}

LockableChoice ReadLockableChoice(TextView stored, int fallback)
{
    const long long code = ToInteger(stored);
    if (code == 0)
        return {fallback, true};
    return {static_cast<int>((code > 0 ? code : -code) - 1), code > 0};
}

Text WriteLockableChoice(LockableChoice choice)
{
    const int code = choice.index + 1;
    return FormatInteger(choice.userDefinable ? code : -code);
}

int PresetChoice(TextView text, std::span<const char16_t* const> presets)
{
    if (text.empty())
        return 0;
    int choice = 1;
    for (const char16_t* preset : presets) {
        if (EqualsWithoutCase(text, preset))
            break;
        ++choice;
    }
    return choice;
}

void ApplyPreset(int choice, std::span<const char16_t* const> presets, Text& text)
{
    if (choice == 0)
        text.clear();
    else if (choice > 0 && static_cast<std::size_t>(choice) <= presets.size())
        text = presets[static_cast<std::size_t>(choice) - 1];
}

void ReadScaleSource(TextView stored, ScaleSource& source)
{
    stored = Trim(stored);
    if (stored.empty())
        return;
    source.builtIn = stored != u"0";
    if (source.builtIn && stored != u"1")
        source.others = true;
}

Text WriteScaleSource(ScaleSource source)
{
    if (!source.builtIn)
        return u"0";
    return source.others ? u"2" : u"1";
}

bool TakeScaleBrackets(Text& list)
{
    list = Trim(list);
    const bool bracketed = list.starts_with(u'[') || list.ends_with(u']');
    list.erase(0, list.find_first_not_of(u'['));
    list.erase(list.find_last_not_of(u']') + 1);
    return bracketed;
}

Text PutScaleBrackets(TextView list)
{
    return u"[" + Text(list) + u"]";
}

Text ClampedScaleFactor(TextView typed)
{
    if (typed.empty())
        return u"1.00000";
    const double factor = LeadingReal(typed);
    if (factor < kLowestScaleFactor)
        return u"0.75000";
    if (factor > kHighestScaleFactor)
        return u"1.25000";
    return Text(typed);
}

} // namespace ov
