// The list editor with its real template and texts.
#include "controls/config_setting_dlg.h"
#include "controls/dialog_app.h"
#include "pages/conforming/ids.h"
#include "resources/ids.h"
#include "tests/app/program.h"

namespace
{
using Rows = std::vector<std::vector<std::wstring>>;

constexpr wchar_t caption[] = L"Orthoval for MicroStation Preferences";
constexpr int conformingPage = 6;

class ConfigSetting : public ProgramTest
{
  protected:
    ~ConfigSetting() override { Close(); }

    /// Opens the editor without a modal loop, owned by the preferences dialog.
    void OpenEditor(const ov::Text& text, UINT browsing = 0, char16_t separator = u';',
                    char16_t fieldSeparator = u'\0', size_t fieldCount = 1)
    {
        if (!dialog)
            OpenWithoutPages();
        Close();
        editor = std::make_unique<CConfigSettingDlg>(dialog.get(), text, browsing, separator, u'"',
                                                     fieldSeparator, fieldCount);
        ASSERT_TRUE(editor->Create(IDD_CONFIG_SETTING, dialog.get()));
        editor->ShowWindow(SW_SHOW);
    }
    void OpenPairs(const ov::Text& text) { OpenEditor(text, 0, u';', u':', 2); }
    void Close()
    {
        if (editor && editor->GetSafeHwnd() != nullptr)
            editor->DestroyWindow();
        editor.reset();
    }

    HWND Item(int id) const { return ::GetDlgItem(editor->m_hWnd, id); }
    CPrefListCtrl& List() const
    {
        return static_cast<CPrefListCtrl&>(*CWnd::FromHandlePermanent(Item(IDC_CONFIG_SETTING_LIST)));
    }
    void Press(int id)
    {
        editor->SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(Item(id)));
    }
    /// Handles the messages that the editor has posted to itself, as it does before any input.
    void Settle() const
    {
        MSG message{};
        while (::PeekMessageW(&message, editor->m_hWnd, WM_APP, 0xBFFF, PM_REMOVE))
            ::DispatchMessageW(&message);
    }
    bool Enabled(int id) const
    {
        Settle();
        return ::IsWindowEnabled(Item(id)) != FALSE;
    }
    std::wstring Value() const
    {
        Settle();
        return Wide(editor->GetDlgItemText(IDC_CONFIG_SETTING_VALUE));
    }
    void TypeValue(const wchar_t* text)
    {
        ::SendMessageW(Item(IDC_CONFIG_SETTING_VALUE), EM_SETSEL, 0, -1);
        ::SendMessageW(Item(IDC_CONFIG_SETTING_VALUE), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
    void Insert(const wchar_t* text)
    {
        TypeValue(text);
        Press(IDC_CONFIG_SETTING_INSERT);
    }
    /// Selects only these rows.
    void Select(const std::vector<int>& rows)
    {
        List().SetItemState(-1, 0, LVIS_SELECTED);
        for (const int row : rows)
            List().SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    }
    std::vector<int> Selected() const
    {
        std::vector<int> rows;
        for (int row = List().GetNextItem(-1, LVNI_SELECTED); row >= 0;
             row = List().GetNextItem(row, LVNI_SELECTED))
            rows.push_back(row);
        return rows;
    }
    Rows Shown() const
    {
        Rows rows(static_cast<size_t>(List().GetItemCount()));
        for (size_t row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < List().GetColumnCount(); ++column)
                rows[row].push_back(Wide(List().GetItemText(static_cast<int>(row), column)));
        }
        return rows;
    }
    /// What the editor returns on OK.
    ov::Text Accept()
    {
        Press(IDOK);
        return editor->GetListText();
    }
    void ClickHeader(int column)
    {
        NMLISTVIEW click{};
        click.hdr = {Item(IDC_CONFIG_SETTING_LIST), IDC_CONFIG_SETTING_LIST,
                     static_cast<UINT>(LVN_COLUMNCLICK)};
        click.iItem = -1;
        click.iSubItem = column;
        editor->SendMessage(WM_NOTIFY, IDC_CONFIG_SETTING_LIST, reinterpret_cast<LPARAM>(&click));
    }
    CRect RectOf(int id) const
    {
        CRect rectangle;
        ::GetWindowRect(Item(id), &rectangle);
        ::MapWindowPoints(HWND_DESKTOP, editor->m_hWnd, reinterpret_cast<POINT*>(&rectangle), 2);
        return rectangle;
    }
    CRect Outer() const
    {
        CRect rectangle;
        editor->GetWindowRect(&rectangle);
        return rectangle;
    }

    std::unique_ptr<CConfigSettingDlg> editor;
};
} // namespace

TEST_F(ConfigSetting, EmptyEntriesVanishOnTheWayThroughTheDialog)
{
    OpenEditor(u"a;b;;c");
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"b"}, {L"c"}}));
    EXPECT_EQ(Accept(), u"a;b;c");
}

TEST_F(ConfigSetting, SingleFieldListsAreWrittenWithoutQualifiers)
{
    OpenEditor(u"\"x;y\";z");
    EXPECT_EQ(Shown(), (Rows{{L"x;y"}, {L"z"}}));
    const ov::Text written = Accept();
    EXPECT_EQ(written, u"x;y;z");
    OpenEditor(written);
    EXPECT_EQ(Shown(), (Rows{{L"x"}, {L"y"}, {L"z"}}));
}

TEST_F(ConfigSetting, PairsWithAQualifiedFieldAreWrittenBackUnchanged)
{
    OpenPairs(u"A:1;\"B:C\":2");
    EXPECT_EQ(Shown(), (Rows{{L"A", L"1"}, {L"B:C", L"2"}}));
    EXPECT_EQ(Accept(), u"A:1;\"B:C\":2");
}

TEST_F(ConfigSetting, DuplicatesInAnotherCaseOpenAsOneRow)
{
    OpenEditor(u"A;a");
    EXPECT_EQ(Shown(), (Rows{{L"a"}}));
}

TEST_F(ConfigSetting, ALeadingQualifierRefusesToOpen)
{
    Open(L"", L"");
    dialog->SelectPage(conformingPage);
    Type(IDC_CONFORMING_IGNORED_LEVELS, L"\"abc");
    doors.AnswerMessage(IDOK);
    Click(IDC_CONFORMING_IGNORED_LEVELS_BROWSE);
    ASSERT_EQ(doors.messages.size(), 1u);
    EXPECT_EQ(doors.messages[0].text, L"Text qualifier is missing.\nPlease verify the value again.");
    EXPECT_EQ(TextOf(IDC_CONFORMING_IGNORED_LEVELS), L"\"abc");
}

TEST_F(ConfigSetting, DeletingTwoRowsAsksWithTheirNumber)
{
    OpenEditor(u"a;b;c");
    Select({0, 2});
    doors.AnswerMessage(IDNO);
    Press(IDC_CONFIG_SETTING_DELETE);
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"b"}, {L"c"}}));
    doors.AnswerMessage(IDYES);
    Press(IDC_CONFIG_SETTING_DELETE);
    EXPECT_EQ(Shown(), (Rows{{L"b"}}));
    ASSERT_EQ(doors.messages.size(), 2u);
    EXPECT_EQ(doors.messages[1].text, L"This will delete 2 items from the list.\nDo you want to continue?");
    EXPECT_EQ(doors.messages[1].caption, caption);
    EXPECT_EQ(doors.messages[1].owner, editor->m_hWnd);
    EXPECT_EQ(doors.messages[1].type, UINT{MB_YESNO | MB_ICONQUESTION | MB_SETFOREGROUND | MB_TOPMOST});
    EXPECT_EQ(Accept(), u"b");
}

TEST_F(ConfigSetting, OneRowIsDeletedAtOnceAndNoneIsIgnored)
{
    OpenEditor(u"a;b;c");
    Select({1});
    Press(IDC_CONFIG_SETTING_DELETE);
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"c"}}));
    Select({});
    Press(IDC_CONFIG_SETTING_DELETE);
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"c"}}));
    EXPECT_TRUE(doors.messages.empty());
}

TEST_F(ConfigSetting, DeletingLeavesTheTypedValue)
{
    OpenEditor(u"a;b");
    TypeValue(L"a2");
    Press(IDC_CONFIG_SETTING_DELETE);
    EXPECT_EQ(Shown(), (Rows{{L"b"}}));
    EXPECT_EQ(Value(), L"a2");
    EXPECT_TRUE(Enabled(IDC_CONFIG_SETTING_INSERT));
}

TEST_F(ConfigSetting, EachFieldHasAColumn)
{
    OpenEditor(u"1,2,3,4", 0, u';', u',', 4);
    ASSERT_EQ(List().GetColumnCount(), 4);
    const int width = (RectOf(IDC_CONFIG_SETTING_LIST).Width() - 5) / 4;
    for (int column = 0; column < 4; ++column) {
        wchar_t text[32] = L"";
        LVCOLUMNW description{};
        description.mask = LVCF_TEXT;
        description.pszText = text;
        description.cchTextMax = 32;
        List().SendMessage(LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                           reinterpret_cast<LPARAM>(&description));
        EXPECT_STREQ(text, L"Setting Values");
        EXPECT_EQ(List().GetColumnWidth(column), width);
    }
    constexpr DWORD styles = LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP;
    EXPECT_EQ(List().GetExtendedStyle() & styles, styles);
    EXPECT_EQ(Shown(), (Rows{{L"1", L"2", L"3", L"4"}}));
}

TEST_F(ConfigSetting, TheFirstRowIsSelectedAndItsValueShown)
{
    OpenPairs(u"\"B:C\":2;A:1");
    EXPECT_EQ(Selected(), (std::vector<int>{0}));
    EXPECT_EQ(Value(), L"\"B:C\":2");
    Select({1});
    EXPECT_EQ(Value(), L"A:1");
}

TEST_F(ConfigSetting, AnEmptyListHasNoSelection)
{
    OpenEditor(u"");
    EXPECT_EQ(Shown(), Rows{});
    EXPECT_EQ(Value(), L"");
    EXPECT_TRUE(Enabled(IDOK));
    EXPECT_TRUE(Enabled(IDCANCEL));
    for (const int id : {IDC_CONFIG_SETTING_INSERT, IDC_CONFIG_SETTING_DELETE, IDC_CONFIG_SETTING_MOVE_UP,
                         IDC_CONFIG_SETTING_MOVE_DOWN})
        EXPECT_FALSE(Enabled(id)) << id;
}

TEST_F(ConfigSetting, MoveButtonsFollowTheFirstSelectedRow)
{
    OpenEditor(u"a;b;c");
    const auto expect = [&](std::vector<int> rows, bool up, bool down) {
        Select(rows);
        EXPECT_EQ(Enabled(IDC_CONFIG_SETTING_MOVE_UP), up) << testing::PrintToString(rows);
        EXPECT_EQ(Enabled(IDC_CONFIG_SETTING_MOVE_DOWN), down) << testing::PrintToString(rows);
        EXPECT_EQ(Enabled(IDC_CONFIG_SETTING_DELETE), !rows.empty()) << testing::PrintToString(rows);
    };
    expect({0}, false, true);
    expect({1}, true, true);
    expect({2}, true, false);
    expect({0, 2}, false, true);
    expect({1, 2}, true, true);
    expect({}, false, false);
    OpenEditor(u"alone");
    expect({0}, false, false);
}

TEST_F(ConfigSetting, InsertIsEnabledByAValueThatIsNotBlank)
{
    OpenEditor(u"");
    TypeValue(L"  ");
    EXPECT_FALSE(Enabled(IDC_CONFIG_SETTING_INSERT));
    Press(IDC_CONFIG_SETTING_INSERT);
    EXPECT_EQ(Shown(), Rows{});
    TypeValue(L" a");
    EXPECT_TRUE(Enabled(IDC_CONFIG_SETTING_INSERT));
}

TEST_F(ConfigSetting, InsertAppendsTheValueAndClearsIt)
{
    OpenEditor(u"a;b");
    Insert(L"c");
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"b"}, {L"c"}}));
    EXPECT_EQ(Value(), L"");
    EXPECT_FALSE(Enabled(IDC_CONFIG_SETTING_INSERT));
    EXPECT_EQ(Accept(), u"a;b;c");
}

TEST_F(ConfigSetting, AnInsertedDuplicateTakesTheOldRowsPlace)
{
    OpenPairs(u"a:1;b:2;c:3");
    Insert(L"B:2");
    EXPECT_EQ(Shown(), (Rows{{L"a", L"1"}, {L"B", L"2"}, {L"c", L"3"}}));
    EXPECT_EQ(Accept(), u"a:1;B:2;c:3");
}

TEST_F(ConfigSetting, AMovedRowIsSelectedInItsNewPlace)
{
    OpenEditor(u"a;b;c");
    Select({2});
    Press(IDC_CONFIG_SETTING_MOVE_UP);
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"c"}, {L"b"}}));
    EXPECT_EQ(Selected(), (std::vector<int>{1}));
    EXPECT_EQ(Value(), L"c");
    Press(IDC_CONFIG_SETTING_MOVE_UP);
    EXPECT_EQ(Shown(), (Rows{{L"c"}, {L"a"}, {L"b"}}));
    EXPECT_FALSE(Enabled(IDC_CONFIG_SETTING_MOVE_UP));
    Press(IDC_CONFIG_SETTING_MOVE_UP);
    Press(IDC_CONFIG_SETTING_MOVE_DOWN);
    EXPECT_EQ(Accept(), u"a;c;b");
}

TEST_F(ConfigSetting, OfSeveralSelectedRowsTheFirstMoves)
{
    OpenEditor(u"a;b;c;d");
    Select({1, 3});
    Press(IDC_CONFIG_SETTING_MOVE_UP);
    EXPECT_EQ(Shown(), (Rows{{L"b"}, {L"a"}, {L"c"}, {L"d"}}));
    EXPECT_EQ(Selected(), (std::vector<int>{0, 3}));
}

TEST_F(ConfigSetting, DuplicatesAreCheckedOnMovesToo)
{
    OpenEditor(u"a;b; A");
    EXPECT_EQ(List().GetItemCount(), 3);
    Select({2});
    Press(IDC_CONFIG_SETTING_MOVE_UP);
    EXPECT_EQ(Shown(), (Rows{{L"A"}, {L"b"}}));
    EXPECT_EQ(Selected(), (std::vector<int>{0}));
}

TEST_F(ConfigSetting, AButtonThatIsSwitchedOffPassesTheFocusOn)
{
    OpenEditor(u"a;b");
    Select({1});
    ::SetFocus(Item(IDC_CONFIG_SETTING_MOVE_UP));
    Press(IDC_CONFIG_SETTING_MOVE_UP);
    EXPECT_EQ(::GetFocus(), Item(IDC_CONFIG_SETTING_LIST));
    TypeValue(L"c");
    ::SetFocus(Item(IDC_CONFIG_SETTING_INSERT));
    Press(IDC_CONFIG_SETTING_INSERT);
    EXPECT_EQ(::GetFocus(), Item(IDC_CONFIG_SETTING_VALUE));
}

TEST_F(ConfigSetting, BrowsingPutsThePathIntoTheValueOnly)
{
    OpenEditor(u"a", 1);
    doors.AnswerFile(L"C:\\Standards\\levels.csv");
    Press(IDC_CONFIG_SETTING_BROWSE);
    EXPECT_EQ(Value(), L"C:\\Standards\\levels.csv");
    EXPECT_EQ(Shown(), (Rows{{L"a"}}));
    EXPECT_TRUE(Enabled(IDC_CONFIG_SETTING_INSERT));
    ASSERT_EQ(doors.fileRequests.size(), 1u);
    const CFileDialogRequest& request = doors.fileRequests[0];
    EXPECT_TRUE(request.open);
    EXPECT_EQ(request.title, u"Select File");
    EXPECT_EQ(request.filter, u"");
    EXPECT_EQ(request.defaultExtension, u"");
    EXPECT_EQ(request.flags, DWORD{OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING});
    EXPECT_EQ(request.owner, editor->m_hWnd);
    doors.AnswerFile(L"");
    Press(IDC_CONFIG_SETTING_BROWSE);
    EXPECT_EQ(Value(), L"C:\\Standards\\levels.csv");
}

TEST_F(ConfigSetting, BrowsingWidensTheDialogAndShowsItsButton)
{
    OpenEditor(u"a");
    const CRect plain = Outer();
    EXPECT_FALSE(::IsWindowVisible(Item(IDC_CONFIG_SETTING_BROWSE)));
    OpenEditor(u"a", 1);
    EXPECT_EQ(Outer().Width(), plain.Width() + 200);
    EXPECT_EQ(Outer().Height(), plain.Height());
    EXPECT_TRUE(::IsWindowVisible(Item(IDC_CONFIG_SETTING_BROWSE)));
}

TEST_F(ConfigSetting, ControlsFollowTheirEdges)
{
    OpenEditor(u"a;b", 0, u';', u':', 2);
    const int buttons[] = {IDC_CONFIG_SETTING_INSERT,
                           IDC_CONFIG_SETTING_DELETE,
                           IDC_CONFIG_SETTING_MOVE_UP,
                           IDC_CONFIG_SETTING_MOVE_DOWN,
                           IDOK,
                           IDCANCEL};
    CRect list = RectOf(IDC_CONFIG_SETTING_LIST);
    CRect value = RectOf(IDC_CONFIG_SETTING_VALUE);
    CRect browse = RectOf(IDC_CONFIG_SETTING_BROWSE);
    std::vector<CRect> expected;
    for (const int id : buttons) {
        expected.push_back(RectOf(id));
        expected.back().OffsetRect(60, 0);
    }
    const CRect outer = Outer();
    editor->SetWindowPos(nullptr, 0, 0, outer.Width() + 60, outer.Height() + 40, SWP_NOMOVE | SWP_NOZORDER);
    list.right += 60;
    list.bottom += 40;
    EXPECT_TRUE(RectOf(IDC_CONFIG_SETTING_LIST) == list);
    value.OffsetRect(0, 40);
    value.right += 60;
    EXPECT_TRUE(RectOf(IDC_CONFIG_SETTING_VALUE) == value);
    browse.OffsetRect(60, 40);
    EXPECT_TRUE(RectOf(IDC_CONFIG_SETTING_BROWSE) == browse);
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_TRUE(RectOf(buttons[i]) == expected[i]) << buttons[i];
    EXPECT_EQ(List().GetColumnWidth(0), (list.Width() - 4) / 2);
    EXPECT_EQ(List().GetColumnWidth(1), (list.Width() - 4) / 2);
}

TEST_F(ConfigSetting, TheSmallestSizeIsThatOfEveryDialog)
{
    OpenEditor(u"a");
    MINMAXINFO info{};
    editor->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 580);
    EXPECT_EQ(info.ptMinTrackSize.y, 400);
    EXPECT_GE(Outer().Width(), 580);
    EXPECT_GE(Outer().Height(), 400);
}

TEST_F(ConfigSetting, HelpTextsAreRegistered)
{
    OpenEditor(u"a", 1);
    const CToolTipControl* const tips = GetTooltipControl();
    const auto description = [&](int id) { return tips->GetDescription(editor->GetDlgItem(id)); };
    EXPECT_EQ(description(IDC_CONFIG_SETTING_LIST), u"This list contains all values of the setting.");
    EXPECT_EQ(description(IDC_CONFIG_SETTING_VALUE), u"Define a value for the setting.");
    EXPECT_EQ(description(IDC_CONFIG_SETTING_INSERT), u"Inserts the value into list.");
    EXPECT_EQ(description(IDC_CONFIG_SETTING_DELETE),
              u"Deletes the selected row(s) from defined values list.");
    EXPECT_EQ(description(IDOK), u"Saves the changes and closes the dialog.");
    EXPECT_EQ(description(IDCANCEL), u"Closes the dialog without applying changes.");
    EXPECT_EQ(description(IDC_CONFIG_SETTING_BROWSE),
              u"Opens a file requestor dialog to browse for the required file.");
}

TEST_F(ConfigSetting, MoveButtonsShowIconsOf16Pixels)
{
    OpenEditor(u"a");
    for (const int id : {IDC_CONFIG_SETTING_MOVE_UP, IDC_CONFIG_SETTING_MOVE_DOWN}) {
        EXPECT_EQ(::GetWindowTextLengthW(Item(id)), 0);
        const auto icon = reinterpret_cast<HICON>(::SendMessageW(Item(id), BM_GETIMAGE, IMAGE_ICON, 0));
        ICONINFO info{};
        ASSERT_TRUE(::GetIconInfo(icon, &info)) << id;
        BITMAP mask{};
        ::GetObjectW(info.hbmMask, sizeof mask, &mask);
        ::DeleteObject(info.hbmMask);
        ::DeleteObject(info.hbmColor);
        EXPECT_EQ(mask.bmWidth, 16);
    }
    EXPECT_NE(::SendMessageW(Item(IDC_CONFIG_SETTING_MOVE_UP), BM_GETIMAGE, IMAGE_ICON, 0),
              ::SendMessageW(Item(IDC_CONFIG_SETTING_MOVE_DOWN), BM_GETIMAGE, IMAGE_ICON, 0));
}

TEST_F(ConfigSetting, AHeaderClickSortsAndTheNextOneTurnsTheOrderRound)
{
    OpenPairs(u"b:1;C:2;a:3");
    Select({2});
    ClickHeader(0);
    EXPECT_EQ(Shown(), (Rows{{L"C", L"2"}, {L"a", L"3"}, {L"b", L"1"}}));
    EXPECT_EQ(Selected(), (std::vector<int>{1}));
    ClickHeader(1);
    EXPECT_EQ(Shown(), (Rows{{L"b", L"1"}, {L"a", L"3"}, {L"C", L"2"}}));
    Select({0});
    EXPECT_EQ(Value(), L"b:1");
    EXPECT_EQ(Accept(), u"b:1;a:3;C:2");
}

TEST_F(ConfigSetting, CancelKeepsTheGivenText)
{
    OpenEditor(u"a;;b");
    Insert(L"c");
    Press(IDCANCEL);
    EXPECT_EQ(editor->GetListText(), u"a;;b");
}

TEST_F(ConfigSetting, FiveThousandEntriesOpenAndAreWrittenBack)
{
    ov::Text text;
    for (int i = 0; i < 5000; ++i)
        text += u"Level " + ov::FormatInteger(i) + u";";
    OpenEditor(text + u"LEVEL 7");
    ASSERT_EQ(List().GetItemCount(), 5000);
    EXPECT_EQ(List().GetItemText(7, 0), u"LEVEL 7");
    EXPECT_EQ(List().GetItemText(4999, 0), u"Level 4999");
    text.replace(text.find(u"Level 7;"), 7, u"LEVEL 7");
    text.pop_back();
    EXPECT_EQ(Accept(), text);
}

TEST_F(ConfigSetting, ManySelectedRowsAreShownOnce)
{
    ov::Text text;
    for (int i = 0; i < 5000; ++i)
        text += u"Level " + ov::FormatInteger(i) + u";";
    OpenEditor(text);
    Settle();
    /// Counts how often the value is set.
    class CCounted : public CWnd
    {
      public:
        int m_changes = 0;

      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_changes += message == WM_SETTEXT ? 1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    const HWND edit = Item(IDC_CONFIG_SETTING_VALUE);
    CWnd* const bound = CWnd::FromHandlePermanent(edit);
    static_cast<CEdit*>(bound)->UnsubclassWindow();
    CCounted counted;
    ASSERT_TRUE(counted.SubclassWindow(edit));
    List().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(Value(), L"Level 4999");
    EXPECT_EQ(counted.m_changes, 1);
    EXPECT_TRUE(Enabled(IDC_CONFIG_SETTING_DELETE));
    List().SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_FALSE(Enabled(IDC_CONFIG_SETTING_DELETE));
    EXPECT_LE(counted.m_changes, 2);
    counted.UnsubclassWindow();
    static_cast<CEdit*>(bound)->SubclassWindow(edit);
}

TEST_F(ConfigSetting, ValueOf64KilobytesIsTakenAndTypedOn)
{
    OpenEditor(u"a");
    const std::wstring value(64 * 1024, L'v');
    TypeValue(value.c_str());
    EXPECT_EQ(Value(), value);
    ::SendMessageW(Item(IDC_CONFIG_SETTING_VALUE), WM_CHAR, L'w', 1);
    EXPECT_EQ(Value(), value + L'w');
}

TEST_F(ConfigSetting, InsertComparesTheValueAsTyped)
{
    OpenEditor(u"a;b;c");
    Insert(L" b");
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"b"}, {L"c"}, {L"b"}}));
    EXPECT_EQ(Accept(), u"a;b;c;b");
}

TEST_F(ConfigSetting, InsertTakesTheValueOfTheRowSelectedLast)
{
    OpenEditor(u"a;b;c");
    TypeValue(L"typed");
    List().SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    Press(IDC_CONFIG_SETTING_INSERT);
    EXPECT_EQ(Shown(), (Rows{{L"a"}, {L"b"}, {L"c"}}));
    EXPECT_EQ(Value(), L"");
}

TEST_F(ConfigSetting, WhatIsTypedAfterASelectionStays)
{
    OpenEditor(u"a;b;c");
    List().SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    TypeValue(L"typed");
    EXPECT_EQ(Value(), L"typed");
}

namespace
{
// Closes the editor that a page runs modally, as soon as it is on the screen.
class ModalVisitor
{
  public:
    ModalVisitor(const wchar_t* insert, int button) : m_insert(insert), m_button(button)
    {
        s_visitor = this;
        m_timer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &OnTimer);
    }
    ~ModalVisitor() { ::KillTimer(nullptr, m_timer); }

    int visits = 0;
    HWND owner = nullptr;

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND editor = ::FindWindowW(L"#32770", L"Multi-Entry Values");
        if (editor == nullptr || !::IsWindowVisible(editor) || s_visitor->visits > 0)
            return;
        ++s_visitor->visits;
        s_visitor->owner = ::GetWindow(editor, GW_OWNER);
        ::SetDlgItemTextW(editor, IDC_CONFIG_SETTING_VALUE, s_visitor->m_insert);
        ::SendMessageW(editor, WM_COMMAND, IDC_CONFIG_SETTING_INSERT, 0);
        ::SendMessageW(editor, WM_COMMAND, static_cast<WPARAM>(s_visitor->m_button), 0);
    }

    static ModalVisitor* s_visitor;
    const wchar_t* m_insert;
    int m_button;
    UINT_PTR m_timer;
};
ModalVisitor* ModalVisitor::s_visitor = nullptr;
} // namespace

TEST_F(ConfigSetting, OkWritesTheListIntoThePageAndMarksItModified)
{
    Open(L"", MakeFile(L"office.cfg", "#\n\n_ORTHOVAL_CHECK_CELLS = 1\n"));
    dialog->SelectPage(conformingPage);
    ov::Text text = u"a,b";
    ModalVisitor visitor(L"c", IDOK);
    EXPECT_TRUE(Page().EditValueList(text, 0, u',', u'"', u'\0', 1));
    EXPECT_EQ(visitor.visits, 1);
    EXPECT_EQ(visitor.owner, dialog->m_hWnd);
    EXPECT_EQ(text, u"a,b,c");
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
    EXPECT_TRUE(::IsWindowEnabled(dialog->m_hWnd));
}

TEST_F(ConfigSetting, CancelLeavesThePagesText)
{
    Open(L"", MakeFile(L"office.cfg", "#\n\n_ORTHOVAL_CHECK_CELLS = 1\n"));
    dialog->SelectPage(conformingPage);
    ov::Text text = u"a,b";
    ModalVisitor visitor(L"c", IDCANCEL);
    EXPECT_TRUE(Page().EditValueList(text, 0, u',', u'"', u'\0', 1));
    EXPECT_EQ(visitor.visits, 1);
    EXPECT_EQ(text, u"a,b");
    EXPECT_FALSE(IsEnabled(IDC_PREFERENCES_SAVE));
}
