#pragma once

#include "base/text.h"

#include <span>
#include <vector>

namespace ov
{

/// The kind of a control, which decides where its accessible name comes from.
enum class ControlRole {
    Label,  ///< the caption is the name of the next control
    Frame,  ///< the caption is the name of a group
    Box,    ///< check box with its own caption
    Radio,  ///< radio button, one choice of its group
    Button, ///< push button; the caption "..." counts as none
    Input,  ///< shows or edits a value and has no caption of its own
    UpDown, ///< changes the input before it
};

/// A control of a dialog, in the order of creation.
struct ControlToName {
    ControlRole role;
    Text caption;
    /// The name that replaces the automatic one. "%1" in it is
    /// replaced by the name of the input before it.
    Text given;
};

/// A caption as read aloud: without the mnemonic mark and the colon at its end.
Text SpokenCaption(TextView caption);

/// The accessible name of each control, in the same order; empty if a screen reader
/// finds the name by itself: in the control's caption or, for an input, in the
/// label directly before it. An input after a box gets the box's name, an input
/// after a radio button the name of the group.
std::vector<Text> NamesToGive(std::span<const ControlToName> controls);

} // namespace ov
