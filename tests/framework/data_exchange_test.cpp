#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{
class CFields : public CDialog
{
  public:
    ov::Text m_text;
    ov::Text m_longText;
    int m_check = BST_UNCHECKED;
    int m_radio = -1;
    int m_choice = -1;
    CEdit m_edit;
    EventLog m_log;
    std::function<void(CDataExchange*)> m_during;

    using CWnd::OnNotify;

  protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override
    {
        for (const wchar_t* entry : {L"alpha", L"beta", L"gamma"})
            SendDlgItemMessageW(m_hWnd, IDC_FIELDS_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
        SendDlgItemMessageW(m_hWnd, IDC_FIELDS_LONG_EDIT, EM_LIMITTEXT, 0, 0);
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_FIELDS_EDIT, m_edit);
        DDX_Text(exchange, IDC_FIELDS_EDIT, m_text);
        DDX_Text(exchange, IDC_FIELDS_LONG_EDIT, m_longText);
        DDX_Check(exchange, IDC_FIELDS_CHECK, m_check);
        DDX_Radio(exchange, IDC_FIELDS_RADIO_1, m_radio);
        DDX_CBIndex(exchange, IDC_FIELDS_COMBO, m_choice);
        if (m_during)
            m_during(exchange);
    }
    void OnTextChanged() { m_log.push_back("text changed"); }
    void OnNotified(NMHDR*, LRESULT*) { m_log.push_back("notified"); }
};

BEGIN_MESSAGE_MAP(CFields, CDialog)
    ON_EN_CHANGE(IDC_FIELDS_EDIT, &CFields::OnTextChanged)
    ON_NOTIFY(NM_CLICK, IDC_FIELDS_EDIT, &CFields::OnNotified)
END_MESSAGE_MAP()

/// A control that counts the messages for setting its check state.
class CheckCounter : public CWnd
{
  public:
    explicit CheckCounter(HWND control) { SubclassWindow(control); }
    ~CheckCounter() override { UnsubclassWindow(); }

    int Count() { return std::exchange(m_count, 0); }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_count += message == BM_SETCHECK ? 1 : 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }

  private:
    int m_count = 0;
};

class DataExchange : public testing::Test
{
  protected:
    DataExchange() { m_dialog.Create(IDD_FIELDS); }
    void ClickNotification()
    {
        NMHDR header{m_dialog.m_edit.m_hWnd, IDC_FIELDS_EDIT, static_cast<UINT>(NM_CLICK)};
        m_dialog.SendMessage(WM_NOTIFY, IDC_FIELDS_EDIT, reinterpret_cast<LPARAM>(&header));
    }
    CFields m_dialog;
};
} // namespace

TEST_F(DataExchange, MovesTextsBothWays)
{
    m_dialog.m_text = u"shown";
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(u"shown", m_dialog.GetDlgItemText(IDC_FIELDS_EDIT));
    ::SetDlgItemTextW(m_dialog, IDC_FIELDS_EDIT, L"  typed ");
    EXPECT_TRUE(m_dialog.UpdateData());
    EXPECT_EQ(u"  typed ", m_dialog.m_text);
    ::SetDlgItemTextW(m_dialog, IDC_FIELDS_EDIT, L"");
    m_dialog.UpdateData();
    EXPECT_EQ(u"", m_dialog.m_text);
}

TEST_F(DataExchange, MovesTextsOfAnyLength)
{
    constexpr std::size_t length = 100'000;
    ov::Text line;
    ov::Text lines;
    for (char16_t letter = u'a'; line.size() < length; letter = letter == u'z' ? u'a' : letter + 1)
        line.push_back(letter);
    while (lines.size() < length)
        lines += u"some words in a line of 40 characters..\r\n";
    lines.resize(length, u'x');
    m_dialog.m_text = line;
    m_dialog.m_longText = lines;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    m_dialog.m_text.clear();
    m_dialog.m_longText.clear();
    EXPECT_TRUE(m_dialog.UpdateData());
    EXPECT_TRUE(m_dialog.m_text == line) << m_dialog.m_text.size();
    EXPECT_TRUE(m_dialog.m_longText == lines) << m_dialog.m_longText.size();
}

TEST_F(DataExchange, EqualTextIsNotSetAgain)
{
    m_dialog.m_text = u"caret";
    m_dialog.UpdateData(FALSE);
    m_dialog.m_edit.SendMessage(EM_SETSEL, 2, 4);
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(MAKELRESULT(2, 4), m_dialog.m_edit.SendMessage(EM_GETSEL));
}

TEST_F(DataExchange, MovesChecks)
{
    for (const int value : {BST_CHECKED, BST_UNCHECKED}) {
        m_dialog.m_check = value;
        m_dialog.UpdateData(FALSE);
        EXPECT_EQ(static_cast<UINT>(value), ::IsDlgButtonChecked(m_dialog, IDC_FIELDS_CHECK));
        m_dialog.m_check = 77;
        m_dialog.UpdateData();
        EXPECT_EQ(value, m_dialog.m_check);
    }
}

TEST_F(DataExchange, EqualChecksAreNotSetAgain)
{
    CheckCounter check(::GetDlgItem(m_dialog, IDC_FIELDS_CHECK));
    CheckCounter radio(::GetDlgItem(m_dialog, IDC_FIELDS_RADIO_2));
    m_dialog.m_check = BST_CHECKED;
    m_dialog.m_radio = 1;
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(1, check.Count());
    EXPECT_EQ(1, radio.Count());
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(0, check.Count());
    EXPECT_EQ(0, radio.Count());
    m_dialog.m_radio = -1;
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(0, check.Count());
    EXPECT_EQ(1, radio.Count());
    EXPECT_EQ(0u, ::IsDlgButtonChecked(m_dialog, IDC_FIELDS_RADIO_2));
}

// Only code outside the dialog can check two buttons of a group.
TEST_F(DataExchange, SecondCheckedButtonOfAGroupIsCleared)
{
    m_dialog.m_radio = 1;
    m_dialog.UpdateData(FALSE);
    ::CheckDlgButton(m_dialog, IDC_FIELDS_RADIO_1, BST_CHECKED);
    ::CheckDlgButton(m_dialog, IDC_FIELDS_RADIO_2, BST_CHECKED);
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(0u, ::IsDlgButtonChecked(m_dialog, IDC_FIELDS_RADIO_1));
    EXPECT_EQ(1u, ::IsDlgButtonChecked(m_dialog, IDC_FIELDS_RADIO_2));
}

TEST_F(DataExchange, RadioIsAnIndexWithinItsGroup)
{
    const int ids[] = {IDC_FIELDS_RADIO_1, IDC_FIELDS_RADIO_2, IDC_FIELDS_RADIO_3};
    for (int index = 0; index < 3; ++index) {
        m_dialog.m_radio = index;
        m_dialog.UpdateData(FALSE);
        for (int button = 0; button < 3; ++button)
            EXPECT_EQ(button == index ? 1u : 0u, ::IsDlgButtonChecked(m_dialog, ids[button]));
        m_dialog.m_radio = 77;
        m_dialog.UpdateData();
        EXPECT_EQ(index, m_dialog.m_radio);
    }
}

TEST_F(DataExchange, RadioIsMinusOneWhenNoneIsChecked)
{
    m_dialog.m_radio = 1;
    m_dialog.UpdateData(FALSE);
    m_dialog.m_radio = -1;
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(0u, ::IsDlgButtonChecked(m_dialog, IDC_FIELDS_RADIO_2));
    m_dialog.m_radio = 77;
    m_dialog.UpdateData();
    EXPECT_EQ(-1, m_dialog.m_radio);
}

TEST_F(DataExchange, ComboIndexPastTheEndSelectsNothing)
{
    m_dialog.m_choice = 2;
    m_dialog.UpdateData(FALSE);
    m_dialog.UpdateData();
    EXPECT_EQ(2, m_dialog.m_choice);
    m_dialog.m_choice = 3;
    m_dialog.UpdateData(FALSE);
    m_dialog.UpdateData();
    EXPECT_EQ(-1, m_dialog.m_choice);
}

TEST_F(DataExchange, NotificationsAreLockedOutWhileItRuns)
{
    m_dialog.m_log.clear();
    m_dialog.m_during = [this](CDataExchange*) { ClickNotification(); };
    m_dialog.m_text = u"new";
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(EventLog{}, m_dialog.m_log);
    ::SetDlgItemTextW(m_dialog, IDC_FIELDS_EDIT, L"newer");
    ClickNotification();
    EXPECT_EQ((EventLog{"text changed", "notified"}), m_dialog.m_log);
}

TEST_F(DataExchange, OtherWindowsAreNotLockedOut)
{
    CFields other;
    other.Create(IDD_FIELDS);
    other.m_log.clear();
    m_dialog.m_during = [&](CDataExchange*) { ::SetDlgItemTextW(other, IDC_FIELDS_EDIT, L"x"); };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ((EventLog{"text changed"}), other.m_log);
}

TEST_F(DataExchange, LockOutlastsAnInnerExchangeOfAnotherWindow)
{
    CFields other;
    other.Create(IDD_FIELDS);
    m_dialog.m_log.clear();
    m_dialog.m_during = [&](CDataExchange*) {
        other.UpdateData(FALSE);
        ::SetDlgItemTextW(m_dialog, IDC_FIELDS_EDIT, L"x");
    };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(EventLog{}, m_dialog.m_log);
}

TEST_F(DataExchange, LockEndsWithAnException)
{
    m_dialog.m_during = [](CDataExchange*) { throw std::runtime_error("interrupted"); };
    EXPECT_THROW(m_dialog.UpdateData(FALSE), std::runtime_error);
    m_dialog.m_log.clear();
    ::SetDlgItemTextW(m_dialog, IDC_FIELDS_EDIT, L"x");
    EXPECT_EQ((EventLog{"text changed"}), m_dialog.m_log);
}

TEST_F(DataExchange, RefusedValueMakesItFalse)
{
    m_dialog.ShowWindow(SW_SHOW);
    ::SetDlgItemTextW(m_dialog, IDC_FIELDS_EDIT, L"wrong");
    m_dialog.m_during = [](CDataExchange* exchange) {
        exchange->PrepareEditCtrl(IDC_FIELDS_EDIT);
        exchange->Fail();
    };
    EXPECT_FALSE(m_dialog.UpdateData());
    EXPECT_EQ(m_dialog.m_edit.m_hWnd, ::GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 5), m_dialog.m_edit.SendMessage(EM_GETSEL));
    m_dialog.m_during = nullptr;
    EXPECT_TRUE(m_dialog.UpdateData());
}

TEST_F(DataExchange, RefusedValueOfAHiddenControlLeavesTheFocusWhereItIs)
{
    m_dialog.ShowWindow(SW_SHOW);
    const HWND check = ::GetDlgItem(m_dialog, IDC_FIELDS_CHECK);
    ::SetFocus(check);
    ASSERT_EQ(check, ::GetFocus());
    m_dialog.m_edit.ShowWindow(SW_HIDE);
    m_dialog.m_during = [](CDataExchange* exchange) {
        exchange->PrepareEditCtrl(IDC_FIELDS_EDIT);
        exchange->Fail();
    };
    EXPECT_FALSE(m_dialog.UpdateData());
    EXPECT_EQ(check, ::GetFocus());
}

TEST_F(DataExchange, MissingControlIsAnError)
{
    CDataExchange exchange(&m_dialog, TRUE);
    EXPECT_THROW(exchange.PrepareCtrl(IDC_INNER_LAST), std::runtime_error);
}

TEST_F(DataExchange, ControlsAreBoundOnce)
{
    EXPECT_EQ(&m_dialog.m_edit, CWnd::FromHandlePermanent(::GetDlgItem(m_dialog, IDC_FIELDS_EDIT)));
    const HWND bound = m_dialog.m_edit.m_hWnd;
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(bound, m_dialog.m_edit.m_hWnd);
}
