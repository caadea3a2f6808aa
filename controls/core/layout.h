#pragma once

#include "controls/core/geometry.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace ov
{

/// How a control follows its dialog's size. Flags can be combined. The design defines all of them; the
/// program's own dialogs use none of the proportional ones (Scale...).
inline constexpr std::uint32_t LayoutKeepLeft = 0x001;      ///< fixed horizontal position and width
inline constexpr std::uint32_t LayoutKeepTop = 0x002;       ///< fixed top edge
inline constexpr std::uint32_t LayoutAnchorRight = 0x004;   ///< follows the right edge, width kept
inline constexpr std::uint32_t LayoutAnchorBottom = 0x008;  ///< follows the bottom edge, height kept
inline constexpr std::uint32_t LayoutScaleWidth = 0x010;    ///< width in proportion to the design width
inline constexpr std::uint32_t LayoutScaleHeight = 0x020;   ///< height in proportion to the design height
inline constexpr std::uint32_t LayoutScaleX = 0x040;        ///< left in proportion, width kept
inline constexpr std::uint32_t LayoutScaleY = 0x080;        ///< top in proportion, height kept
inline constexpr std::uint32_t LayoutStretchWidth = 0x100;  ///< left kept, right edge follows
inline constexpr std::uint32_t LayoutStretchHeight = 0x200; ///< top kept, bottom edge follows
inline constexpr std::uint32_t LayoutScaleWidthFromRight = 0x400; ///< scaled width at the right margin

/// A control that follows its dialog's size.
struct CDlgControlInfo {
    Rect initialRect;            ///< its rectangle when captured
    std::uint16_t controlId = 0; ///< dialog control id
    std::uint16_t reserved = 0;  ///< part of the design's record; nothing uses it
    std::uint32_t layoutFlags = 0;
    std::int32_t left = 0;         ///< initial left edge
    std::int32_t rightMargin = 0;  ///< client width minus initial right edge
    std::int32_t top = 0;          ///< initial top edge
    std::int32_t bottomMargin = 0; ///< client height minus initial bottom edge
    std::uint32_t captured = 0;    ///< 1 after the geometry above was captured
};

/// Captures the control's geometry, once: a captured entry does not change.
void CaptureControl(CDlgControlInfo& info, const Rect& rect, std::int32_t clientWidth,
                    std::int32_t clientHeight);

/// The control's rectangle in a client area of `clientWidth` x `clientHeight`
/// pixels. Proportions refer to the design size, which must not be zero.
Rect PlaceControl(const CDlgControlInfo& info, std::uint32_t designWidth, std::uint32_t designHeight,
                  std::int32_t clientWidth, std::int32_t clientHeight);

/// The width in pixels of each of the `columns` columns of a stretched list; 0 if
/// there is no room or no column.
std::int32_t ColumnWidth(std::int32_t listWidth, std::int32_t columns);

/// Side of the square size grip, in pixels.
inline constexpr std::int32_t kGripSize = 11;

/// The size grip's rectangle in the bottom-right corner of the client area.
Rect GripRect(std::int32_t clientWidth, std::int32_t clientHeight);

/// The minimum size in pixels for a dialog with these units: the design size,
/// scaled with the units as far as the work area allows. Nothing if the design
/// width is 0.
std::optional<Size> MinimumTrackSize(std::uint32_t designWidth, std::uint32_t designHeight, const Size& units,
                                     const Size& workArea);

/// The design size of every dialog of the program, in pixels at the usual
/// resolution.
inline constexpr std::uint32_t kDesignWidth = 580;
inline constexpr std::uint32_t kDesignHeight = 400;

/// The operations on a dialog's controls that the layout needs.
class LayoutControls
{
  public:
    virtual ~LayoutControls() = default;

    /// The control's rectangle; nothing if the dialog has no such control.
    virtual std::optional<Rect> ControlRect(std::uint16_t controlId) = 0;

    /// The number of columns of a list control; 0 for any other control.
    virtual std::int32_t ListColumns(std::uint16_t controlId) = 0;

    /// Sets the width of every column of a list control, in pixels.
    virtual void SetListColumnWidths(std::uint16_t controlId, std::int32_t width) = 0;

    /// Moves the control and redraws it.
    virtual void MoveControl(std::uint16_t controlId, const Rect& rect) = 0;
};

/// Captures every entry whose control exists.
void CaptureControls(std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                     std::int32_t clientWidth, std::int32_t clientHeight);

/// Captures the geometry again for controls with new initial positions, for
/// example at another resolution. Replaces what was captured before.
void RecaptureControls(std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                       std::int32_t clientWidth, std::int32_t clientHeight);

/// True if a dialog of that design size lays out its controls; a destroyed dialog
/// has the design width 0.
constexpr bool IsLayoutActive(std::uint32_t designWidth, std::uint32_t designHeight)
{
    return designWidth != 0 && designHeight != 0;
}

/// Places every entry whose control exists, in order. Does nothing if the
/// design size is not active.
void ApplyLayout(const std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                 std::uint32_t designWidth, std::uint32_t designHeight, std::int32_t clientWidth,
                 std::int32_t clientHeight);

} // namespace ov
