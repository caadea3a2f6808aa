#include "pages/page_factory.h"

#include "pages/page_classes.h"

namespace
{
template <class Page>
std::unique_ptr<CWizardPage> Make(CPreferencesWizard* owner)
{
    return std::make_unique<Page>(owner);
}

struct PageMaker {
    const ov::PageRows* rows;
    std::unique_ptr<CWizardPage> (*make)(CPreferencesWizard*);
};

constexpr PageMaker makers[] = {
#define OV_PAGE(name) {&ov::k##name##Rows, &Make<CPage##name>},
#include "pages/page_list.inc"
#undef OV_PAGE
};
} // namespace

std::unique_ptr<CWizardPage> MakePage(const ov::PageInfo& info, CPreferencesWizard* owner)
{
    for (const PageMaker& maker : makers) {
        if (&maker.rows->info == &info)
            return maker.make(owner);
    }
    return nullptr;
}
