#include "wizard/core/wizard_state.h"

#include <gtest/gtest.h>

namespace
{

using namespace ov;

TEST(EnterKey, WithoutATargetIsSwallowed)
{
    EXPECT_EQ(EnterRule(KeyTarget::None), EnterAction::Swallow);
}

TEST(EnterKey, OnACheckBoxOrButtonBecomesSpace)
{
    EXPECT_EQ(EnterRule(KeyTarget::Other), EnterAction::BecomeSpace);
}

TEST(EnterKey, OnASingleLineEditDoesNothing)
{
    EXPECT_EQ(EnterRule(KeyTarget::SingleLineEdit), EnterAction::Swallow);
}

TEST(EnterKey, OnAMultiLineEditInsertsALineBreak)
{
    EXPECT_EQ(EnterRule(KeyTarget::MultiLineEdit), EnterAction::Pass);
}

} // namespace
