#include "framework/file_dialog.h"

#include "framework/modal_doors.h"

#include <algorithm>

namespace
{
// The longest path in Windows, in characters.
constexpr std::size_t longestPath = 32768;

/// Restores the current directory of the process when the scope ends.
class CKeepDirectory
{
  public:
    CKeepDirectory() : m_directory(::GetCurrentDirectoryW(0, nullptr))
    {
        ::GetCurrentDirectoryW(static_cast<DWORD>(m_directory.size()), m_directory.data());
    }
    ~CKeepDirectory()
    {
        if (!m_directory.empty())
            ::SetCurrentDirectoryW(m_directory.data());
    }
    CKeepDirectory(const CKeepDirectory&) = delete;
    CKeepDirectory& operator=(const CKeepDirectory&) = delete;

  private:
    std::vector<wchar_t> m_directory;
};
} // namespace

CFileDialog::CFileDialog(BOOL openFileDialog, LPCWSTR defaultExtension, LPCWSTR fileName, DWORD flags,
                         LPCWSTR filter, CWnd* parent)
    : m_open(openFileDialog != FALSE), m_filter(FromWide(filter)),
      m_defaultExtension(FromWide(defaultExtension)), m_fileName(FromWide(fileName))
{
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.hwndOwner = AfxSafeHwnd(parent);
    m_ofn.Flags = flags | OFN_EXPLORER;
}

INT_PTR CFileDialog::DoModal()
{
    m_ofn.hwndOwner = AfxGetModalOwner(m_ofn.hwndOwner);
    if (CModalHook* const hook = AfxGetModalHook()) {
        const CFileDialogRequest request{m_open,   m_defaultExtension,         m_fileName,     m_ofn.Flags,
                                         m_filter, FromWide(m_ofn.lpstrTitle), m_ofn.hwndOwner};
        if (const std::optional<CPathAnswer> answer = hook->OnFileDialog(request)) {
            m_path = answer->path;
            return m_path.empty() ? IDCANCEL : IDOK;
        }
    }
    std::vector<wchar_t> path(longestPath);
    m_fileName.copy(reinterpret_cast<char16_t*>(path.data()), longestPath - 1);
    // The system expects the parts of the filter null-terminated and the list to end with two nulls.
    ov::Text filter = m_filter;
    std::replace(filter.begin(), filter.end(), u'|', u'\0');
    filter.push_back(u'\0');
    m_ofn.lpstrFilter = m_filter.empty() ? nullptr : Wide(filter);
    m_ofn.lpstrDefExt = m_defaultExtension.empty() ? nullptr : Wide(m_defaultExtension);
    m_ofn.lpstrFile = path.data();
    m_ofn.nMaxFile = static_cast<DWORD>(path.size());
    // The file chooser makes the chosen file's folder the current directory. That directory
    // is the host's, and a dialog must not change it.
    const CKeepDirectory directory;
    const BOOL chosen = m_open ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    m_ofn.lpstrFilter = nullptr;
    m_ofn.lpstrFile = nullptr;
    if (!chosen)
        return IDCANCEL;
    m_path = FromWide(path.data());
    return IDOK;
}
