#pragma once

#include "pages/core/page_rows.h"
#include "pages/settings_page.h"

/// A page without behaviour of its own; its rows describe it completely.
template <const ov::PageRows& PlainRows>
class CPlainPage : public CSettingsPage
{
  public:
    explicit CPlainPage(CPreferencesWizard* owner) : CSettingsPage(owner, PlainRows) {}
};

// The class of every page. Pages with behaviour of their own have it in their folder's
// page.h. Every other page is one line: using CPageURLs = CPlainPage<ov::kURLsRows>.
#define OV_PLAIN_PAGE(name) using CPage##name = CPlainPage<ov::k##name##Rows>;
#include "pages/page_classes.inc"
#undef OV_PLAIN_PAGE
