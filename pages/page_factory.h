#pragma once

#include <memory>

#include "pages/core/page_catalogue.h"

class CPreferencesWizard;
class CWizardPage;

/// Constructs the page, without a window. `info` is one of the catalogue's.
std::unique_ptr<CWizardPage> MakePage(const ov::PageInfo& info, CPreferencesWizard* owner);
