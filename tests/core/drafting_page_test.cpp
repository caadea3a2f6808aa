// Drafting: three flags that are off initially.
#include "pages/core/page_rows.h"
#include "pages/core/page_values.h"

#include <gtest/gtest.h>

namespace
{

TEST(DraftingPage, FlagsStartOffAndLoadingMarksNothing)
{
    const ov::PageRows& rows = ov::kDraftingRows;
    ov::PageValues values(rows);
    ASSERT_EQ(values.Rows().size(), 3u);
    for (std::size_t row = 0; row < values.Rows().size(); ++row)
        EXPECT_EQ(values.Number(row), 0);
    EXPECT_FALSE(rows.loadMarksModified);
}

} // namespace
