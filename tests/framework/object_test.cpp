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
    EXPECT_TRUE(thing.IsKindOf(RUNTIME_CLASS(CDerivedThing)));
    EXPECT_TRUE(thing.IsKindOf(RUNTIME_CLASS(CBaseThing)));
    EXPECT_TRUE(thing.IsKindOf(&CObject::classCObject));
    EXPECT_FALSE(CBaseThing().IsKindOf(RUNTIME_CLASS(CDerivedThing)));
    EXPECT_FALSE(thing.IsKindOf(RUNTIME_CLASS(CWnd)));
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
    EXPECT_TRUE(CDialog().IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(CListCtrl().IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(CWnd().IsKindOf(RUNTIME_CLASS(CCmdTarget)));
    EXPECT_FALSE(CEdit().IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_TRUE(CFont().IsKindOf(RUNTIME_CLASS(CGdiObject)));
}
