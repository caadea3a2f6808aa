#include "host/full_path.h"

#include "framework/wide.h"

#include <windows.h>
#include <string>

ov::Text FullPath(const ov::Text& path)
{
    if (path.empty())
        return {};
    std::wstring full(GetFullPathNameW(Wide(path), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(Wide(path), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full.empty() ? path : FromWide(full);
}
