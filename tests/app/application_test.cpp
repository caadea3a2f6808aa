#include "app/host_size.h"
#include "controls/dialog_app.h"
#include "include/ovPreferences.h"
#include "resources/ids.h"
#include "tests/app/program.h"

#include <stdexcept>

namespace
{
constexpr UINT usualResolution = 96;

class SizeWindow : public CWnd
{
};

LOGFONTW DescriptionOf(CFont& font)
{
    LOGFONTW description{};
    ::GetObjectW(font.GetSafeHandle(), sizeof description, &description);
    return description;
}

/// An application that starts without a font, independent of earlier tests.
class FreshApplication
{
  public:
    ~FreshApplication()
    {
        theApp.m_pMainWnd = nullptr;
        AfxGetStaticModuleState()->application = &theApp;
    }
    CPreferencesApp& operator*() { return m_app; }
    CPreferencesApp* operator->() { return &m_app; }

  private:
    CPreferencesApp m_app;
};
} // namespace

TEST(HostSize, CopyAndMoveAssignTheEightBytesAndReturnTheObject)
{
    using Bentley::UIFramework::BSize;
    BSize source(3, -4);
    BSize target;
    EXPECT_EQ(&(target = source), &target);
    EXPECT_EQ(target.cx, 3);
    EXPECT_EQ(target.cy, -4);
    BSize moved;
    EXPECT_EQ(&(moved = BSize(5, 6)), &moved);
    EXPECT_EQ(moved.cx, 5);
    EXPECT_EQ(moved.cy, 6);
}

TEST_F(ProgramTest, NullTextsLeaveTheStoredOnes)
{
    // The hook prevents the dialog from opening: only the arguments matter here.
    for (int call = 0; call < 3; ++call)
        doors.AnswerDialog(IDCANCEL);
    EXPECT_EQ(ovPreferences_showDialogEx(nullptr, L"d.cfg", L"c.cfg", L"Jane"), 0u);
    EXPECT_EQ(ovPreferences_showDialogEx(nullptr, nullptr, nullptr, nullptr), 0u);
    EXPECT_EQ(theCommandLine.m_defaultPath, u"d.cfg");
    EXPECT_EQ(theCommandLine.m_currentPath, u"c.cfg");
    EXPECT_EQ(theApp.GetUserName(), u"Jane");
    EXPECT_EQ(ovPreferences_showDialogEx(nullptr, nullptr, L"", nullptr), 0u);
    EXPECT_EQ(theCommandLine.m_defaultPath, u"d.cfg");
    EXPECT_EQ(theCommandLine.m_currentPath, u"");
}

TEST_F(ProgramTest, ADialogThatCannotBeMadeGivesOne)
{
    doors.AnswerDialog(-1);
    EXPECT_EQ(ovPreferences_showDialog(), 1u);
    EXPECT_EQ(theApp.m_pMainWnd, nullptr);
    EXPECT_EQ(theTooltip.GetSafeHwnd(), nullptr);
}

TEST_F(ProgramTest, AnEmptyUserNameIsAskedForOnceAndKept)
{
    wchar_t name[256];
    DWORD length = 256;
    ASSERT_TRUE(::GetUserNameW(name, &length));
    theCommandLine.m_userName = u" \t";
    EXPECT_EQ(theApp.GetUserName(), FromWide(name));
    EXPECT_EQ(theCommandLine.m_userName, FromWide(name));
}

TEST_F(ProgramTest, InitialisationNamesTheRegistryKey)
{
    EXPECT_EQ(theApp.GetRegistryKey(), u"Orthoval Preferences");
}

TEST_F(ProgramTest, AnExceptionIsToldUnderTheProgramsCaption)
{
    doors.AnswerMessage(IDOK);
    try {
        throw std::invalid_argument("The clock stands still.");
    } catch (...) {
        AfxReportCurrentException();
    }
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].text, L"The clock stands still.");
    EXPECT_EQ(doors.messages[0].caption, L"Orthoval for MicroStation Preferences");
    EXPECT_EQ(doors.messages[0].type, UINT{MB_OK | MB_ICONSTOP | MB_SETFOREGROUND | MB_TOPMOST});
}

TEST_F(ProgramTest, HelpTextsAreRegisteredWithTheirIconAndNeverShown)
{
    Open(L"", L"");
    HICON icon = nullptr;
    for (const int id : {IDC_PREFERENCES_CONFIG_FILE, IDC_PREFERENCES_BROWSE, IDC_PREFERENCES_SAVE, IDCANCEL,
                         IDC_LEFT_PANE_LIST}) {
        icon = theTooltip.GetToolIcon(CWnd::FromHandle(Control(id)));
        ICONINFO info{};
        ASSERT_TRUE(::GetIconInfo(icon, &info)) << id;
        ::DeleteObject(info.hbmMask);
        ::DeleteObject(info.hbmColor);
    }
    EXPECT_GT(theTooltip.GetToolCount(), 5u) << "the pages' controls";
    // Focus and cursor visit controls that have a help text.
    CRect save;
    ::GetWindowRect(Control(IDC_PREFERENCES_SAVE), save);
    ::SetCursorPos(save.left + 5, save.top + 5);
    ::SetFocus(Control(IDC_PREFERENCES_BROWSE));
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (!CWnd::WalkPreTranslateTree(dialog->m_hWnd, &message))
            ::DispatchMessageW(&message);
    }
    EXPECT_FALSE(theTooltip.IsWindowVisible());
    for (const UINT_PTR timer : {100, 101})
        EXPECT_FALSE(::KillTimer(theTooltip, timer)) << timer;
    theTooltip.DestroyWindow();
    ICONINFO info{};
    EXPECT_FALSE(::GetIconInfo(icon, &info));
}

TEST_F(ProgramTest, TheApplicationsIconIsLoadedByAnExport)
{
    doors.AnswerDialog(IDCANCEL);
    EXPECT_EQ(ovPreferences_showDialog(), 0u);
    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(GetApplicationIcon(), &info));
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
}

TEST_F(ProgramTest, TheSharedFontIsACopyOfTheMainWindowsFont)
{
    Open(L"", L"");
    CFont* const font = GetSharedDialogFont(usualResolution);
    ASSERT_NE(font, nullptr);
    CFont* const dialogFont = dialog->GetFont();
    ASSERT_NE(dialogFont, nullptr);
    EXPECT_NE(font->GetSafeHandle(), dialogFont->GetSafeHandle());
    EXPECT_STREQ(DescriptionOf(*font).lfFaceName, DescriptionOf(*dialogFont).lfFaceName);
    EXPECT_EQ(DescriptionOf(*font).lfHeight, DescriptionOf(*dialogFont).lfHeight);
    EXPECT_EQ(GetSharedDialogFont(usualResolution), font);
}

TEST_F(ProgramTest, EachResolutionHasItsOwnSharedFontOfTheSameType)
{
    Open(L"", L"");
    CFont* const font = GetSharedDialogFont(usualResolution);
    CFont* const finer = GetSharedDialogFont(192);
    ASSERT_NE(font, nullptr);
    ASSERT_NE(finer, nullptr);
    // Eight points, as in the templates.
    EXPECT_EQ(DescriptionOf(*font).lfHeight, -11);
    EXPECT_EQ(DescriptionOf(*finer).lfHeight, -21);
    EXPECT_STREQ(DescriptionOf(*finer).lfFaceName, DescriptionOf(*font).lfFaceName);
    EXPECT_EQ(GetSharedDialogFont(192), finer);
    EXPECT_EQ(GetSharedDialogFont(usualResolution), font);
}

TEST_F(ProgramTest, WithoutAMainWindowThereIsNoFont)
{
    FreshApplication app;
    EXPECT_EQ(app->GetDialogFont(usualResolution), nullptr);
}

TEST_F(ProgramTest, AMainWindowWithoutAFontGivesTahoma)
{
    SizeWindow window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    FreshApplication app;
    app->m_pMainWnd = &window;
    CFont* const font = app->GetDialogFont(usualResolution);
    ASSERT_NE(font, nullptr);
    const LOGFONTW description = DescriptionOf(*font);
    EXPECT_STREQ(description.lfFaceName, L"Tahoma");
    EXPECT_EQ(description.lfHeight, 14);
    EXPECT_EQ(description.lfPitchAndFamily & 0xF0, FF_SWISS);
    window.DestroyWindow();
}
