// The Signature Cells page in the dialog.
#include "pages/signature_cell/ids.h"
#include "resources/ids.h"
#include "tests/ui/page_doors.h"

using namespace uidriver;

namespace
{

class SignatureCellPageTest : public PageDoors
{
  protected:
    bool OpenPage() { return Open() && ShowPage(L"Signature Cells"); }

    /// All controls but the first check box depend on it.
    void ExpectEnabled(bool enabled)
    {
        for (const int id : {9495, 9509, 9501, 9499, 9500, 9502, 9497, 9498})
            EXPECT_EQ(enabled, IsPageEnabled(id)) << id;
        EXPECT_TRUE(IsPageEnabled(9494));
        EXPECT_FALSE(IsWindowVisible(PageControl(9496)));
    }
};

TEST_F(SignatureCellPageTest, FirstBoxEnablesTheOthersAtEveryMoment)
{
    UseDefaults("_ORTHOVAL_CHECK_SIGNATURECELL = 1\r\n");
    UseCurrent("_ORTHOVAL_CHECK_SIGNATURECELL = 0\r\n");
    ASSERT_TRUE(OpenPage());
    EXPECT_FALSE(CanSave()); // neither loading nor showing the page marks the dialog
    ExpectEnabled(false);
    ClickOnPage(IDC_SIGNATURE_CELL_CHECK);
    ExpectEnabled(true);
    ClickOnPage(IDC_SIGNATURE_CELL_CHECK);
    ExpectEnabled(false);
    Press(IDC_PREFERENCES_LOAD_DEFAULTS);
    ExpectEnabled(true);
    Abandon();
}

TEST_F(SignatureCellPageTest, CountOfEnterDataFieldsKeepsItsValueThoughNoControlShowsIt)
{
    UseCurrent("_ORTHOVAL_SIGNATURECELL_COUNT_EDF = 1\r\n");
    ASSERT_TRUE(OpenPage());
    ClickOnPage(IDC_SIGNATURE_CELL_CHECK);
    Click(PageControl(IDC_SIGNATURE_CELL_COUNT_FIELDS));
    Save();
    EXPECT_EQ("_ORTHOVAL_SIGNATURECELL_COUNT_EDF = 1", Saved("_ORTHOVAL_SIGNATURECELL_COUNT_EDF"));
}

TEST_F(SignatureCellPageTest, ListsOpenInTheEditorUnlessAQuoteIsMissing)
{
    UseCurrent("_ORTHOVAL_CHECK_SIGNATURECELL = 1\r\n");
    ASSERT_TRUE(OpenPage());
    TypeOnPage(IDC_SIGNATURE_CELL_LIBRARY, L"a.cel;b.cel");
    EXPECT_EQ((std::vector<std::wstring>{L"a.cel", L"b.cel"}),
              EntriesBehind(IDC_SIGNATURE_CELL_LIBRARY_BROWSE, true));
    TypeOnPage(IDC_SIGNATURE_CELL_NAMES, L"A,B;C");
    EXPECT_EQ((std::vector<std::wstring>{L"A,B", L"C"}), EntriesBehind(IDC_SIGNATURE_CELL_NAMES_BROWSE));
    TypeOnPage(IDC_SIGNATURE_CELL_LIBRARY, L"\"a.cel");
    ExpectRefused(IDC_SIGNATURE_CELL_LIBRARY_BROWSE, IDC_SIGNATURE_CELL_LIBRARY_BROWSE);
    TypeOnPage(IDC_SIGNATURE_CELL_NAMES, L"\"A");
    ExpectRefused(IDC_SIGNATURE_CELL_NAMES_BROWSE, IDC_SIGNATURE_CELL_NAMES);
    Abandon();
}

} // namespace
