#include "tests/walk/chance.h"

#include <algorithm>

namespace walk
{

int Chance::Number(int first, int last)
{
    return std::uniform_int_distribution<int>(first, last)(m_random);
}

std::wstring Chance::Words()
{
    static constexpr wchar_t characters[] = L"ABCxyz0159$\\()*?.,:-_'[]&~!% ";
    std::wstring text;
    for (int left = Number(1, 30); left > 0; --left)
        text += characters[Number(0, static_cast<int>(std::size(characters)) - 2)];
    return text;
}

std::wstring Chance::OddText()
{
    static const std::vector<std::wstring> odd = {
        L"",       L" ",        L"0",        L"1",        L"-1",          L"99999999999",
        L"1e5",    L"0x10",     L"1,5",      L"1.",       L"a;b;c",       L"a;;b",
        L";",      L"a:b;c:d",  L"\"",       L"\"a\"",    L"a \"b\" c",   L"\"a;b\";c",
        L"#",      L"1 # one",  L"= x",      L" = x = y", L"$(X)/y",      L"%s%n%d",
        L"\t",     L" a ",      L"[1:50",    L"1:50]",    L"caf\u00E9",   L"\u00FF\u00A0x",
        L"\u4E2D", L"C:\\a\\b", L"\\\\a\\b", L"a\r\nb",   L"\u20AC 5,00", L"((((*"};
    switch (Number(0, 9)) {
    case 0:
        return std::wstring(static_cast<std::size_t>(Number(200, 3000)), L'x');
    case 1:
    case 2:
        return Words();
    case 3:
        return Words() + L";" + Words();
    case 4:
    case 5:
        return std::to_wstring(Number(-3, 5000));
    default:
        return OneOf(odd);
    }
}

bool IsUnwritable(const std::wstring& text)
{
    return std::ranges::any_of(text, [](wchar_t character) { return character > 0xFF; });
}

bool IsEmptyList(const std::wstring& text)
{
    return text.find(L';') != text.npos && text.find_first_not_of(L"; \"") == text.npos;
}

} // namespace walk
