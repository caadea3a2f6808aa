/// The dialog templates of the library, as its resources hold them.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

/// What a template says of a control; its rectangle in dialog units.
struct TemplateControl {
    int id = 0; ///< -1 for none
    DWORD style = 0;
    RECT rect = {};
    std::wstring windowClass; ///< "Button", "Edit", "Static", "ComboBox"; others in small letters
    std::wstring text;
    int Width() const { return static_cast<int>(rect.right - rect.left); }
    int Height() const { return static_cast<int>(rect.bottom - rect.top); }
};

struct DialogTemplate {
    DWORD style = 0;
    DWORD extendedStyle = 0;
    SIZE size = {};
    int pointSize = 0;
    std::wstring font;
    std::vector<TemplateControl> controls; ///< in the order of their creation
};

/// Reads a template of the extended form. Nothing when the module has none of
/// that id, or it is damaged.
std::optional<DialogTemplate> ReadDialogTemplate(HMODULE module, unsigned id);
