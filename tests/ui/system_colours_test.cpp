// New system colours while the dialog is open, as when a user switches to a
// high-contrast theme. The test reads pixels.
#include "pages/branding/ids.h"
#include "tests/ui/dialog_session.h"

#include <array>

using namespace uidriver;

namespace
{

/// Sets other system colours, and restores them in the destructor.
class SystemColours
{
  public:
    SystemColours(std::array<INT, 4> elements, std::array<COLORREF, 4> colours) : m_elements(elements)
    {
        for (std::size_t i = 0; i < elements.size(); ++i)
            m_before[i] = GetSysColor(elements[i]);
        Set(colours);
    }
    ~SystemColours() { Set(m_before); }
    SystemColours(const SystemColours&) = delete;
    SystemColours& operator=(const SystemColours&) = delete;

  private:
    void Set(const std::array<COLORREF, 4>& colours)
    {
        SetSysColors(static_cast<int>(m_elements.size()), m_elements.data(), colours.data());
    }

    std::array<INT, 4> m_elements;
    std::array<COLORREF, 4> m_before{};
};

class SystemColoursTest : public DialogSession
{
  protected:
    static COLORREF PixelAt(HWND window, int x, int y)
    {
        HDC context = GetDC(window);
        const COLORREF pixel = GetPixel(context, x, y);
        ReleaseDC(window, context);
        return pixel;
    }
    /// The background colour, in a corner without controls.
    static COLORREF Corner(HWND window)
    {
        RECT client = {};
        GetClientRect(window, &client);
        return PixelAt(window, client.right - 4, client.bottom - 4);
    }
    /// Whether a control shows that colour anywhere.
    static bool Shows(HWND window, COLORREF colour)
    {
        RECT client = {};
        GetClientRect(window, &client);
        for (int y = 0; y < client.bottom; ++y) {
            for (int x = 0; x < client.right; ++x) {
                if (PixelAt(window, x, y) == colour)
                    return true;
            }
        }
        return false;
    }
    // Each new colour redraws the dialog more than once: after the system's notification and the test's.
    // In between everything is erased, so one reading of a pixel is not sufficient.
    static void AwaitCorner(HWND window, COLORREF colour)
    {
        EXPECT_TRUE(Await([&] { return Corner(window) == colour; })) << Corner(window);
    }
    static void AwaitShown(HWND window, COLORREF colour)
    {
        EXPECT_TRUE(Await([&] { return Shows(window, colour); }));
    }
};

TEST_F(SystemColoursTest, AreThoseOfTheMomentOnceTheDialogIsTold)
{
    constexpr COLORREF black = RGB(0, 0, 0);
    constexpr COLORREF blue = RGB(0, 0, 96);
    constexpr COLORREF yellow = RGB(255, 255, 0);
    constexpr COLORREF green = RGB(0, 255, 0);
    ASSERT_TRUE(Open());
    ASSERT_TRUE(ShowPage(L"Branding"));
    HWND label = PageControl(IDC_BRANDING_RENAME_LABEL);
    const SystemColours colours({COLOR_MENU, COLOR_MENUTEXT, COLOR_WINDOW, COLOR_WINDOWTEXT},
                                {black, yellow, blue, green});
    PostMessageW(Dialog(), WM_SYSCOLORCHANGE, 0, 0);
    AwaitCorner(Page(), black);
    AwaitCorner(label, black);
    AwaitShown(label, yellow);
    AwaitCorner(List(), blue);
    AwaitShown(List(), green);
    AwaitCorner(PageControl(IDC_BRANDING_RENAME), blue);
    Cancel();
}

} // namespace
