/// Common code of the tests for single pages: the saved file, list entries, and the
/// list editor of a "..." button, which opens or refuses to open.
#pragma once

#include "tests/ui/dialog_session.h"
#include "tests/ui/expected_file.h"
#include "tests/ui/focus_removal.h"

#include <commctrl.h>
#include <functional>
#include <string>
#include <vector>

class PageSession : public DialogSession
{
  protected:
    /// The contents of the list editor.
    struct Editor {
        std::vector<std::wstring> rows;    ///< the first field of each row
        std::vector<std::wstring> seconds; ///< the second field of each row
        int fields = 0;
        bool browses = false; ///< has a browse button for files
    };

    /// The line of the saved file that assigns to the variable.
    std::string Saved(const std::string& variable) const { return AssignmentOf(CurrentBytes(), variable); }

    bool IsPageEnabled(int id) const { return uidriver::IsEnabled(PageControl(id)); }
    int PageSelection(int id) const { return uidriver::ComboSelection(PageControl(id)); }
    std::vector<std::wstring> PageEntries(int id) const { return uidriver::ComboTexts(PageControl(id)); }
    void SelectOnPage(int id, int index) { uidriver::SelectComboEntry(PageControl(id), index); }

    /// The range of an up-down control, whose edit must be `buddy`.
    std::pair<int, int> RangeOfSpin(int id, int buddy) const
    {
        EXPECT_EQ(PageControl(buddy), reinterpret_cast<HWND>(uidriver::Send(PageControl(id), UDM_GETBUDDY)));
        int low = 0;
        int high = 0;
        SendMessageW(PageControl(id), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
                     reinterpret_cast<LPARAM>(&high));
        return {low, high};
    }

    /// Expects each of the changes, made one after the other on the page, to mark the
    /// dialog modified. A change must come before one that disables or hides its control.
    void ExpectEachMarksModified(const std::wstring& title, const std::vector<std::function<void()>>& changes)
    {
        ASSERT_TRUE(Open());
        ASSERT_TRUE(ShowPage(title));
        EXPECT_FALSE(CanSave());
        for (std::size_t index = 0; index < changes.size(); ++index) {
            SCOPED_TRACE(index);
            changes[index]();
            EXPECT_TRUE(CanSave());
            TakeMarkBack();
        }
        Cancel();
    }

    /// Presses the "..." button and closes the list editor with `answer`, IDOK or
    /// IDCANCEL. Before that, inserts `newRow` unless it is empty.
    Editor UseEditor(int button, int answer, const std::wstring& newRow = {})
    {
        Editor editor;
        ClickOnPage(button);
        const HWND window = uidriver::AwaitTopWindow(L"Multi-Entry Values", GetCurrentProcessId());
        EXPECT_TRUE(window) << "no editor comes up";
        if (!window)
            return editor;
        const HWND list = GetDlgItem(window, IDC_CONFIG_SETTING_LIST);
        editor.rows = uidriver::ListViewTexts(list);
        editor.seconds = uidriver::ListViewTexts(list, 1);
        const auto header = reinterpret_cast<HWND>(uidriver::Send(list, LVM_GETHEADER));
        editor.fields = static_cast<int>(uidriver::Send(header, HDM_GETITEMCOUNT));
        editor.browses = uidriver::IsShown(GetDlgItem(window, IDC_CONFIG_SETTING_BROWSE));
        if (!newRow.empty()) {
            uidriver::TypeText(GetDlgItem(window, IDC_CONFIG_SETTING_VALUE), newRow);
            uidriver::Click(GetDlgItem(window, IDC_CONFIG_SETTING_INSERT));
        }
        uidriver::Click(GetDlgItem(window, answer));
        EXPECT_TRUE(uidriver::AwaitGone(window));
        uidriver::Settle(Dialog());
        return editor;
    }

    /// With a single quote in the edit, expects the button to open no editor and the edit
    /// to keep its text. Expects the focus on `focused`; on no control for 0.
    void ExpectRefusal(int edit, int button, int focused)
    {
        TypeOnPage(edit, L"a\"b");
        ExpectRefused(button, focused);
        if (focused == 0) {
            EXPECT_NE(PageControl(edit), uidriver::FocusIn(Dialog()));
        }
        EXPECT_EQ(L"a\"b", PageText(edit));
    }

    /// The same if the button's setting already contains a single quote.
    void ExpectRefused(int button, int focused)
    {
        uidriver::Focus(PageControl(button));
        ClickOnPage(button);
        const FocusRemoval removal;
        AnswerBox(L"Text qualifier is missing.\nPlease verify the value again.", {IDOK}, IDOK);
        ExpectOpen();
        if (focused == 0) {
            EXPECT_TRUE(removal.Await());
        } else {
            EXPECT_TRUE(uidriver::Await([&] { return uidriver::FocusIn(Dialog()) == PageControl(focused); }))
                << button << " does not focus " << focused;
        }
    }
};
