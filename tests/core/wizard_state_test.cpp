#include "wizard/core/wizard_state.h"

#include <gtest/gtest.h>

namespace
{

using namespace ov;

TEST(WizardState, NothingChangedAndNoDefaultsDisablesBothButtons)
{
    EXPECT_EQ(StatesOfButtons(false, 0), (ButtonStates{false, false}));
}

TEST(WizardState, SaveFollowsTheModifiedFlagOnly)
{
    EXPECT_EQ(StatesOfButtons(true, 0), (ButtonStates{true, false}));
    EXPECT_TRUE(StatesOfButtons(true, 3).save);
    EXPECT_FALSE(StatesOfButtons(false, 3).save);
}

TEST(WizardState, LoadDefaultsNeedsAtLeastOneDefault)
{
    EXPECT_EQ(StatesOfButtons(false, 1), (ButtonStates{false, true}));
    EXPECT_EQ(StatesOfButtons(false, 60), (ButtonStates{false, true}));
}

} // namespace
