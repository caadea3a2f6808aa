// Opens and closes the dialogs over the preferences dialog many times.
#include "controls/config_setting_dlg.h"
#include "match/regex_tester.h"
#include "resources/ids.h"
#include "tests/app/program.h"
#include "tests/support/process.h"

#include <algorithm>
#include <cstdlib>

namespace
{
/// The number of rounds; OV_WINDOW_ROUNDS requests more than the usual hundred.
int Rounds()
{
    const char* const asked = std::getenv("OV_WINDOW_ROUNDS");
    return asked != nullptr ? std::max(std::atoi(asked), 100) : 100;
}

/// Handles the pending messages of the window system, as any loop would; without
/// this they accumulate.
void Pump()
{
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

std::size_t CountLabels(HWND window)
{
    std::size_t count = 0;
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[16] = {};
        ::GetClassNameW(child, name, static_cast<int>(std::size(name)));
        count += ::lstrcmpiW(name, L"Static") == 0 ? 1 : 0;
    }
    return count;
}

class Endurance : public ProgramTest
{
  protected:
    /// Creates a dialog from that template, lets the body use it and destroys it. No
    /// round may leave any resources behind.
    template <typename Make, typename Use>
    void ExpectNoGrowth(UINT templateId, Make make, Use use)
    {
        constexpr int warmUp = 10;
        // For resources that the system keeps in reserve.
        constexpr unsigned handleTolerance = 5;
        constexpr std::size_t heapTolerance = 4 * 1024;
        constexpr std::size_t privateTolerance = 1024 * 1024;
        // In Wine a version 6 label whose font was set leaks this much when it is
        // destroyed, in any program.
        constexpr std::size_t bytesOfALabel = 24;
        Open(L"", L"");
        std::size_t labels = 0;
        const auto openAndClose = [&](int rounds) {
            for (int round = 0; round < rounds; ++round) {
                auto window = make();
                ASSERT_TRUE(window->Create(templateId, dialog.get()));
                window->ShowWindow(SW_SHOW);
                use(*window);
                labels = CountLabels(window->m_hWnd);
                window->DestroyWindow();
                AfxDeleteTempMap();
                Pump();
            }
        };
        openAndClose(warmUp);
        const uidriver::Resources before = uidriver::MeasureResources();
        openAndClose(Rounds());
        const uidriver::Resources after = uidriver::MeasureResources();
        SCOPED_TRACE("before: " + uidriver::Describe(before) + "\nafter: " + uidriver::Describe(after));
        const std::size_t left = static_cast<std::size_t>(Rounds()) * labels * bytesOfALabel;
        EXPECT_GT(before.userObjects, 0u);
        EXPECT_LE(after.gdiObjects, before.gdiObjects + handleTolerance);
        EXPECT_LE(after.userObjects, before.userObjects + handleTolerance);
        EXPECT_LE(after.heapBytes, before.heapBytes + left + heapTolerance);
        EXPECT_LE(after.privateBytes, before.privateBytes + left + privateTolerance);
    }
};
} // namespace

TEST_F(Endurance, TheListEditorDoesNotGrow)
{
    ExpectNoGrowth(
        IDD_CONFIG_SETTING,
        [&] {
            return std::make_unique<CConfigSettingDlg>(dialog.get(), ov::Text(u"a:1;b:2;c:3"), 1, u';', u'"',
                                                       u':', 2);
        },
        [](CConfigSettingDlg& editor) {
            ::SetDlgItemTextW(editor.m_hWnd, IDC_CONFIG_SETTING_VALUE, L"d:4");
            editor.SendMessage(WM_COMMAND, IDC_CONFIG_SETTING_INSERT);
            editor.SendMessage(WM_COMMAND, IDOK);
            ASSERT_EQ(editor.GetListText(), u"a:1;b:2;c:3;d:4");
        });
}

TEST_F(Endurance, ThePatternTesterDoesNotGrow)
{
    constexpr int perl = 4;
    ExpectNoGrowth(
        IDD_REGEX_TESTER, [&] { return std::make_unique<RegexTester>(dialog.get(), perl, u"b+", u"abc"); },
        [](RegexTester& tester) {
            tester.SendMessage(WM_COMMAND, IDC_REGEX_TESTER_TEST_MATCH);
            ASSERT_EQ(tester.GetDlgItemText(IDC_REGEX_TESTER_RESULT), u"Match");
        });
}
