#pragma once

#include "framework/afxwin.h"

/// A dialog whose controls all show the application's one dialog font.
class CAbstractFontDlg : public CDialog
{
    DECLARE_DYNAMIC(CAbstractFontDlg)

  public:
    CAbstractFontDlg(UINT templateId, CWnd* parent);

    /// Gives the font to every direct child, in Z order.
    BOOL OnInitDialog() override;

    /// Makes the window of a modeless dialog.
    BOOL Create(UINT templateId, CWnd* parent = nullptr) override;
};
