#pragma once

#include "pages/settings_page.h"

/// The Reference Files page: how they are reported, and requirements for border sheets.
class CPageReferenceFiles : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageReferenceFiles)
    DECLARE_MESSAGE_MAP()

  public:
    explicit CPageReferenceFiles(CPreferencesWizard* owner);

  private:
    /// Reads the controls, clamps the scale factor to its limits and marks the
    /// dialog as modified. The dependent controls are enabled by the texts before this
    /// change: if a key fills or empties one of the texts, the other controls follow
    /// with the next refresh.
    void Refresh();
    void OnBrowseBorderSheets();
    void OnBrowsePlotShape();
};
