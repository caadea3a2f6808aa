#pragma once

#include <memory>

#include "pages/core/page_catalogue.h"

class CPreferencesWizard;
class CWizardPage;

/// Constructs the page, without a window. Defined in app/: the pages derive from the page base
/// class in this folder, which therefore cannot include them.
std::unique_ptr<CWizardPage> CreateCataloguePage(const ov::PageInfo& info, CPreferencesWizard* owner);
