#pragma once

#include <memory>

#include "pages/core/page_catalogue.h"

class CPreferencesWizard;
class CWizardPage;

/// Constructs the page, without a window. Defined in app/: the pages derive from this
/// folder's page base, which therefore cannot see them.
std::unique_ptr<CWizardPage> CreateCataloguePage(const ov::PageInfo& info, CPreferencesWizard* owner);
