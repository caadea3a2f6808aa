#pragma once

#include "pages/core/page_catalogue.h"
#include "pages/core/page_values.h"
#include "pages/core/setting_row.h"
#include "wizard/wizard_page.h"

/// A category page that its rows describe: it loads, saves, exchanges, lays
/// out and explains every setting from them, fills lists, sets up up-down
/// controls, opens what the "..." buttons open, enables and shows what depends
/// on others, and marks the dialog modified when a control changes. A derived
/// class adds what is peculiar; an entry in its message map comes before what
/// the rows say about the same notification.
class CSettingsPage : public CWizardPage
{
    DECLARE_DYNAMIC(CSettingsPage)

  public:
    /// The rows must outlive the page.
    CSettingsPage(CPreferencesWizard* owner, const ov::PageRows& rows);

    BOOL OnInitDialog() override;
    bool CreateOrShow(CWnd* parent, const CRect& rectangle) override;
    bool LoadSettings(int selector) override;
    bool SaveSettings(CPreferencesWizard* wizard) override;
    virtual void RegisterTooltips();

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void InitControlLayout() override;
    UINT AccessibleNameId(int controlId) const override;

    /// Notifications that no message-map entry takes: "..." buttons, and the
    /// control of a row by the notification with which that kind of control
    /// reports a change.
    BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result) override;

    /// The page's hook, then the dependencies, from the members. Runs after a
    /// load, when the page is shown and when a control that dependencies name
    /// has changed.
    virtual void RefreshControls();

    // The two halves of RefreshControls. What the dependencies follow are the
    // given values.
    void ApplyRefreshHook();
    void ApplyDependencies(const ov::PageValues& values);

    /// What the "..." button opens, the focus on refusal included.
    void Browse(const ov::BrowseRow& row);
    void Browse(int buttonId);

    /// Never so narrow that controls would lie over each other: a page that has
    /// less room scrolls.
    CRect GetClientRectangle() const override;

    /// Measures what the controls need, and what their lists need when open.
    void OnTemplateLayout() override;
    CSize NeededSize() const override;

    ov::PageValues& Values() { return m_values; }
    const ov::PageRows& Rows() const { return m_rows; }

  private:
    void FillLists();
    void SetUpSpins();
    void LiftTextLimits();
    bool Follows(HWND control) const;
    int NarrowestWidth(HWND control, const CRect& units) const;
    int NarrowestWidth() const;
    bool ReportsChange(int id, int code) const;
    bool IsDependedOn(int id) const;
    int GroupOf(int id) const;
    void ReadControls(CDataExchange* exchange);
    void ShowValues(CDataExchange* exchange);
    void Exchange(CDataExchange* exchange, ov::ControlKind control, int id, int& number, ov::Text& text);

    const ov::PageRows& m_rows;
    ov::PageValues m_values;
    const std::vector<ov::LayoutRow> m_layout;
    int m_narrowestWidth = 0;
};
