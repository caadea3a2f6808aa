#include "tests/ui/dialog_template.h"

#include <algorithm>
#include <cstring>
#include <cwctype>
#include <stdexcept>

namespace
{

/// Reads the parts of a resource in order.
class Reader
{
  public:
    Reader(const void* data, std::size_t size) : m_begin(static_cast<const char*>(data)), m_size(size) {}

    template <typename Number>
    Number Take()
    {
        Number number = {};
        if (m_size - m_at < sizeof number)
            throw std::runtime_error("The template ends too soon.");
        std::memcpy(&number, m_begin + m_at, sizeof number);
        m_at += sizeof number;
        return number;
    }
    int TakeCoordinate() { return Take<short>(); }

    void Skip(std::size_t bytes)
    {
        for (std::size_t i = 0; i < bytes; ++i)
            Take<char>();
    }
    void AlignToDword()
    {
        while (m_at % sizeof(DWORD) != 0)
            Take<char>();
    }

    std::wstring TakeText()
    {
        std::wstring text;
        while (const wchar_t character = Take<wchar_t>())
            text += character;
        return text;
    }

    /// A text, or the number that replaces it after 0xFFFF.
    std::wstring TakeTextOrNumber(WORD& number)
    {
        const std::size_t before = m_at;
        if (Take<WORD>() == 0xFFFF) {
            number = Take<WORD>();
            return {};
        }
        m_at = before;
        return TakeText();
    }

  private:
    const char* m_begin;
    std::size_t m_size;
    std::size_t m_at = 0;
};

const wchar_t* SystemClass(WORD number)
{
    switch (number) {
    case 0x0080:
        return L"Button";
    case 0x0081:
        return L"Edit";
    case 0x0082:
        return L"Static";
    case 0x0083:
        return L"ListBox";
    case 0x0084:
        return L"ScrollBar";
    case 0x0085:
        return L"ComboBox";
    default:
        return L"";
    }
}

RECT TakeRectangle(Reader& reader)
{
    RECT rect = {};
    rect.left = reader.TakeCoordinate();
    rect.top = reader.TakeCoordinate();
    rect.right = rect.left + reader.TakeCoordinate();
    rect.bottom = rect.top + reader.TakeCoordinate();
    return rect;
}

TemplateControl TakeControl(Reader& reader)
{
    TemplateControl control;
    WORD number = 0;
    reader.AlignToDword();
    reader.Skip(2 * sizeof(DWORD)); // help id, extended style
    control.style = reader.Take<DWORD>();
    control.rect = TakeRectangle(reader);
    control.id = static_cast<int>(reader.Take<DWORD>());
    // RC writes "no id" with 16 bits only.
    if (control.id == 0xFFFF)
        control.id = -1;
    control.windowClass = reader.TakeTextOrNumber(number);
    if (control.windowClass.empty())
        control.windowClass = SystemClass(number);
    else
        std::ranges::transform(control.windowClass, control.windowClass.begin(), std::towlower);
    control.text = reader.TakeTextOrNumber(number);
    reader.Skip(reader.Take<WORD>());
    return control;
}

DialogTemplate TakeTemplate(Reader& reader)
{
    DialogTemplate dialog;
    WORD number = 0;
    if (reader.Take<WORD>() != 1 || reader.Take<WORD>() != 0xFFFF)
        throw std::runtime_error("The template is not of the extended form.");
    reader.Skip(sizeof(DWORD)); // help id
    dialog.extendedStyle = reader.Take<DWORD>();
    dialog.style = reader.Take<DWORD>();
    const int count = reader.Take<WORD>();
    const RECT rect = TakeRectangle(reader);
    dialog.size = {rect.right - rect.left, rect.bottom - rect.top};
    reader.TakeTextOrNumber(number); // menu
    reader.TakeTextOrNumber(number); // window class
    reader.TakeText();               // caption
    if (dialog.style & DS_SETFONT) {
        dialog.pointSize = reader.Take<WORD>();
        reader.Skip(sizeof(WORD) + 2); // weight, italic, character set
        dialog.font = reader.TakeText();
    }
    for (int i = 0; i < count; ++i)
        dialog.controls.push_back(TakeControl(reader));
    return dialog;
}

} // namespace

std::optional<DialogTemplate> ReadDialogTemplate(HMODULE module, unsigned id)
{
    HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!resource)
        return std::nullopt;
    try {
        Reader reader(LockResource(LoadResource(module, resource)), SizeofResource(module, resource));
        return TakeTemplate(reader);
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}
