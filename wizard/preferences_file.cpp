// The dialog's dealings with the configuration file: reading it into the
// store, writing it, and telling the person what went wrong.

#include "config/core/setting_comment.h"
#include "config/system_info.h"
#include "controls/application.h"
#include "controls/tool_tip_control.h"
#include "resources/ids.h"
#include "wizard/application_texts.h"
#include "wizard/core/save_messages.h"
#include "wizard/preferences_wizard.h"

namespace
{
constexpr UINT warningStyle = MB_OK | MB_ICONWARNING | MB_SETFOREGROUND | MB_TOPMOST;

/// Time, user and machine as Windows tells them.
class WindowsSurroundings final : public ov::SaveSurroundings
{
  public:
    std::tm LocalTime() override { return GetLocalTimeNow(); }
    ov::Text UserName() override { return GetConfigUserName(); }
    ov::Text ComputerName() override { return GetMachineName(); }
};
} // namespace

CTextFileEx& CPreferencesWizard::ConfigFile()
{
    if (!m_configFile)
        m_configFile = std::make_unique<CTextFileEx>(u"cfg");
    return *m_configFile;
}

bool CPreferencesWizard::ReadConfigFile(int selector)
{
    return ConfigFile().ReadSettings(m_store, selector, selector == 0 ? m_currentPath : m_defaultPath);
}

bool CPreferencesWizard::OpenConfigFile(bool fromDisk)
{
    ConfigFile();
    if (fromDisk ? !ReadConfigFile(0) : !SaveConfigFile())
        return false;
    if (fromDisk)
        LoadAllPages(0);
    m_store.SetModified(false);
    UpdateButtons();
    return true;
}

void CPreferencesWizard::OnBrowseConfigFile()
{
    CFileDialog chooser(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING,
                        L"Config File (*.cfg)|*.cfg||", this);
    const ov::Text title = AfxLoadString(IDS_OPEN_CONFIG_FILE);
    chooser.m_ofn.lpstrTitle = Wide(title);
    if (chooser.DoModal() != IDOK || chooser.GetPathName().empty())
        return;
    m_currentPath = chooser.GetPathName();
    m_configPathEdit.SetWindowText(m_currentPath);
    if (CWin32FilePort().Kind(m_currentPath) == ov::FileKind::File) {
        OpenConfigFile(true);
    } else {
        // The name of a file that Save is to make.
        m_store.SetModified(true);
        UpdateButtons();
    }
}

bool CPreferencesWizard::SaveAllPages()
{
    for (const auto& page : m_pages) {
        if (!page->SaveSettings(this))
            return false;
    }
    ConfigFile();
    if (!SaveConfigFile())
        return false;
    m_store.SetModified(false);
    return true;
}

bool CPreferencesWizard::SaveConfigFile()
{
    if (!m_configFile)
        return false;
    WindowsSurroundings surroundings;
    const ov::SaveResult result =
        m_configFile->SaveSettings(m_store, m_currentPath, surroundings, [this](const ov::Text& systemText) {
            ShowMessage(ov::NoBackupText(systemText, &AfxLoadString), warningStyle);
        });
    m_savedHeader = result.header;
    const ov::Text message = ov::SaveFailureText(result, &AfxLoadString);
    if (!message.empty())
        ShowMessage(message, warningStyle);
    return result.Saved();
}

ov::Text CPreferencesWizard::MakeSettingComment(const CWnd* control) const
{
    if (control == nullptr)
        return {};
    const CToolTipControl* tips = GetToolTipControl();
    return ov::MakeCommentBlock(tips != nullptr ? tips->GetDescription(control) : ov::Text());
}
