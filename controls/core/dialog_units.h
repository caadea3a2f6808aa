#pragma once

#include <cstdint>

#include "controls/core/geometry.h"

// Dialog templates and fonts at any resolution. A resolution is in pixels per
// inch. Values are rounded as the system rounds them when it makes a dialog.

namespace ov
{

/// The resolution for which sizes are given in pixels.
inline constexpr std::int32_t UsualResolution = 96;

/// The pixels of four horizontal and eight vertical dialog units, which follow
/// from the dialog's font. At the usual resolution, the program's dialogs have
/// these.
inline constexpr Size UsualUnits{6, 13};

/// A length in pixels at the usual resolution, in the pixels of another one.
std::int32_t PixelsAt(std::int32_t length, std::int32_t resolution);

/// Edges in dialog units as edges in pixels.
Rect EdgesInPixels(const Rect& edges, const Size& units);

/// The place that a control of a template gets. Unlike EdgesInPixels it converts
/// the control's width and height, which must not depend on its place.
Rect ControlInPixels(const Rect& control, const Size& units);

/// A size in pixels at the usual units, in the pixels of a dialog with `units`;
/// never less than that size.
Size SizeInUnits(const Size& size, const Size& units);

/// The height of a font at another resolution, where both heights follow from
/// the same whole number of points. Negative heights, those of the letters alone,
/// remain negative.
std::int32_t FontHeightAt(std::int32_t height, std::int32_t resolution, std::int32_t newResolution);

/// The base units of a font: `alphabetWidth` is the width of the 52 letters A to
/// Z and a to z in one line, `lineHeight` the font's height, both in pixels.
Size UnitsOfFont(std::int32_t alphabetWidth, std::int32_t lineHeight);

} // namespace ov
