// The pages Branding and Conforming: what their controls read, show and save.
#include "pages/branding/ids.h"
#include "pages/conforming/ids.h"
#include "tests/ui/page_session.h"

#include <algorithm>
#include <mutex>
#include <tuple>

using namespace uidriver;

namespace
{

class PagesTest : public PageSession
{
  protected:
    static constexpr const wchar_t* QualifierText =
        L"Text qualifier is missing.\nPlease verify the value again.";

    /// Makes the dialog modified without changing a value.
    void Touch()
    {
        ASSERT_TRUE(ShowPage(L"Branding"));
        ClickOnPage(IDC_BRANDING_AUTO);
        ClickOnPage(IDC_BRANDING_AUTO);
    }

    /// Checks every check box of the page with a click.
    void ClickEveryBox(const std::vector<PageSetting>& settings)
    {
        for (const auto& setting : settings) {
            if (setting.kind != PageSetting::Flag)
                continue;
            EXPECT_FALSE(IsPageChecked(setting.control)) << setting.variable;
            ClickOnPage(setting.control);
            EXPECT_TRUE(IsPageChecked(setting.control)) << setting.variable;
        }
    }

    void ExpectSavedOn(const std::vector<PageSetting>& settings)
    {
        for (const auto& setting : settings) {
            if (setting.kind == PageSetting::Flag) {
                EXPECT_EQ(setting.variable + " = 1", Saved(setting.variable));
            }
        }
    }
};

TEST_F(PagesTest, EveryCheckBoxSwitchedOnIsSaved)
{
    m_currentPath = m_folder / L"new.cfg";
    ASSERT_TRUE(Open());
    ClickEveryBox(BrandingSettings());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    ClickEveryBox(ConformingSettings());
    Save();
    ExpectSavedOn(BrandingSettings());
    ExpectSavedOn(ConformingSettings());
}

TEST_F(PagesTest, EveryCheckBoxShowsItsOwnFlagAndIsSavedOff)
{
    std::vector<std::string> flags;
    for (const auto* settings : {&BrandingSettings(), &ConformingSettings()}) {
        for (const auto& setting : *settings) {
            if (setting.kind == PageSetting::Flag)
                flags.push_back(setting.variable);
        }
    }
    std::string bytes;
    for (const auto& flag : flags)
        bytes += flag + " = 1\r\n";
    UseCurrent(bytes);
    ASSERT_TRUE(Open());
    for (const auto& [title, settings] :
         {std::pair{L"Branding", &BrandingSettings()}, {L"Conforming", &ConformingSettings()}}) {
        ASSERT_TRUE(ShowPage(title));
        for (const auto& setting : *settings) {
            if (setting.kind != PageSetting::Flag)
                continue;
            EXPECT_TRUE(IsPageChecked(setting.control)) << setting.variable;
            ClickOnPage(setting.control);
            EXPECT_FALSE(IsPageChecked(setting.control)) << setting.variable;
        }
    }
    Save();
    for (const auto& flag : flags)
        EXPECT_EQ(flag + " = 0", Saved(flag));
}

TEST_F(PagesTest, OnlyTheTextOneSwitchesAFlagOn)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = yes\r\n_ORTHOVAL_CHECK_TEXT = true\r\n"
               "_ORTHOVAL_CHECK_TAGS =  1\r\n_ORTHOVAL_CHECK_PATTERNS = 01\r\n"
               "_ORTHOVAL_BRANDING_AUTO = \"1\"\r\n_ORTHOVAL_BRANDING_CERTIFY = TRUE\r\n");
    ASSERT_TRUE(Open());
    EXPECT_TRUE(IsPageChecked(IDC_BRANDING_AUTO)); // the quotes belong to the file's syntax
    EXPECT_FALSE(IsPageChecked(IDC_BRANDING_CERTIFY));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    for (const int id : {IDC_CONFORMING_CHECK_CELLS, IDC_CONFORMING_CHECK_TEXT, IDC_CONFORMING_CHECK_TAGS,
                         IDC_CONFORMING_PATTERNS})
        EXPECT_FALSE(IsPageChecked(id)) << id;
    Touch();
    Save();
    for (const char* variable : {"_ORTHOVAL_CHECK_CELLS", "_ORTHOVAL_CHECK_TEXT", "_ORTHOVAL_CHECK_TAGS",
                                 "_ORTHOVAL_CHECK_PATTERNS", "_ORTHOVAL_BRANDING_CERTIFY"})
        EXPECT_EQ(std::string(variable) + " = 0", Saved(variable));
    EXPECT_EQ("_ORTHOVAL_BRANDING_AUTO = 1", Saved("_ORTHOVAL_BRANDING_AUTO"));
}

TEST_F(PagesTest, AbsentNumbersShowEmptyAndAreSavedEmpty)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_MIN_ERROR));
    EXPECT_EQ(L"", PageText(IDC_CONFORMING_IGNORED_LEVELS));
    Touch();
    Save();
    EXPECT_EQ("_ORTHOVAL_MAX_ERROR_UORS = ", Saved("_ORTHOVAL_MAX_ERROR_UORS"));
    EXPECT_EQ("_ORTHOVAL_MIN_MU_ERRORSCALE = ", Saved("_ORTHOVAL_MIN_MU_ERRORSCALE"));
    EXPECT_EQ("_ORTHOVAL_CHECK_IGNORED_LEVELS = \"\"", Saved("_ORTHOVAL_CHECK_IGNORED_LEVELS"));
}

TEST_F(PagesTest, NumbersAreKeptAsTyped)
{
    UseCurrent("_ORTHOVAL_MAX_ERROR_UORS = 12 or so\r\n_ORTHOVAL_MIN_MU_ERRORSCALE = 1e-3\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(L"12 or so", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_EQ(L"1e-3", PageText(IDC_CONFORMING_MIN_ERROR));
    TypeOnPage(IDC_CONFORMING_MIN_ERROR, L" very little ");
    Save();
    EXPECT_EQ("_ORTHOVAL_MAX_ERROR_UORS = 12 or so", Saved("_ORTHOVAL_MAX_ERROR_UORS"));
    EXPECT_EQ("_ORTHOVAL_MIN_MU_ERRORSCALE =  very little ", Saved("_ORTHOVAL_MIN_MU_ERRORSCALE"));
}

TEST_F(PagesTest, LoadingLeavesTheDialogUnmodified)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n_ORTHOVAL_MAX_ERROR_UORS = 3\r\n"
               "_ORTHOVAL_BRANDING_RENAME_TABLES = a:b\r\n");
    ASSERT_TRUE(Open());
    EXPECT_FALSE(CanSave());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_FALSE(CanSave());
    Cancel();
}

TEST_F(PagesTest, EveryControlThatEditsMarksTheDialogModified)
{
    UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    ASSERT_TRUE(Open());
    for (const auto& [title, settings] :
         {std::pair{L"Branding", &BrandingSettings()}, {L"Conforming", &ConformingSettings()}}) {
        ASSERT_TRUE(ShowPage(title));
        EXPECT_FALSE(CanSave());
        for (const auto& setting : *settings) {
            SCOPED_TRACE(setting.variable);
            if (setting.kind == PageSetting::Flag)
                ClickOnPage(setting.control);
            else
                TypeOnPage(setting.control, L"1");
            EXPECT_TRUE(CanSave());
            TakeMarkBack();
        }
    }
    Cancel();
}

TEST_F(PagesTest, UpDownControlHasItsRangeAndItsSteps)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    HWND spin = PageControl(IDC_CONFORMING_MAX_ERROR_SPIN);
    EXPECT_EQ(PageControl(IDC_CONFORMING_MAX_ERROR), reinterpret_cast<HWND>(Send(spin, UDM_GETBUDDY)));
    int low = -1;
    int high = -1;
    SendMessageW(spin, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low), reinterpret_cast<LPARAM>(&high));
    EXPECT_EQ(0, low);
    EXPECT_EQ(10000, high);
    UDACCEL steps[4] = {};
    ASSERT_EQ(3, SendMessageW(spin, UDM_GETACCEL, 4, reinterpret_cast<LPARAM>(steps)));
    EXPECT_EQ(0U, steps[0].nSec);
    EXPECT_EQ(1U, steps[0].nInc);
    EXPECT_EQ(3U, steps[1].nSec);
    EXPECT_EQ(5U, steps[1].nInc);
    EXPECT_EQ(6U, steps[2].nSec);
    EXPECT_EQ(10U, steps[2].nInc);
    Cancel();
}

TEST_F(PagesTest, ArrowKeysStepTheMaximumErrorWithinItsRange)
{
    UseCurrent("_ORTHOVAL_MAX_ERROR_UORS = 1\r\n");
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    Focus(PageControl(IDC_CONFORMING_MAX_ERROR));
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(L"2", PageText(IDC_CONFORMING_MAX_ERROR));
    EXPECT_TRUE(CanSave());
    for (int press = 0; press < 3; ++press)
        PostKey(Dialog(), VK_DOWN);
    EXPECT_EQ(L"0", PageText(IDC_CONFORMING_MAX_ERROR));
    TypeOnPage(IDC_CONFORMING_MAX_ERROR, L"9999");
    PostKey(Dialog(), VK_UP);
    PostKey(Dialog(), VK_UP);
    EXPECT_EQ(L"10000", PageText(IDC_CONFORMING_MAX_ERROR)); // no thousands separator
    Save();
    EXPECT_EQ("_ORTHOVAL_MAX_ERROR_UORS = 10000", Saved("_ORTHOVAL_MAX_ERROR_UORS"));
}

/// Records what an up-down control does while its arrow is held: the positions that
/// it reports and the rounds of its timer.
class HeldArrow
{
  public:
    struct Step {
        int position;
        ULONGLONG time; ///< milliseconds since the press
    };

    HeldArrow(HWND upDown, bool upper) : m_upDown(upDown)
    {
        s_upDown = upDown;
        {
            const std::lock_guard lock(s_lock);
            s_steps.clear();
            s_rounds = 0;
            s_pressed = GetTickCount64();
        }
        const DWORD thread = GetWindowThreadProcessId(upDown, nullptr);
        m_sent = SetWindowsHookExW(WH_CALLWNDPROC, SeeSent, nullptr, thread);
        m_fetched = SetWindowsHookExW(WH_GETMESSAGE, SeeFetched, nullptr, thread);
        RECT client = {};
        GetClientRect(upDown, &client);
        m_point = MAKELPARAM(client.right / 2, upper ? client.bottom / 4 : client.bottom * 3 / 4);
        PostMessageW(upDown, WM_LBUTTONDOWN, MK_LBUTTON, m_point);
    }
    ~HeldArrow()
    {
        PostMessageW(m_upDown, WM_LBUTTONUP, 0, m_point);
        Settle(m_upDown);
        UnhookWindowsHookEx(m_sent);
        UnhookWindowsHookEx(m_fetched);
    }
    HeldArrow(const HeldArrow&) = delete;
    HeldArrow& operator=(const HeldArrow&) = delete;

    std::vector<Step> Steps() const
    {
        const std::lock_guard lock(s_lock);
        return s_steps;
    }
    /// Waits until the arrow has had that many more opportunities to step.
    bool AwaitRounds(int more) const
    {
        const int before = Rounds();
        return Await([&] { return Rounds() >= before + more; });
    }

  private:
    int Rounds() const
    {
        const std::lock_guard lock(s_lock);
        return s_rounds;
    }

    static LRESULT CALLBACK SeeSent(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && message.message == WM_VSCROLL &&
            message.lParam == reinterpret_cast<LPARAM>(s_upDown) &&
            LOWORD(message.wParam) == SB_THUMBPOSITION) {
            const std::lock_guard lock(s_lock);
            s_steps.push_back({static_cast<short>(HIWORD(message.wParam)), GetTickCount64() - s_pressed});
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static LRESULT CALLBACK SeeFetched(int code, WPARAM removed, LPARAM lParam)
    {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        if (code == HC_ACTION && removed == PM_REMOVE && message.message == WM_TIMER &&
            message.hwnd == s_upDown) {
            const std::lock_guard lock(s_lock);
            ++s_rounds;
        }
        return CallNextHookEx(nullptr, code, removed, lParam);
    }

    static inline std::mutex s_lock;
    static inline HWND s_upDown = nullptr;
    static inline std::vector<Step> s_steps;
    static inline int s_rounds = 0;
    static inline ULONGLONG s_pressed = 0;

    HWND m_upDown;
    LPARAM m_point = 0;
    HHOOK m_sent = nullptr;
    HHOOK m_fetched = nullptr;
};

TEST_F(PagesTest, HeldArrowStepsByOneThenByFiveAfterThreeSecondsThenByTenAfterSix)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    TypeOnPage(IDC_CONFORMING_MAX_ERROR, L"0");
    std::vector<HeldArrow::Step> steps;
    {
        const HeldArrow arrow(PageControl(IDC_CONFORMING_MAX_ERROR_SPIN), true);
        EXPECT_TRUE(Await([&] {
            steps = arrow.Steps();
            return steps.size() >= 2 && steps.back().position - steps[steps.size() - 2].position >= 10;
        }));
    }
    ASSERT_FALSE(steps.empty());
    EXPECT_EQ(1, steps.front().position);
    int width = 1;
    for (std::size_t i = 1; i < steps.size(); ++i) {
        const int next = steps[i].position - steps[i - 1].position;
        EXPECT_TRUE(next == 1 || next == 5 || next == 10) << next;
        EXPECT_GE(next, width) << "at " << steps[i].time << " ms";
        width = std::max(width, next);
        // On a busy machine a step may be late, but never early.
        EXPECT_GE(steps[i].time, next == 10 ? 6000U : next == 5 ? 3000U : 0U) << "a step of " << next;
    }
    EXPECT_EQ(10, width);
    Abandon();
}

TEST_F(PagesTest, HeldArrowStopsAtTheEndsOfTheRange)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    const HWND spin = PageControl(IDC_CONFORMING_MAX_ERROR_SPIN);
    for (const auto& [start, upper, end] : {std::tuple{L"9998", true, L"10000"}, {L"2", false, L"0"}}) {
        TypeOnPage(IDC_CONFORMING_MAX_ERROR, start);
        const HeldArrow arrow(spin, upper);
        EXPECT_TRUE(Await([&, end = end] { return PageText(IDC_CONFORMING_MAX_ERROR) == end; }));
        EXPECT_TRUE(arrow.AwaitRounds(1));
        EXPECT_EQ(end, PageText(IDC_CONFORMING_MAX_ERROR));
        for (const HeldArrow::Step& step : arrow.Steps())
            EXPECT_TRUE(0 <= step.position && step.position <= 10000) << step.position;
    }
    Abandon();
}

TEST_F(PagesTest, RenamedBrandingOpensAsPairsBetweenSemicolons)
{
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"Old:New; a,b : \"c;d:e\" ");
    const Editor editor = UseEditor(IDC_BRANDING_RENAME_BROWSE, IDOK, L"x:y");
    EXPECT_EQ(2, editor.fields);
    EXPECT_EQ((std::vector<std::wstring>{L"Old", L"a,b"}), editor.rows);
    EXPECT_EQ((std::vector<std::wstring>{L"New", L"c;d:e"}), editor.seconds);
    EXPECT_FALSE(editor.browses);
    EXPECT_EQ(L"Old:New;a,b:\"c;d:e\";x:y", PageText(IDC_BRANDING_RENAME));
    EXPECT_TRUE(CanSave());
    Abandon();
}

TEST_F(PagesTest, LoneQuoteInTheIgnoredLevelsIsRefusedAndNoWindowKeepsTheFocus)
{
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Conforming"));
    TypeOnPage(IDC_CONFORMING_IGNORED_LEVELS, L"Scratch,\"Notes");
    Focus(PageControl(IDC_CONFORMING_IGNORED_LEVELS_BROWSE));
    ClickOnPage(IDC_CONFORMING_IGNORED_LEVELS_BROWSE);
    const FocusRemoval removal;
    AnswerBox(QualifierText, {IDOK}, IDOK);
    ExpectOpen(); // no list editor was opened
    EXPECT_TRUE(removal.Await());
    EXPECT_NE(PageControl(IDC_CONFORMING_IGNORED_LEVELS), FocusIn(Dialog()));
    EXPECT_EQ(L"Scratch,\"Notes", PageText(IDC_CONFORMING_IGNORED_LEVELS));
    Abandon();
}

TEST_F(PagesTest, LoneQuoteInTheRenamedBrandingIsRefusedAndTheEditGetsTheFocus)
{
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"a:\"b;c:\"d\"");
    Focus(PageControl(IDC_BRANDING_RENAME_BROWSE));
    ClickOnPage(IDC_BRANDING_RENAME_BROWSE);
    AnswerBox(QualifierText, {IDOK}, IDOK);
    ExpectOpen();
    EXPECT_TRUE(Await([&] { return FocusIn(Dialog()) == PageControl(IDC_BRANDING_RENAME); }));
    EXPECT_EQ(L"a:\"b;c:\"d\"", PageText(IDC_BRANDING_RENAME));
    Abandon();
}

TEST_F(PagesTest, RefusalBelongsToTheDialog)
{
    ASSERT_TRUE(Open());
    TypeOnPage(IDC_BRANDING_RENAME, L"\"");
    ClickOnPage(IDC_BRANDING_RENAME_BROWSE);
    const auto box = AwaitBox();
    EXPECT_EQ(Dialog(), GetWindow(box.window, GW_OWNER));
    Answer(box, IDOK);
    Abandon();
}

TEST_F(PagesTest, CaptionsAreTheProductsOwn)
{
    ASSERT_TRUE(Open());
    EXPECT_EQ(L"Allow automatic branding toggle on Feature Table Manager", PageText(IDC_BRANDING_AUTO));
    EXPECT_EQ(L"Automatically rename branding", PageText(IDC_BRANDING_RENAME_LABEL));
    ASSERT_TRUE(ShowPage(L"Conforming"));
    EXPECT_EQ(L"Check muti-line dimension settings", PageText(IDC_CONFORMING_MULTILINE_DIMS));
    EXPECT_EQ(L"Maximum round-off error in Units of Resoution (UORS )",
              PageText(IDC_CONFORMING_MAX_ERROR_LABEL));
    EXPECT_EQ(L"Treat 'Continuous' as Style 0", PageText(IDC_CONFORMING_CONTINUOUS_IS_ZERO));
    Cancel();
}

} // namespace
