#include "app/preferences_app.h"

#include "config/system_info.h"
#include "controls/core/dialog_units.h"
#include "pages/page_factory.h"
#include "resources/ids.h"
#include "wizard/preferences_wizard.h"

CPreferencesApp theApp;
CCmdLineInfo theCommandLine;
CToolTipControl theTooltip;

namespace
{
HICON dialogIcon = nullptr;

// The style of the tooltip window is a balloon; the second word is stored but not used.
constexpr UINT toolTipSecondStyle = 8;
constexpr LONG fallbackFontHeight = 14;

/// A second call of an export can arrive before the dialog has a window and after
/// it was destroyed: enabling the owner sends messages, leaving COM dispatches them.
class ShowingScope
{
  public:
    explicit ShowingScope(bool& showing) : m_showing(showing) { m_showing = true; }
    ~ShowingScope() { m_showing = false; }
    ShowingScope(const ShowingScope&) = delete;
    ShowingScope& operator=(const ShowingScope&) = delete;

  private:
    bool& m_showing;
};

/// Restores the previous main window when the dialog ends in any way.
class MainWindowScope
{
  public:
    explicit MainWindowScope(CWnd* window) : m_previous(theApp.m_pMainWnd) { theApp.m_pMainWnd = window; }
    ~MainWindowScope() { theApp.m_pMainWnd = m_previous; }
    MainWindowScope(const MainWindowScope&) = delete;
    MainWindowScope& operator=(const MainWindowScope&) = delete;

  private:
    CWnd* m_previous;
};

/// The tooltip window exists exactly as long as the dialog.
class TooltipScope
{
  public:
    explicit TooltipScope(CWnd* owner)
    {
        if (theTooltip.GetSafeHwnd() == nullptr)
            theTooltip.Create(owner, kTooltipBalloon, toolTipSecondStyle, nullptr);
    }
    ~TooltipScope()
    {
        if (theTooltip.GetSafeHwnd() != nullptr)
            theTooltip.DestroyWindow();
    }
    TooltipScope(const TooltipScope&) = delete;
    TooltipScope& operator=(const TooltipScope&) = delete;
};
} // namespace

BOOL CPreferencesApp::InitInstance()
{
    INITCOMMONCONTROLSEX controls{sizeof controls,
                                  ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
    if (!::InitCommonControlsEx(&controls) || !CDialogApp::InitInstance())
        return FALSE;
    // Part of the design; nothing in the program depends on either.
    AfxEnableControlContainer();
    SetRegistryKey(L"Orthoval Preferences");
    return TRUE;
}

int CPreferencesApp::ExitInstance()
{
    if (theTooltip.GetSafeHwnd() != nullptr)
        theTooltip.DestroyWindow();
    return CDialogApp::ExitInstance();
}

int CPreferencesApp::DoMessageBox(const ov::Text& text, UINT type)
{
    return AfxShowMessageBox(AfxGetModalOwner(nullptr), text, AfxLoadString(IDS_APP_CAPTION),
                             type | MB_SETFOREGROUND | MB_TOPMOST);
}

// The main window makes the first request; the font that it has then is for this resolution.
bool CPreferencesApp::DescribeDialogFont(UINT resolution)
{
    if (m_pMainWnd == nullptr || m_pMainWnd->GetSafeHwnd() == nullptr)
        return false;
    const auto font = reinterpret_cast<HFONT>(m_pMainWnd->SendMessage(WM_GETFONT, 0, 0));
    if (font == nullptr || ::GetObjectW(font, sizeof m_dialogFont, &m_dialogFont) == 0) {
        m_dialogFont = {};
        m_dialogFont.lfHeight = fallbackFontHeight;
        m_dialogFont.lfPitchAndFamily = FF_SWISS;
        ::lstrcpynW(m_dialogFont.lfFaceName, L"Tahoma", LF_FACESIZE);
    }
    m_firstResolution = resolution;
    return true;
}

CFont* CPreferencesApp::GetDialogFont(UINT resolution)
{
    if (m_firstResolution == 0 && !DescribeDialogFont(resolution))
        return nullptr;
    CFont& font = m_dialogFonts[resolution];
    if (font.GetSafeHandle() == nullptr) {
        LOGFONTW description = m_dialogFont;
        if (resolution != m_firstResolution)
            description.lfHeight =
                ov::FontHeightAt(static_cast<int>(description.lfHeight), static_cast<int>(m_firstResolution),
                                 static_cast<int>(resolution));
        font.CreateFontIndirect(&description);
    }
    return font.GetSafeHandle() != nullptr ? &font : nullptr;
}

bool CPreferencesApp::ActivateOpenDialog()
{
    // Only one of the host's windows is disabled while the dialog is open, and
    // timers still run. A second call can therefore arrive; it must not change the
    // texts and the tooltip window of the dialog that uses them.
    if (!m_showing && m_pMainWnd == nullptr)
        return false;
    if (m_pMainWnd != nullptr && m_pMainWnd->GetSafeHwnd() != nullptr)
        AfxBringForward(m_pMainWnd->m_hWnd);
    return true;
}

unsigned int CPreferencesApp::ShowPreferences(CWnd* parent)
{
    if (ActivateOpenDialog())
        return 1;
    if (dialogIcon == nullptr)
        dialogIcon = LoadIcon(IDI_TOOLTIP);
    const ShowingScope showing(m_showing); // outlives the dialog
    CPreferencesWizard dialog(parent, DialogSetup());
    const MainWindowScope mainWindow(&dialog);
    const TooltipScope toolTip(&dialog);
    if (!dialog.CreatePages())
        return 1;
    return dialog.DoModal() == -1 ? 1 : 0;
}

const ov::Text& CPreferencesApp::GetUserName()
{
    if (ov::Trim(theCommandLine.m_userName).empty())
        theCommandLine.m_userName = GetLogonUserName();
    return theCommandLine.m_userName;
}

CToolTipControl* CPreferencesApp::GetTooltip()
{
    return theTooltip.GetSafeHwnd() != nullptr ? &theTooltip : nullptr;
}

HICON CPreferencesApp::GetTooltipIcon()
{
    return dialogIcon;
}

WizardSetup CPreferencesApp::DialogSetup()
{
    return {theCommandLine.m_defaultPath, theCommandLine.m_currentPath, [this] { return GetUserName(); },
            &MakePage};
}
