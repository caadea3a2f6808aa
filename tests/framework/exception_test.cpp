#include "tests/framework/recording_hook.h"
#include "tests/framework/script_dialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
constexpr UINT failWithText = WM_APP + 1;
constexpr UINT failWithNumber = WM_APP + 2;
constexpr UINT failSilently = WM_APP + 3;
constexpr UINT failInLoop = WM_APP + 4;

class CFailing : public CScriptDialog
{
  public:
    explicit CFailing(UINT id = IDD_SMALL) : CScriptDialog(id) {}
    bool m_failPaint = false;
    int m_paints = 0;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == failInLoop)
            throw std::runtime_error("in the loop");
        return CScriptDialog::PreTranslateMessage(message);
    }

  protected:
    DECLARE_MESSAGE_MAP()
    LRESULT OnFailWithText(WPARAM, LPARAM)
    {
        throw std::runtime_error("Gr\xC3\xB6\xC3\x9F"
                                 "e");
    }
    LRESULT OnFailWithNumber(WPARAM, LPARAM) { throw 42; }
    LRESULT OnFailSilently(WPARAM, LPARAM) { throw CUserException(); }
    void OnPaint()
    {
        ++m_paints;
        if (m_failPaint)
            throw std::runtime_error("paint");
        CScriptDialog::OnPaint();
    }
};

BEGIN_MESSAGE_MAP(CFailing, CScriptDialog)
    ON_MESSAGE(failWithText, &CFailing::OnFailWithText)
    ON_MESSAGE(failWithNumber, &CFailing::OnFailWithNumber)
    ON_MESSAGE(failSilently, &CFailing::OnFailSilently)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class CUnborn : public CWnd
{
  protected:
    DECLARE_MESSAGE_MAP()
    int OnCreate(CREATESTRUCTW*) { throw std::runtime_error("unborn"); }
};

BEGIN_MESSAGE_MAP(CUnborn, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()
} // namespace

TEST(Exceptions, HandlerFailureIsToldAndTheLoopGoesOn)
{
    CRecordingHook hook;
    CFailing dialog;
    dialog.Then([&] { dialog.PostMessage(failWithText); });
    dialog.Then([&] { dialog.PostMessage(failWithNumber); });
    dialog.Then([&] { dialog.PostMessage(failInLoop); });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    ASSERT_EQ(3u, hook.m_boxes.size());
    EXPECT_EQ(u"Gr\u00F6\u00DFe", hook.m_boxes[0].text);
    EXPECT_EQ(u"framework_tests", hook.m_boxes[0].caption);
    EXPECT_EQ(static_cast<UINT>(MB_OK | MB_ICONSTOP), hook.m_boxes[0].type);
    EXPECT_EQ(u"An unexpected error has occurred.", hook.m_boxes[1].text);
    EXPECT_EQ(u"in the loop", hook.m_boxes[2].text);
}

TEST(Exceptions, SentMessageReturnsToItsSender)
{
    CRecordingHook hook;
    CFailing dialog;
    dialog.Create(IDD_SMALL);
    EXPECT_EQ(0, dialog.SendMessage(failWithText));
    EXPECT_EQ(1u, hook.m_boxes.size());
}

TEST(Exceptions, WhatTheUserKnowsIsNotToldAgain)
{
    CRecordingHook hook;
    CFailing dialog;
    dialog.Create(IDD_SMALL);
    EXPECT_EQ(0, dialog.SendMessage(failSilently));
    EXPECT_TRUE(hook.m_boxes.empty());
}

TEST(Exceptions, FailedCreationMakesNoWindow)
{
    CRecordingHook hook;
    CUnborn window;
    EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_EQ(nullptr, window.m_hWnd);
    ASSERT_EQ(1u, hook.m_boxes.size());
    EXPECT_EQ(u"unborn", hook.m_boxes[0].text);
}

TEST(Exceptions, FailedPaintingIsNotRepeated)
{
    CRecordingHook hook;
    CFailing dialog;
    dialog.Then([&] {
        dialog.m_failPaint = true;
        dialog.m_paints = 0;
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    });
    dialog.Then([&] {
        EXPECT_FALSE(::GetUpdateRect(dialog, nullptr, FALSE));
        EXPECT_EQ(1, dialog.m_paints);
        dialog.m_failPaint = false;
    });
    EXPECT_EQ(scriptEnded, dialog.DoModal());
    EXPECT_EQ(1u, hook.m_boxes.size());
}

TEST(Exceptions, FailedInitialisationEndsTheDialog)
{
    CRecordingHook hook;
    CFailing dialog;
    dialog.m_onInit = [] { throw std::runtime_error("init"); };
    bool looped = false;
    dialog.Then([&] { looped = true; });
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_FALSE(looped);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    ASSERT_EQ(1u, hook.m_boxes.size());
    EXPECT_EQ(u"init", hook.m_boxes[0].text);
    EXPECT_EQ(static_cast<UINT>(MB_OK | MB_ICONSTOP), hook.m_boxes[0].type);
}

TEST(Exceptions, FailedInitialisationMakesNoModelessDialog)
{
    CRecordingHook hook;
    CHostWindow host;
    CFailing page;
    page.m_onInit = [] { throw std::runtime_error("init"); };
    EXPECT_FALSE(page.Create(IDD_INNER, &host));
    EXPECT_EQ(nullptr, page.m_hWnd);
    EXPECT_EQ(nullptr, ::GetWindow(host, GW_CHILD));
    EXPECT_EQ(1u, hook.m_boxes.size());
    page.m_onInit = nullptr;
    EXPECT_TRUE(page.Create(IDD_INNER, &host)) << "the next time it may succeed";
}

TEST(Exceptions, FailureWhileOneIsToldOpensNoSecondBox)
{
    /// Makes the handler fail again while the message box is open.
    class CProvokingHook : public CRecordingHook
    {
      public:
        CWnd* m_window = nullptr;
        std::optional<int> OnMessageBox(HWND owner, const ov::Text& text, const ov::Text& caption,
                                        UINT type) override
        {
            const auto answer = CRecordingHook::OnMessageBox(owner, text, caption, type);
            if (m_boxes.size() < 10)
                m_window->SendMessage(failWithText);
            return answer;
        }
    };
    CProvokingHook hook;
    CFailing dialog;
    dialog.Create(IDD_SMALL);
    hook.m_window = &dialog;
    dialog.SendMessage(failWithText);
    EXPECT_EQ(1u, hook.m_boxes.size());
    dialog.SendMessage(failWithText);
    EXPECT_EQ(2u, hook.m_boxes.size()) << "the next one after it is told again";
}
