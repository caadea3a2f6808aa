#pragma once

#include "controls/pref_list_ctrl.h"
#include "wizard/wizard_page.h"

/// The category pane at the left: one row per page. Selecting a row shows its
/// page. The pane looks like a page but contains no settings.
class CLeftPane : public CWizardPage
{
    DECLARE_DYNAMIC(CLeftPane)

  public:
    CLeftPane(CPreferencesWizard* wizard, CSize scrollSize);

    BOOL OnInitDialog() override;
    bool CreateOrShow(CWnd* parent, const CRect& rectangle) override;

    /// Creates and places the pane; false if its window could not be created.
    bool Show(CPreferencesWizard* wizard, const CRect& rectangle);

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void InitControlLayout() override;
    UINT AccessibleNameId(int controlId) const override;

    /// Fits the column to the list's width in the template.
    void OnTemplateLayout() override;
    virtual void RegisterTooltips();

    void OnItemChanged(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

  private:
    int ColumnWidth() const;
    void FillList();

    CPrefListCtrl m_list;
};
