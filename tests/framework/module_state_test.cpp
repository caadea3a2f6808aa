#include "framework/thread_state.h"
#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace
{
/// Whether a new button is a version 6 control: only those have an ideal size.
bool MakesNewButtons()
{
    CWnd parent;
    parent.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0);
    CButton button;
    button.Create(L"BUTTON", L"Press", 0, CRect(0, 0, 50, 50), &parent, 1);
    CSize size;
    return button.SendMessage(BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&size)) != 0 && size.cx > 0;
}

HANDLE CurrentContext()
{
    HANDLE context = nullptr;
    ::GetCurrentActCtx(&context);
    if (context != nullptr)
        ::ReleaseActCtx(context);
    return context;
}
} // namespace

TEST(ModuleState, BringsTheNewControlsForAScope)
{
    EXPECT_FALSE(MakesNewButtons());
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EXPECT_TRUE(MakesNewButtons());
    }
    EXPECT_FALSE(MakesNewButtons());
}

TEST(ModuleState, ScopesNest)
{
    const HANDLE before = CurrentContext();
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        const HANDLE outer = CurrentContext();
        EXPECT_NE(before, outer);
        {
            const AFX_MAINTAIN_STATE2 inner(AfxGetStaticModuleState());
            EXPECT_EQ(outer, CurrentContext());
        }
        EXPECT_EQ(outer, CurrentContext());
    }
    EXPECT_EQ(before, CurrentContext());
}

TEST(ModuleState, EndsWithAnException)
{
    const HANDLE before = CurrentContext();
    EXPECT_THROW(
        {
            const AFX_MAINTAIN_STATE2 inner(AfxGetStaticModuleState());
            throw std::runtime_error("out");
        },
        std::runtime_error);
    EXPECT_EQ(before, CurrentContext());
}

TEST(ModuleState, ModuleWithoutAManifestGoesOn)
{
    AFX_MODULE_STATE other{};
    other.instance = ::GetModuleHandleW(L"kernel32.dll");
    other.resources = other.instance;
    const HANDLE before = CurrentContext();
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(other.instance, AfxGetInstanceHandle());
        EXPECT_EQ(nullptr, AfxGetApp());
        EXPECT_EQ(before, CurrentContext());
    }
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(&theTestApp, AfxGetApp());
}

TEST(ModuleState, InitialisesTheApplicationOnce)
{
    AfxTermLibrary();
    const int before = theTestApp.m_initialised;
    for (int i = 0; i < 3; ++i) {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EXPECT_EQ(before + 1, theTestApp.m_initialised);
    }
}

TEST(ModuleState, FailedInitialisationIsTriedAgain)
{
    struct FailingApp : CWinApp {
        int m_calls = 0;
        BOOL InitInstance() override { return ++m_calls > 1; }
    };
    AFX_MODULE_STATE other{};
    other.instance = ::GetModuleHandleW(L"kernel32.dll");
    FailingApp application;
    // The newest application object becomes the module's own.
    AfxGetStaticModuleState()->application = &theTestApp;
    other.application = &application;
    for (const int calls : {1, 2, 2}) {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(calls, application.m_calls);
        EXPECT_EQ(calls > 1, AfxModuleReady());
    }
}

TEST(ModuleState, ExceptionInTheInitialisationIsToldAndSeen)
{
    struct ThrowingApp : CWinApp {
        BOOL InitInstance() override { throw std::runtime_error("not today"); }
    };
    AFX_MODULE_STATE other{};
    other.instance = AfxGetStaticModuleState()->instance;
    other.resources = other.instance;
    ThrowingApp application;
    AfxGetStaticModuleState()->application = &theTestApp;
    other.application = &application;
    CRecordingHook hook;
    const HANDLE before = CurrentContext();
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_FALSE(AfxModuleReady());
        EXPECT_NE(before, CurrentContext());
    }
    EXPECT_EQ(before, CurrentContext());
    ::ReleaseActCtx(other.context);
    ASSERT_EQ(1u, hook.m_boxes.size());
    EXPECT_EQ(u"not today", hook.m_boxes[0].text);
}

TEST(ModuleState, BelongsToTheThread)
{
    AFX_MODULE_STATE other{};
    other.instance = ::GetModuleHandleW(L"kernel32.dll");
    AFX_MANAGE_STATE(&other);
    HINSTANCE seen = nullptr;
    std::thread([&seen] { seen = AfxGetInstanceHandle(); }).join();
    EXPECT_EQ(::GetModuleHandleW(nullptr), seen);
    EXPECT_EQ(other.instance, AfxGetInstanceHandle());
}

TEST(ModuleState, OutermostScopeDeletesTemporaries)
{
    AfxDeleteTempMap();
    const HWND desktop = ::GetDesktopWindow();
    CWnd own;
    own.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    AFX_THREAD_STATE& state = AfxGetThreadState();
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CWnd* const temporary = CWnd::FromHandle(desktop);
        {
            const AFX_MAINTAIN_STATE2 inner(AfxGetStaticModuleState());
        }
        EXPECT_EQ(temporary, CWnd::FromHandle(desktop)) << "an inner scope leaves them alone";
        EXPECT_EQ(1u, state.temporary.windows.Count());
    }
    EXPECT_EQ(0u, state.temporary.windows.Count());
    EXPECT_EQ(&own, CWnd::FromHandle(own.m_hWnd)) << "permanent objects stay";
}

TEST(ModuleState, EndOfTheLibraryEndsTheApplication)
{
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
    }
    const int initialised = theTestApp.m_initialised;
    const int ended = theTestApp.m_ended;
    AfxTermLibrary();
    EXPECT_EQ(ended + 1, theTestApp.m_ended);
    AfxTermLibrary();
    EXPECT_EQ(ended + 1, theTestApp.m_ended) << "it is not initialised any more";
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EXPECT_EQ(initialised + 1, theTestApp.m_initialised);
        EXPECT_TRUE(MakesNewButtons());
    }
}
