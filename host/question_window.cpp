#include "host/question_window.h"

#include "framework/window_resolution.h"
#include "framework/work_area.h"
#include "host/host_texts.h"
#include "resources/ids.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CQuestionWindow, CDialog)

BEGIN_MESSAGE_MAP(CQuestionWindow, CDialog)
    ON_BN_CLICKED(IDYES, &CQuestionWindow::OnYes)
    ON_BN_CLICKED(IDNO, &CQuestionWindow::OnNo)
    ON_BN_CLICKED(IDC_HOST_QUESTION_SHOW, &CQuestionWindow::OnShowDetails)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

namespace
{
// In dialog units, as in the template.
constexpr int margin = 7;
constexpr int textLeft = 35;
constexpr int iconHeight = 20;
constexpr int lineHeight = 8;
constexpr int gap = 4;
constexpr int boxHeight = 10;
constexpr int buttonWidth = 50;
constexpr int buttonHeight = 14;
constexpr int buttonPadding = 12;
constexpr int detailsHeight = 130;

// In points.
constexpr int detailsFontSize = 9;
constexpr int pointsPerInch = 72;
} // namespace

CQuestionWindow::CQuestionWindow(const QuestionWords& words) : CDialog(IDD_HOST_QUESTION), m_words(words) {}

BOOL CQuestionWindow::OnInitDialog()
{
    CDialog::OnInitDialog();
    Fill();
    CRect client;
    GetClientRect(client);
    SetClientHeight(BottomOfText(client.Width()) + HeightBelowText());
    CRect window;
    GetWindowRect(window);
    m_least = CSize(window.Width(), window.Height());
    Arrange();
    CenterWindow();
    // Not the first tab stop: Enter and the space bar have to be harmless.
    GetDlgItem(IDCANCEL)->SetFocus();
    return FALSE;
}

void CQuestionWindow::Fill()
{
    SetIcon(::LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(IDI_PREFERENCES)), TRUE);
    GetDlgItem(IDC_HOST_QUESTION_ICON)
        ->SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(::LoadIconW(nullptr, m_words.icon)));
    GetDlgItem(IDC_HOST_QUESTION_TEXT)->SetWindowText(m_words.text);
    for (const int answer : {0, 1}) {
        CWnd* const button = GetDlgItem(answer == 0 ? IDYES : IDNO);
        const ov::Text& caption = m_words.answers[static_cast<std::size_t>(answer)];
        button->SetWindowText(caption);
        button->ShowWindow(caption.empty() ? SW_HIDE : SW_SHOWNA);
    }
    GetDlgItem(IDC_HOST_QUESTION_SILENT)->ShowWindow(m_words.mayBeSilenced ? SW_SHOWNA : SW_HIDE);
    CWnd* const details = GetDlgItem(IDC_HOST_QUESTION_DETAILS);
    GetDlgItem(IDC_HOST_QUESTION_SHOW)->ShowWindow(m_words.details.empty() ? SW_HIDE : SW_SHOWNA);
    details->SendMessage(EM_SETLIMITTEXT, 0);
    details->SetWindowText(m_words.details);
    SetDetailsFont();
}

// The signs at the beginnings of the lines are compared at a glance only if all characters are
// equally wide.
void CQuestionWindow::SetDetailsFont()
{
    LOGFONTW font{};
    font.lfHeight =
        -::MulDiv(detailsFontSize, static_cast<int>(AfxGetWindowResolution(m_hWnd)), pointsPerInch);
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    ov::Text(u"Consolas").copy(reinterpret_cast<char16_t*>(font.lfFaceName), LF_FACESIZE - 1);
    if (m_detailsFont.CreateFontIndirect(&font))
        GetDlgItem(IDC_HOST_QUESTION_DETAILS)
            ->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_detailsFont.GetSafeHandle()), TRUE);
}

void CQuestionWindow::OnYes()
{
    Answer(IDYES);
}

void CQuestionWindow::OnNo()
{
    Answer(IDNO);
}

void CQuestionWindow::Answer(int button)
{
    m_silenced = ::IsDlgButtonChecked(m_hWnd, IDC_HOST_QUESTION_SILENT) == BST_CHECKED;
    EndDialog(button);
}

void CQuestionWindow::OnShowDetails()
{
    m_detailsShown = !m_detailsShown;
    GetDlgItem(IDC_HOST_QUESTION_SHOW)
        ->SetWindowText(HostText(m_detailsShown ? IDS_HOST_HIDE_DETAILS : IDS_HOST_SHOW_DETAILS));
    for (const int id : {IDC_HOST_QUESTION_DETAILS_LABEL, IDC_HOST_QUESTION_DETAILS})
        GetDlgItem(id)->ShowWindow(m_detailsShown ? SW_SHOWNA : SW_HIDE);
    CRect client;
    GetClientRect(client);
    SetClientHeight(BottomOfText(client.Width()) + HeightBelowText() +
                    (m_detailsShown ? Pixels(0, detailsHeight).cy : 0));
    Arrange();
}

void CQuestionWindow::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    if (m_least.cx != 0)
        Arrange();
}

void CQuestionWindow::OnGetMinMaxInfo(MINMAXINFO* limits)
{
    CDialog::OnGetMinMaxInfo(limits);
    if (m_least.cx != 0)
        limits->ptMinTrackSize = {m_least.cx, m_least.cy};
}

CSize CQuestionWindow::Pixels(int width, int height) const
{
    RECT rectangle{0, 0, width, height};
    ::MapDialogRect(m_hWnd, &rectangle);
    return {rectangle.right, rectangle.bottom};
}

CSize CQuestionWindow::SizeOfText(const ov::Text& text, int width, UINT format) const
{
    CRect rectangle(0, 0, width, 0);
    HDC context = ::GetDC(m_hWnd);
    HGDIOBJ before = ::SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT)));
    ::DrawTextW(context, Wide(text), static_cast<int>(text.size()), rectangle, format | DT_CALCRECT);
    ::SelectObject(context, before);
    ::ReleaseDC(m_hWnd, context);
    return {rectangle.Width(), rectangle.Height()};
}

int CQuestionWindow::BottomOfText(int width) const
{
    const CSize edge = Pixels(margin, margin);
    const CSize size = SizeOfText(m_words.text, width - Pixels(textLeft, 0).cx - edge.cx,
                                  DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL);
    return edge.cy + std::max<int>(Pixels(0, iconHeight).cy, size.cy);
}

int CQuestionWindow::HeightBelowText() const
{
    return Pixels(0, (m_words.mayBeSilenced ? margin + boxHeight : 0) + margin + buttonHeight + margin).cy;
}

void CQuestionWindow::SetClientHeight(int height)
{
    CRect client;
    GetClientRect(client);
    CRect window;
    GetWindowRect(window);
    window.bottom += height - client.Height();
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (::GetMonitorInfoW(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor))
        window = AfxMovedInto(window, monitor.rcWork);
    MoveWindow(window);
}

void CQuestionWindow::Arrange()
{
    CRect client;
    GetClientRect(client);
    const CSize edge = Pixels(margin, margin);
    const int bottomOfText = BottomOfText(client.Width());
    const int left = Pixels(textLeft, 0).cx;
    GetDlgItem(IDC_HOST_QUESTION_TEXT)
        ->MoveWindow(left, edge.cy, client.Width() - left - edge.cx, bottomOfText - edge.cy);
    const int topBelow = client.Height() - HeightBelowText();
    ArrangeDetails(bottomOfText + edge.cy, topBelow, client.Width());
    GetDlgItem(IDC_HOST_QUESTION_SILENT)
        ->MoveWindow(left, topBelow + edge.cy, client.Width() - left - edge.cx, Pixels(0, boxHeight).cy);
    ArrangeButtons(client.Width(), client.Height());
    Invalidate();
}

void CQuestionWindow::ArrangeDetails(int top, int bottom, int width)
{
    const CSize edge = Pixels(margin, gap);
    const int line = Pixels(0, lineHeight).cy;
    const int editTop = top + line + edge.cy;
    GetDlgItem(IDC_HOST_QUESTION_DETAILS_LABEL)->MoveWindow(edge.cx, top, width - 2 * edge.cx, line);
    GetDlgItem(IDC_HOST_QUESTION_DETAILS)
        ->MoveWindow(edge.cx, editTop, width - 2 * edge.cx, std::max(bottom - editTop, 0));
}

void CQuestionWindow::ArrangeButtons(int width, int height)
{
    const CSize edge = Pixels(margin, margin);
    const CSize usual = Pixels(buttonWidth, buttonHeight);
    const int top = height - edge.cy - usual.cy;
    int right = width - edge.cx;
    for (const int id : {IDCANCEL, IDNO, IDYES}) {
        CWnd* const button = GetDlgItem(id);
        if (button->GetWindowText().empty())
            continue;
        const int needed =
            SizeOfText(button->GetWindowText(), 0, DT_SINGLELINE).cx + Pixels(buttonPadding, 0).cx;
        const int own = std::max<int>(usual.cx, needed);
        button->MoveWindow(right - own, top, own, usual.cy);
        right -= own + Pixels(gap, 0).cx;
    }
    CRect show;
    GetDlgItem(IDC_HOST_QUESTION_SHOW)->GetClientRect(show);
    GetDlgItem(IDC_HOST_QUESTION_SHOW)->MoveWindow(edge.cx, top, show.Width(), usual.cy);
}
