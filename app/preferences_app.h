#pragma once

#include <map>

#include "app/cmd_line_info.h"
#include "controls/tool_tip_control.h"
#include "framework/afxwin.h"

/// The process-wide application object: it carries what outlives a dialog (the
/// three texts, the icon, the font) and owns the tooltip window.
class CPreferencesApp : public CWinApp
{
  public:
    BOOL InitInstance() override;
    int ExitInstance() override;
    int DoMessageBox(const ov::Text& text, UINT type) override;

    /// The font of every dialog at a resolution in pixels per inch. On the first
    /// request it is a copy of the main window's font, or Tahoma 14 when it has
    /// none; at other resolutions it is the same type in the same points. None
    /// without a main window.
    CFont* GetDialogFont(UINT resolution);

    /// Shows the dialog modally. 0 when it was shown, 1 when it could not be
    /// set up or is open already.
    unsigned int ShowPreferences(CWnd* parent);

    /// Brings the dialog forward when one is open. False when no ShowPreferences
    /// is running; while the dialog is being set up or taken down there is nothing
    /// to bring forward, yet the result is true.
    bool ActivateOpenDialog();

    /// The name for the saved file's header: as given, else the logged-on
    /// user's, asked for once.
    const ov::Text& GetUserName();

  private:
    bool DescribeDialogFont(UINT resolution);

    std::map<UINT, CFont> m_dialogFonts; ///< by resolution
    LOGFONTW m_dialogFont{};             ///< describes the first one, of m_firstResolution
    UINT m_firstResolution = 0;
    bool m_showing = false; ///< from the beginning of ShowPreferences to its end
};

extern CPreferencesApp theApp;
extern CCmdLineInfo theCommandLine;
extern CToolTipControl theToolTip;
