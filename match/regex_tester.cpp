#include "match/regex_tester.h"

#include "base/placeholders.h"
#include "controls/core/layout.h"
#include "controls/dropped_list.h"
#include "match/core/pattern_match.h"
#include "resources/ids.h"

#include <initializer_list>
#include <utility>

namespace
{
// In the order of ov::WildcardType, whose codes are the indices.
constexpr UINT typeNames[] = {IDS_REGEX_TYPE_NONE,    IDS_REGEX_TYPE_DOS,  IDS_REGEX_TYPE_RANGES,
                              IDS_REGEX_TYPE_SUBSETS, IDS_REGEX_TYPE_PERL, IDS_REGEX_TYPE_POSIX};
} // namespace

IMPLEMENT_DYNAMIC(RegexTester, CResizableDlg)

BEGIN_MESSAGE_MAP(RegexTester, CResizableDlg)
    ON_WM_GETMINMAXINFO()
    ON_MESSAGE(DM_GETDEFID, &RegexTester::OnGetDefaultId)
    ON_EN_CHANGE(IDC_REGEX_TESTER_TEMPLATE, &RegexTester::OnTextChanged)
    ON_EN_CHANGE(IDC_REGEX_TESTER_TEST_STRING, &RegexTester::OnTextChanged)
    ON_BN_CLICKED(IDC_REGEX_TESTER_TEST_MATCH, &RegexTester::OnTestMatch)
END_MESSAGE_MAP()

RegexTester::RegexTester(CWnd* parent, std::int32_t initialType, ov::Text initialTemplate,
                         ov::Text initialTestString)
    : CResizableDlg(IDD_REGEX_TESTER, parent, true, ov::kDesignWidth, ov::kDesignHeight),
      m_template(std::move(initialTemplate)), m_testString(std::move(initialTestString)), m_type(initialType)
{
    RegexTester::InitControlLayout();
}

void RegexTester::DoDataExchange(CDataExchange* exchange)
{
    CResizableDlg::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_REGEX_TESTER_TYPE, m_typeCombo);
    DDX_Control(exchange, IDC_REGEX_TESTER_TEMPLATE, m_templateEdit);
    DDX_Control(exchange, IDC_REGEX_TESTER_TEST_STRING, m_testStringEdit);
    DDX_Control(exchange, IDC_REGEX_TESTER_RESULT, m_resultEdit);
    DDX_Control(exchange, IDC_REGEX_TESTER_TEST_MATCH, m_testButton);
    DDX_CBIndex(exchange, IDC_REGEX_TESTER_TYPE, m_type);
    DDX_Text(exchange, IDC_REGEX_TESTER_TEMPLATE, m_template);
    DDX_Text(exchange, IDC_REGEX_TESTER_TEST_STRING, m_testString);
    DDX_Text(exchange, IDC_REGEX_TESTER_RESULT, m_result);
}

void RegexTester::InitControlLayout()
{
    using namespace ov;
    for (const UINT fixed : std::initializer_list<UINT>{
             IDC_REGEX_TESTER_TYPE_LABEL, IDC_REGEX_TESTER_TEMPLATE_LABEL, IDC_REGEX_TESTER_TEST_STRING_LABEL,
             IDC_REGEX_TESTER_RESULT_LABEL, IDC_REGEX_TESTER_RESULT, IDC_REGEX_TESTER_NO_CONTROL})
        AddLayout(fixed, LayoutKeepLeft | LayoutKeepTop);
    for (const UINT stretched : std::initializer_list<UINT>{IDC_REGEX_TESTER_TYPE, IDC_REGEX_TESTER_TEMPLATE,
                                                            IDC_REGEX_TESTER_TEST_STRING})
        AddLayout(stretched, LayoutKeepTop | LayoutStretchWidth);
}

BOOL RegexTester::OnInitDialog()
{
    CResizableDlg::OnInitDialog();
    m_templateEdit.SetLimitText();
    m_testStringEdit.SetLimitText();
    FillTypes();
    UpdateData(FALSE);
    OnTextChanged();
    return TRUE;
}

void RegexTester::FillTypes()
{
    for (const UINT name : typeNames) {
        const ov::Text text = AfxLoadString(name);
        m_typeCombo.SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(text)));
    }
    FitDroppedWidth(m_typeCombo.m_hWnd);
}

void RegexTester::LayoutPass()
{
    CResizableDlg::LayoutPass();
    // A combo box discards a drop-down width that it already had when it was set.
    if (m_typeCombo.m_hWnd != nullptr)
        FitDroppedWidth(m_typeCombo.m_hWnd);
}

BOOL RegexTester::PreTranslateMessage(MSG* message)
{
    // A multi-line edit would press the default button. Ctrl+Enter starts a new
    // line.
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN && ::GetKeyState(VK_CONTROL) >= 0 &&
        (message->hwnd == m_templateEdit.m_hWnd || message->hwnd == m_testStringEdit.m_hWnd)) {
        SendMessage(WM_COMMAND, IDOK, 0);
        return TRUE;
    }
    return CResizableDlg::PreTranslateMessage(message);
}

LRESULT RegexTester::OnGetDefaultId(WPARAM, LPARAM)
{
    // "Test Match" is drawn as the default button, but Enter presses it only while it
    // has the focus.
    return MAKELRESULT(IDOK, DC_HASDEFID);
}

void RegexTester::OnGetMinMaxInfo(MINMAXINFO* info)
{
    ApplyMinimumSize(info);
}

void RegexTester::OnTextChanged()
{
    UpdateData(TRUE);
    m_testButton.EnableWindow(TRUE);
}

void RegexTester::OnTestMatch()
{
    UpdateData(TRUE);
    // Patterns and texts of tens of thousands of characters can take seconds.
    const HCURSOR before = ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
    m_result = Evaluate();
    ::SetCursor(before);
    UpdateData(FALSE);
}

ov::Text RegexTester::Evaluate() const
{
    if (m_template.empty())
        return AfxLoadString(IDS_REGEX_NO_TEMPLATE);
    if (m_testString.empty())
        return AfxLoadString(IDS_REGEX_NO_TEST_STRING);
    std::uint32_t match = 0;
    constexpr int anyCase = 0;
    const std::uint32_t status = ov::MatchPattern(&match, m_template.c_str(), m_testString.c_str(),
                                                  static_cast<ov::WildcardType>(m_type), anyCase);
    if (status == ov::kMatchDone)
        return AfxLoadString(match != 0 ? IDS_REGEX_MATCH : IDS_REGEX_NO_MATCH);
    return ov::FillNumber(AfxLoadString(IDS_REGEX_SYNTAX_ERROR), static_cast<int>(status));
}
