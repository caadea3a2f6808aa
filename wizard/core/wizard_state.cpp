#include "wizard/core/wizard_state.h"

namespace ov
{

ButtonStates StatesOfButtons(bool modified, std::size_t defaultCount)
{
    return {modified, defaultCount >= 1};
}

EnterAction EnterRule(KeyTarget target)
{
    switch (target) {
    case KeyTarget::None:
    case KeyTarget::SingleLineEdit:
        return EnterAction::Swallow;
    case KeyTarget::MultiLineEdit:
        return EnterAction::Pass;
    case KeyTarget::Other:
        break;
    }
    return EnterAction::BecomeSpace;
}

} // namespace ov
