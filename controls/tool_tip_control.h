#pragma once

#include "base/text.h"
#include "controls/core/tooltip_layout.h"
#include "framework/afxwin.h"

#include <map>
#include <memory>
#include <vector>

// Shapes of the tooltip window.
constexpr UINT kTooltipBalloon = 1;
constexpr UINT kTooltipRoundedRectangle = 2;
constexpr UINT kTooltipRectangle = 4;

constexpr COLORREF kTooltipHeadingColour = RGB(108, 5, 0);
constexpr COLORREF kTooltipDescriptionColour = RGB(39, 54, 35);
constexpr COLORREF kTooltipVariableColour = RGB(1, 52, 209); ///< also for sub-headings
constexpr COLORREF kTooltipLightFrameColour = RGB(171, 164, 156);
constexpr COLORREF kTooltipDarkFrameColour = RGB(30, 46, 8);
constexpr COLORREF kTooltipFillColour = RGB(255, 254, 232);

/// Supplies the help text of a control that was registered with an empty text.
class CTooltipTextProvider
{
  public:
    virtual ~CTooltipTextProvider() = default;
    virtual ov::Text GetTooltipText(HWND control) = 0;
};

/// A shared icon; destroyed with its last owner.
using TooltipIcon = std::shared_ptr<std::remove_pointer_t<HICON>>;

/// The registry's data of one control.
struct ToolTipEntry {
    CRect controlRect;
    TooltipIcon icon;
    ov::Text text; ///< in the markup of controls/core/tooltip_markup.h
};

/// The program's one tooltip window, and the registry of the controls' help texts.
/// The program never shows the window: no control starts a show. The texts reach
/// the user through the focus fields of the dialog and the comments of the
/// saved file.
class CToolTipControl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipControl)

  public:
    /// Creates the window, hidden and owned by `owner`'s window if there is one.
    /// `style` is one of the shapes; `secondStyle` is stored but not used. `provider`
    /// may be null and must outlive the window.
    BOOL Create(CWnd* owner, UINT style, UINT secondStyle, CTooltipTextProvider* provider);

    /// Registers a text of the string table and the tooltips' icon for the control, or
    /// replaces what is registered. Ignores a control without a window.
    void AddTool(const CWnd* control, UINT textId);

    /// Removes the control, for windows that are destroyed before the tooltip window.
    void DelTool(const CWnd* control);

    /// The configuration variable that the control edits; empty if the control
    /// has no window, no entry or no such section.
    ov::Text GetVariableName(const CWnd* control) const;

    /// The control's description; empty in the same cases.
    ov::Text GetDescription(const CWnd* control) const;

    // The rest of the interface is part of the design's contract and used by tests only.

    /// AddTool with any text. The entry takes ownership of a given icon.
    void RegisterControl(const CWnd* control, ov::Text text, HICON icon = nullptr);

    /// Number of registered controls.
    size_t GetToolCount() const { return m_entries.size(); }

    /// The icon of the control's entry; null if it has none. The entry owns it.
    HICON GetToolIcon(const CWnd* control) const;

    UINT GetTooltipStyle() const { return m_style; }

    /// Shows the current text in a window that points at `anchor`, in screen
    /// coordinates, without activating it. Shows nothing if the text has no sections.
    void ShowAt(CPoint anchor);

    /// Hides the window and clears the state of the show.
    void Hide();

  protected:
    void OnDestroy();
    void OnPaint();
    void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

    /// Draws the window as it was last measured.
    void Draw(CDC* context);

    static constexpr UINT_PTR showTimer = 100;
    static constexpr UINT_PTR watchTimer = 101;

    // The state of a show, which nothing in the program starts. The caller fills in the
    // text and the control's rectangle, sets pending and starts the show timer.
    ov::Text m_currentText;  ///< in the markup
    CRect m_controlRect;     ///< in screen coordinates; the window remains while the cursor is inside
    bool m_pending = false;  ///< a show is waiting for its delay
    UINT m_showDelay = 1000; ///< in milliseconds
    CPoint m_anchor;         ///< the cursor position at the time of the show
    ov::TooltipSide m_side;  ///< the position of the body relative to the anchor
    ov::TooltipOutline m_outline;

  private:
    void SetEntry(const CWnd* control, ov::Text text, TooltipIcon icon);
    ov::Text TextOf(const CWnd* control) const;
    void CreateFonts();
    CFont& FontOf(ov::TooltipSection section);
    /// The current text's parts with their sizes; they point into the text.
    std::vector<ov::TooltipPart> Measure(CDC* context);
    bool MakeRegion(CRgn& region) const;

    std::map<HWND, ToolTipEntry> m_entries;
    std::weak_ptr<TooltipIcon::element_type> m_toolIcon; ///< the icon that all of AddTool's entries share
    CTooltipTextProvider* m_provider = nullptr;
    UINT m_style = kTooltipBalloon;
    UINT m_secondStyle = 0;
    CFont m_headingFont;
    CFont m_variableFont;
    CFont m_descriptionFont;
    ov::TooltipMetrics m_metrics;
    UINT_PTR m_watchTimer = 0;
};
