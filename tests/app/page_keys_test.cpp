// The effect of keys in the edits of a page, as handled by the dialog's pre-translation.
#include "tests/app/program.h"
#include "tests/support/control_state.h"

namespace
{

class PageKeys : public ProgramTest
{
  protected:
    ~PageKeys() override
    {
        if (edit != nullptr)
            ::DestroyWindow(edit);
    }

    /// Adds an edit to the visible page, because no page has a multi-line
    /// edit.
    void MakeEdit(DWORD style)
    {
        Open(L"", L"");
        edit = ::CreateWindowExW(0, L"EDIT", L"ab", WS_CHILD | WS_VISIBLE | style, 0, 0, 80, 40,
                                 Page().m_hWnd, nullptr, nullptr, nullptr);
        ASSERT_NE(edit, nullptr);
        ::SetFocus(edit);
        ::SendMessageW(edit, EM_SETSEL, 1, 1);
    }

    /// Presses and releases the key, and handles the messages as a modal loop does.
    void Press(WPARAM key) const
    {
        ::PostMessageW(edit, WM_KEYDOWN, key, 1);
        ::PostMessageW(edit, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (CWnd::WalkPreTranslateTree(dialog->m_hWnd, &message))
                continue;
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }

    HWND edit = nullptr;
};

TEST_F(PageKeys, EnterBreaksTheLineInAnEditOfSeveralLines)
{
    MakeEdit(ES_MULTILINE | ES_WANTRETURN);
    Press(VK_RETURN);
    EXPECT_EQ(uidriver::GetText(edit), L"a\r\nb");
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(::GetFocus(), edit);
}

TEST_F(PageKeys, EnterDoesNothingInAnEditOfOneLine)
{
    MakeEdit(0);
    Press(VK_RETURN);
    EXPECT_EQ(uidriver::GetText(edit), L"ab");
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(::GetFocus(), edit);
}

} // namespace
