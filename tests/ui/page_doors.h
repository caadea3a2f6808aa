/// What a page's "..." buttons open, and what its settings are after Save.
#pragma once

#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"

#include <string>
#include <vector>

class PageDoors : public DialogSession
{
  protected:
    /// The line of the saved file that assigns to the variable.
    std::string Saved(const std::string& variable) const { return AssignmentOf(CurrentBytes(), variable); }

    /// The entries that the list editor shows for the button's setting; the
    /// editor is cancelled. It offers to browse for files exactly if they are.
    std::vector<std::wstring> EntriesBehind(int button, bool files = false)
    {
        ClickOnPage(button);
        const HWND editor = AwaitModal(L"Multi-Entry Values");
        if (!editor)
            return {};
        EXPECT_EQ(files, uidriver::IsShown(GetDlgItem(editor, IDC_CONFIG_SETTING_BROWSE)));
        const auto entries = uidriver::ListViewTexts(GetDlgItem(editor, IDC_CONFIG_SETTING_LIST));
        Close(editor, IDCANCEL);
        return entries;
    }

    /// Enters a first value in the list editor and presses its OK.
    void EnterInEditor(int button, const std::wstring& value)
    {
        ClickOnPage(button);
        const HWND editor = AwaitModal(L"Multi-Entry Values");
        if (!editor)
            return;
        uidriver::TypeText(GetDlgItem(editor, IDC_CONFIG_SETTING_VALUE), value);
        uidriver::Click(GetDlgItem(editor, IDC_CONFIG_SETTING_INSERT));
        Close(editor, IDOK);
    }

    /// The button opens a window with this caption, which is cancelled.
    void ExpectOpens(int button, const std::wstring& caption)
    {
        ClickOnPage(button);
        if (const HWND window = AwaitModal(caption))
            Close(window, IDCANCEL);
    }

    /// With a lone quote in its setting the button opens no editor, and the
    /// focus goes to the control.
    void ExpectRefusal(int button, int focused)
    {
        uidriver::Focus(PageControl(button));
        ClickOnPage(button);
        AnswerBox(L"Text qualifier is missing.\nPlease verify the value again.", {IDOK}, IDOK);
        ExpectOpen();
        EXPECT_TRUE(uidriver::Await([&] { return uidriver::FocusIn(Dialog()) == PageControl(focused); }))
            << button << " does not focus " << focused;
    }

    bool IsPageEnabled(int id) const { return uidriver::IsEnabled(PageControl(id)); }

  private:
    static HWND AwaitModal(const std::wstring& caption)
    {
        const HWND window = uidriver::AwaitTopWindow(caption, GetCurrentProcessId());
        EXPECT_TRUE(window) << "nothing opens";
        return window;
    }
    void Close(HWND window, int command)
    {
        PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(command), 0);
        EXPECT_TRUE(uidriver::AwaitGone(window));
        uidriver::Settle(Dialog());
    }
};
