#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "controls/core/geometry.h"

namespace ov
{

/// How a control follows its dialog; flags combine per control.
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
inline constexpr std::uint32_t LayoutScaleWidthFromRight = 0x400; ///< scaled width sits at the right margin

/// One control that follows its dialog's size.
struct CDlgControlInfo {
    Rect initialRect;            ///< where it was when captured
    std::uint16_t controlId = 0; ///< dialog control id
    std::uint16_t reserved = 0;  ///< carried along, not used
    std::uint32_t layoutFlags = 0;
    std::int32_t left = 0;         ///< initial left edge
    std::int32_t rightMargin = 0;  ///< client width minus initial right edge
    std::int32_t top = 0;          ///< initial top edge
    std::int32_t bottomMargin = 0; ///< client height minus initial bottom edge
    std::uint32_t captured = 0;    ///< 1 once the geometry above was taken
};

/// Takes the control's geometry, once: a captured entry keeps what it has.
void CaptureControl(CDlgControlInfo& info, const Rect& rect, std::int32_t clientWidth,
                    std::int32_t clientHeight);

/// Where the control goes in a client area of `clientWidth` x `clientHeight`
/// pixels. Proportions refer to the design size, which must not be zero.
Rect PlaceControl(const CDlgControlInfo& info, std::uint32_t designWidth, std::uint32_t designHeight,
                  std::int32_t clientWidth, std::int32_t clientHeight);

/// Width in pixels of each of a stretched list's `columns` columns; 0 when
/// there is no room or no column.
std::int32_t ColumnWidth(std::int32_t listWidth, std::int32_t columns);

/// Side of the square size grip, in pixels.
inline constexpr std::int32_t GripSize = 11;

/// The size grip's place in the bottom-right corner of the client area.
Rect GripRect(std::int32_t clientWidth, std::int32_t clientHeight);

/// Smallest size in pixels that a dialog with these units may be tracked to: the
/// design size, which grows with the units as far as the work area has room. None
/// once the design width is 0.
std::optional<Size> MinimumTrackSize(std::uint32_t designWidth, std::uint32_t designHeight, const Size& units,
                                     const Size& workArea);

/// The design size of every dialog of the program, in pixels at the usual
/// resolution.
inline constexpr std::uint32_t DesignWidth = 580;
inline constexpr std::uint32_t DesignHeight = 400;

/// What the layout needs of a dialog's controls.
class LayoutControls
{
  public:
    virtual ~LayoutControls() = default;

    /// The control's rectangle; none when the dialog has no such control.
    virtual std::optional<Rect> ControlRect(std::uint16_t controlId) = 0;

    /// Number of columns of a list control, 0 for any other control.
    virtual std::int32_t ListColumns(std::uint16_t controlId) = 0;

    /// Gives every column of a list control that width in pixels.
    virtual void SetListColumnWidths(std::uint16_t controlId, std::int32_t width) = 0;

    /// Moves the control and has it drawn again.
    virtual void MoveControl(std::uint16_t controlId, const Rect& rect) = 0;
};

/// Captures every entry whose control exists.
void CaptureControls(std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                     std::int32_t clientWidth, std::int32_t clientHeight);

/// The same for controls that have got other initial places, as at another
/// resolution: what the entries had captured is replaced.
void RecaptureControls(std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                       std::int32_t clientWidth, std::int32_t clientHeight);

/// Whether a dialog of that design size lays its controls out at all; a
/// destroyed dialog has the design width 0.
constexpr bool IsLayoutActive(std::uint32_t designWidth, std::uint32_t designHeight)
{
    return designWidth != 0 && designHeight != 0;
}

/// Places every entry whose control exists, in order. Does nothing for a
/// design size that is not active.
void ApplyLayout(const std::vector<CDlgControlInfo>& entries, LayoutControls& controls,
                 std::uint32_t designWidth, std::uint32_t designHeight, std::int32_t clientWidth,
                 std::int32_t clientHeight);

} // namespace ov
