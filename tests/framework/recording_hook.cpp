#include "tests/framework/recording_hook.h"

CRecordingHook::CRecordingHook() : m_previous(AfxSetModalHook(this)) {}

CRecordingHook::~CRecordingHook()
{
    AfxSetModalHook(m_previous);
}

std::optional<int> CRecordingHook::OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                                UINT type)
{
    m_boxes.push_back({owner, text, caption, type});
    if (m_buttons.empty())
        return IDOK;
    const int button = m_buttons.front();
    m_buttons.pop_front();
    return button;
}

std::optional<CPathAnswer> CRecordingHook::OnFileDialog(const CFileDialogRequest& request)
{
    m_files.push_back(request);
    return CPathAnswer{m_path};
}

std::optional<CPathAnswer> CRecordingHook::OnFolderBrowser(const CFolderBrowserRequest& request)
{
    m_folders.push_back(request);
    return CPathAnswer{m_path};
}

std::optional<INT_PTR> CRecordingHook::OnModalDialog(CDialog& dialog)
{
    m_dialogs.push_back(&dialog);
    return m_dialogAnswer;
}
