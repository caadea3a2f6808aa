// The parts of the dialog that handle the configuration file: reading it into
// the store, writing it, and reporting failures to the user.

#include "config/core/setting_comment.h"
#include "config/system_info.h"
#include "controls/dialog_app.h"
#include "controls/tool_tip_control.h"
#include "resources/ids.h"
#include "wizard/core/save_messages.h"
#include "wizard/preferences_wizard.h"

#include <functional>
#include <utility>

namespace
{
constexpr UINT warningStyle = MB_OK | MB_ICONWARNING | MB_SETFOREGROUND | MB_TOPMOST;
constexpr UINT questionStyle = MB_YESNO | MB_DEFBUTTON2 | MB_ICONWARNING | MB_SETFOREGROUND | MB_TOPMOST;

/// Time, user and computer as reported by Windows.
class WindowsSurroundings final : public ov::SaveSurroundings
{
  public:
    explicit WindowsSurroundings(const std::function<ov::Text()>& userName) : m_userName(userName) {}

    std::tm LocalTime() override { return GetLocalTimeNow(); }
    ov::Text UserName() override { return m_userName(); }
    ov::Text ComputerName() override { return GetMachineName(); }

  private:
    const std::function<ov::Text()>& m_userName;
};

/// The question and the notice of a save of `path`, as message boxes.
class MessageBoxPrompts final : public ov::SavePrompts
{
  public:
    using ShowMessage = std::function<int(const ov::Text& text, UINT type)>;

    MessageBoxPrompts(ov::TextView path, ShowMessage show) : m_path(path), m_show(std::move(show)) {}

    bool MayReplace(ov::ReplaceReason reason, const ov::Text& keptPath) override
    {
        return m_show(ov::ReplaceQuestionText(reason, m_path, keptPath, &AfxLoadString), questionStyle) ==
               IDYES;
    }

    void TellNoBackup(const ov::Text& systemText) override
    {
        m_show(ov::NoBackupText(systemText, &AfxLoadString), warningStyle);
    }

  private:
    ov::TextView m_path;
    ShowMessage m_show;
};
} // namespace

CTextFileEx& CPreferencesWizard::ConfigFile()
{
    if (!m_configFile)
        m_configFile = std::make_unique<CTextFileEx>(u"cfg");
    return *m_configFile;
}

bool CPreferencesWizard::ReadConfigFile(ov::TableSelector table)
{
    const ov::Text& path = table == ov::kCurrentTable ? m_currentPath : m_defaultPath;
    return ConfigFile().ReadSettings(m_store, table, path);
}

bool CPreferencesWizard::OpenConfigFile(bool fromDisk)
{
    ConfigFile();
    if (fromDisk ? !ReadConfigFile(ov::kCurrentTable) : !SaveConfigFile())
        return false;
    if (fromDisk)
        LoadAllPages(ov::kCurrentTable);
    m_store.SetModified(false);
    UpdateButtons();
    return true;
}

void CPreferencesWizard::OnBrowseConfigFile()
{
    const ov::Text filter = AfxLoadString(IDS_CONFIG_FILE_FILTER);
    CFileDialog chooser(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING,
                        Wide(filter), this);
    const ov::Text title = AfxLoadString(IDS_OPEN_CONFIG_FILE);
    chooser.m_ofn.lpstrTitle = Wide(title);
    if (chooser.DoModal() != IDOK || chooser.GetPathName().empty())
        return;
    m_currentPath = chooser.GetPathName();
    m_configPathEdit.SetWindowText(m_currentPath);
    if (CWin32FilePort().Kind(m_currentPath) == ov::FileKind::File) {
        OpenConfigFile(true);
    } else {
        // The path of a file that Save will create.
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
    return m_configFile && WriteConfigFile();
}

bool CPreferencesWizard::WriteConfigFile()
{
    WindowsSurroundings surroundings(m_setup.userName);
    MessageBoxPrompts prompts(m_currentPath,
                              [this](const ov::Text& text, UINT type) { return ShowMessage(text, type); });
    const ov::SaveResult result = ConfigFile().SaveSettings(m_store, m_currentPath, surroundings, prompts);
    m_savedHeader = result.header;
    ov::Text message = ov::SaveFailureText(result, &AfxLoadString);
    if (result.Saved())
        message = ov::KeptFileText(result, &AfxLoadString);
    if (!message.empty())
        ShowMessage(message, warningStyle);
    else if (result.outcome == ov::SaveOutcome::CreateFailed) // often because its folder is missing
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_configPathEdit.m_hWnd), TRUE);
    return result.Saved();
}

ov::Text CPreferencesWizard::MakeSettingComment(const CWnd* control) const
{
    if (control == nullptr)
        return {};
    const CToolTipControl* tips = GetTooltipControl();
    return ov::MakeCommentBlock(tips != nullptr ? tips->GetDescription(control) : ov::Text());
}
