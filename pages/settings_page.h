#pragma once

#include "pages/core/page_catalogue.h"
#include "pages/core/page_geometry.h"
#include "pages/core/page_values.h"
#include "pages/core/setting_row.h"
#include "wizard/wizard_page.h"

/// A category page that is described by its rows. From them it loads, saves,
/// exchanges, lays out and explains every setting, fills lists, initialises up-down
/// controls, handles the "..." buttons, enables and shows dependent
/// controls, and marks the dialog as modified when a control changes. A derived
/// class adds what rows cannot express; an entry in its message map takes
/// precedence over the rows for the same notification.
class CSettingsPage : public CWizardPage
{
    DECLARE_DYNAMIC(CSettingsPage)

  public:
    /// The rows must outlive the page.
    CSettingsPage(CPreferencesWizard* owner, const ov::PageRows& rows);

    BOOL OnInitDialog() override;
    bool CreateOrShow(CWnd* parent, const CRect& rectangle) override;
    bool LoadSettings(ov::TableSelector table) override;
    bool SaveSettings(CPreferencesWizard* wizard) override;
    virtual void RegisterTooltips();

    /// Shows the values of the last load.
    void EndOpening() override;

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void InitControlLayout() override;
    UINT AccessibleNameId(int controlId) const override;

    /// Whether the controls wait for EndOpening, so that they are set once instead of after
    /// each load. Until then, reading a control gives what it would show.
    virtual bool PostponesExchange() const { return IsOpening(); }

    /// Handles notifications that no message-map entry handles: "..." buttons, and
    /// the notification with which a control of a row reports a
    /// change.
    BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result) override;

    /// Calls the page's refresh hook, then applies the dependencies, from the
    /// members. Called after a load, when the page is shown and when a control that
    /// dependencies name has changed.
    virtual void RefreshControls();

    // The two halves of RefreshControls. Dependencies are evaluated for the
    // given values.
    void ApplyRefreshHook();
    void ApplyDependencies(const ov::PageValues& values);

    /// Opens what the "..." button opens; also moves the focus if the editor refuses.
    void Browse(const ov::BrowseRow& row);
    void Browse(int buttonId);

    /// Limits the width so that controls never overlap: a page with less
    /// room scrolls.
    CRect GetClientRectangle() const override;

    /// Measures the space that the controls need, and their lists when open.
    void OnTemplateLayout() override;
    CSize NeededSize() const override;

    ov::PageValues& Values() { return m_values; }
    const ov::PageRows& Rows() const { return m_rows; }

  private:
    void FillLists();
    void SetUpSpins();
    void LiftTextLimits();
    /// The controls where they are now, which is where the template places them only
    /// before the first layout.
    std::vector<ov::PlacedControl> PlacedControls() const;
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
