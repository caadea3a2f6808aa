#include "tests/support/category_list.h"

#include "tests/support/control_state.h"
#include "tests/support/window_search.h"

#include <algorithm>
#include <commctrl.h>

namespace uidriver
{

namespace
{

constexpr int MaxText = 512;

// A list view item and its text in the memory of the process that owns the list,
// because the system does not translate pointers in list view messages.
class RemoteItem
{
  public:
    explicit RemoteItem(HWND listView) : m_listView(listView)
    {
        DWORD processId = 0;
        GetWindowThreadProcessId(listView, &processId);
        m_process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
        if (m_process)
            m_memory = static_cast<char*>(
                VirtualAllocEx(m_process, nullptr, Size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    }
    ~RemoteItem()
    {
        if (m_memory)
            VirtualFreeEx(m_process, m_memory, 0, MEM_RELEASE);
        if (m_process)
            CloseHandle(m_process);
    }
    RemoteItem(const RemoteItem&) = delete;
    RemoteItem& operator=(const RemoteItem&) = delete;

    // Sends the message with the item and provides its text buffer. The list's answer
    // is in the item and in Text() afterwards.
    bool SendItem(UINT message, WPARAM row, LVITEMW& item)
    {
        if (!m_memory)
            return false;
        item.pszText = reinterpret_cast<wchar_t*>(m_memory + sizeof(LVITEMW));
        item.cchTextMax = MaxText;
        if (!WriteProcessMemory(m_process, m_memory, &item, sizeof item, nullptr))
            return false;
        const auto result = uidriver::Send(m_listView, message, row, reinterpret_cast<LPARAM>(m_memory));
        return result != 0 && ReadProcessMemory(m_process, m_memory, &item, sizeof item, nullptr) != 0;
    }

    std::wstring Text(const LVITEMW& item) const
    {
        wchar_t text[MaxText] = {};
        ReadProcessMemory(m_process, item.pszText, text, sizeof text - sizeof(wchar_t), nullptr);
        return text;
    }

  private:
    static constexpr SIZE_T Size = sizeof(LVITEMW) + MaxText * sizeof(wchar_t);

    HWND m_listView;
    HANDLE m_process = nullptr;
    char* m_memory = nullptr;
};

} // namespace

std::vector<std::wstring> ListViewTexts(HWND listView, int column)
{
    RemoteItem remote(listView);
    std::vector<std::wstring> texts;
    const auto count = static_cast<int>(Send(listView, LVM_GETITEMCOUNT));
    for (int row = 0; row < count; ++row) {
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.iSubItem = column;
        texts.push_back(remote.SendItem(LVM_GETITEMW, 0, item) ? remote.Text(item) : std::wstring());
    }
    return texts;
}

int ListViewSelection(HWND listView)
{
    return static_cast<int>(Send(listView, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

LPARAM ListViewData(HWND listView, int row)
{
    RemoteItem remote(listView);
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    return remote.SendItem(LVM_GETITEMW, 0, item) ? item.lParam : -1;
}

bool SelectListViewRow(HWND listView, int row)
{
    RemoteItem remote(listView);
    LVITEMW item = {};
    item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
    remote.SendItem(LVM_SETITEMSTATE, static_cast<WPARAM>(row), item);
    Send(listView, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    return ListViewSelection(listView) == row;
}

HWND SelectCategory(HWND dialog, const std::wstring& title)
{
    HWND list = AwaitControl(dialog, CategoryListId);
    const auto titles = ListViewTexts(list);
    const auto found = std::ranges::find(titles, title);
    if (found == titles.end())
        return nullptr;
    const auto row = static_cast<int>(found - titles.begin());
    HWND before = VisiblePage(dialog);
    const bool change = ListViewSelection(list) != row;
    if (!SelectListViewRow(list, row))
        return nullptr;
    // The list notifies the dialog before it answers, so the page exists now,
    // unless its category was already the current one.
    HWND page = nullptr;
    Await([&] {
        page = VisiblePage(dialog);
        return page != nullptr && (!change || page != before);
    });
    return change && page == before ? nullptr : page;
}

} // namespace uidriver
