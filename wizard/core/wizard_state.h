#pragma once

#include <cstddef>

namespace ov
{

/// Which of the dialog's buttons can be pressed.
struct ButtonStates {
    bool save = false;
    bool loadDefaults = false;

    bool operator==(const ButtonStates&) const = default;
};

/// Save needs a change, Load Default Preferences something to load:
/// `defaultCount` is the number of variables in the defaults table.
ButtonStates StatesOfButtons(bool modified, std::size_t defaultCount);

/// What a key message is aimed at.
enum class KeyTarget { None, SingleLineEdit, MultiLineEdit, Other };

/// What becomes of the Enter key on a page.
enum class EnterAction {
    Swallow,     ///< the message ends here
    BecomeSpace, ///< it goes on as the space bar: toggles a box, presses a button
    Pass         ///< it goes on as it is
};

/// Enter must not reach the dialog, which would close; only a multi-line edit
/// takes it as text.
EnterAction EnterRule(KeyTarget target);

} // namespace ov
