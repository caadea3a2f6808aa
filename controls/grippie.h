#pragma once

#include "framework/afxwin.h"

/// The size grip in a dialog's bottom-right corner.
class CGrippie : public CScrollBar
{
    DECLARE_DYNAMIC(CGrippie)

  public:
    explicit CGrippie(CWnd& dialog);

    /// Makes the grip's window, visible, in the dialog's corner.
    BOOL Create();

    /// Follows the dialog's corner; nothing without a window.
    void MoveToCorner();

  private:
    CRect CornerRect() const;

    CWnd& m_dialog;
};
