#pragma once

// The frame of every page's dialog template, whose size is in dialog units.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage, bugprone-macro-parentheses)
#define PAGE_DIALOG(width, height) \
    DIALOGEX 0, 0, width, height \
    STYLE DS_SETFONT | DS_CONTROL | WS_CHILD | WS_CLIPCHILDREN | WS_BORDER \
    EXSTYLE WS_EX_CONTROLPARENT \
    FONT 8, "MS Shell Dlg", 0, 0, 0x1
// clang-format on
