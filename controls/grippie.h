#pragma once

#include "framework/afxwin.h"

/// The size grip in a dialog's bottom-right corner.
class CGrippie : public CScrollBar
{
    DECLARE_DYNAMIC(CGrippie)

  public:
    explicit CGrippie(CWnd& dialog);

    /// Creates the grip's window, visible, in the dialog's corner.
    BOOL Create();

    /// Moves the grip to the dialog's corner; does nothing without a window.
    void MoveToCorner();

  private:
    CRect CornerRect() const;

    CWnd& m_dialog;
};
