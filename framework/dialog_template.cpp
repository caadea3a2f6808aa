#include "framework/dialog_template.h"

#include "framework/module_state.h"

#include <cstddef>
#include <cstring>

namespace
{
// The header of an extended dialog template as stored in the resource. No Windows
// header declares it.
constexpr WORD extendedSignature = 0xFFFF;
constexpr std::size_t signatureOffset = 2;
constexpr std::size_t extendedStyleOffset = 12;
constexpr std::size_t extendedCountOffset = 16;
constexpr std::size_t extendedPlaceOffset = 18;

// Replaces a text: the next word holds an ordinal.
constexpr WORD ordinalSignature = 0xFFFF;

struct Place {
    short x;
    short y;
};

struct PlaceAndSize {
    Place place;
    short width;
    short height;
};

template <class Value>
Value Read(const std::byte* from)
{
    Value value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

/// Reads the parts of an extended template in order.
class TemplateReader
{
  public:
    TemplateReader(const std::byte* start, std::size_t offset) : m_start(start), m_offset(offset) {}

    template <class Value>
    Value Take()
    {
        const auto value = Read<Value>(m_start + m_offset);
        m_offset += sizeof value;
        return value;
    }

    void Skip(std::size_t bytes) { m_offset += bytes; }

    void SkipText()
    {
        while (Take<WORD>() != 0) {
        }
    }

    void SkipTextOrOrdinal()
    {
        if (Read<WORD>(m_start + m_offset) == ordinalSignature)
            Skip(2 * sizeof(WORD));
        else
            SkipText();
    }

    void Align() { m_offset = (m_offset + sizeof(DWORD) - 1) / sizeof(DWORD) * sizeof(DWORD); }

  private:
    const std::byte* m_start;
    std::size_t m_offset;
};

RECT TakeControl(TemplateReader& reader)
{
    reader.Align();
    reader.Skip(3 * sizeof(DWORD)); // help id, extended style, style
    const auto rect = reader.Take<PlaceAndSize>();
    reader.Skip(sizeof(DWORD));       // id
    reader.SkipTextOrOrdinal();       // window class
    reader.SkipTextOrOrdinal();       // caption
    reader.Skip(reader.Take<WORD>()); // creation data
    return {rect.place.x, rect.place.y, rect.place.x + rect.width, rect.place.y + rect.height};
}

const std::byte* FindTemplate(UINT templateId)
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(templateId), RT_DIALOG);
    if (resource == nullptr)
        return nullptr;
    return static_cast<const std::byte*>(::LockResource(::LoadResource(module, resource)));
}

bool IsExtended(const std::byte* start)
{
    return Read<WORD>(start + signatureOffset) == extendedSignature;
}
} // namespace

bool AfxIsTemplateWithoutPlace(UINT templateId)
{
    const std::byte* const start = FindTemplate(templateId);
    if (start == nullptr)
        return false;
    const bool extended = IsExtended(start);
    const auto style = Read<DWORD>(start + (extended ? extendedStyleOffset : offsetof(DLGTEMPLATE, style)));
    const auto place = Read<Place>(start + (extended ? extendedPlaceOffset : offsetof(DLGTEMPLATE, x)));
    return (style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) == 0 && place.x == 0 && place.y == 0;
}

std::optional<AFX_TEMPLATE_LAYOUT> AfxReadTemplateLayout(UINT templateId)
{
    const std::byte* const start = FindTemplate(templateId);
    if (start == nullptr || !IsExtended(start))
        return std::nullopt;
    TemplateReader reader(start, extendedCountOffset);
    const auto count = reader.Take<WORD>();
    const auto rect = reader.Take<PlaceAndSize>();
    reader.SkipTextOrOrdinal(); // menu
    reader.SkipTextOrOrdinal(); // window class
    reader.SkipText();          // caption
    if ((Read<DWORD>(start + extendedStyleOffset) & DS_SETFONT) != 0) {
        reader.Skip(2 * sizeof(WORD) + 2); // points, weight, italic, character set
        reader.SkipText();
    }
    AFX_TEMPLATE_LAYOUT layout{{rect.width, rect.height}, {}};
    for (WORD control = 0; control < count; ++control)
        layout.controls.push_back(TakeControl(reader));
    return layout;
}
