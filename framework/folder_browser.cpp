#include "framework/folder_browser.h"

#include "framework/com_apartment.h"
#include "framework/modal_doors.h"

#include <memory>
#include <objbase.h>
#include <shlobj.h>

namespace
{
constexpr std::size_t pathCapacity = 520;

struct ShellDeleter {
    void operator()(void* item) const { ::CoTaskMemFree(item); }
};
} // namespace

CFolderBrowser::CFolderBrowser(const ov::Text& title, CWnd* owner)
    : m_title(title), m_owner(AfxSafeHwnd(owner))
{
}

INT_PTR CFolderBrowser::DoModal()
{
    const HWND owner = AfxGetModalOwner(m_owner);
    if (CModalHook* const hook = AfxGetModalHook()) {
        if (const std::optional<CPathAnswer> answer = hook->OnFolderBrowser({m_title, 0, owner})) {
            m_path = answer->path;
            return m_path.empty() ? IDCANCEL : IDOK;
        }
    }
    // Declared before the item, so that the item is freed while COM is still initialised.
    const CComApartment apartment;
    wchar_t path[pathCapacity] = L"";
    BROWSEINFOW description{};
    description.hwndOwner = owner;
    description.pszDisplayName = path;
    description.lpszTitle = Wide(m_title);
    const std::unique_ptr<ITEMIDLIST, ShellDeleter> item(::SHBrowseForFolderW(&description));
    if (item == nullptr || !::SHGetPathFromIDListW(item.get(), path))
        return IDCANCEL;
    m_path = FromWide(path);
    return IDOK;
}
