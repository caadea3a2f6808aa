#include "pages/page_factory.h"

#include "pages/page_list.inc"

namespace
{
template <class Page>
std::unique_ptr<CWizardPage> Make(CPreferencesWizard* owner, const ov::PageInfo& info)
{
    return std::make_unique<Page>(owner, info);
}

struct PageMaker {
    ov::TextView className;
    std::unique_ptr<CWizardPage> (*make)(CPreferencesWizard*, const ov::PageInfo&);
};

#define OV_PAGE(Class) {u"" #Class, &Make<Class>},

// The catalogue says which pages there are and in what order; this says which
// class each of them is.
constexpr PageMaker makers[] = {OV_PAGE_LIST};

#undef OV_PAGE
} // namespace

std::unique_ptr<CWizardPage> MakePage(const ov::PageInfo& info, CPreferencesWizard* owner)
{
    for (const PageMaker& maker : makers) {
        if (maker.className == info.className)
            return maker.make(owner, info);
    }
    return nullptr;
}
