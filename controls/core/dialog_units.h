#pragma once

#include "controls/core/geometry.h"

#include <cstdint>

// Dialog templates and fonts at any resolution. A resolution is in pixels per
// inch. Values are rounded as the system does when it creates a dialog.

namespace ov
{

/// The usual resolution. Sizes in pixels in the source code refer to it.
inline constexpr std::int32_t kUsualResolution = 96;

/// The size in pixels of four horizontal and eight vertical dialog units, which
/// depends on the dialog's font. This is the value for the program's dialogs at
/// the usual resolution.
inline constexpr Size kUsualUnits{6, 13};

/// Converts a length in pixels at the usual resolution to pixels at another one.
std::int32_t PixelsAt(std::int32_t length, std::int32_t resolution);

/// Converts edges in dialog units to edges in pixels.
Rect EdgesInPixels(const Rect& edges, const Size& units);

/// The rectangle of a template's control. Unlike EdgesInPixels it converts width
/// and height, which must not depend on the control's position.
Rect ControlInPixels(const Rect& control, const Size& units);

/// Converts a size in pixels at the usual units to pixels for a dialog with
/// `units`. The result is never smaller than `size`.
Size SizeInUnits(const Size& size, const Size& units);

/// The height of a font at another resolution, if both heights are derived from
/// the same whole number of points. Negative heights (the height without internal
/// leading) stay negative.
std::int32_t FontHeightAt(std::int32_t height, std::int32_t resolution, std::int32_t newResolution);

/// The base units of a font: `alphabetWidth` is the width of the 52 letters A to
/// Z and a to z in one line, `lineHeight` the font's height, both in pixels.
Size UnitsOfFont(std::int32_t alphabetWidth, std::int32_t lineHeight);

} // namespace ov
