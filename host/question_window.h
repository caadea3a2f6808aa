#pragma once

#include "framework/afxwin.h"

#include <array>

/// The words of a question. The window always has the button "Cancel", which is the default.
struct QuestionWords {
    LPCWSTR icon = IDI_QUESTION;       ///< Of the system.
    ov::Text text{};                   ///< Paragraphs separated by "\n".
    std::array<ov::Text, 2> answers{}; ///< Captions of the buttons IDYES and IDNO; empty: no such button.
    ov::Text details{};                ///< Lines separated by "\r\n"; empty: no button "Show Details".
    bool mayBeSilenced = false;        ///< Offers not to ask again for the file.
};

/// A question with a text of any length, and with details that the user can show and scroll.
class CQuestionWindow : public CDialog
{
    DECLARE_DYNAMIC(CQuestionWindow)

  public:
    /// DoModal returns IDYES, IDNO or IDCANCEL. `words` must outlive the object.
    explicit CQuestionWindow(const QuestionWords& words);

    /// True if the user does not want to be asked again for the file.
    bool IsSilenced() const { return m_silenced; }

  protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override;

  private:
    void OnYes();
    void OnNo();
    void OnShowDetails();
    void OnSize(UINT type, int width, int height);
    void OnGetMinMaxInfo(MINMAXINFO* limits);

    void Answer(int button);
    void Fill();
    void SetDetailsFont();
    void ShowDetails();
    void Arrange();
    void ArrangeDetails(int top, int bottom, int width);
    void ArrangeButtons(int width, int height);
    CSize Pixels(int width, int height) const;
    CSize SizeOfText(const ov::Text& text, int width, UINT format) const;
    int BottomOfText(int width) const;
    int HeightBelowText() const;
    void SetClientHeight(int height);

    const QuestionWords& m_words;
    CFont m_detailsFont;
    CSize m_least; ///< the smallest size of the window
    bool m_detailsShown = false;
    bool m_silenced = false;
};
