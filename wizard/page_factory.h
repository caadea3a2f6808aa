#pragma once

#include <memory>

#include "pages/core/page_catalogue.h"

class CPreferencesWizard;
class CWizardPage;

/// Constructs the page that a catalogue row names, without a window; none when
/// the program has no such page. Defined in app/: the pages derive from this
/// folder's page base, which therefore cannot see them.
std::unique_ptr<CWizardPage> CreateCataloguePage(const ov::PageInfo& info, CPreferencesWizard* owner);
