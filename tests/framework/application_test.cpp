#include "tests/framework/ids.h"
#include "tests/framework/test_app.h"

#include <gtest/gtest.h>

TEST(Application, IsFoundByTheFramework)
{
    EXPECT_EQ(&theTestApp, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    theTestApp.SetRegistryKey(L"Some Company");
    EXPECT_EQ(u"Some Company", theTestApp.GetRegistryKey());
}

TEST(Application, MainWindowIsForgottenWithItsWindow)
{
    CHostWindow host;
    const CMainWindowScope scope(&host);
    EXPECT_EQ(&host, AfxGetMainWnd());
    host.DestroyWindow();
    EXPECT_EQ(nullptr, AfxGetMainWnd());
}

TEST(Application, MissingIconIsNull)
{
    EXPECT_EQ(nullptr, theTestApp.LoadIcon(IDD_MISSING));
}

TEST(StringTable, GivesTheWholeText)
{
    EXPECT_EQ(u"Good morning", AfxLoadString(IDS_GREETING));
    EXPECT_EQ(17u * 16u, AfxLoadString(IDS_LONG).size());
    EXPECT_EQ(u"", AfxLoadString(IDS_MISSING));
}
