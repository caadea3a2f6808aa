#pragma once

#include "base/text.h"

#include <string_view>

// One 16-bit text type in the program, another at the border of Windows: the
// same units under two names, so the bridge costs nothing.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// The text for a Windows call; valid as long as the text stays unchanged.
inline const wchar_t* Wide(const ov::Text& text)
{
    return reinterpret_cast<const wchar_t*>(text.c_str());
}

/// A copy of a Windows text.
inline ov::Text FromWide(std::wstring_view text)
{
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

/// A copy of a zero-terminated Windows text; empty for none.
inline ov::Text FromWide(const wchar_t* text)
{
    return text == nullptr ? ov::Text() : FromWide(std::wstring_view(text));
}
