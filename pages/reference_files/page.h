#pragma once

#include "pages/settings_page.h"

/// How reference files are reported, and what border sheets have to be.
class CPageReferenceFiles : public CSettingsPage
{
    DECLARE_DYNAMIC(CPageReferenceFiles)
    DECLARE_MESSAGE_MAP()

  public:
    explicit CPageReferenceFiles(CPreferencesWizard* owner);

  private:
    /// Reads the controls, holds the scale factor within its limits and marks
    /// the dialog modified. What it enables follows the texts as they were
    /// before: after a key that gives or empties one of them, the other
    /// controls follow with the next refresh.
    void Refresh();
    void OnBrowseBorderSheets();
    void OnBrowsePlotShape();
};
