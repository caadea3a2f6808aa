#pragma once

#include "pages/core/page_catalogue.h"

#include <memory>

class CPreferencesWizard;
class CWizardPage;

/// Constructs the page, without a window. `info` is an element of the catalogue.
std::unique_ptr<CWizardPage> MakePage(const ov::PageInfo& info, CPreferencesWizard* owner);
