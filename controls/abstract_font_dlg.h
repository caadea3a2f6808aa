#pragma once

#include <vector>

#include "controls/core/geometry.h"
#include "framework/afxwin.h"

/// A dialog whose controls all show the application's one dialog font, at the
/// resolution of the dialog.
///
/// A dialog opens at the resolution at which the system makes it, or at that of
/// the dialog that it lies in or belongs to. From then on the resolution is what
/// the dialog was told last (WM_DPICHANGED), and the dialogs inside follow it,
/// hidden ones too.
class CAbstractFontDlg : public CDialog
{
    DECLARE_DYNAMIC(CAbstractFontDlg)

  public:
    CAbstractFontDlg(UINT templateId, CWnd* parent);

    /// Gives the font to every direct child, in Z order.
    BOOL OnInitDialog() override;

    /// Makes the window of a modeless dialog.
    BOOL Create(UINT templateId, CWnd* parent = nullptr) override;

    /// The resolution that the dialog is laid out for, in pixels per inch; 0
    /// before OnInitDialog.
    UINT Resolution() const { return m_resolution; }

    /// The pixels of four horizontal and eight vertical units of the dialog's
    /// template at its resolution.
    const ov::Size& Units() const { return m_units; }

    /// Converts edges in dialog units into edges in pixels.
    void MapDialogRect(CRect& edges) const;

  protected:
    /// The children that the dialog had when it opened, in Z order. Those of the
    /// template are among them in the order of the template.
    const std::vector<HWND>& FirstChildren() const { return m_firstChildren; }

    /// Gives the dialog another resolution: the font, then what OnResolutionChanged
    /// does, then the dialogs inside. Nothing happens at the resolution that the
    /// dialog has.
    void ChangeResolution(UINT resolution);

    /// Lays out the controls, which have the font of the new resolution already.
    virtual void OnResolutionChanged() {}

    /// The resolution that the dialog is to open at.
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
