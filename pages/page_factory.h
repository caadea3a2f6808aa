#pragma once

#include <memory>

#include "pages/core/page_catalogue.h"

class CPreferencesWizard;
class CWizardPage;

/// Constructs the page of that catalogue row, without a window; none when no
/// class stands for it.
std::unique_ptr<CWizardPage> MakePage(const ov::PageInfo& info, CPreferencesWizard* owner);
