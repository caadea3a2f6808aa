#pragma once

#include "base/text.h"

#include <string_view>

// The program's texts are char16_t, those of Windows wchar_t. Both are the same
// 16-bit units, so the conversion costs nothing.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// The text for a Windows call. Valid as long as the text is not modified.
inline const wchar_t* Wide(const ov::Text& text)
{
    return reinterpret_cast<const wchar_t*>(text.c_str());
}

/// A copy of a Windows text.
inline ov::Text FromWide(std::wstring_view text)
{
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

/// A copy of a null-terminated Windows text; empty for null.
inline ov::Text FromWide(const wchar_t* text)
{
    return text == nullptr ? ov::Text() : FromWide(std::wstring_view(text));
}
