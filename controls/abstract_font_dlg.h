#pragma once

#include "controls/core/geometry.h"
#include "framework/afxwin.h"

#include <vector>

/// A dialog whose controls all use the application's shared dialog font, at the
/// dialog's resolution.
///
/// A dialog opens at the resolution at which the system creates it, or at that of
/// its parent or owner dialog. Afterwards its resolution is the one in the last
/// WM_DPICHANGED, and the dialogs inside it follow, including
/// hidden ones.
class CAbstractFontDlg : public CDialog
{
    DECLARE_DYNAMIC(CAbstractFontDlg)

  public:
    CAbstractFontDlg(UINT templateId, CWnd* parent);

    /// Sets the font of every direct child, in Z order.
    BOOL OnInitDialog() override;

    /// Creates the window of a modeless dialog.
    BOOL Create(UINT templateId, CWnd* parent = nullptr) override;

    /// The resolution that the dialog is laid out for, in pixels per inch; 0
    /// before OnInitDialog.
    UINT Resolution() const { return m_resolution; }

    /// The size in pixels of four horizontal and eight vertical units of the dialog's
    /// template, at its resolution.
    const ov::Size& Units() const { return m_units; }

    /// Converts edges in dialog units to edges in pixels.
    void MapDialogRect(CRect& edges) const;

  protected:
    /// The children that existed when the dialog opened, in Z order. They include the
    /// template's controls, in template order.
    const std::vector<HWND>& FirstChildren() const { return m_firstChildren; }

    /// Changes the dialog's resolution: sets the font, calls OnResolutionChanged, then
    /// changes the dialogs inside. Does nothing if the dialog already has that
    /// resolution.
    void ChangeResolution(UINT resolution);

    /// Lays out the controls, which already have the font of the new resolution.
    virtual void OnResolutionChanged() {}

    /// The resolution at which the dialog has to open.
    UINT OpeningResolution() const;

    LRESULT OnDpiChanged(WPARAM resolutions, LPARAM suggestedRect);
    LRESULT OnDpiChangedBeforeParent(WPARAM, LPARAM);
    LRESULT OnDpiChangedAfterParent(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    CAbstractFontDlg* DialogAround() const;
    void GiveFont(const CFont& font) const;
    void MeasureUnits(const CFont& font);
    void MoveTo(const RECT& rectangle);

    std::vector<HWND> m_firstChildren;
    UINT m_resolution = 0;
    ov::Size m_units;
};
