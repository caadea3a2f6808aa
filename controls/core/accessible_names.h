#pragma once

#include "base/text.h"

#include <span>
#include <vector>

namespace ov
{

/// What a control is to somebody who cannot see what lies around it.
enum class ControlRole {
    Label,  ///< the caption explains what follows
    Frame,  ///< the caption is that of a group
    Box,    ///< check box, its caption beside it
    Radio,  ///< radio button, one of its group's choices
    Button, ///< push button; "..." says as little as no caption
    Input,  ///< filled in or chosen from, without a caption of its own
    UpDown, ///< changes the input before it
};

/// A control of a dialog in the order of creation.
struct ControlToName {
    ControlRole role;
    Text caption;
    /// What it is to be called in place of what is found here. "%1" in it
    /// is replaced by the name of the input before it.
    Text given;
};

/// A caption as it is read: without the mark of its key and the colon at its end.
Text SpokenCaption(TextView caption);

/// What each control has to be called, in the same order; empty where a screen
/// reader finds the name by itself: in the control's caption or, for an input,
/// in the label directly before it. An input after a box is called as the box
/// is, after a radio button as the frame around both.
std::vector<Text> NamesToGive(std::span<const ControlToName> controls);

} // namespace ov
