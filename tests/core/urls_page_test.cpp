// URLs: the texts.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"
#include "pages/core/string_table.h"

#include <gtest/gtest.h>

namespace
{

TEST(UrlsPage, HelpTextsStandWordForWord)
{
    EXPECT_EQ(ov::FindString(8411), u"<T>_ORTHOVAL_TECHSUPPORT_URL<H>Tech Support URL<D>This sets the URL "
                                    u"for Technical Support information.");
    EXPECT_EQ(ov::FindString(8414), u"<T>_ORTHOVAL_WEBSITE_URL<H>Website URL<D>This sets the URL for "
                                    u"Orthoval information on the web.");
}

TEST(UrlsPage, AddressesStartEmptyAndAreKeptAsTyped)
{
    ov::PageValues values(ov::kURLsRows);
    for (const ov::SettingRow& row : values.Rows())
        EXPECT_EQ(values.TextOf(row.variable), u"");
    values.TextOf(u"_ORTHOVAL_WEBSITE_URL") = u" intranet/cad ";
    ov::SettingStore store;
    values.Save(store, true);
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_WEBSITE_URL", ov::kCurrentTable), u" intranet/cad ");
    EXPECT_EQ(store.GetSettingValue(u"_ORTHOVAL_TECHSUPPORT_URL", ov::kCurrentTable), u"");
}

} // namespace
