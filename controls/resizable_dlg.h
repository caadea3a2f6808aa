#pragma once

#include "controls/abstract_font_dlg.h"
#include "controls/core/layout.h"
#include "controls/grippie.h"
#include "framework/window_names.h"

#include <cstdint>
#include <vector>

/// A dialog whose listed controls follow its size, optionally with a size grip.
/// Controls without a meaningful caption get an accessible name. Each layout starts
/// from the controls' positions in the template, so that rounding errors of
/// repeated resizing do not accumulate. At another resolution the template gives
/// other positions, and the layout starts from those.
class CResizableDlg : public CAbstractFontDlg
{
    DECLARE_DYNAMIC(CResizableDlg)

  public:
    /// The design size, in pixels at the usual resolution, is the reference for
    /// proportional placement and the minimum size set by ApplyMinimumSize.
    CResizableDlg(UINT templateId, CWnd* parent, bool sizeGrip, UINT designWidth, UINT designHeight);

    BOOL OnInitDialog() override;

  protected:
    /// Registers the controls with AddLayout. A derived class calls its own version
    /// from its constructor.
    virtual void InitControlLayout() {}

    /// Called when every control has its template position and size: when the
    /// dialog opens and after each change of its resolution. For controls that are
    /// measured there or have a size of their own.
    virtual void OnTemplateLayout() {}

    /// The client area's size in the template, in pixels.
    CSize TemplateSize() const { return m_templateSize; }

    /// The part of the dialog's monitor that task bars leave free.
    CRect WorkArea() const;

    /// The string that names the control for screen readers; 0 if the text around
    /// it does so. "%1" in the string is replaced by the name of the input
    /// before the control.
    virtual UINT AccessibleNameId(int controlId) const;

    /// Places every registered control for the current size.
    virtual void LayoutPass();

    /// The client area; empty if there is no window.
    virtual CRect GetClientRectangle() const;

    /// Called at the end of every layout pass and by ApplyMinimumSize.
    virtual void RepositionCurrentPage() {}

    /// Registers a control with its ov::Layout... flags.
    void AddLayout(UINT controlId, std::uint32_t flags);

    /// Handles WM_GETMINMAXINFO for dialogs that must not become smaller than
    /// their design size.
    void ApplyMinimumSize(MINMAXINFO* info);

    /// Moves the controls to the template's positions at the new resolution, then
    /// lays them out for the dialog's current size.
    void OnResolutionChanged() override;

    int OnCreate(CREATESTRUCTW* create);
    void OnSize(UINT type, int width, int height);
    void OnDestroy();
    void OnGetMinMaxInfo(MINMAXINFO* info);
    DECLARE_MESSAGE_MAP()

  private:
    void OpenAt(UINT resolution);
    void PlaceControls(const std::vector<RECT>& rectsInUnits) const;
    CWindowNames& Names();

    bool m_sizeGrip;
    CGrippie m_grip;
    std::vector<ov::CDlgControlInfo> m_controlLayout;
    UINT m_designWidth;
    UINT m_designHeight;
    CSize m_templateSize;
    CWindowNames m_names; ///< including those of the dialogs inside this one
    bool m_isCaptured = false;
};
