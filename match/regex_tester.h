#pragma once

#include "base/text.h"
#include "controls/resizable_dlg.h"

#include <cstdint>

/// The pattern tester, the dialog "Regular Expression Tester": tries a pattern on a
/// test string under a wildcard type, ignoring case. It has no OK or Cancel button.
/// Enter ends it with IDOK, except on "Test Match", which it presses. Escape and
/// the close box end it with IDCANCEL.
class RegexTester : public CResizableDlg
{
    DECLARE_DYNAMIC(RegexTester)

  public:
    /// `initialType` is an ov::WildcardType; any other number selects no type.
    RegexTester(CWnd* parent, std::int32_t initialType, ov::Text initialTemplate, ov::Text initialTestString);

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void LayoutPass() override;
    void InitControlLayout() override;

    void OnGetMinMaxInfo(MINMAXINFO* info);
    LRESULT OnGetDefaultId(WPARAM wParam, LPARAM lParam);
    void OnTextChanged();
    void OnTestMatch();
    DECLARE_MESSAGE_MAP()

  private:
    void FillTypes();
    ov::Text Evaluate() const;

    CWnd m_typeCombo;
    CEdit m_templateEdit;
    CEdit m_testStringEdit;
    CEdit m_resultEdit;
    CButton m_testButton;
    ov::Text m_template;
    ov::Text m_testString;
    ov::Text m_result;
    int m_type;
};
