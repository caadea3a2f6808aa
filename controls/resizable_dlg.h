#pragma once

#include <cstdint>
#include <vector>

#include "controls/abstract_font_dlg.h"
#include "controls/core/layout.h"
#include "controls/grippie.h"
#include "framework/window_names.h"

/// A dialog whose listed controls follow its size, optionally with a size grip.
/// Controls without a telling caption get an accessible name. Each layout starts
/// from the places that the controls have in the template, so that rounding errors
/// of repeated resizing do not add up. At another resolution the template gives
/// them other places, and the layout starts from those.
class CResizableDlg : public CAbstractFontDlg
{
    DECLARE_DYNAMIC(CResizableDlg)

  public:
    /// The design size, in pixels at the usual resolution, is what proportional
    /// placement refers to and what ApplyMinimumSize enforces.
    CResizableDlg(UINT templateId, CWnd* parent, bool sizeGrip, UINT designWidth, UINT designHeight);

    BOOL OnInitDialog() override;

  protected:
    /// Lists the controls by AddLayout. A derived class calls its own from its
    /// constructor.
    virtual void InitControlLayout() {}

    /// Called when every control has the place and the size that the template gives
    /// it, while the dialog opens and after each change of its resolution: for what
    /// is measured there or has a size of its own.
    virtual void OnTemplateLayout() {}

    /// The client area's size in the template, in pixels.
    CSize TemplateSize() const { return m_templateSize; }

    /// The part of the dialog's monitor that task bars leave free.
    CRect WorkArea() const;

    /// The string that names the control to screen readers, 0 where the text
    /// around it does. "%1" in the string is the name of the input
    /// before the control.
    virtual UINT AccessibleNameId(int controlId) const;

    /// Places every listed control for the current size.
    virtual void LayoutPass();

    /// The client area; empty when there is no window.
    virtual CRect GetClientRectangle() const;

    /// Called at the end of every layout pass and by ApplyMinimumSize.
    virtual void RepositionCurrentPage() {}

    /// Lists a control with its ov::Layout... flags.
    void AddLayout(UINT controlId, std::uint32_t flags);

    /// What the dialogs that must not become smaller than their design size do
    /// on WM_GETMINMAXINFO.
    void ApplyMinimumSize(MINMAXINFO* info);

    /// Gives the controls the places of the template at the new resolution, then
    /// lays them out for the dialog's present size.
    void OnResolutionChanged() override;

    int OnCreate(CREATESTRUCTW* create);
    void OnSize(UINT type, int width, int height);
    void OnDestroy();
    void OnGetMinMaxInfo(MINMAXINFO* info);
    DECLARE_MESSAGE_MAP()

  private:
    void OpenAt(UINT resolution);
    void PlaceControls(const std::vector<RECT>& rectsInUnits) const;
    void NameControls();
    CWindowNames& Names();

    bool m_sizeGrip;
    CGrippie m_grip;
    std::vector<ov::CDlgControlInfo> m_controlLayout;
    UINT m_designWidth;
    UINT m_designHeight;
    CSize m_templateSize;
    CWindowNames m_names; ///< those of the dialogs inside this one, too
    bool m_isCaptured = false;
};
