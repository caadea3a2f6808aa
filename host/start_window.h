#pragma once

#include "framework/afxwin.h"
#include "framework/window_names.h"
#include "launch/core/start_choice.h"

#include <functional>
#include <optional>

/// Why the window for files and options does not accept what the user entered.
struct StartProblem {
    int control;   ///< the input to correct
    ov::Text text; ///< for a message box
};

/// The window in which the user chooses the files to open and the options for copies.
class CStartWindow : public CDialog
{
    DECLARE_DYNAMIC(CStartWindow)

  public:
    /// Returns why the choice is not accepted. May complete its paths.
    using Check = std::function<std::optional<StartProblem>(ov::StartChoice& choice)>;

    /// Shows `choice`. If DoModal returns IDOK, it contains what the user entered and `check`
    /// accepted.
    CStartWindow(ov::StartChoice& choice, Check check);

  protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override;
    void OnOK() override;

  private:
    void OnBrowseFile();
    void OnBrowseDefaults();
    void OnBrowseFolder();
    void OnKeep();
    void OnDestroy();

    void BrowseFor(int editId, UINT titleId);
    bool KeepsCopies() const;
    void NameButtons();
    ov::StartChoice Entered() const;

    ov::StartChoice& m_choice;
    Check m_check;
    CWindowNames m_names;
};
