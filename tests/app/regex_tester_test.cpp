// The pattern tester with its real template and texts.
#include "match/regex_tester.h"
#include "resources/ids.h"
#include "tests/app/program.h"
#include "tests/support/control_state.h"
#include "tests/support/process.h"
#include "tests/support/window_search.h"

#include <algorithm>
#include <deque>
#include <functional>

namespace
{
enum Type { None, Dos, Ranges, Subsets, Perl, Posix };

constexpr const wchar_t* syntaxError = L"Syntax Error in Regex: 32768";
constexpr int scriptEnded = 4711;

// In the order of creation and reading.
constexpr int controlIds[] = {11056, 11055, 11058, 11057, 11064, 11063, 11061, 11062, 11060};
// In tab order.
constexpr int tabStops[] = {11055, 11057, 11063, 11061, 11060};

HWND ItemOf(const CWnd& tester, int id)
{
    return ::GetDlgItem(tester.m_hWnd, id);
}

void TypeInto(HWND edit, const std::wstring& text)
{
    ::SendMessageW(edit, EM_SETSEL, 0, -1);
    ::SendMessageW(edit, WM_CLEAR, 0, 0);
    for (const wchar_t character : text)
        ::SendMessageW(edit, WM_CHAR, character, 1);
}

/// Replaces the text as pasting it would.
void ReplaceText(HWND edit, const std::wstring& text)
{
    ::SendMessageW(edit, EM_SETSEL, 0, -1);
    ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

/// Runs modally and performs one step whenever the loop is idle. After the last step
/// it ends with scriptEnded.
class ScriptedTester : public RegexTester
{
  public:
    using RegexTester::RegexTester;

    ScriptedTester& Then(std::function<void()> step)
    {
        m_steps.push_back(std::move(step));
        return *this;
    }
    ScriptedTester& FocusOn(int id)
    {
        return Then([this, id] { ::SetFocus(ItemOf(*this, id)); });
    }
    ScriptedTester& PressKey(WPARAM key)
    {
        return Then([key] { ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1); });
    }
    ScriptedTester& PressKeyWith(int modifier, WPARAM key)
    {
        Then([modifier] { Hold(modifier, true); });
        PressKey(key);
        return Then([modifier] { Hold(modifier, false); });
    }
    ScriptedTester& NoteFocus()
    {
        return Then([this] { focusIds.push_back(::GetDlgCtrlID(::GetFocus())); });
    }

    std::vector<int> focusIds;

  protected:
    DECLARE_MESSAGE_MAP()

  private:
    static void Hold(int modifier, bool down)
    {
        BYTE keys[256];
        ::GetKeyboardState(keys);
        keys[modifier] = down ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
    LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        if (m_steps.empty()) {
            EndDialog(scriptEnded);
            return 0;
        }
        const std::function<void()> step = std::move(m_steps.front());
        m_steps.pop_front();
        step();
        return 1;
    }

    std::deque<std::function<void()>> m_steps;
};

BEGIN_MESSAGE_MAP(ScriptedTester, RegexTester)
    ON_MESSAGE(WM_KICKIDLE, &ScriptedTester::OnKickIdle)
END_MESSAGE_MAP()

class RegexTesterTest : public ProgramTest
{
  protected:
    ~RegexTesterTest() override { Close(); }

    /// Opens the tester without a modal loop, owned by the preferences dialog.
    void OpenTester(int type = Subsets, const ov::Text& pattern = u"", const ov::Text& testString = u"")
    {
        if (!dialog)
            OpenWithoutPages();
        Close();
        tester = std::make_unique<RegexTester>(dialog.get(), type, pattern, testString);
        ASSERT_TRUE(tester->Create(IDD_REGEX_TESTER, dialog.get()));
        tester->ShowWindow(SW_SHOW);
    }
    void Close()
    {
        if (tester && tester->GetSafeHwnd() != nullptr)
            tester->DestroyWindow();
        tester.reset();
    }

    HWND Item(int id) const { return ItemOf(*tester, id); }
    std::wstring TextOf(int id) const { return uidriver::GetText(Item(id)); }
    std::wstring Result() const { return TextOf(11060); }
    void PressTest() { ::SendMessageW(Item(11061), BM_CLICK, 0, 0); }
    /// Chooses the type, enters both texts and presses "Test Match".
    std::wstring Try(int type, const std::wstring& pattern, const std::wstring& testString)
    {
        ::SendMessageW(Item(11055), CB_SETCURSEL, static_cast<WPARAM>(type), 0);
        TypeInto(Item(11057), pattern);
        TypeInto(Item(11063), testString);
        PressTest();
        return Result();
    }
    CRect RectOf(int id) const
    {
        CRect rectangle;
        ::GetWindowRect(Item(id), &rectangle);
        ::MapWindowPoints(HWND_DESKTOP, tester->m_hWnd, reinterpret_cast<POINT*>(&rectangle), 2);
        return rectangle;
    }
    CRect Outer() const
    {
        CRect rectangle;
        tester->GetWindowRect(&rectangle);
        return rectangle;
    }
    void ResizeTo(int width, int height)
    {
        tester->SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    }
    /// The size of a text in the control's font.
    CSize Extent(HWND control, const std::wstring& text) const
    {
        const HDC dc = ::GetDC(control);
        const auto font = reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0));
        const HGDIOBJ before = ::SelectObject(dc, font);
        CSize size;
        ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
        ::SelectObject(dc, before);
        ::ReleaseDC(control, dc);
        return size;
    }
    void ExpectNothingCutOrOverlapping() const
    {
        CRect client;
        tester->GetClientRect(&client);
        for (const int id : controlIds) {
            const CRect own = RectOf(id);
            EXPECT_TRUE(own.left >= 0 && own.top >= 0 && own.right <= client.right &&
                        own.bottom <= client.bottom)
                << id;
            for (const int other : controlIds) {
                RECT common;
                const CRect rectangle = RectOf(other);
                EXPECT_TRUE(id == other || !::IntersectRect(&common, &own, &rectangle)) << id << ' ' << other;
            }
        }
        for (const int id : {11056, 11058, 11064, 11061, 11062}) {
            const CSize extent = Extent(Item(id), TextOf(id));
            EXPECT_LE(extent.cx, RectOf(id).Width()) << id;
            EXPECT_LE(extent.cy, RectOf(id).Height()) << id;
        }
        for (const std::wstring& name : uidriver::ComboTexts(Item(11055))) {
            EXPECT_LE(Extent(Item(11055), name).cx,
                      RectOf(11055).Width() - ::GetSystemMetrics(SM_CXVSCROLL) - 8);
        }
        RECT inner;
        ::SendMessageW(Item(11060), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inner));
        const CSize longest = Extent(Item(11060), syntaxError);
        EXPECT_LE(longest.cx, inner.right - inner.left);
        EXPECT_LE(longest.cy, inner.bottom - inner.top);
    }
    /// The height of the combo box's drop-down list, in rows.
    int DroppedRows() const
    {
        ::SendMessageW(Item(11055), CB_SHOWDROPDOWN, TRUE, 0);
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        EXPECT_TRUE(::GetComboBoxInfo(Item(11055), &info));
        RECT inner;
        ::GetClientRect(info.hwndList, &inner);
        const auto rowHeight = static_cast<LONG>(::SendMessageW(info.hwndList, LB_GETITEMHEIGHT, 0, 0));
        ::SendMessageW(Item(11055), CB_SHOWDROPDOWN, FALSE, 0);
        return static_cast<int>(inner.bottom / rowHeight);
    }

    std::unique_ptr<RegexTester> tester;
};
} // namespace

TEST_F(RegexTesterTest, ControlsAreTheDesignedOnes)
{
    struct Control {
        int id;
        const wchar_t* windowClass;
        const wchar_t* caption;
        DWORD mask;
        DWORD style;
    };
    constexpr DWORD lines = ES_MULTILINE | ES_READONLY | ES_WANTRETURN;
    constexpr DWORD dropDown = CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST | CBS_SORT;
    constexpr Control controls[] = {
        {11056, L"Static", L"Regex Type:", 0, 0},
        {11055, L"ComboBox", nullptr, dropDown, CBS_DROPDOWNLIST},
        {11058, L"Static", L"Regular Expression:", 0, 0},
        {11057, L"Edit", L"", lines, ES_MULTILINE},
        {11064, L"Static", L"Test String:", 0, 0},
        {11063, L"Edit", L"", lines, ES_MULTILINE},
        {11061, L"Button", L"Test Match", BS_TYPEMASK, BS_DEFPUSHBUTTON},
        {11062, L"Static", L"Result:", 0, 0},
        {11060, L"Edit", L"", lines, ES_READONLY},
    };
    OpenTester();
    EXPECT_EQ(tester->GetWindowText(), u"Regular Expression Tester");
    EXPECT_NE(tester->GetStyle() & WS_THICKFRAME, 0u);
    for (const Control& control : controls) {
        ASSERT_NE(Item(control.id), nullptr) << control.id;
        EXPECT_EQ(uidriver::ClassOf(Item(control.id)), control.windowClass) << control.id;
        if (control.caption != nullptr) {
            EXPECT_EQ(TextOf(control.id), control.caption) << control.id;
        }
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(Item(control.id), GWL_STYLE));
        EXPECT_EQ(style & control.mask, control.style) << control.id;
    }
    EXPECT_EQ(Item(11065), nullptr);
    EXPECT_EQ(Item(IDOK), nullptr);
    EXPECT_EQ(Item(IDCANCEL), nullptr);
}

TEST_F(RegexTesterTest, TypesAreListedInTheOrderOfTheirCodes)
{
    OpenTester();
    EXPECT_EQ(uidriver::ComboTexts(Item(11055)),
              (std::vector<std::wstring>{
                  L"0 - No regular expressions allowed", L"1 - DOS Wildcards (? and *)",
                  L"2 - DOS Wildcards with ranges & subsets",
                  L"3 - DOS Wildcards with ranges, subsets & substrings", L"4 - PERL Regular Expressions",
                  L"5 - POSIX Extended Regular Expressions"}));
}

TEST_F(RegexTesterTest, TheInitialTypeIsSelected)
{
    for (const int type : {None, Dos, Ranges, Subsets, Perl, Posix}) {
        OpenTester(type);
        EXPECT_EQ(uidriver::ComboSelection(Item(11055)), type);
    }
}

TEST_F(RegexTesterTest, AnInitialTypeThatIsNotListedLeavesNoSelection)
{
    for (const int type : {-1, 6, 1000}) {
        OpenTester(type);
        EXPECT_EQ(uidriver::ComboSelection(Item(11055)), -1) << type;
    }
}

TEST_F(RegexTesterTest, TheInitialTextsAreShownAndTested)
{
    OpenTester(Dos, u"a*", u"abc");
    EXPECT_EQ(TextOf(11057), L"a*");
    EXPECT_EQ(TextOf(11063), L"abc");
    EXPECT_EQ(Result(), L"");
    PressTest();
    EXPECT_EQ(Result(), L"Match");
}

TEST_F(RegexTesterTest, AnEmptyTemplateIsToldBeforeAnEmptyTestString)
{
    OpenTester();
    EXPECT_EQ(Try(Dos, L"", L""), L"No Template String");
    EXPECT_EQ(Try(Dos, L"", L"a"), L"No Template String");
    EXPECT_EQ(Try(Dos, L"*", L""), L"No Test String");
}

TEST_F(RegexTesterTest, AnInvalidPerlTemplateIsASyntaxErrorForAnyTestString)
{
    OpenTester();
    for (const wchar_t* text : {L"a", L"]", L"anything at all"})
        EXPECT_EQ(Try(Perl, L"[", text), syntaxError);
    EXPECT_EQ(Try(Perl, L"[", L""), L"No Test String");
}

TEST_F(RegexTesterTest, APosixTemplateMatchesATextThatIsEqualApartFromCase)
{
    OpenTester();
    EXPECT_EQ(Try(Posix, L"Sheet.DGN", L"sheet.dgn"), L"Match");
}

TEST_F(RegexTesterTest, AnyOtherPosixTemplateIsASyntaxError)
{
    OpenTester();
    EXPECT_EQ(Try(Posix, L"^a$", L"a"), syntaxError);
    EXPECT_EQ(Try(Posix, L"a", L"b"), syntaxError);
}

TEST_F(RegexTesterTest, ADosTemplateMatchesAFileNameInAnotherCase)
{
    OpenTester();
    EXPECT_EQ(Try(Dos, L"*.DGN", L"a.dgn"), L"Match");
}

TEST_F(RegexTesterTest, EachTypeReadsTheTemplateInItsWay)
{
    struct Case {
        int type;
        const wchar_t* pattern;
        const wchar_t* text;
        const wchar_t* result;
    };
    constexpr Case cases[] = {
        {None, L"ABC", L"abc", L"Match"},
        {None, L"a*", L"abc", L"No Match"},
        {Dos, L"A?C", L"abc", L"Match"},
        {Dos, L"[A-C]1", L"b1", L"No Match"},
        {Ranges, L"[A-C]1", L"b1", L"Match"},
        {Ranges, L"A|C", L"AC", L"No Match"},
        {Subsets, L"A|C", L"AC", L"Match"},
        {Subsets, L"[ABC,DEF]", L"def", L"Match"},
        {Subsets, L"[ABC,DEF]", L"XYZ", L"No Match"},
        {Perl, L"^A.C$", L"abc", L"Match"},
        {Perl, L"b", L"ABC", L"Match"},
        {Perl, L"^b", L"ABC", L"No Match"},
        {Posix, L"^A.C$", L"abc", syntaxError},
    };
    OpenTester();
    for (const Case& c : cases)
        EXPECT_EQ(Try(c.type, c.pattern, c.text), c.result)
            << c.type << " with " << ov::Utf8FromText(FromWide(c.pattern));
}

TEST_F(RegexTesterTest, WithoutATypeOnlyAnEqualTextMatches)
{
    OpenTester(-1);
    EXPECT_EQ(Try(-1, L"*", L"a"), L"No Match");
    EXPECT_EQ(Try(-1, L"A", L"a"), L"Match");
}

TEST_F(RegexTesterTest, TheResultStandsUntilTheNextTest)
{
    OpenTester();
    EXPECT_EQ(Try(Dos, L"a", L"a"), L"Match");
    TypeInto(Item(11063), L"b");
    EXPECT_EQ(Result(), L"Match");
    PressTest();
    EXPECT_EQ(Result(), L"No Match");
}

TEST_F(RegexTesterTest, TheButtonIsNeverDisabled)
{
    OpenTester();
    EXPECT_TRUE(::IsWindowEnabled(Item(11061)));
    Try(Perl, L"[", L"a");
    EXPECT_TRUE(::IsWindowEnabled(Item(11061)));
    TypeInto(Item(11057), L"");
    TypeInto(Item(11063), L"");
    EXPECT_TRUE(::IsWindowEnabled(Item(11061)));
    ::EnableWindow(Item(11061), FALSE);
    TypeInto(Item(11057), L"a");
    EXPECT_TRUE(::IsWindowEnabled(Item(11061)));
}

TEST_F(RegexTesterTest, TextsOf64KilobytesAreTakenAndTested)
{
    constexpr size_t length = 64 * 1024;
    OpenTester();
    for (const int id : {11057, 11063}) {
        ReplaceText(Item(id), std::wstring(length, L'a'));
        // Typing continues after such a text.
        ::SendMessageW(Item(id), EM_SETSEL, length, length);
        ::SendMessageW(Item(id), WM_CHAR, L'b', 1);
        EXPECT_EQ(TextOf(id), std::wstring(length, L'a') + L'b') << id;
    }
    ::SendMessageW(Item(11055), CB_SETCURSEL, None, 0);
    PressTest();
    EXPECT_EQ(Result(), L"Match");
    ReplaceText(Item(11057), L"a+b$");
    ::SendMessageW(Item(11055), CB_SETCURSEL, Perl, 0);
    PressTest();
    EXPECT_EQ(Result(), L"Match");
    ReplaceText(Item(11057), L"*a");
    ::SendMessageW(Item(11055), CB_SETCURSEL, Dos, 0);
    PressTest();
    EXPECT_EQ(Result(), L"No Match");
}

TEST_F(RegexTesterTest, ACostlyExpressionEndsInAFailure)
{
    OpenTester();
    const ULONGLONG begin = ::GetTickCount64();
    EXPECT_EQ(Try(Perl, L"^(a+)+$", std::wstring(40, L'a') + L'b'), syntaxError);
    EXPECT_LT(::GetTickCount64() - begin, 10000u);
}

TEST_F(RegexTesterTest, EveryInputControlFollowsItsLabel)
{
    OpenTester();
    for (const auto& [id, label] :
         {std::pair{11055, 11056}, {11057, 11058}, {11063, 11064}, {11060, 11062}}) {
        EXPECT_EQ(::GetWindow(Item(id), GW_HWNDPREV), Item(label)) << id;
        EXPECT_TRUE(::IsWindowVisible(Item(label))) << label;
    }
}

TEST_F(RegexTesterTest, ControlsFollowTheirEdges)
{
    OpenTester();
    const CRect outer = Outer();
    std::vector<CRect> expected;
    for (const int id : controlIds) {
        expected.push_back(RectOf(id));
        if (id == 11055 || id == 11057 || id == 11063)
            expected.back().right += 60;
    }
    ResizeTo(outer.Width() + 60, outer.Height() + 40);
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_TRUE(RectOf(controlIds[i]) == expected[i]) << controlIds[i];
}

TEST_F(RegexTesterTest, TheListDropsAllTypesAtEverySize)
{
    OpenTester();
    EXPECT_EQ(DroppedRows(), 6);
    const CRect outer = Outer();
    ResizeTo(outer.Width() + 60, outer.Height() + 40);
    EXPECT_EQ(DroppedRows(), 6);
}

TEST_F(RegexTesterTest, TheSmallestSizeIsThatOfEveryDialog)
{
    OpenTester();
    MINMAXINFO info{};
    tester->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 580);
    EXPECT_EQ(info.ptMinTrackSize.y, 400);
    EXPECT_GE(Outer().Width(), 580);
    EXPECT_GE(Outer().Height(), 400);
    ResizeTo(200, 100);
    EXPECT_EQ(Outer().Width(), 580);
    EXPECT_EQ(Outer().Height(), 400);
}

TEST_F(RegexTesterTest, NothingIsCutOrOverlapsAtFirst)
{
    OpenTester();
    ExpectNothingCutOrOverlapping();
}

TEST_F(RegexTesterTest, NothingIsCutOrOverlapsAtTheSmallestSize)
{
    OpenTester();
    ResizeTo(580, 400);
    ExpectNothingCutOrOverlapping();
}

TEST_F(RegexTesterTest, TabVisitsEveryControlOnceInReadingOrder)
{
    OpenWithoutPages();
    ScriptedTester modal(dialog.get(), Dos, u"a", u"b");
    for (size_t i = 0; i < std::size(tabStops); ++i)
        modal.NoteFocus().PressKey(VK_TAB);
    for (size_t i = 0; i < std::size(tabStops); ++i)
        modal.NoteFocus().PressKeyWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(modal.DoModal(), scriptEnded);
    std::vector<int> expected(std::begin(tabStops), std::end(tabStops));
    // From the last tab stop Tab returns to the first; Shift+Tab reverses the order.
    expected.push_back(tabStops[0]);
    expected.insert(expected.end(), std::rbegin(tabStops), std::rend(tabStops) - 1);
    EXPECT_EQ(modal.focusIds, expected);
}

TEST_F(RegexTesterTest, EnterIsOkEverywhereButOnTheButton)
{
    OpenWithoutPages();
    for (const int id : tabStops) {
        ScriptedTester modal(dialog.get(), Dos, u"a*", u"abc");
        std::wstring result;
        modal.FocusOn(id).PressKey(VK_RETURN).Then([&] { result = uidriver::GetText(ItemOf(modal, 11060)); });
        if (id == 11061) {
            EXPECT_EQ(modal.DoModal(), scriptEnded);
            EXPECT_EQ(result, L"Match");
        } else {
            EXPECT_EQ(modal.DoModal(), IDOK) << id;
        }
    }
}

TEST_F(RegexTesterTest, ControlEnterBeginsANewLine)
{
    OpenWithoutPages();
    for (const int id : {11057, 11063}) {
        ScriptedTester modal(dialog.get(), Dos, u"", u"");
        std::wstring text;
        modal.FocusOn(id).PressKeyWith(VK_CONTROL, VK_RETURN).Then([&] {
            text = uidriver::GetText(ItemOf(modal, id));
        });
        EXPECT_EQ(modal.DoModal(), scriptEnded) << id;
        EXPECT_EQ(text, L"\r\n") << id;
    }
}

TEST_F(RegexTesterTest, EscapeAndTheCloseBoxCancel)
{
    OpenWithoutPages();
    for (const int id : tabStops) {
        ScriptedTester modal(dialog.get(), Dos, u"", u"");
        modal.FocusOn(id).PressKey(VK_ESCAPE).Then([] {});
        EXPECT_EQ(modal.DoModal(), IDCANCEL) << id;
    }
    ScriptedTester modal(dialog.get(), Dos, u"", u"");
    modal.Then([&] { modal.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }).Then([] {});
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
}

TEST_F(RegexTesterTest, AHundredRoundsDoNotGrow)
{
    OpenWithoutPages();
    const auto openAndClose = [&](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            ScriptedTester modal(dialog.get(), Perl, u"b+", u"abc");
            modal.Then([&] { modal.SendMessage(WM_COMMAND, 11061); }).PressKey(VK_ESCAPE).Then([] {});
            ASSERT_EQ(modal.DoModal(), IDCANCEL);
        }
    };
    openAndClose(10);
    const uidriver::Resources before = uidriver::MeasureResources();
    openAndClose(100);
    const uidriver::Resources after = uidriver::MeasureResources();
    SCOPED_TRACE("before: " + uidriver::Describe(before) + "\nafter: " + uidriver::Describe(after));
    // Resources that the system keeps in reserve; one leaked handle per round would be 100.
    constexpr unsigned tolerance = 5;
    EXPECT_GT(before.userObjects, 0u);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + tolerance);
    EXPECT_LE(after.userObjects, before.userObjects + tolerance);
}
