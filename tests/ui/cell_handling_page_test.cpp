// Cell Handling in the dialog.
#include "tests/ui/page_session.h"

#include "pages/cell_handling/ids.h"
#include "resources/ids.h"

using namespace uidriver;

namespace
{

struct Box {
    int id;
    const char* variable;
};

constexpr Box boxes[] = {
    {2006, "_ORTHOVAL_CHECK_CELLCOMPONENTS"},
    {2011, "_ORTHOVAL_CHECK_SHAREDCELLDEF"},
    {2008, "_ORTHOVAL_ALLOW_UNKNOWN_CONFORMING_CELLS"},
    {2015, "_ORTHOVAL_COPY_DATA_FIELDS"},
    {2007, "_ORTHOVAL_CELL_CACHING"},
};

class CellHandlingPageTest : public PageSession
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Cell Handling"); }
};

TEST_F(CellHandlingPageTest, EachBoxShowsItsOwnFlagAndLoadingDoesNotMark)
{
    for (const Box& set : boxes) {
        SCOPED_TRACE(set.variable);
        std::string bytes;
        for (const Box& box : boxes)
            bytes += box.variable + std::string(&box == &set ? " = 1\r\n" : " = 0\r\n");
        UseCurrent(bytes);
        ASSERT_TRUE(OpenPage());
        for (const Box& box : boxes)
            EXPECT_EQ(&box == &set, IsPageChecked(box.id)) << box.id;
        EXPECT_FALSE(CanSave());
        Cancel();
    }
}

TEST_F(CellHandlingPageTest, EachBoxMarksTheDialogModifiedAndSavesItsOwnFlag)
{
    for (const Box& clicked : boxes) {
        SCOPED_TRACE(clicked.variable);
        UseCurrent("_ORTHOVAL_CHECK_CELLS = 1\r\n");
        ASSERT_TRUE(OpenPage());
        EXPECT_FALSE(CanSave());
        ClickOnPage(clicked.id);
        EXPECT_TRUE(CanSave());
        Save();
        for (const Box& box : boxes) {
            const char* value = &box == &clicked ? " = 1" : " = 0";
            EXPECT_EQ(box.variable + std::string(value), Saved(box.variable));
        }
    }
}

TEST_F(CellHandlingPageTest, DefaultsReplaceWhatThePageShows)
{
    UseDefaults("_ORTHOVAL_CELL_CACHING = 1\r\n_ORTHOVAL_COPY_DATA_FIELDS = yes\r\n");
    UseCurrent("_ORTHOVAL_CHECK_CELLCOMPONENTS = 1\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_TRUE(IsPageChecked(IDC_CELL_HANDLING_COMPONENTS));
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    for (const Box& box : boxes)
        EXPECT_EQ(box.id == 2007, IsPageChecked(box.id)) << box.variable;
    Abandon();
}

} // namespace
