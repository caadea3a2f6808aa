#pragma once

#include "app/cmd_line_info.h"
#include "controls/dialog_app.h"
#include "controls/tool_tip_control.h"
#include "wizard/wizard_setup.h"

#include <map>

/// The application object of the process: it holds what outlives a dialog (the
/// three texts, the icon, the fonts) and owns the tooltip window.
class CPreferencesApp : public CDialogApp
{
  public:
    BOOL InitInstance() override;
    int ExitInstance() override;
    int DoMessageBox(const ov::Text& text, UINT type) override;

    /// The font of every dialog, at a resolution in pixels per inch. The first
    /// request copies the main window's font, or uses Tahoma 14 if it has none; other
    /// resolutions use the same typeface and point size. Null without a main
    /// window.
    CFont* GetDialogFont(UINT resolution) override;
    CToolTipControl* GetTooltip() override;
    HICON GetTooltipIcon() override;

    /// Shows the dialog modally. Returns 0 if it was shown, 1 if it could not be
    /// initialised or is already open.
    unsigned int ShowPreferences(CWnd* parent);

    /// Brings an open dialog to the front. False if no ShowPreferences is
    /// running. While the dialog is being created or destroyed there is nothing
    /// to bring to the front, but the result is true.
    bool ActivateOpenDialog();

    /// What a new dialog gets: the present texts, and the pages.
    WizardSetup DialogSetup();

    /// The name for the saved file's header: the given one, otherwise the logged-on
    /// user's name, which is queried once.
    const ov::Text& GetUserName();

  private:
    bool DescribeDialogFont(UINT resolution);

    std::map<UINT, CFont> m_dialogFonts; ///< by resolution
    LOGFONTW m_dialogFont{};             ///< describes the first font, at m_firstResolution
    UINT m_firstResolution = 0;
    bool m_showing = false; ///< true during ShowPreferences
};

extern CPreferencesApp theApp;
extern CCmdLineInfo theCommandLine;
extern CToolTipControl theTooltip;
