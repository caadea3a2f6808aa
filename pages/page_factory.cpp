#include "pages/page_factory.h"

#include "pages/page_branding.h"
#include "pages/page_conforming.h"
#include "resources/ids.h"

namespace
{
template <class Page>
std::unique_ptr<CWizardPage> Make(CPreferencesWizard* owner, const ov::PageInfo& info)
{
    return std::make_unique<Page>(owner, info);
}

struct PageMaker {
    UINT templateId;
    std::unique_ptr<CWizardPage> (*make)(CPreferencesWizard*, const ov::PageInfo&);
};

// The catalogue says which pages there are and in what order; this says which
// class each of them is.
constexpr PageMaker makers[] = {
    {IDD_PAGE_BRANDING, &Make<CPageBranding>},
    {IDD_PAGE_CONFORMING, &Make<CPageConforming>},
};
} // namespace

std::unique_ptr<CWizardPage> MakePage(const ov::PageInfo& info, CPreferencesWizard* owner)
{
    for (const PageMaker& maker : makers) {
        if (maker.templateId == info.templateId)
            return maker.make(owner, info);
    }
    return nullptr;
}
