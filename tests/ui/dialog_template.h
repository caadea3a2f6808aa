/// The dialog templates in the library's resources.
#pragma once

#include <windows.h>
#include <optional>
#include <string>
#include <vector>

/// A control in a template; its rectangle is in dialog units.
struct TemplateControl {
    int id = 0; ///< -1 for none
    DWORD style = 0;
    RECT rect = {};
    std::wstring windowClass; ///< "Button", "Edit", "Static", "ComboBox"; others in lower case
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
    std::vector<TemplateControl> controls; ///< in the order of creation
};

/// Reads a template in the extended form. Nothing if the module has none with
/// that id, or if it is damaged.
std::optional<DialogTemplate> ReadDialogTemplate(HMODULE module, unsigned id);
