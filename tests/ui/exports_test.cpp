// The two exports: the texts that they remember, the windows that they disable, and
// the version of the controls that they show.
#include "pages/branding/ids.h"
#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"
#include "tests/ui/value_editor.h"

#include <algorithm>
#include <objbase.h>

// Interfaces have no virtual destructors; nothing is deleted through one.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

using namespace uidriver;

namespace
{

class ExportsTest : public DialogSession
{
  protected:
    std::wstring ShownPath() { return GetText(Control(IDC_PREFERENCES_CONFIG_FILE)); }

    static unsigned ShowWithoutArguments() { return Library::Get().ShowDialog()(); }
    static unsigned ShowWithNulls()
    {
        return Library::Get().ShowDialogEx()(nullptr, nullptr, nullptr, nullptr);
    }

    /// A call as a host with a window makes it.
    struct Host {
        HWND window = nullptr;
        HWND active = nullptr;
        bool enabledAfterwards = false;
        const wchar_t* texts = L""; ///< the paths and the user; null leaves those of the last call

        unsigned Show()
        {
            return ShowWith([](HWND) { return nullptr; });
        }
        /// Passes a parent derived from the host's window.
        unsigned ShowWith(const std::function<void*(HWND)>& parentOf)
        {
            window = MakeWindow(L"Host");
            active = MakeWindow(L"Active");
            SetActiveWindow(active);
            auto* const parent = static_cast<CWnd*>(parentOf(window));
            const unsigned result = Library::Get().ShowDialogEx()(parent, texts, texts, texts);
            enabledAfterwards = IsWindowEnabled(window) && IsWindowEnabled(active);
            DestroyWindow(active);
            DestroyWindow(window);
            return result;
        }

      private:
        static HWND MakeWindow(const wchar_t* caption)
        {
            return CreateWindowExW(0, L"Static", caption, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200,
                                   nullptr, nullptr, nullptr, nullptr);
        }
    };
};

TEST_F(ExportsTest, SecondCallReusesThePathsAndTheUser)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    EXPECT_NE(std::string::npos, CurrentBytes().find(" by user Ada Archer on machine "));
}

TEST_F(ExportsTest, NullTextsBehaveLikeTheCallWithoutArguments)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    ASSERT_TRUE(Open(ShowWithNulls));
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO));
    Cancel();
}

TEST_F(ExportsTest, OneTextIsReplacedAndTheOthersStay)
{
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    const std::wstring other = m_folder / L"other.cfg";
    ASSERT_TRUE(WriteBytes(other, "_ORTHOVAL_BRANDING_CERTIFY = 1\r\n"));
    ASSERT_TRUE(
        Open([&] { return Library::Get().ShowDialogEx()(nullptr, nullptr, other.c_str(), nullptr); }));
    EXPECT_EQ(other, ShownPath());
    EXPECT_TRUE(CanLoadDefaults());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_CERTIFY));
    Cancel();
}

TEST_F(ExportsTest, TextsAreCopied)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    std::wstring passed = m_currentPath;
    ASSERT_TRUE(Open([&] { return Library::Get().ShowDialogEx()(nullptr, L"", passed.c_str(), L""); }));
    Cancel();
    std::ranges::fill(passed, L'x');
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(m_currentPath, ShownPath());
    Cancel();
}

TEST_F(ExportsTest, EmptyUserBecomesTheLoggedOnUser)
{
    wchar_t name[256] = {};
    DWORD size = 256;
    ASSERT_TRUE(GetUserNameW(name, &size));
    m_user = L"  ";
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    std::string expected;
    for (const wchar_t* character = name; *character; ++character)
        expected += static_cast<char>(*character);
    EXPECT_NE(std::string::npos, CurrentBytes().find(" by user " + expected + " on machine "));
}

TEST_F(ExportsTest, SavingAndCancellingBothReturnZero)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Save(); // checks the result, like Abandon
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    Abandon();
}

TEST_F(ExportsTest, LibraryCanBeUnloadedAndForgetsItsTexts)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel();
    ASSERT_TRUE(Library::Get().Unload());
    ASSERT_TRUE(Library::Get().Load());
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(L"", ShownPath());
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(ExportsTest, WithoutAParentTheActiveWindowOwnsTheDialogAndIsDisabled)
{
    Host host;
    ASSERT_TRUE(Open([&] { return host.Show(); }));
    EXPECT_EQ(host.active, GetWindow(Dialog(), GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(host.active));
    Cancel();
    EXPECT_TRUE(host.enabledAfterwards);
}

TEST_F(ExportsTest, AWindowHandleInTheParentsPlaceOwnsTheDialogAndIsDisabled)
{
    Host host;
    ASSERT_TRUE(Open([&] { return host.ShowWith([](HWND window) { return window; }); }));
    EXPECT_EQ(host.window, GetWindow(Dialog(), GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(host.window));
    Cancel();
    EXPECT_TRUE(host.enabledAfterwards);
}

TEST_F(ExportsTest, AForeignObjectIsNotReadAndTheActiveWindowOwnsTheDialog)
{
    // Reading it ends the program.
    void* const object = VirtualAlloc(nullptr, 4096, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS);
    ASSERT_NE(nullptr, object);
    Host host;
    ASSERT_TRUE(Open([&] { return host.ShowWith([&](HWND) { return object; }); }));
    EXPECT_EQ(host.active, GetWindow(Dialog(), GW_OWNER));
    Cancel();
    EXPECT_TRUE(host.enabledAfterwards);
    VirtualFree(object, 0, MEM_RELEASE);
}

TEST_F(ExportsTest, TheHandleOfAWindowThatIsGoneCountsAsNone)
{
    Host host;
    ASSERT_TRUE(Open([&] {
        return host.ShowWith([](HWND window) {
            DestroyWindow(window);
            return window;
        });
    }));
    EXPECT_EQ(host.active, GetWindow(Dialog(), GW_OWNER));
    Cancel();
}

TEST_F(ExportsTest, TheDialogAndItsChangesOutliveTheParent)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    ASSERT_TRUE(Open());
    Cancel(); // from here on the library knows the path
    Host host;
    host.texts = nullptr;
    ASSERT_TRUE(Open([&] { return host.ShowWith([](HWND window) { return window; }); }));
    ClickOnPage(IDC_BRANDING_AUTO);
    PostMessageW(host.window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(AwaitGone(host.window));
    Settle(Dialog());
    ExpectOpen();
    EXPECT_EQ(nullptr, GetWindow(Dialog(), GW_OWNER));
    EXPECT_TRUE(CanSave());
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDNO);
    ExpectClosed();
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 0", AssignmentOf(CurrentBytes(), "_ORTHOVAL_BRANDING_AUTO"));
}

TEST_F(ExportsTest, AHostThatEndsIsAskedAboutTheChangesFirst)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ClickOnPage(IDC_BRANDING_AUTO);
    HWND editor = OpenValueEditor(PageControl(IDC_BRANDING_RENAME_BROWSE));
    ASSERT_TRUE(editor);
    PostThreadMessageW(HostThread::Get().Id(), WM_QUIT, 0, 0);
    ASSERT_TRUE(AwaitGone(editor));
    AnswerAbandonQuestion(IDCANCEL);
    ExpectOpen();
    PostThreadMessageW(HostThread::Get().Id(), WM_QUIT, 0, 0);
    AnswerAbandonQuestion(IDYES);
    ExpectClosed();
}

TEST_F(ExportsTest, WithoutAnyWindowTheDialogIsUnowned)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(nullptr, GetWindow(Dialog(), GW_OWNER));
    Cancel();
}

TEST_F(ExportsTest, ControlsAreVersionSixThoughTheProgramHasNoManifest)
{
    ASSERT_EQ(nullptr, FindResourceW(nullptr, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24)));
    ASSERT_TRUE(Open());
    for (HWND control : {List(), Control(IDC_PREFERENCES_SAVE), PageControl(IDC_BRANDING_RENAME)}) {
        EXPECT_TRUE(IsVersionSix(control)) << testing::PrintToString(ClassOf(control));
    }
    Cancel();
}

/// Calls a function whenever its thread is about to uninitialise COM.
class LeavingSpy final : public IInitializeSpy
{
  public:
    explicit LeavingSpy(std::function<void()> onLeave) : m_onLeave(std::move(onLeave))
    {
        CoRegisterInitializeSpy(this, &m_cookie);
    }
    ~LeavingSpy() { CoRevokeInitializeSpy(m_cookie); }
    LeavingSpy(const LeavingSpy&) = delete;
    LeavingSpy& operator=(const LeavingSpy&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override
    {
        const bool known = id == IID_IUnknown || id == __uuidof(IInitializeSpy);
        *result = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE PreInitialize(DWORD, DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE PostInitialize(HRESULT result, DWORD, DWORD) override { return result; }
    HRESULT STDMETHODCALLTYPE PreUninitialize(DWORD) override
    {
        m_onLeave();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE PostUninitialize(DWORD) override { return S_OK; }

  private:
    std::function<void()> m_onLeave;
    ULARGE_INTEGER m_cookie = {};
};

TEST_F(ExportsTest, ComIsLeftAfterTheWindowIsGoneAndACallMeanwhileChangesNothing)
{
    UseCurrent("_ORTHOVAL_BRANDING_AUTO = 1\r\n");
    int leavings = 0;
    bool windowExisted = false;
    unsigned secondResult = OV_PREFERENCES_SHOWN;
    ASSERT_TRUE(Open([&] {
        const LeavingSpy spy([&] {
            ++leavings;
            windowExisted = windowExisted || IsWindow(Dialog());
            secondResult = Library::Get().ShowDialogEx()(nullptr, L"other.cfg", L"other.cfg", L"Nobody");
        });
        return Library::Get().ShowDialogEx()(nullptr, L"", m_currentPath.c_str(), L"Ada Archer");
    }));
    Cancel();
    EXPECT_LT(0, leavings);
    EXPECT_FALSE(windowExisted);
    EXPECT_EQ(OV_PREFERENCES_NOT_SHOWN, secondResult);
    ASSERT_TRUE(Open(ShowWithoutArguments));
    EXPECT_EQ(m_currentPath, ShownPath());
    EXPECT_FALSE(CanLoadDefaults());
    Cancel();
}

TEST_F(ExportsTest, TheHostsOwnActivationContextIsBackAfterTheCall)
{
    HANDLE before = nullptr;
    HANDLE after = nullptr;
    ASSERT_TRUE(Open([&] {
        GetCurrentActCtx(&before);
        const unsigned result = Library::Get().ShowDialogEx()(nullptr, L"", L"", L"");
        GetCurrentActCtx(&after);
        return result;
    }));
    Cancel();
    EXPECT_EQ(before, after);
}

} // namespace
