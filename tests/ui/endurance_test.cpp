// Opens and closes the dialog many times.
#include "tests/support/process.h"
#include "tests/ui/dialog_session.h"

#include <algorithm>
#include <cstdlib>

using namespace uidriver;

namespace
{

class EnduranceTest : public DialogSession
{
  protected:
    void OpenAndClose(int rounds)
    {
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            ASSERT_TRUE(Open());
            ASSERT_TRUE(ShowPage(L"Conforming"));
            if (m_labels == 0)
                m_labels = CountLabels(Dialog());
            Cancel();
        }
    }

    static std::size_t CountLabels(HWND window)
    {
        std::size_t count = 0;
        for (HWND child : Children(window))
            count += (ClassOf(child) == L"Static" ? 1 : 0) + CountLabels(child);
        return count;
    }

    std::size_t m_labels = 0;
};

// A round opens all pages; OV_DIALOG_OPENINGS requests more rounds.
TEST_F(EnduranceTest, OpeningAgainAndAgainDoesNotGrow)
{
    constexpr int warmUp = 10;
    const char* const asked = std::getenv("OV_DIALOG_OPENINGS");
    const int rounds = asked != nullptr ? std::max(std::atoi(asked), 25) : 25;
    // A leak in each round adds up to as many handles or blocks. The tolerances are
    // for resources that the system keeps in reserve.
    constexpr unsigned handleTolerance = 5;
    constexpr std::size_t heapTolerance = 4 * 1024;
    constexpr std::size_t privateTolerance = 1024 * 1024;
    // In Wine a version 6 label whose font was set leaks this much when it is
    // destroyed, in any program.
    constexpr std::size_t bytesOfALabel = 24;
    UseDefaults("_ORTHOVAL_CHECK_CELLS = 1\r\n");
    UseCurrent("_ORTHOVAL_CHECK_TEXT = 1\r\n_ORTHOVAL_BRANDING_RENAME_TABLES = a:b\r\n");
    OpenAndClose(warmUp);
    const Resources before = MeasureResources();
    OpenAndClose(rounds);
    const Resources after = MeasureResources();
    SCOPED_TRACE("before: " + Describe(before) + "\nafter: " + Describe(after));
    const std::size_t labels = static_cast<std::size_t>(rounds) * m_labels * bytesOfALabel;
    EXPECT_GT(before.userObjects, 0U);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + handleTolerance);
    EXPECT_LE(after.userObjects, before.userObjects + handleTolerance);
    EXPECT_LE(after.heapBytes, before.heapBytes + labels + heapTolerance);
    EXPECT_LE(after.privateBytes, before.privateBytes + labels + privateTolerance);
}

} // namespace
