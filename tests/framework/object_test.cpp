#include "framework/afxwin.h"

#include <gtest/gtest.h>

namespace
{
class CBaseThing : public CObject
{
    DECLARE_DYNAMIC(CBaseThing)
};
class CDerivedThing : public CBaseThing
{
    DECLARE_DYNAMIC(CDerivedThing)
};
IMPLEMENT_DYNAMIC(CBaseThing, CObject)
IMPLEMENT_DYNAMIC(CDerivedThing, CBaseThing)
} // namespace

TEST(Object, KnowsItsClassAndTheClassesAbove)
{
    const CDerivedThing thing;
    EXPECT_STREQ("CDerivedThing", thing.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(thing.IsKindOf(CDerivedThing::GetThisClass()));
    EXPECT_TRUE(thing.IsKindOf(CBaseThing::GetThisClass()));
    EXPECT_TRUE(thing.IsKindOf(&CObject::classCObject));
    EXPECT_FALSE(CBaseThing().IsKindOf(CDerivedThing::GetThisClass()));
    EXPECT_FALSE(thing.IsKindOf(CWnd::GetThisClass()));
}

TEST(Object, DowncastGivesTheObjectOrNull)
{
    CDerivedThing derived;
    CBaseThing base;
    CObject* object = &derived;
    EXPECT_EQ(&derived, DYNAMIC_DOWNCAST(CDerivedThing, object));
    object = &base;
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CDerivedThing, object));
    object = nullptr;
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CBaseThing, object));
}

TEST(Object, ControlsFormTheExpectedTree)
{
    EXPECT_TRUE(CDialog().IsKindOf(CWnd::GetThisClass()));
    EXPECT_TRUE(CListCtrl().IsKindOf(CWnd::GetThisClass()));
    EXPECT_TRUE(CWnd().IsKindOf(CCmdTarget::GetThisClass()));
    EXPECT_FALSE(CEdit().IsKindOf(CButton::GetThisClass()));
    EXPECT_TRUE(CFont().IsKindOf(CGdiObject::GetThisClass()));
}
