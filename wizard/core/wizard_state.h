#pragma once

#include <cstddef>

namespace ov
{

/// Which of the dialog's buttons are enabled.
struct ButtonStates {
    bool save = false;
    bool loadDefaults = false;

    bool operator==(const ButtonStates&) const = default;
};

/// Save needs a change. Load Default Preferences needs something to load:
/// `defaultCount` is the number of variables in the defaults table.
ButtonStates StatesOfButtons(bool modified, std::size_t defaultCount);

/// The kind of control that receives a key message.
enum class KeyTarget { None, SingleLineEdit, MultiLineEdit, Other };

/// How a page handles the Enter key.
enum class EnterAction {
    Swallow,     ///< the message is discarded
    BecomeSpace, ///< it is handled as the space bar: toggles a box, presses a button
    Pass         ///< it is passed on unchanged
};

/// Enter must not reach the dialog, which would close. Only a multi-line edit
/// receives it as input.
EnterAction EnterRule(KeyTarget target);

} // namespace ov
