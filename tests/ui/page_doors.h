/// What a page's "..." buttons open, and what its settings are after Save.
#pragma once

#include "tests/ui/page_session.h"

#include <string>
#include <vector>

class PageDoors : public PageSession
{
  protected:
    /// The entries that the list editor shows for the button's setting; the
    /// editor is cancelled. It offers to browse for files exactly if they are.
    std::vector<std::wstring> EntriesBehind(int button, bool files = false)
    {
        const Editor editor = UseEditor(button, IDCANCEL);
        EXPECT_EQ(files, editor.browses);
        return editor.rows;
    }

    /// Enters a first value in the list editor and presses its OK.
    void EnterInEditor(int button, const std::wstring& value) { UseEditor(button, IDOK, value); }

    /// The button opens a window with this caption, which is cancelled.
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
