/// The modal windows of a page's "..." buttons, and its settings after Save.
#pragma once

#include "tests/ui/page_session.h"

#include <string>
#include <vector>

class PageDoors : public PageSession
{
  protected:
    /// The entries that the list editor shows for the button's setting; the editor
    /// is then cancelled. It must have a browse button if and only if they are files.
    std::vector<std::wstring> EntriesBehind(int button, bool files = false)
    {
        const Editor editor = UseEditor(button, IDCANCEL);
        EXPECT_EQ(files, editor.browses);
        return editor.rows;
    }

    /// Enters a first value in the list editor and presses OK.
    void EnterInEditor(int button, const std::wstring& value) { UseEditor(button, IDOK, value); }

    /// Expects the button to open a window with this caption, and cancels it.
    void ExpectOpens(int button, const std::wstring& caption)
    {
        ClickOnPage(button);
        const HWND window = uidriver::AwaitTopWindow(caption, GetCurrentProcessId());
        ASSERT_TRUE(window) << "nothing opens";
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        EXPECT_TRUE(uidriver::AwaitGone(window));
        uidriver::Settle(Dialog());
    }
};
