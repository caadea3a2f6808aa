#pragma once

#include <map>
#include <memory>

#include "base/text.h"
#include "framework/afxwin.h"

// Shapes of the tooltip window.
constexpr UINT ToolTipBalloon = 1;
constexpr UINT ToolTipRoundedRectangle = 2;
constexpr UINT ToolTipRectangle = 4;

constexpr COLORREF ToolTipHeadingColour = RGB(108, 5, 0);
constexpr COLORREF ToolTipDescriptionColour = RGB(39, 54, 35);
constexpr COLORREF ToolTipVariableColour = RGB(1, 52, 209); ///< sub-headings too
constexpr COLORREF ToolTipLightFrameColour = RGB(171, 164, 156);
constexpr COLORREF ToolTipDarkFrameColour = RGB(30, 46, 8);
constexpr COLORREF ToolTipFillColour = RGB(255, 254, 232);

/// Supplies the help text of a control that was registered with an empty one.
class CToolTipTextProvider
{
  public:
    virtual ~CToolTipTextProvider() = default;
    virtual ov::Text GetToolTipText(HWND control) = 0;
};

/// What is known of one control.
struct ToolTipEntry {
    struct IconDeleter {
        void operator()(HICON icon) const { ::DestroyIcon(icon); }
    };

    CRect controlRect;
    std::unique_ptr<std::remove_pointer_t<HICON>, IconDeleter> icon;
    ov::Text text; ///< in the markup of controls/core/tooltip_markup.h
};

/// The program's one tooltip window and, behind it, the registry of the
/// controls' help texts. Nothing shows the window; the texts reach the person
/// through the fields of the dialog and the comments of the saved file.
class CToolTipControl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipControl)

  public:
    /// Makes the window, hidden, owned by `owner`'s window where it has one.
    /// `style` is one of the shapes; `secondStyle` is carried along. `provider`
    /// may be null and must outlive the window.
    BOOL Create(CWnd* owner, UINT style, UINT secondStyle, CToolTipTextProvider* provider);

    /// Registers the text, or replaces the registered one. A control without a
    /// window is ignored. A given icon belongs to the entry from then on.
    void RegisterControl(const CWnd* control, ov::Text text, HICON icon = nullptr);

    /// RegisterControl with a text of the string table.
    void AddTool(const CWnd* control, UINT textId);

    /// The configuration variable that the control edits; empty when the control
    /// has no window, no entry or no such section.
    ov::Text GetVariableName(const CWnd* control) const;

    /// The control's description; empty as above.
    ov::Text GetDescription(const CWnd* control) const;

    /// Number of registered controls.
    size_t GetToolCount() const { return m_entries.size(); }

    UINT GetToolTipStyle() const { return m_style; }

  protected:
    void OnDestroy();
    DECLARE_MESSAGE_MAP()

  private:
    ov::Text TextOf(const CWnd* control) const;

    std::map<HWND, ToolTipEntry> m_entries;
    CToolTipTextProvider* m_provider = nullptr;
    UINT m_style = ToolTipBalloon;
    UINT m_secondStyle = 0;
};
