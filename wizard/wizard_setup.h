#pragma once

#include "base/text.h"
#include "pages/core/page_info.h"

#include <functional>
#include <memory>

class CPreferencesWizard;
class CWizardPage;

/// What the program passes to the dialog, which includes neither the command line nor
/// the classes of the pages.
struct WizardSetup {
    ov::Text defaultPath; ///< the defaults file; empty for none
    ov::Text currentPath; ///< the current file; empty for none

    /// Returns the user's name for the header of the saved file; called by each save.
    std::function<ov::Text()> userName;

    /// Constructs a page of the catalogue, without a window.
    std::function<std::unique_ptr<CWizardPage>(const ov::PageInfo& info, CPreferencesWizard* owner)> makePage;
};
