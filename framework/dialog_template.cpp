#include "framework/dialog_template.h"

#include "framework/module_state.h"

#include <cstddef>
#include <cstring>

namespace
{
// The beginning of an extended template as it lies in the resource, which no
// Windows header declares.
constexpr WORD extendedSignature = 0xFFFF;
constexpr std::size_t signatureOffset = 2;
constexpr std::size_t extendedStyleOffset = 12;
constexpr std::size_t extendedPlaceOffset = 18;

struct Place {
    short x;
    short y;
};

template <class Value>
Value Read(const std::byte* from)
{
    Value value;
    std::memcpy(&value, from, sizeof value);
    return value;
}
} // namespace

bool AfxIsTemplateWithoutPlace(UINT templateId)
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(templateId), RT_DIALOG);
    if (resource == nullptr)
        return false;
    const auto* const start = static_cast<const std::byte*>(::LockResource(::LoadResource(module, resource)));
    if (start == nullptr)
        return false;
    const bool extended = Read<WORD>(start + signatureOffset) == extendedSignature;
    const auto style = Read<DWORD>(start + (extended ? extendedStyleOffset : offsetof(DLGTEMPLATE, style)));
    const auto place = Read<Place>(start + (extended ? extendedPlaceOffset : offsetof(DLGTEMPLATE, x)));
    return (style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) == 0 && place.x == 0 && place.y == 0;
}
