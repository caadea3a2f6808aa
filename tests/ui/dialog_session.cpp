#include "tests/ui/dialog_session.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace uidriver;

namespace
{

constexpr const wchar_t* DialogCaption = L"Preferences";

// Reads the caption without a message: a window that is closing answers none.
bool IsDialog(HWND window)
{
    wchar_t caption[32] = {};
    InternalGetWindowText(window, caption, static_cast<int>(std::size(caption)));
    return std::wstring(caption) == DialogCaption;
}

// Finds a modal window of the thread other than the dialog. The dialog is identified
// by its caption, because it may become visible at any moment.
BOOL CALLBACK FindModalWindow(HWND window, LPARAM parameter)
{
    if (!IsWindowVisible(window) || ClassOf(window) != L"#32770" || IsDialog(window))
        return TRUE;
    *reinterpret_cast<HWND*>(parameter) = window;
    return FALSE;
}

std::vector<int> ButtonIds(const MessageBoxContent& box)
{
    std::vector<int> ids;
    std::ranges::transform(box.buttons, std::back_inserter(ids), &MessageBoxButton::id);
    return ids;
}

} // namespace

DialogSession::DialogSession()
{
    EXPECT_TRUE(Library::Get().Load());
}

void DialogSession::TearDown()
{
    if (HWND box = FindBox())
        ADD_FAILURE() << "a message box or dialog is left: " << testing::PrintToString(GetText(box));
    if (!m_ended) {
        if (!HasFailure())
            ADD_FAILURE() << "the test left the dialog open";
        CloseByForce();
    }
    EXPECT_EQ(OV_PREFERENCES_SHOWN, m_result.load());
}

// Cancels whatever is open, and answers the question whether to abandon changes
// with Yes, until the call returns. If the call does not return, ends the
// program: the library accepts no second call meanwhile, and a stopped suite is
// easier to diagnose than one that hangs.
void DialogSession::CloseByForce()
{
    const bool closed = Await([this] {
        if (m_ended)
            return true;
        if (HWND box = FindBox())
            PostMessageW(box, WM_COMMAND, GetDlgItem(box, IDYES) ? IDYES : IDCANCEL, 0);
        else if (m_dialog && IsWindowEnabled(m_dialog))
            PostMessageW(m_dialog, WM_COMMAND, IDCANCEL, 0);
        return false;
    });
    if (closed)
        return;
    std::puts("The dialog does not close; giving up.");
    std::fflush(stdout);
    std::_Exit(EXIT_FAILURE);
}

void DialogSession::UseDefaults(const std::string& bytes)
{
    m_defaultPath = m_folder / L"defaults.cfg";
    ASSERT_TRUE(WriteBytes(m_defaultPath, bytes));
}

void DialogSession::UseCurrent(const std::string& bytes)
{
    m_currentPath = m_folder / L"current.cfg";
    ASSERT_TRUE(WriteBytes(m_currentPath, bytes));
}

std::string DialogSession::CurrentBytes() const
{
    const auto bytes = ReadBytes(m_currentPath);
    EXPECT_TRUE(bytes.has_value()) << "the file cannot be read";
    return bytes.value_or("");
}

void DialogSession::Begin(std::function<unsigned()> call)
{
    if (!call)
        call = [this] {
            return Library::Get().ShowDialogEx()(nullptr, m_defaultPath.c_str(), m_currentPath.c_str(),
                                                 m_user.c_str());
        };
    m_dialog = nullptr;
    m_ended = false;
    HostThread::Get().Run([this, call = std::move(call)] {
        m_result = call();
        m_ended = true;
    });
}

HWND DialogSession::AwaitDialog()
{
    Await([this] {
        m_dialog = FindTopWindow(DialogCaption, GetCurrentProcessId());
        return m_dialog || m_ended || FindBox();
    });
    if (!m_dialog || !Settle(m_dialog)) {
        ADD_FAILURE() << "the dialog did not come up";
        return nullptr;
    }
    return m_dialog;
}

HWND DialogSession::Open(std::function<unsigned()> call)
{
    Begin(std::move(call));
    return AwaitDialog();
}

HWND DialogSession::Open()
{
    return Open(nullptr);
}

HWND DialogSession::ShowPage(const std::wstring& title)
{
    HWND page = SelectCategory(m_dialog, title);
    EXPECT_TRUE(page) << "no page " << testing::PrintToString(title);
    return page;
}

void DialogSession::TypeOnPage(int id, const std::wstring& text)
{
    TypeText(PageControl(id), text);
    EXPECT_EQ(text, PageText(id));
}

void DialogSession::TakeMarkBack()
{
    constexpr UINT pageModified = 0x5F4;
    EXPECT_EQ(1, Send(m_dialog, pageModified, reinterpret_cast<WPARAM>(Page()), 0));
    EXPECT_FALSE(CanSave());
}

void DialogSession::ExpectClosed()
{
    Await([this] { return m_ended || FindBox(); });
    if (HWND box = FindBox()) {
        const auto content = AwaitMessageBox(GetText(box), box);
        ADD_FAILURE() << "unexpected message: " << testing::PrintToString(content.text);
        CloseByForce();
    }
    EXPECT_TRUE(m_ended) << "the dialog stays open";
    if (!m_ended)
        CloseByForce();
    EXPECT_EQ(OV_PREFERENCES_SHOWN, m_result.load());
    EXPECT_FALSE(IsWindow(m_dialog));
}

void DialogSession::Save()
{
    EXPECT_TRUE(CanSave());
    Press(IDC_PREFERENCES_SAVE);
    ExpectClosed();
}

void DialogSession::Cancel()
{
    Press(IDC_PREFERENCES_CANCEL);
    ExpectClosed();
}

void DialogSession::Abandon()
{
    Press(IDC_PREFERENCES_CANCEL);
    AnswerAbandonQuestion(IDYES);
    ExpectClosed();
}

void DialogSession::ExpectOpen()
{
    EXPECT_FALSE(FindBox());
    EXPECT_FALSE(m_ended);
    EXPECT_TRUE(IsWindowVisible(m_dialog));
    EXPECT_TRUE(IsWindowEnabled(m_dialog));
}

HWND DialogSession::FindBox() const
{
    if (m_ended)
        return nullptr;
    HWND found = nullptr;
    EnumThreadWindows(HostThread::Get().Id(), FindModalWindow, reinterpret_cast<LPARAM>(&found));
    return found;
}

MessageBoxContent DialogSession::AwaitBox()
{
    HWND box = nullptr;
    Await([&] {
        box = FindBox();
        return box || m_ended;
    });
    MessageBoxContent content;
    if (box)
        content = AwaitMessageBox(GetText(box), box);
    EXPECT_TRUE(content) << "no message box came up";
    return content;
}

void DialogSession::Answer(const MessageBoxContent& box, int button)
{
    EXPECT_TRUE(AnswerMessageBox(box.window, button));
    if (m_dialog)
        Settle(m_dialog);
}

void DialogSession::AnswerBox(const std::wstring& text, std::initializer_list<int> buttons, int answer)
{
    const auto box = AwaitBox();
    if (!box)
        return;
    EXPECT_EQ(kBoxCaption, box.caption);
    EXPECT_EQ(text, box.text);
    EXPECT_EQ(std::vector<int>(buttons), ButtonIds(box));
    Answer(box, answer);
}

void DialogSession::AnswerAbandonQuestion(int answer)
{
    AnswerBox(L"Do you wish to abandon all changes?", {IDYES, IDNO, IDCANCEL}, answer);
}
