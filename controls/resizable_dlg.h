#pragma once

#include <cstdint>
#include <vector>

#include "controls/abstract_font_dlg.h"
#include "controls/core/layout.h"
#include "controls/grippie.h"
#include "framework/window_names.h"

/// A dialog whose listed controls follow its size, optionally with a size grip.
/// Screen readers are told what controls are whose captions do not say it. Where a control stood when the
/// dialog opened is what every later size starts from, so that resizing again and again never adds up
/// rounding errors.
class CResizableDlg : public CAbstractFontDlg
{
    DECLARE_DYNAMIC(CResizableDlg)

  public:
    /// The design size, in pixels, is what proportional placement refers to and
    /// what ApplyMinimumSize enforces.
    CResizableDlg(UINT templateId, CWnd* parent, bool sizeGrip, UINT designWidth, UINT designHeight);

    BOOL OnInitDialog() override;

  protected:
    /// Lists the controls by AddLayout. A derived class calls its own from its
    /// constructor.
    virtual void InitControlLayout() {}

    /// The string that names the control to screen readers, 0 where what stands
    /// around it does. "%1" in the string stands for the name of the input
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

    int OnCreate(CREATESTRUCTW* create);
    void OnSize(UINT type, int width, int height);
    void OnDestroy();
    void OnGetMinMaxInfo(MINMAXINFO* info);
    DECLARE_MESSAGE_MAP()

  private:
    void NameControls();
    CWindowNames& Names();

    bool m_sizeGrip;
    CGrippie m_grip;
    std::vector<ov::CDlgControlInfo> m_controlLayout;
    UINT m_designWidth;
    UINT m_designHeight;
    CWindowNames m_names; ///< those of the dialogs inside this one, too
    bool m_isCaptured = false;
};
